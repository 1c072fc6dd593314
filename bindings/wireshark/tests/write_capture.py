#!/usr/bin/env python3
"""Writes a capture of messages, each in a datagram to its port in the profile.

    write_capture.py PROFILE CAPTURE <LOG

LOG has lines "MESSAGE BYTES-IN-HEX". For tests: no packet of it was ever sent.
"""
import pathlib
import re
import struct
import sys

RAW_IP = 101  # link type: a packet starts with its IP header
SENDER_PORT = 21000


def packet(port, payload):
    udp = struct.pack(">HHHH", SENDER_PORT, port, 8 + len(payload), 0) + payload  # checksum 0: there is none
    addresses = bytes((127, 0, 0, 1, 127, 0, 0, 2))
    ip = struct.pack(">BBHHHBBH", 0x45, 0, 20 + len(udp), 0, 0, 64, 17, 0) + addresses
    return ip + udp


def main(profile, capture):
    ports = {name: int(port) for port, name in
             re.findall(r'^"(\d+)","mava_tum\.(\w+)"$', pathlib.Path(profile).read_text(encoding="ascii"), re.M)}
    with open(capture, "wb") as output:
        output.write(struct.pack("<IHHiIII", 0xA1B2C3D4, 2, 4, 0, 0, 65535, RAW_IP))
        for line in sys.stdin:
            message, _, in_hex = line.strip().partition(" ")
            data = packet(ports[message], bytes.fromhex(in_hex))
            output.write(struct.pack("<IIII", 0, 0, len(data), len(data)) + data)


if __name__ == "__main__":
    main(*sys.argv[1:])
