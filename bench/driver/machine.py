"""The machine, compilers and commit of a run.

  machine.py <load> <seconds>    waits for a load below the limit in the last minute; exit code 1 without it
"""

import os
import pathlib
import platform
import re
import shlex
import shutil
import subprocess
import sys
import time


def _processor():
    for line in pathlib.Path("/proc/cpuinfo").read_text(encoding="utf-8").splitlines():
        if line.startswith("model name"):
            return f"{line.split(': ', 1)[1]}, {os.cpu_count()} threads"
    return platform.machine()


# A change below these makes the library differ from the commit.
LIBRARY = ("src", "include", "cmake", "CMakeLists.txt")


def _git(*words):
    if not shutil.which("git"):
        return ""
    root = pathlib.Path(__file__).resolve().parents[2]
    return subprocess.run(["git", "-C", root, *words], capture_output=True, text=True, check=False).stdout.strip()


def _commit():
    """The checked-out commit, and whether the library has uncommitted changes. None without git."""
    changed = " with changes" if _git("status", "--porcelain", "--", *LIBRARY) else ""
    return (_git("rev-parse", "--short", "HEAD") or "unknown") + changed


def _cache_entries(build):
    text = (pathlib.Path(build) / "CMakeCache.txt").read_text(encoding="utf-8")
    return dict(re.findall(r"^(CMAKE_\w+):\w+=(.*)$", text, re.MULTILINE))


def _compiler(path):
    return subprocess.run([path, "--version"], capture_output=True, text=True, check=True).stdout.splitlines()[0]


def _flags(cache, language):
    build_type = cache["CMAKE_BUILD_TYPE"].upper()
    return f"{cache[f'CMAKE_{language}_FLAGS']} {cache[f'CMAKE_{language}_FLAGS_{build_type}']}".strip()


def _options():
    """The user's arguments: without the --build and folder that the scripts add, and files without their folders."""
    given = sys.argv[1:]
    if given[:1] == ["--build"]:
        given = given[2:]
    return [pathlib.Path(word).name if word.startswith("/") else word for word in given]


def describe(command, build, versions):
    """`command` is the script that the user called, without its folder."""
    cache = _cache_entries(build)
    return {
        "commit": _commit(),
        "processor": _processor(),
        "system": f"{platform.system()} {platform.release()}, {platform.freedesktop_os_release()['PRETTY_NAME']}",
        "load": f"{os.getloadavg()[0]:.2f} in the last minute, before the run",
        "C++ compiler": f"{_compiler(cache['CMAKE_CXX_COMPILER'])}, {_flags(cache, 'CXX')}",
        "C compiler": f"{_compiler(cache['CMAKE_C_COMPILER'])}, {_flags(cache, 'C')}",
        "measured": "; ".join(versions),
        "command": shlex.join([command, *_options()]),
    }


def wait_until_idle(limit, seconds):
    deadline = time.monotonic() + seconds
    while (load := os.getloadavg()[0]) >= limit:
        if time.monotonic() >= deadline:
            sys.exit(f"The load is {load:.2f}, not below {limit:g}: figures of a busy machine are not published.")
        time.sleep(5)


if __name__ == "__main__":
    wait_until_idle(float(sys.argv[1]), float(sys.argv[2]))
