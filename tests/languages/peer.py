#!/usr/bin/python3
"""The other side in Python, with the classes that the protobuf runtime makes from mava_tum.proto. peer.go is the same
in Go.

    peer exchange          answers each line "message hex" with the message read, without unknown fields, and written
    peer --restarted FILE  a receiver for examples/reconciliation that has lost everything; FILE is not read

MAVA_TUM_SCHEMA names the descriptors of the schema, as protoc writes them.
"""
import os
import sys
from pathlib import Path

from google.protobuf import descriptor_pb2, message_factory

# The longest message of the adapters has 9,295 bytes: a longer one is rejected before memory is allocated for it.
LIMIT = 1 << 16
# The kinds of examples/reconciliation/message_channel.h.
START_REQ, START_RES, SESS_REQ, SESS_RES, REPLAY_REQ, REPLAY_RESP, COMPLETE_REQ, COMPLETE_RES, HELD_SESSION = \
    1, 2, 3, 4, 7, 8, 9, 10, 11

_schema = descriptor_pb2.FileDescriptorSet.FromString(Path(os.environ["MAVA_TUM_SCHEMA"]).read_bytes())
TYPES = {name.removeprefix("mava_tum."): each for name, each in message_factory.GetMessages(_schema.file).items()}


def exchange():
    for line in sys.stdin:
        name, wire = line.removesuffix("\n").split(" ")
        message = TYPES[name].FromString(bytes.fromhex(wire))
        message.DiscardUnknownFields()
        print(message.SerializeToString().hex())


def read_exactly(count):
    content = sys.stdin.buffer.read(count)
    if len(content) != count:
        raise EOFError("the stream ends inside a message")
    return content


def read_frame():
    length = int.from_bytes(read_exactly(4), "big")
    if not 0 < length <= LIMIT:
        raise ValueError(f"a length of {length}")
    frame = read_exactly(length)
    return frame[0], frame[1:]


def write_frame(kind, message):
    content = message.SerializeToString()
    sys.stdout.buffer.write((len(content) + 1).to_bytes(4, "big") + bytes([kind]) + content)


class Receiver:
    def __init__(self):
        self.sessions = []
        self.numbers = []  # in the order of the requests, which is that of the replay

    def states(self, request):
        """This side has no session: the zeros report every named session as missing."""
        response = TYPES["rec_sess_resp"](field_1=request.field_1, field_3=0, field_4=0)
        for state in request.field_3:
            self.numbers.append(state.field_2)
            response.field_2.add(field_1=0, field_2=state.field_2, field_3=0)
        return response

    def replay(self, request):
        response = TYPES["rec_sess_replay_resp"](field_1=request.field_1, field_5=0)
        for session in request.field_4:
            if session.qos:
                response.field_3.add(field_1=self.numbers[len(self.sessions)],
                                     field_5=[service.field_3 for service in session.qos])
            self.sessions.append(session)
        return response

    def answer(self, kind, wire):
        if kind == START_REQ:
            TYPES["rec_start_req"].FromString(wire)
            return START_RES, TYPES["rec_resp"](field_1=0, field_3=0)
        if kind == SESS_REQ:
            return SESS_RES, self.states(TYPES["rec_sess_req"].FromString(wire))
        if kind == REPLAY_REQ:
            return REPLAY_RESP, self.replay(TYPES["rec_sess_replay_req"].FromString(wire))
        if kind == COMPLETE_REQ:
            return COMPLETE_RES, TYPES["rec_resp"](field_1=0, field_3=len(self.sessions))
        raise ValueError(f"a message of kind {kind}, which a keeper does not send")


def reconcile():
    receiver = Receiver()
    kind = None
    while kind != COMPLETE_RES:
        kind, response = receiver.answer(*read_frame())
        write_frame(kind, response)
        sys.stdout.buffer.flush()
    for session in receiver.sessions:
        write_frame(HELD_SESSION, session)


if __name__ == "__main__":
    exchange() if sys.argv[1:] == ["exchange"] else reconcile()
