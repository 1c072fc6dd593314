"""Captures: messages in UDP datagrams and behind their lengths in TCP, in pcap and pcapng."""
import ipaddress
import json
import os
import random
import shutil
import struct
import subprocess
import unittest

from inspector import PROGRAM, SOURCES, V4, InspectorTest, frames, run

ETHERNET, RAW_IP, LINUX_COOKED, LINUX_COOKED_2 = 1, 101, 113, 276
FIN, SYN, RST, ACK = 1, 2, 4, 16
FRAGMENT_HEADER, AUTHENTICATION = 44, 51
MORE_FRAGMENTS = 0x2000
# A program under the sanitizers takes long to start: one case in five.
STEP = 5 if os.environ.get("MAVA_TUM_IS_INSTRUMENTED") == "1" else 1


def transport_header(protocol, source, destination, content, sequence, flags):
    if protocol == "udp":
        return struct.pack("!HHHH", source, destination, 8 + len(content), 0)
    return struct.pack("!HHIIBBHHH", source, destination, sequence % 2**32, 0, 5 << 4, flags, 1000, 0, 0)


def ip(content, protocol, version=4, ends=("192.0.2.1", "192.0.2.2"), fragment=0, extensions=()):
    """`extensions` are pairs of an IPv6 header's number and its bytes behind the first, which is the next header."""
    number = {"udp": 17, "tcp": 6}[protocol]
    if version == 4:
        addresses = b"".join(ipaddress.IPv4Address(end).packed for end in ends)
        return struct.pack("!BBHHHBBH", 0x45, 0, 20 + len(content), 0, fragment, 64, number, 0) + addresses + content
    for kind, rest in reversed(extensions):
        content = bytes([number]) + rest + content
        number = kind
    addresses = b"".join(ipaddress.IPv6Address(end).packed for end in ("2001:db8::1", "2001:db8::2"))
    return struct.pack("!IHBB", 6 << 28, len(content), number, 64) + addresses + content


def packet(content, protocol="udp", source=5000, destination=6000, sequence=0, flags=ACK, **of_ip):
    header = transport_header(protocol, source, destination, content, sequence, flags)
    return ip(header + content, protocol, **of_ip)


def pcap(packets, link=RAW_IP, order="<", magic=0xA1B2C3D4, lengths=None):
    """`lengths`: of the packets on the link."""
    records = b"".join(
        struct.pack(order + "IIII", 0, 0, len(each), lengths[place] if lengths else len(each)) + each
        for place, each in enumerate(packets))
    return struct.pack(order + "IHHiIII", magic, 2, 4, 0, 0, 262144, link) + records


class Blocks:
    """The blocks of a pcapng, in one byte order."""

    def __init__(self, order="<"):
        self.order = order

    def block(self, kind, body=b""):
        body += bytes(-len(body) % 4)
        ends = struct.pack(self.order + "I", 12 + len(body))
        return struct.pack(self.order + "I", kind) + ends + body + ends

    def section(self, version=1):
        return self.block(0x0A0D0D0A, struct.pack(self.order + "IHHq", 0x1A2B3C4D, version, 0, -1))

    def interface(self, link=RAW_IP, most_bytes=0, options=b""):
        return self.block(1, struct.pack(self.order + "HHI", link, 0, most_bytes) + options)

    def enhanced(self, packet_bytes, interface=0, options=b""):
        size = len(packet_bytes)
        padding = bytes(-size % 4)
        return self.block(6, struct.pack(self.order + "5I", interface, 0, 0, size, size) + packet_bytes + padding + options)

    def old(self, packet_bytes, interface=0):
        size = len(packet_bytes)
        return self.block(2, struct.pack(self.order + "HH4I", interface, 65535, 0, 0, size, size) + packet_bytes)

    def simple(self, packet_bytes, sent=None):
        return self.block(3, struct.pack(self.order + "I", sent or len(packet_bytes)) + packet_bytes)


def pcapng(packets, link=RAW_IP, order="<", options=b""):
    blocks = Blocks(order)
    return (blocks.section() + blocks.interface(link, options=options) +
            b"".join(blocks.enhanced(each) for each in packets))


def ethernet(content):
    return bytes(12) + b"\x08\x00" + content


