"""What a run measures: workloads, their sets of content, and the programs."""

from dataclasses import dataclass

ALL_SETS = ("fixed", "realistic", "random")


@dataclass(frozen=True)
class Workload:
    label: str
    name: str
    sets: tuple = ("fixed",)
    sessions: int = 1  # in a message; times are given per session

    @property
    def title(self):
        return f"{self.label} {self.name}"


WORKLOADS = (
    Workload("W1", "typical_session", ALL_SETS),
    Workload("W2", "full_session", ALL_SETS),
    Workload("W3", "route_batch", ALL_SETS),
    Workload("W4", "subscriber_stats", ALL_SETS),
    Workload("W5", "session_states", ALL_SETS),
    Workload("W6", "group_start"),
    Workload("W7", "replay_1"),
    Workload("W7", "replay_100", sessions=100),
    Workload("W7", "replay_10000", sessions=10_000),
    Workload("W8", "large_bytes_aliased"),
    Workload("W8", "large_bytes_copied"),
)

WORKLOAD_OF_NAME = {workload.name: workload for workload in WORKLOADS}

# In the order of the columns.
SIDES = (
    "ours", "ours bump", "ours arena", "ours calloc", "memcpy", "heap calls",
    "protobuf reused", "protobuf new", "protobuf arena", "proto2 reused", "proto2 new",
    "protozero", "nanopb", "protobuf-c malloc", "protobuf-c bump",
)

# "protobuf" is proto3, which checks texts for UTF-8; goals are judged against it. "proto2" does not check them.
PROTO2_SIDE = {"protobuf reused": "proto2 reused", "protobuf new": "proto2 new"}

# In the order of the tables, with the side that the others are compared with.
OPERATIONS = {
    "decode": ("decode + free", "ours bump"),
    "encode": ("encode", "ours"),
    "duplicate": ("duplicate + free", "ours"),
    "encode_adapter": ("encode adapter: application record to wire", "ours"),
    "decode_adapter": ("decode adapter: wire to application record", "ours"),
    "encode_exact": ("encode into a buffer of exactly the size", "ours"),
    "size_request": ("request for the size", "ours"),
    "copy": ("copy of the wire: the floor", "memcpy"),
}

PEERS = ("ours", "copy", "protobuf", "protobuf_proto2", "protozero", "nanopb", "protobuf_c")


@dataclass(frozen=True)
class Cell:
    """One corpus: a workload with one set of content."""

    workload: Workload
    set: str

    @property
    def title(self):
        return f"{self.workload.title}, {self.set}"


def cells(only=()):
    return [
        Cell(workload, content_set)
        for workload in WORKLOADS
        if not only or workload.name in only or workload.label in only
        for content_set in workload.sets
    ]
