"""The test programs that run for each mutant."""
import os
import resource
import subprocess
import threading

# One set of programs after the other, until one program fails. A filter names a part of a program.
FAST = ["fuzz/replay_messages", "fuzz/replay_adapters", "tests/test_codec", "tests/test_messages",
        "tests/test_leniency", "tests/nal/test_nal -*_sweeps.*:*_bad_input.*", "tests/interop/test_interop"]
SLOW = ["fuzz/test_adapter_agreement", "tests/model/test_model", "tests/nal/test_nal *_sweeps.*:*_bad_input.*",
        "tests/sweeps/test_sweeps"]
# These call exported functions only, so that nothing but the library is compiled for the sanitizer.
SANITIZED = ["fuzz/replay_messages", "fuzz/replay_adapters", "tests/test_messages", "tests/test_leniency",
             "tests/interop/test_interop", "fuzz/test_adapter_agreement",
             "tests/sweeps/test_sweeps *_boundaries.*/rec_sess_replay_req"]
STAGES = {"fast": FAST, "slow": SLOW, "sanitized": SANITIZED}
MEMORY_BYTES = 8 << 30


class Program:
    """A test program of one build."""

    def __init__(self, build, name, corpus, sanitized):
        path, _, selected = name.partition(" ")
        self.target = os.path.basename(path)
        self.name = f"{self.target} {selected}".strip()
        if self.name.startswith("replay_"):
            arguments = [os.path.join(corpus, self.name[len("replay_"):] + ".packed")]
        else:
            arguments = ["--gtest_fail_fast", "--gtest_brief=1", f"--gtest_filter={selected or '*'}"]
        self.command = [os.path.join(build, path), *arguments]
        self.sanitized = sanitized
        self.seconds = None
        self.reached = None  # all that there is
        self.lock = threading.Lock()

    def run(self, variables, cpu_seconds, path=None):
        """The exit code; not 0 if the time is over."""
        def limit():
            resource.setrlimit(resource.RLIMIT_CPU, (cpu_seconds, cpu_seconds))
            resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
            if not self.sanitized:  # the sanitizer reserves more than the memory
                resource.setrlimit(resource.RLIMIT_AS, (MEMORY_BYTES, MEMORY_BYTES))
        try:
            return subprocess.run([path or self.command[0], *self.command[1:]], env={**os.environ, **variables},
                                  preexec_fn=limit, check=False, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                                  stderr=subprocess.DEVNULL, timeout=60 + 40 * cpu_seconds).returncode
        except subprocess.TimeoutExpired:
            return 1

    def measure(self):
        """Records the time without a mutant and the switched mutants that the program reaches, unless the file
        exists."""
        notes = f"{self.command[0]}.{self.name.replace('*', 'all').replace('/', '_')}"
        with self.lock:
            if self.seconds is not None:
                return
            if not os.path.exists(f"{notes}.seconds"):
                self.run_unmutated(notes)
            if os.path.exists(f"{notes}.trace"):
                with open(f"{notes}.trace", "rb") as stream:
                    self.reached = {number for number, byte in enumerate(stream.read()) if byte}
            with open(f"{notes}.seconds", encoding="utf-8") as stream:
                self.seconds = float(stream.read())

    def run_unmutated(self, notes):
        before = resource.getrusage(resource.RUSAGE_CHILDREN)
        code = self.run({"MUTANT_TRACE": f"{notes}.trace"}, 600)
        after = resource.getrusage(resource.RUSAGE_CHILDREN)
        if code != 0:
            raise SystemExit(f"{' '.join(self.command)} fails with nothing mutated, exit code {code}")
        seconds = after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime
        print(f"{self.name}: at most {seconds:.1f} s of processor time", flush=True)
        with open(f"{notes}.seconds", "w", encoding="utf-8") as stream:
            stream.write(str(seconds))

    def reaches(self, number):
        self.measure()
        return self.reached is None or number in self.reached

    def fails(self, variables, path=None):
        """Also if it takes much longer than usual. `path`: the same program in another build."""
        self.measure()
        return self.run(variables, int(3 * self.seconds) + 3, path) != 0


def programs_of(build, corpus, stage):
    return [Program(build, name, corpus, stage == "sanitized") for name in STAGES[stage]]
