#!/usr/bin/env python3
"""Carries the messages of the examples over UDP, from one address of this machine to another.

    loopback_relay.py session_context                  frames from the standard input to the standard output
    loopback_relay.py --receiver COMMAND ARGUMENT...   is between the keeper of the example `reconciliation` and
                                                       the receiver, which it starts as COMMAND

Each message is one datagram and nothing but the message. The port that it goes to says which message it is, as
profile/protobuf_udp_message_types has it. The other program gets the bytes that were received from the socket. With
RELAY_LOG in the environment, each message is also written to that file: its name, and its bytes in hex.
"""
import errno
import os
import pathlib
import re
import socket
import subprocess
import sys
import threading
import time

SENDER_PORT = 21000  # below those of the messages
PATIENCE_SECONDS = 30
# By the first byte of a frame: examples/reconciliation/message_channel.h. The messages after the run are not included.
KINDS = [None, "rec_start_req", "rec_resp", "rec_sess_req", "rec_sess_resp", "session_delete", "sess_oper_resp",
         "rec_sess_replay_req", "rec_sess_replay_resp", "rec_complete_req", "rec_resp", None]


def port_table():
    profile = pathlib.Path(__file__).parent / "profile" / "protobuf_udp_message_types"
    return {message: int(port)
            for port, message in re.findall(r'^"(\d+)","mava_tum\.(\w+)"$', profile.read_text(), re.M)}


class Path:
    """One direction between two hosts, and its log."""

    log_lock = threading.Lock()

    def __init__(self, source, destination):
        self.ports, self.destination = port_table(), destination
        self.sender = bound_socket(source, SENDER_PORT)
        self.receivers = {}

    def carry(self, message, payload):
        port = self.ports[message]
        if message not in self.receivers:
            self.receivers[message] = bound_socket(self.destination, port)
        self.sender.sendto(payload, (self.destination, port))
        received = self.receivers[message].recv(65536)
        self.note(message, received)
        return received

    def note(self, message, payload):
        if "RELAY_LOG" in os.environ:
            with self.log_lock, open(os.environ["RELAY_LOG"], "a", encoding="ascii") as log:
                log.write(f"{message} {payload.hex()}\n")


def bound_socket(address, port):
    """Waits while another relay has the port. The sender's port is first, to avoid a deadlock."""
    result = socket.socket(socket.AF_INET, socket.SOCK_DGRAM)
    result.settimeout(PATIENCE_SECONDS)
    deadline = time.monotonic() + PATIENCE_SECONDS
    while True:
        try:
            result.bind((address, port))
            return result
        except OSError as error:
            if error.errno != errno.EADDRINUSE or time.monotonic() > deadline:
                raise SystemExit(f"loopback_relay.py: {address} port {port}: {error.strerror}") from error
            time.sleep(0.05)


def frames(stream):
    """As examples/common/frame_stream.h describes them."""
    while length := stream.read(4):
        yield stream.read(int.from_bytes(length, "big"))


def write_frame(stream, frame):
    stream.write(len(frame).to_bytes(4, "big") + frame)
    stream.flush()


def carry_kinds(path, source, destination):
    """Frames whose first byte is the kind of the message, until the stream ends."""
    for frame in frames(source):
        message = KINDS[frame[0]]
        write_frame(destination, frame if message is None else frame[:1] + path.carry(message, frame[1:]))
    destination.close()


def relay_receiver(command):
    with subprocess.Popen(command, stdin=subprocess.PIPE, stdout=subprocess.PIPE) as receiver:
        requests = threading.Thread(target=carry_kinds,
                                    args=(Path("127.0.0.1", "127.0.0.2"), sys.stdin.buffer, receiver.stdin))
        requests.start()
        # Not sys.stdout, whose close() leaves the descriptor open.
        carry_kinds(Path("127.0.0.2", "127.0.0.1"), receiver.stdout, os.fdopen(sys.stdout.fileno(), "wb"))
        requests.join()  # the keeper closes its stream when it sees the end of ours
    return receiver.returncode


def relay_stream(message):
    path = Path("127.0.0.1", "127.0.0.2")
    for frame in frames(sys.stdin.buffer):
        write_frame(sys.stdout.buffer, path.carry(message, frame))
    return 0


def main(arguments):
    if len(arguments) > 1 and arguments[0] == "--receiver":
        return relay_receiver(arguments[1:])
    if len(arguments) == 1 and arguments[0] in port_table():
        return relay_stream(arguments[0])
    sys.exit(__doc__)


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
