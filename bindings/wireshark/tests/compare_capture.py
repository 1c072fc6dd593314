#!/usr/bin/env python3
"""Compares tshark's view of a capture with the library's view of the sent messages.

    compare_capture.py PDML EXPECTED

PDML is tshark's output, EXPECTED that of field_lines. The messages are compared one after the other, and in each of
them every named field with its value, in order. Prints each difference, and the numbers of compared messages and
fields; exits with 1 if there is a difference.
"""
import sys
import xml.etree.ElementTree as ElementTree

IS_RECORD = "(Message: "  # in what Wireshark shows of a field that holds a message


def shown_messages(pdml):
    """(message, [(field, value)]) of each packet; the value of a record is empty."""
    for packet in ElementTree.parse(pdml).getroot().iter("packet"):
        for protocol in packet.findall("proto[@name='protobuf']"):
            message = next(field.get("name") for field in protocol if field.get("name").startswith("pbm."))
            fields = [(field.get("name"), "" if IS_RECORD in field.get("showname") else field.get("show"))
                      for field in protocol.iter("field") if field.get("name").startswith("pbf.")]
            on_the_wire = sum(1 for field in protocol.iter("field") if field.get("name") == "protobuf.field.number")
            fields += [("without a name", "")] * (on_the_wire - len(fields))
            yield message.removeprefix("pbm.mava_tum."), fields


def expected_messages(path):
    messages = []
    with open(path, encoding="utf-8") as lines:
        for line in lines.read().split("\n")[:-1]:
            name, _, value = line.partition(" ")
            if name.startswith("pbf."):
                messages[-1][1].append((name, value))
            else:
                messages.append((name, []))
    return messages


def differences(number, shown, expected):
    if shown[0] != expected[0]:
        yield f"message {number}: {shown[0]} is shown, {expected[0]} was sent"
        return
    for shown_field, expected_field in zip(shown[1], expected[1]):
        if shown_field != expected_field:
            yield f"message {number}, {shown[0]}: {shown_field} is shown, {expected_field} was sent"
    if len(shown[1]) != len(expected[1]):
        yield f"message {number}, {shown[0]}: {len(shown[1])} fields are shown, {len(expected[1])} were sent"


def main(pdml, expected_path):
    shown, expected = list(shown_messages(pdml)), expected_messages(expected_path)
    found = [line for number, pair in enumerate(zip(shown, expected), 1) for line in differences(number, *pair)]
    if len(shown) != len(expected):
        found.append(f"{len(shown)} messages are shown, {len(expected)} were sent")
    print("\n".join([*found, f"{len(shown)} messages of {len({name for name, _ in shown})} kinds, "
                             f"{sum(len(fields) for _, fields in shown)} fields compared, {len(found)} differences"]))
    return 1 if found or not shown else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
