"""Calls the programs of the bench: the writer of corpora, and the peers."""

import pathlib
import subprocess
import sys


class Disagreement(Exception):
    """A peer's bytes or records are not ours: there is nothing to compare."""


class Programs:
    def __init__(self, build):
        self._directory = pathlib.Path(build) / "bench"

    def path(self, name):
        return self._directory / f"mava_tum_bench_{name}"

    def present(self, peers):
        return [peer for peer in peers if self.path(peer).exists()]

    def version(self, peer):
        return self._output([self.path(peer), "--version"]).strip()

    def write_corpus(self, file, cell, first, count):
        command = [self.path("corpus"), file, cell.workload.name, cell.set, first, count]
        messages, _, wire_bytes, _ = self._output(command).replace(",", "").split()
        return int(wire_bytes) / int(messages)

    def check(self, peer, corpus):
        """The (operation, side) pairs that the peer offers for the corpus, all of them in agreement with it."""
        return self._rows([self.path(peer), corpus, "check"])

    def time(self, peer, corpus, samples, milliseconds, seed):
        """(operation, side, nanoseconds per message)"""
        command = [self.path(peer), corpus, "time", samples, milliseconds, seed]
        return [(operation, side, float(time)) for operation, side, time in self._rows(command)]

    def time_cold(self, peer, corpus, calls, seed):
        """(operation, side, nanoseconds with warm caches, nanoseconds with cold ones)"""
        rows = self._rows([self.path(peer), corpus, "cold", calls, seed])
        return [(operation, side, float(warm), float(cold)) for operation, side, warm, cold in rows]

    def rows(self, program, arguments):
        """What one of the programs without a corpus prints."""
        return self._rows([self.path(program), *arguments])

    def _rows(self, command):
        return [line.split("\t") for line in self._output(command).splitlines()]

    @staticmethod
    def _output(command):
        command = [str(word) for word in command]
        done = subprocess.run(command, capture_output=True, text=True, check=False)
        if done.returncode == 1:
            raise Disagreement(done.stderr.strip())
        if done.returncode != 0:
            sys.exit(f"{' '.join(command)}: exit {done.returncode}\n{done.stderr}")
        return done.stdout
