"""The messages in the official protobuf runtime, from the schema that the C++ tests use too."""

from __future__ import annotations

import os
from pathlib import Path
from typing import Any

from google.protobuf import descriptor_pb2, message_factory
from google.protobuf.message import Message as PeerMessage

PACKAGE = "mava_tum_interop"


def _peer_types() -> dict[str, Any]:
    schema = descriptor_pb2.FileDescriptorSet()
    schema.ParseFromString(Path(os.environ["MAVA_TUM_DESCRIPTORS"]).read_bytes())
    types = message_factory.GetMessages(schema.file)
    return {name.removeprefix(PACKAGE + "."): each for name, each in types.items()}


PEERS = _peer_types()


def to_peer_value(value: Any) -> Any:
    return value.encode("utf-8", "surrogateescape") if isinstance(value, str) else value


def fill_peer(peer: PeerMessage, fields: dict[str, Any]) -> None:
    for name, value in fields.items():
        if isinstance(value, dict):
            nested = getattr(peer, name)
            nested.SetInParent()
            fill_peer(nested, value)
        elif isinstance(value, list):
            add_elements(getattr(peer, name), value)
        else:
            setattr(peer, name, to_peer_value(value))


def add_elements(elements: Any, values: list[Any]) -> None:
    for value in values:
        if isinstance(value, dict):
            fill_peer(elements.add(), value)
        else:
            elements.append(to_peer_value(value))


def to_peer(message: str, fields: dict[str, Any]) -> PeerMessage:
    peer: PeerMessage = PEERS[message]()
    fill_peer(peer, fields)
    return peer


def from_wire(message: str, wire: bytes) -> PeerMessage:
    peer: PeerMessage = PEERS[message]()
    peer.ParseFromString(wire)
    return peer
