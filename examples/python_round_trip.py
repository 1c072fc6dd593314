#!/usr/bin/python3
"""A session to wire bytes and back, twice: as the application's record and as the message itself."""

import mava_tum

FEATURES = ("TUM_NAL_FEATURE_QOS", "TUM_NAL_FEATURE_IPV4", "TUM_NAL_FEATURE_MTU_1")

SESSION = {
    "feature_mask": sum(mava_tum.constants[feature] for feature in FEATURES),
    "ipv4_address": "192.0.2.17",
    "session_name": "user@example.com",
    "mtu_1_value": 1492,
    "qos": [{"value_1": 1, "text_3": "gold"}, {"value_1": 2, "text_3": "silver"}],
}


def show(title: str, fields: dict, indent: str = "    ") -> None:
    """Prints a dict with one field on each line."""
    print(title)
    for name, value in fields.items():
        if isinstance(value, dict):
            show(f"{indent}{name}", value, indent + "    ")
        else:
            print(f"{indent}{name} = {value!r}")


def through_the_adapter() -> bytes:
    """The record has no presence: what arrives has every member, of which most are zero here."""
    wire = mava_tum.app_encode("session_context", SESSION)
    received = mava_tum.app_decode("session_context", wire, dotted=True)
    print(f"{len(wire)} bytes: {wire.hex(' ', -8)}")
    show("As the application sees it:", {name: received[name] for name in SESSION if name != "qos"})
    print(f"    {received['qos_count']} QoS entries: {', '.join(each['text_3'] for each in received['qos'])}")
    return wire


def through_the_codec(wire: bytes) -> None:
    """The message holds exactly what is on the wire. Here it is changed and encoded again."""
    fields = mava_tum.decode("session_context", wire, dotted=True)
    fields["qos"] = fields["qos"][:1]
    del fields["mtu_1"]
    again = mava_tum.encode("session_context", fields)
    show(f"As a message, without its MTU and its second QoS entry, {len(again)} bytes:",
         mava_tum.decode("session_context", again, dotted=True))


def what_goes_wrong(wire: bytes) -> None:
    """Every error says what it is about."""
    for attempt in (
        lambda: mava_tum.decode("session_context", wire[:-1]),
        lambda: mava_tum.decode("sesion_context", wire),
        lambda: mava_tum.app_encode("session_context", {**SESSION, "mtu_1_value": -1}),
        lambda: mava_tum.app_encode("session_context", {**SESSION, "session_name": "x" * 65}),
    ):
        try:
            attempt()
        except mava_tum.Error as error:
            print(f"{type(error).__name__}: {error}")


if __name__ == "__main__":
    encoded = through_the_adapter()
    through_the_codec(encoded)
    what_goes_wrong(encoded)
