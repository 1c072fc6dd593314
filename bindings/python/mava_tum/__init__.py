"""Subscriber session records to protobuf wire bytes and back.

    decode, encode            one of the 40 messages, as a dict of the fields that are present
    app_decode, app_encode    the same through one of the 19 adapters, as a dict of the application's record
    app_view                  the same as app_decode, for those who read a few members
    to_json, app_to_json      such a dict with values that JSON has, in the form of the command mava-tum
    app_unsent                which members of such a record are not sent, and why
    messages, adapters        the names that these take
    fields, app_members       what a dict may hold
    constants                 the numbers that the headers name, such as the bits of `feature_mask`

Everything that goes wrong is raised as an `Error`."""

from __future__ import annotations

from .application_reader import RecordView, app_decode, app_view
from .application_writer import app_encode
from .codec_reader import decode
from .codec_writer import encode
from ._location import VERSION as __version__
from .errors import DecodeError, Error, FieldTypeError, FieldValueError, LibraryError, UnknownNameError
from .json_form import app_to_json, to_json
from .schema import CONSTANTS as constants
from .schema import ADAPTERS, APPLICATION_RECORDS, MESSAGES, Field, Member, find_adapter, find_message
from .unsent_members import app_unsent

__all__ = [
    "DecodeError",
    "Error",
    "Field",
    "FieldTypeError",
    "FieldValueError",
    "LibraryError",
    "Member",
    "RecordView",
    "UnknownNameError",
    "__version__",
    "adapters",
    "app_decode",
    "app_encode",
    "app_members",
    "app_to_json",
    "app_unsent",
    "app_view",
    "constants",
    "decode",
    "encode",
    "fields",
    "messages",
    "to_json",
]


def messages() -> tuple[str, ...]:
    """The names of the messages."""
    return tuple(MESSAGES)


def adapters() -> tuple[str, ...]:
    """The names of the adapters."""
    return tuple(ADAPTERS)


def fields(message: str) -> tuple[Field, ...]:
    """The fields of a message in the order of their numbers."""
    return tuple(find_message(message).fields.values())


def app_members(adapter: str) -> tuple[Member, ...]:
    """The members of the record that an adapter decodes into."""
    return tuple(APPLICATION_RECORDS[find_adapter(adapter).decode].values())
