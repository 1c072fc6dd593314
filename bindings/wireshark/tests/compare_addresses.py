#!/usr/bin/env python3
"""Compares the addresses that the plugin shows in a capture with those in the messages that were sent.

    compare_addresses.py PLUGIN PDML EXPECTED

PLUGIN is mava_tum_addresses.lua, whose table has the fields that hold one; PDML and EXPECTED are as for
compare_capture.py. Exits with 1 if there is a difference, or if there was no address of one kind.
"""
import ipaddress
import pathlib
import re
import sys
import xml.etree.ElementTree as ElementTree
from collections import Counter

from compare_capture import expected_messages


def table_of(plugin):
    text = pathlib.Path(plugin).read_text(encoding="ascii")
    return dict(re.findall(r'^ +\["([\w.]+)"\] = "(ipv[46])",$', text, re.M))


def shown_addresses(pdml):
    for packet in ElementTree.parse(pdml).getroot().iter("packet"):
        yield [ipaddress.ip_address(field.get("show")) for protocol in packet.findall("proto[@name='mava_tum']")
               for field in protocol if field.get("name") in ("mava_tum.ipv4", "mava_tum.ipv6")]


def address(kind, value):
    """None if these bytes are no address."""
    if kind == "ipv4":
        return ipaddress.IPv4Address(int(value).to_bytes(4, "little"))
    in_hex = value.replace(":", "")
    return ipaddress.IPv6Address(bytes.fromhex(in_hex)) if len(in_hex) == 32 else None


def sent_addresses(kinds, expected):
    for _, fields in expected_messages(expected):
        found = (address(kinds[name], value) for name, value in fields if name in kinds)
        yield [each for each in found if each is not None]


def main(plugin, pdml, expected):
    shown, sent = list(shown_addresses(pdml)), list(sent_addresses(table_of(plugin), expected))
    # In the order of the tree, in which all of one field may come before those of the next.
    differing = [number for number, pair in enumerate(zip(shown, sent), 1)
                 if sorted(map(str, pair[0])) != sorted(map(str, pair[1]))]
    count = Counter(each.version for message in sent for each in message)
    for number in differing:
        print(f"message {number}: {shown[number - 1]} are shown, {sent[number - 1]} were sent")
    print(f"{count[4]} IPv4 and {count[6]} IPv6 addresses compared, {len(differing)} messages differ")
    return 1 if differing or len(shown) != len(sent) or not (count[4] and count[6]) else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