def tcp(*segments, start=1000, **more):
    """Packets of one direction: each segment is (position in the stream, bytes)."""
    return [packet(content, "tcp", sequence=start + position, **more) for position, content in segments]


def opened(*segments, start=1000, **more):
    """The same, with the SYN before them."""
    return [packet(b"", "tcp", sequence=start - 1, flags=SYN, **more), *tcp(*segments, start=start, **more)]


def numbered(number):
    return bytes([8, number]) + V4[2:]


class CaptureTest(InspectorTest):
    def decoded(self, capture, *options, notes=(), message="subscriber_v4"):
        """field_1 and packet of each message."""
        done = run("decode", "--json", *options, message, data=capture)
        self.assertEqual(done.status, 0, done.errors)
        lines = done.errors.splitlines()
        self.assertEqual(len(lines), len(notes), done.errors)
        for line, words in zip(lines, notes):
            self.assertIn(words, line)
        messages = [json.loads(line) for line in done.output.splitlines()]
        return [(each["record"]["field_1"], each["packet"]) for each in messages]


class FileTest(CaptureTest):
    def test_both_forms_are_read_in_both_byte_orders_and_units_of_time(self):
        datagrams = [packet(numbered(n)) for n in (1, 2, 3)]
        nanoseconds = {order: struct.pack(order + "HHB3xHH", 9, 1, 9, 0, 0) for order in "<>"}
        for order in "<>":
            for capture in (pcap(datagrams, order=order), pcap(datagrams, order=order, magic=0xA1B23C4D),
                            pcapng(datagrams, order=order), pcapng(datagrams, order=order, options=nanoseconds[order])):
                self.assertEqual(self.decoded(capture), [(1, 1), (2, 2), (3, 3)])
                self.assertEqual(self.decoded(capture, "-f", "capture"), [(1, 1), (2, 2), (3, 3)])

    def test_a_capture_that_ends_anywhere_gives_the_messages_before(self):
        datagrams = [packet(numbered(1)), packet(numbered(2))]
        for capture, first_packet, second_packet in ((pcap(datagrams), 24, 24 + 51), (pcapng(datagrams), 48, 48 + 68)):
            for size in range(12, len(capture), STEP):
                done = run("decode", "-j", "-f", "capture", "subscriber_v4", data=capture[:size])
                self.assertEqual(done.output.count("record"), 1 if size >= second_packet else 0, size)
                self.assertEqual(done.status, 0 if size >= first_packet else 2, size)
                if size not in (first_packet, second_packet):
                    self.assertRegex(done.errors, "truncated|no Interface Description")

    def test_interfaces_of_a_capture_may_have_different_links(self):
        for blocks in (Blocks("<"), Blocks(">")):
            capture = (blocks.section() + blocks.interface(ETHERNET) + blocks.interface(RAW_IP) +
                       blocks.enhanced(packet(numbered(1)), 1) + blocks.enhanced(ethernet(packet(numbered(2))), 0) +
                       blocks.interface(LINUX_COOKED) + blocks.old(bytes(14) + b"\x08\0" + packet(numbered(3)), 2))
            self.assertEqual(self.decoded(capture), [(1, 1), (2, 2), (3, 3)])

    def test_every_kind_of_packet_block_is_read_and_others_are_skipped(self):
        for blocks in (Blocks("<"), Blocks(">")):
            name_resolution, statistics, of_somebody = blocks.block(4, bytes(4)), blocks.block(5, bytes(12)), 0x80000BAD
            capture = (blocks.section() + name_resolution + blocks.interface() + blocks.enhanced(packet(numbered(1))) +
                       blocks.block(of_somebody, b"\x0a\x0d\x0d\x0a" * 5000) + blocks.old(packet(numbered(2))) +
                       blocks.block(of_somebody) + blocks.simple(packet(numbered(3))) + statistics +
                       blocks.enhanced(packet(numbered(4)), options=bytes(8)))
            self.assertEqual(self.decoded(capture), [(1, 1), (2, 2), (3, 3), (4, 4)])

    def test_a_simple_packet_ends_at_the_limit_of_its_interface(self):
        blocks = Blocks()
        whole = packet(numbered(1))
        capture = (blocks.section() + blocks.interface(most_bytes=30) + blocks.simple(whole[:30], len(whole)) +
                   blocks.enhanced(whole))
        self.assertEqual(self.decoded(capture, notes=["packet 1 was captured in part, 5 bytes are missing"]), [(1, 2)])

    def test_sections_follow_each_other_with_interfaces_and_byte_orders_of_their_own(self):
        sections = [pcapng([packet(numbered(1))], order="<"), pcapng([ethernet(packet(numbered(2)))], ETHERNET, ">"),
                    pcapng([packet(numbered(3))], order="<")]
        self.assertEqual(self.decoded(b"".join(sections)), [(1, 1), (2, 2), (3, 3)])
        without_interface = sections[0] + Blocks(">").section() + Blocks(">").enhanced(packet(V4))
        self.assertEqual(self.decoded(without_interface, notes=["packet 2: nothing describes its interface, 0"]), [(1, 1)])

    def test_packets_of_other_links_are_named_and_left_out(self):
        blocks = Blocks()
        wireless = blocks.section() + blocks.interface(105) + blocks.interface()
        capture = wireless + blocks.enhanced(packet(V4), 0) * 2 + blocks.enhanced(packet(numbered(7)), 1)
        self.assertEqual(self.decoded(capture, notes=["packet 1 is of link type 105"]), [(7, 3)])

    def test_a_checksum_behind_packets_is_no_part_of_them(self):
        with_checksum = ETHERNET | 1 << 26 | 4 << 28  # in units of 16 bits
        self.assertEqual(self.decoded(pcap([ethernet(packet(numbered(5))) + b"sum!"], with_checksum)), [(5, 1)])

    def test_blocks_that_contradict_themselves_end_the_capture(self):
        blocks = Blocks()
        begin = blocks.section() + blocks.interface() + blocks.enhanced(packet(numbered(1)))
        whole = blocks.enhanced(packet(V4))
        claims = struct.pack("<5I", 0, 0, 0, 1000, 1000)
        for block, words in ((whole[:-4] + b"\0\0\0\0", "ends as one of 0"), (blocks.block(6), "has 0 bytes where 20"),
                             (b"\x06\0\0\0\x0b\0\0\0" + bytes(20), "a block claims 11 bytes"),
                             (b"\x06\0\0\0\x0d\0\0\0" + bytes(20), "a block claims 13 bytes"),
                             (b"\x06\0\0\0\xfc\xff\xff\xff" + bytes(20), "truncated"),
                             (blocks.simple(V4, 300), "has 8 bytes where 300 are claimed"),
                             (blocks.block(6, claims), "has 0 bytes where 1000"),
                             (blocks.block(3, struct.pack("<I", 300000) + bytes(300000)), "262144 is the limit"),
                             (blocks.section(version=2), "not of version 1"),
                             (blocks.interface() * 65536, "more than 65536 interfaces"),
                             (blocks.enhanced(packet(V4), 1), "nothing describes its interface, 1"),
                             (b"\xff" * 4 + struct.pack("<I", 0xFFFFFFFC) + bytes(100), "truncated")):
            self.assertEqual(self.decoded(begin + block + whole, notes=["packet 2: "]), [(1, 1)], words)
            self.assertIn(words, run("decode", "-j", "subscriber_v4", data=begin + block + whole).errors)
        self.refused("decode", "subscriber_v4", data=blocks.section() + whole, says="nothing describes its interface")
        record = struct.pack("<IIII", 0, 0, 262145, 262145)
        self.assertEqual(self.decoded(pcap([packet(V4)]) + record + bytes(262145), notes=["262144 is the limit"]), [(1, 1)])

    @unittest.skipUnless(shutil.which("editcap") and shutil.which("mergecap"), "wireshark-common is not installed")
    def test_captures_that_another_program_writes_hold_the_same_messages(self):
        """Of each form, from each form and byte order: so the other program reads the ones of this test as well."""
        datagrams = [ethernet(packet(numbered(n))) for n in (1, 2, 3)]
        for order in "<>":
            for capture in (pcap(datagrams, ETHERNET, order), pcapng(datagrams, ETHERNET, order),
                            pcap(datagrams, ETHERNET, order, magic=0xA1B23C4D)):
                path = self.file("capture", capture)
                for form in ("pcap", "nsecpcap", "pcapng"):
                    self.assertEqual(self.decoded(self.written_by("editcap", "-F", form, path)), [(1, 1), (2, 2), (3, 3)])
        path = self.file("raw", pcap([packet(numbered(4))]))
        merged = self.written_by("mergecap", "-a", "-F", "pcapng", self.file("capture", pcap(datagrams, ETHERNET)), path)
        self.assertEqual(self.decoded(merged), [(1, 1), (2, 2), (3, 3), (4, 4)])

    def written_by(self, program, *arguments):
        """What a program of Wireshark writes: editcap behind its input, mergecap as an option."""
        output = os.path.join(self.folder, "written")
        places = [*arguments, output] if program == "editcap" else ["-w", output, *arguments]
        subprocess.run([program, *places], check=True, capture_output=True, timeout=60)
        with open(output, "rb") as file:
            return file.read()

    def test_tcp_segments_that_wait_are_read_where_a_capture_is_truncated(self):
        stream = frames(*[numbered(n) for n in (1, 2, 3)])
        capture = pcap(opened((0, stream[:16]), (18, stream[18:])) + [packet(numbered(4))])
        self.assertEqual(self.decoded(capture[:-1], notes=["packet 4: truncated", "2 bytes before packet 3 are missing"]),
                         [(1, 2), (3, 3)])

    def test_what_is_no_capture_is_refused(self):
        for form in (pcap, pcapng):
            self.refused("decode", "subscriber_v4", data=form([packet(V4)], link=105), says="link type 105")
        self.refused("guess", "-f", "capture", data=b"no capture at all, none", says=["no capture", "--format"])

    def test_bytes_that_begin_like_a_capture_are_none_without_its_version(self):
        for beginning in (b"\x0a\x0d\x0d\x0a", b"\xd4\xc3\xb2\xa1", b"\xa1\xb2\xc3\xd4"):
            done = run("guess", data=beginning + bytes(20))
            self.assertNotIn("capture", done.errors)

    def test_the_sample_for_wireshark_is_read(self):
        sample = os.path.join(SOURCES, "bindings", "wireshark", "sample.pcap")
        done = self.succeeds("decode", "--json", "session_context", sample, "--port", "21017")
        self.assertEqual([json.loads(line)["packet"] for line in done.output.splitlines()], [1, 2, 3, 4, 5, 6, 7, 8])

    def test_a_message_is_printed_before_the_capture_ends(self):
        with subprocess.Popen([PROGRAM, "decode", "-j", "-f", "capture", "subscriber_v4"], stdin=subprocess.PIPE,
                              stdout=subprocess.PIPE) as process:
            process.stdin.write(pcap([packet(numbered(7))]))
            process.stdin.flush()
            self.assertEqual(json.loads(process.stdout.readline())["record"]["field_1"], 7)
            process.stdin.close()
            self.assertEqual(process.wait(60), 0)

    def test_a_capture_is_compared_with_a_file_of_frames(self):
        sent = self.file("sent", frames(numbered(1), numbered(2)))
        received = self.file("received.pcap", pcap([packet(numbered(1)), packet(numbered(3))]))
        done = run("diff", "subscriber_v4", sent, received)
        self.assertEqual((done.status, done.output.splitlines()[:2]),
                         (1, ["message 2, at byte 11 of A and packet 2 of B:", "field_1: 2 -> 3"]))
        done = run("diff", "-j", "subscriber_v4", sent, received)
        self.assertIn('"offset_a":11,"packet_b":2', done.output)

    def test_damaged_captures_end_with_an_exit_code_and_in_sentences(self):
        chooser = random.Random(3)
        stream = frames(*[numbered(n) for n in range(9)])
        segments = opened((0, stream[:40]), (40, stream[40:]), version=6)
        packets = [bytes(12) + b"\x86\xdd" + each for each in segments] + [ethernet(packet(V4))]
        captures = [pcap(packets, ETHERNET)] + [pcapng(packets, ETHERNET, order) for order in "<>"]
        for _ in range(600 // STEP):
            damaged = bytearray(chooser.choice(captures))
            for _ in range(chooser.randint(1, 6)):
                damaged[chooser.randrange(8, len(damaged))] = chooser.choice((chooser.randrange(256), 0, 255))
            done = run("decode", "-f", "capture", "subscriber_v4", data=bytes(damaged[:chooser.choice((None, -5))]))
            self.assertIn(done.status, (0, 1, 2), damaged.hex())
            for line in done.errors.splitlines():
                self.assertTrue(line.startswith("mava-tum"), (line, damaged.hex()))


class DatagramTest(CaptureTest):
    def test_every_link_and_ip_is_read(self):
        for version in (4, 6):
            inner = packet(numbered(9), version=version)
            kind = struct.pack("!H", {4: 0x0800, 6: 0x86DD}[version])
            family = struct.pack("<I", {4: 2, 6: 30}[version])
            tag, outer = struct.pack("!HH", 0x8100, 7), struct.pack("!HH", 0x88A8, 8)
            for link, frame in ((ETHERNET, bytes(12) + kind + inner + bytes(20)),
                                (ETHERNET, bytes(12) + tag + kind + inner),
                                (ETHERNET, bytes(12) + outer + tag + kind + inner), (RAW_IP, inner),
                                ({4: 228, 6: 229}[version], inner), (0, family + inner), (108, family[::-1] + inner),
                                (LINUX_COOKED, bytes(14) + kind + inner),
                                (LINUX_COOKED, bytes(14) + tag + kind + inner),
                                (LINUX_COOKED_2, kind + bytes(18) + inner)):
                self.assertEqual(self.decoded(pcap([frame], link)), [(9, 1)], (version, link))

    def test_what_another_protocol_carries_is_not_guessed(self):
        for kind in (b"\x88\x47", b"\x08\x06", b"\x88\x64", b"\x00\x2e", b"\x81\x00\x00\x07\x88\x47"):
            for link, addresses in ((ETHERNET, bytes(12)), (LINUX_COOKED, bytes(14))):
                capture = pcap([addresses + kind + packet(V4)], link)
                self.assertEqual(self.decoded(capture, notes=["no message in 1 packet; 1 are neither UDP nor TCP"]), [])

    def test_headers_with_options_are_skipped(self):
        plain = packet(numbered(6))
        with_options = b"\x46\0" + struct.pack("!H", len(plain) + 4) + plain[4:20] + bytes(4) + plain[20:]
        self.assertEqual(self.decoded(pcap([with_options])), [(6, 1)])
        segment = packet(bytes(12) + frames(numbered(6)), "tcp")
        self.assertEqual(self.decoded(pcap([segment[:32] + b"\x80" + segment[33:]])), [(6, 1)])

    def test_ipv6_extension_headers_are_skipped(self):
        options = b"\x00" + bytes([1, 4, 0, 0, 0, 0])
        longer = b"\x02" + bytes(22)
        kinds = {0: options, 60: longer, 43: longer, FRAGMENT_HEADER: bytes(7), AUTHENTICATION: b"\x04" + bytes(22)}
        for chain in ((0,), (60,), (43,), (FRAGMENT_HEADER,), (AUTHENTICATION,), (0, 60, 43, AUTHENTICATION, 60)):
            inner = packet(numbered(4), version=6, extensions=[(kind, kinds[kind]) for kind in chain])
            self.assertEqual(self.decoded(pcap([inner])), [(4, 1)], chain)
            cut = inner[:40 + 8 * len(chain)]
            self.assertEqual(self.decoded(pcap([cut, inner], lengths=[len(inner)] * 2),
                                          notes=["packet 1 was captured in part"]), [(4, 2)])

    def test_fragments_are_named(self):
        whole = packet(numbered(1))
        offset, more = struct.pack("!BHI", 0, 8 << 3, 0), struct.pack("!BHI", 0, 1, 0)
        for fragment in (packet(V4, fragment=MORE_FRAGMENTS), packet(V4, fragment=3), packet(V4, "tcp", fragment=3),
                         packet(V4, version=6, extensions=[(FRAGMENT_HEADER, offset)]),
                         packet(V4, version=6, extensions=[(FRAGMENT_HEADER, more)]),
                         packet(V4, version=6, extensions=[(FRAGMENT_HEADER, offset), (60, b"\xff" + bytes(6))])):
            self.assertEqual(self.decoded(pcap([fragment, whole]), notes=["packet 1 is a fragment of an IP packet"]),
                             [(1, 2)])
        may_not_fragment = packet(numbered(2), fragment=0x4000)
        self.assertEqual(self.decoded(pcap([may_not_fragment])), [(2, 1)])

    def test_a_packet_cut_anywhere_is_named(self):
        tag = struct.pack("!HH", 0x8100, 7)
        for version, kind in ((4, b"\x08\x00"), (6, b"\x86\xdd")):
            whole = bytes(12) + tag + kind + packet(numbered(1), version=version)
            for size in range(0, len(whole), STEP):
                capture = pcap([whole[:size], whole], ETHERNET, lengths=[len(whole)] * 2)
                self.assertEqual(self.decoded(capture, notes=["packet 1 was captured in part"]), [(1, 2)], size)

    def test_a_packet_that_is_shorter_than_its_headers_say_is_named(self):
        whole = packet(numbered(1))
        for size in (20, 27, 34):
            self.assertEqual(self.decoded(pcap([whole[:size], whole]),
                                          notes=["packet 1 was captured in part"]), [(1, 2)])

    def test_headers_that_contradict_themselves_are_no_message(self):
        whole = packet(numbered(1))
        ipv6 = packet(numbered(1), version=6)
        for odd in (b"", b"\x45", bytes(60), b"\x60" + bytes(39),
                    whole[:24] + b"\0\1" + whole[26:], whole[:24] + b"\0\xff" + whole[26:],
                    b"\x44" + whole[1:], whole[:2] + b"\0\x13" + whole[4:],
                    whole[:9] + b"\x01" + whole[10:], ipv6[:6] + b"\x3a" + ipv6[7:],
                    packet(b"", "tcp")[:32] + b"\x40" + packet(b"", "tcp")[33:]):
            self.assertEqual(self.decoded(pcap([odd, whole])), [(1, 2)], odd)

    def test_a_length_of_zero_in_the_ip_header_is_that_of_the_link(self):
        for version, at in ((4, 2), (6, 4)):
            whole = packet(numbered(5), version=version)
            offloaded = whole[:at] + b"\0\0" + whole[at + 2:]
            self.assertEqual(self.decoded(pcap([offloaded])), [(5, 1)])
            self.assertEqual(self.decoded(pcap([offloaded[:-2], whole], lengths=[len(whole)] * 2),
                                          notes=["packet 1 was captured in part, 2 bytes are missing"]), [(5, 2)])

    def test_ports_and_sides_are_chosen(self):
        capture = pcap([packet(numbered(1), source=5000, destination=6000),
                        packet(numbered(2), source=6000, destination=5000),
                        packet(numbered(3), source=7000, destination=7001), *tcp((0, frames(numbered(4))))])
        self.assertEqual(self.decoded(capture), [(1, 1), (2, 2), (3, 3), (4, 4)])
        self.assertEqual(self.decoded(capture, "--port", "6000"), [(1, 1), (4, 4)])
        self.assertEqual(self.decoded(capture, "--port", "6000", "--side", "from"), [(2, 2)])
        both = ["--port", "6000", "--side", "both", "--transport", "udp"]
        self.assertEqual(self.decoded(capture, *both), [(1, 1), (2, 2)])
        self.assertEqual(self.decoded(capture, "--port", "7001", "--port", "5000"), [(2, 2), (3, 3)])
        self.assertEqual(self.decoded(capture, "--transport", "tcp"), [(4, 4)])
        self.assertEqual(self.decoded(capture, "--message", "2"), [(2, 2)])
        self.refused("decode", "--side", "from", "subscriber_v4", data=capture, says=["--side", "--port"])
        self.refused("decode", "--port", "70000", "subscriber_v4", data=capture, says="--port")

    def test_a_choice_that_leaves_nothing_says_what_it_left_out(self):
        self.assertEqual(self.decoded(pcap([packet(V4), packet(V4)]), "--port", "77",
                                      notes=["leave out packets such as 192.0.2.1:5000 > 192.0.2.2:6000"]), [])

    def test_notes_are_limited(self):
        capture = pcap([packet(V4, fragment=3)] * 50 + [packet(numbered(1))])
        self.assertEqual(self.decoded(capture, notes=[f"packet {n} is" for n in range(1, 21)] + ["30 more notes"]),
                         [(1, 51)])

    def test_json_has_the_direction(self):
        for version, direction in ((4, "192.0.2.1:5000 > 192.0.2.2:6000"),
                                   (6, "[2001:db8::1]:5000 > [2001:db8::2]:6000")):
            for words in (("decode", "subscriber_v4"), ("explain", "subscriber_v4"), ("check", "session_delete")):
                done = run(*words, "-j", data=pcap([packet(V4, version=version)]))
                self.assertEqual(json.loads(done.output)["direction"], direction)


class StreamTest(CaptureTest):
    MESSAGES = [numbered(n) for n in range(1, 9)]
    STREAM = frames(*MESSAGES)  # 11 bytes each
    VALUES = list(range(1, 9))

    def values(self, packets, notes=(), lengths=None):
        return [value for value, _ in self.decoded(pcap(packets, lengths=lengths), notes=notes)]

    def test_a_stream_cut_anywhere_is_read(self):
        for size in range(1, 25):
            pieces = [(at, self.STREAM[at:at + size]) for at in range(0, len(self.STREAM), size)]
            self.assertEqual(self.values(opened(*pieces)), self.VALUES, size)

    def test_segments_out_of_order_twice_and_overlapping_are_put_in_order(self):
        chooser = random.Random(1)
        for behind in range(0, 90, 6):  # sequence numbers begin again on the way
            pieces = [(at, self.STREAM[at:at + chooser.randint(5, 30)]) for at in range(0, len(self.STREAM), 5)]
            pieces += chooser.sample(pieces, 4)
            chooser.shuffle(pieces)
            self.assertEqual(self.values(opened(*pieces, start=2**32 - behind)), self.VALUES)

    def test_a_segment_that_was_read_is_not_read_again(self):
        whole = (0, self.STREAM)
        probe = (len(self.STREAM) - 1, self.STREAM[-1:])
        self.assertEqual(self.values(opened(whole, probe, whole, (5, self.STREAM[5:]), probe)), self.VALUES)

    def test_a_gap_inside_of_a_message_costs_that_message(self):
        for at, size in ((4, 1), (5, 6), (12 + 3, 2)):
            pieces = [(0, self.STREAM[:at]), (at + size, self.STREAM[at + size:])]
            lost = at // 11 + 1
            plural = "s" if size > 1 else ""
            note = f"{size} byte{plural} before packet 3 are missing; the message that begins in packet 2 is left out"
            self.assertEqual(self.values(opened(*pieces), [note]), [value for value in self.VALUES if value != lost])

    def test_a_gap_over_a_length_costs_all_up_to_a_packet_of_whole_messages(self):
        for at, size in ((11, 1), (2, 1), (7, 8)):
            pieces = [(0, self.STREAM[:at]), (at + size, self.STREAM[at + size:55]), (55, self.STREAM[55:66]),
                      (66, self.STREAM[66:])]
            lost = "before packet 3 are missing, and where the next message begins is not known"
            nothing = [] if at // 11 else ["no message in 3 packets"]
            self.assertEqual(self.values(opened(*pieces[:2]), [lost, *nothing]), self.VALUES[:at // 11])
            self.assertEqual(self.values(opened(*pieces), [lost, "read again from packet 4"]),
                             self.VALUES[:at // 11] + self.VALUES[5:])

    def test_what_is_cut_off_packets_is_a_gap(self):
        packets = opened((0, self.STREAM[:22]), (22, self.STREAM[22:44]), (44, self.STREAM[44:]))
        lengths = [len(each) for each in packets]
        shorter = [packets[0], packets[1][:-3], *packets[2:]]
        self.assertEqual(self.values(shorter, ["3 bytes before packet 3 are missing"], lengths), [1, 3, 4, 5, 6, 7, 8])
        for cut, note, left in ((3, "the capture ends inside", 7), (22, "the last 22 bytes are missing", 6)):
            shorter = [*packets[:3], packets[3][:-cut]]
            self.assertEqual(self.values(shorter, [note], lengths), self.VALUES[:left])

    def test_a_connection_of_which_the_beginning_is_missing_is_read_from_whole_messages(self):
        self.assertEqual(self.values(tcp((0, self.STREAM[:22]), (22, self.STREAM[22:]))), self.VALUES)
        self.assertEqual(self.values(tcp((0, self.STREAM[:15]), (15, self.STREAM[15:])),
                                     ["packet 1 is taken for the beginning of a message"]), self.VALUES)
        self.assertEqual(self.values(tcp((0, self.STREAM[5:11]), (6, self.STREAM[11:13]), (8, self.STREAM[13:22]),
                                         (17, self.STREAM[22:])),
                                     ["taken for the beginning", "is the limit", "read again from packet 4"]),
                         self.VALUES[2:])

    def test_the_end_of_a_connection_inside_of_a_message_is_named(self):
        for flags in (FIN | ACK, RST):
            closed = opened((0, self.STREAM[:15])) + tcp((15, b""), flags=flags)
            again = opened((0, self.STREAM), start=77)
            note = "the connection ends inside of the message that begins in packet 2"
            self.assertEqual(self.values(closed, [note]), [1])
            self.assertEqual(self.values(closed + again, [note]), [1, *self.VALUES])
        whole = opened((0, self.STREAM[:44])) + tcp((44, self.STREAM[44:]), flags=FIN | ACK)
        self.assertEqual(self.values(whole + tcp((44, self.STREAM[44:]), flags=FIN | ACK)), self.VALUES)
        early = opened((0, self.STREAM[:44])) + tcp((88, b""), flags=FIN | ACK) + tcp((44, self.STREAM[44:]))
        self.assertEqual(self.values(early), self.VALUES)

    def test_a_capture_that_ends_inside_of_a_message_says_so(self):
        self.assertEqual(self.values(opened((0, self.STREAM[:15])), ["inside of the message that begins in packet 2"]),
                         [1])
        self.assertEqual(self.values(opened((0, self.STREAM[:13])), ["inside of the message that begins in packet 2"]),
                         [1])

    def test_a_length_above_the_limit_is_named(self):
        request = b"GET / HTTP/1.1\r\n\r\n"
        self.assertEqual(self.values(opened((0, request), (18, self.STREAM[:11])),
                                     ["packet 2 claims 1195725856 bytes, and 16777215 is the limit",
                                      "read again from packet 3"]), [1])
        least = opened((0, b"\1\0\0\0" + V4))
        self.assertEqual(self.values(least, ["claims 16777216 bytes", "no message in 2 packets"]), [])

    def test_directions_and_connections_are_kept_apart(self):
        packets = []
        for at in range(0, len(self.STREAM), 7):
            piece = self.STREAM[at:at + 7]
            add = opened if at == 0 else tcp
            packets += add((at, piece))
            packets += add((at, piece), source=6000, destination=5000, ends=("192.0.2.2", "192.0.2.1"))
            packets += add((at, piece), version=6)
            packets += add((at, piece), source=5001)
        packets += opened((0, self.STREAM), start=78)
        self.assertEqual(sorted(self.values(packets)), sorted(self.VALUES * 5))

    def test_a_syn_that_is_sent_again_starts_nothing(self):
        again = opened()
        packets = [*again, *again, *tcp((0, self.STREAM[:44])), *again, *tcp((44, self.STREAM[44:]))]
        self.assertEqual(self.values(packets), self.VALUES)

    def test_data_in_the_syn_is_read(self):
        self.assertEqual(self.values([packet(self.STREAM, "tcp", sequence=999, flags=SYN), *tcp((88, self.STREAM))]),
                         self.VALUES * 2)

    def test_a_place_is_named_by_its_packet_and_direction(self):
        broken = frames(V4, b"\x08")
        done = run("decode", "subscriber_v4", data=pcap(tcp((0, broken[:11]), (11, broken[11:]))))
        self.assertEqual(done.status, 1)
        direction = "192.0.2.1:5000 > 192.0.2.2:6000"
        self.assertIn(f"message 1 in packet 1, {direction}: subscriber_v4, 7 bytes", done.output)
        self.assertIn(f"message 2 in packet 2, {direction}: subscriber_v4 does not decode", done.errors)


if __name__ == "__main__":
    unittest.main()
