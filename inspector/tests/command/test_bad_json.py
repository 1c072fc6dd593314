"""JSON that is none, or of the wrong shape: its path is named."""
import json
import unittest

from inspector import InspectorTest

MESSAGE = ("encode", "session_context")
ROUTES = ("app", "sub_route", "encode")


class SyntaxTest(InspectorTest):
    def test_what_is_no_json_is_told_with_its_line(self):
        self.refused("encode", "subscriber_v4", self.file("x.json", '{\n"field_1" 1}'), says=["x.json: ", "line 2"])
        self.refused("encode", "subscriber_v4", data=b"{", says="standard input: parse error at line 1, column 2")

    def test_any_depth_is_read(self):
        deep = b"[" * 200000 + b"]" * 200000
        self.refused(*MESSAGE, data=b'{"acl": ' + deep + b"}", says="/acl: expected an object")
        self.refused(*MESSAGE, data=b'{"record": {}, "message": ' + deep + b"}", says="/message: expected")

    def test_text_behind_the_document_is_refused(self):
        self.refused("encode", "subscriber_v4", data=b"{} x", says="parse error")

    def test_a_name_that_occurs_twice_is_refused(self):
        self.refused("encode", "subscriber_v4", data=b'{"field_1": 1, "field_1": 2}', says='"field_1" occurs twice')
        self.refused(*MESSAGE, data=b'{"qos": [{"field_1": 1}, {"field_2": 1, "field_2": 2}]}', says='"field_2" occurs')

    def test_the_same_name_in_two_objects_is_none_that_occurs_twice(self):
        self.succeeds(*MESSAGE, data=b'{"acl": {"field_1": 1}, "qos": [{"field_1": 1}, {"field_1": 2}], "field_1": 3}')


class ShapeTest(InspectorTest):
    def refuses(self, command, document, says):
        self.refused(*command, data=json.dumps(document).encode(), says="standard input: " + says)

    def test_numbers_have_a_range(self):
        wrong = "expected a number from 0 to 4294967295, found"
        for value, found in [(4294967296, "4294967296"), (-1, "-1"), (1.5, "1.5"), ("1", "a text"), (None, "null"),
                             (True, "a truth value"), ([], "an array of 0 elements"), ({}, "an object")]:
            self.refuses(MESSAGE, {"qos": [{}, {}, {}, {"field_2": value}]}, f"/qos/3/field_2: {wrong} {found}")
        self.refuses(ROUTES, {"field_2": 65536}, "/field_2: expected a number from 0 to 65535, found 65536")
        self.refuses(ROUTES, {"ipv4_routes": [{"field_4": 256}]},
                     "/ipv4_routes/0/field_4: expected a number from 0 to 255, found 256")
        self.refuses(("encode", "session_delete"), {"field_4": 2**64},
                     "/field_4: expected a number from 0 to 18446744073709551615")

    def test_wide_numbers_are_taken_whole(self):
        done = self.succeeds("encode", "session_delete", "-t", "hex", data=b'{"field_4": 18446744073709551615}')
        self.assertEqual(done.output, "20ffffffffffffffffff01\n")

    def test_the_document_is_an_object(self):
        for document in ([], 1, "text", None):
            self.refuses(MESSAGE, document, "/: expected an object with the fields of session_context")
            self.refuses(ROUTES, document, "/: expected an object with the members of sub_route")

    def test_unknown_names_are_told_with_those_that_are_known(self):
        self.refuses(MESSAGE, {"acl": {"field_9": 1}}, "/acl/field_9: subscriber_acl has no such field; it has field_1")
        self.refuses(ROUTES, {"field_9": 1}, "/field_9: sub_route has no such member; it has field_1, field_2")
        self.refuses(ROUTES, {"a/b~c": 1}, "/a~1b~0c: ")

    def test_reserved_members_are_unknown(self):
        self.refuses(("app", "session_context", "encode"), {"reserved_10": 1},
                     "/reserved_10: session_context has no such member")

    def test_nested_records_are_objects_and_lists_are_arrays(self):
        self.refuses(MESSAGE, {"acl": 1}, "/acl: expected an object with the fields of subscriber_acl, found 1")
        self.refuses(MESSAGE, {"qos": {}}, "/qos: expected an array, found an object")
        self.refuses(ROUTES, {"ipv4_routes": {}}, "/ipv4_routes: expected an array of at most 50 elements, found an")

    def test_lists_of_a_record_have_slots(self):
        self.refuses(("app", "session_context", "encode"), {"qos": [{}] * 9},
                     "/qos: expected an array of at most 8 elements, found an array of 9 elements")

    def test_texts_of_a_record_have_room(self):
        name = ("app", "session_context", "encode")
        self.refuses(name, {"session_name": "x" * 65}, "/session_name: expected a text of at most 64 bytes, found 65")
        self.refuses(name, {"session_name": 5}, "/session_name: expected a text, or one as")
        self.succeeds(*name, data=json.dumps({"session_name": "x" * 64}).encode())

    def test_a_text_has_no_zero_byte(self):
        self.refuses(MESSAGE, {"acl": {"field_2": "a\0b"}}, "/acl/field_2: expected a text without a zero byte")
        self.refuses(MESSAGE, {"acl": {"field_2": {"hex": "00"}}}, "/acl/field_2: expected a text without a zero byte")

    def test_addresses_are_addresses(self):
        v4 = ("encode", "subscriber_v4")
        for value in ("192.0.2", "192.0.2.256", "2001:db8::1", ""):
            self.refuses(v4, {"ipv4_address": value}, "/ipv4_address: expected an IPv4 address such as")
        self.refuses(("encode", "subscriber_v6"), {"field_2": "2001::db8::1"}, "/field_2: expected an IPv6 address")
        self.refuses(("app", "session_context", "encode"), {"ipv6_part_2": "20010db8"},
                     "/ipv6_part_2: expected 16 bytes, found 4")

    def test_bytes_are_hex_or_say_what_they_are(self):
        ppp = ("encode", "ppp_data")
        self.refuses(ppp, {"field_5": "0a0"}, "/field_5: expected two hex digits for each byte, found 3 digits")
        self.refuses(ppp, {"field_5": "zz"}, '/field_5: expected hex digits or an address with colons, found "zz"')
        self.refuses(ppp, {"field_5": {"octal": "7"}}, "/field_5: expected a text, or one as")
        self.refuses(ppp, {"field_5": {"hex": "0g"}}, "/field_5/hex: expected hex digits")
        done = self.succeeds(*ppp, "-t", "hex", data=b'{"field_5": {"text": "line-7"}}')
        self.assertEqual(done.output, "2a066c696e652d37\n")

    def test_a_document_of_another_message_is_refused(self):
        self.refuses(MESSAGE, {"message": "sub_route", "record": {}},
                     '/message: expected "session_context", found "sub_route"')
        self.refuses(MESSAGE, {"record": {"field_1": "x"}}, "/record/field_1: expected a number")


if __name__ == "__main__":
    unittest.main()
