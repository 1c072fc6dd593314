"""What the commands measure: workloads, their sets of content, operations, and the other implementations."""

from dataclasses import dataclass

# In the order of the columns. The fixed set has one message, which the branch predictor learns.
SETS = ("realistic", "random", "fixed")


@dataclass(frozen=True)
class Workload:
    label: str
    name: str
    sets: tuple = ("fixed",)
    messages: int = 20_000  # in a measurement, each once
    sessions: int = 1  # in a message; times are per session

    @property
    def title(self):
        return f"{self.label} {self.name}"


WORKLOADS = (
    Workload("W1", "typical_session", SETS),
    Workload("W2", "full_session", SETS, messages=4_000),
    Workload("W3", "route_batch", SETS, messages=4_000),
    Workload("W4", "subscriber_stats", SETS),
    Workload("W5", "session_states", SETS),
    Workload("W6", "group_start"),
    Workload("W7", "replay_1"),
    Workload("W7", "replay_100", sessions=100),
    Workload("W7", "replay_10000", sessions=10_000),
    Workload("W8", "large_bytes_aliased"),
    Workload("W8", "large_bytes_copied"),
)

WORKLOAD_OF_NAME = {workload.name: workload for workload in WORKLOADS}

# In the order of the tables.
OPERATIONS = {
    "decode": "decode and free",
    "encode": "encode",
    "encode_adapter": "encode adapter: application record to wire",
    "decode_adapter": "decode adapter: wire to application record",
    "duplicate": "duplicate and free",
    "read": "read some fields of a decoded session",
}

# The operations of the summary, with the side to compare with.
SUMMARY = {
    "decode": "protobuf reused", "encode": "protobuf reused",
    "encode_adapter": "protobuf reused", "decode_adapter": "protobuf reused",
}

# In the order of the columns. "protobuf" is proto3, which checks texts for UTF-8; "proto2" does not check them.
SIDES = (
    "protobuf reused", "protobuf new", "protobuf arena", "proto2 reused", "proto2 new", "protozero", "nanopb",
    "protobuf-c malloc", "protobuf-c bump", "ours calloc", "ours arena", "ours exact", "size request", "C++ layer", "C++ layer bump",
    "C++ layer resource", "heap calls", "memcpy",
)

PEERS = ("ours", "cpp_layer", "protobuf", "protobuf_proto2", "protozero", "nanopb", "protobuf_c")


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
