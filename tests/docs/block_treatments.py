"""Compiles and runs code blocks: one treatment for each language."""
import difflib
import json
import os
import re
import shlex
import shutil
import subprocess

from code_blocks import is_output

WARNINGS = ["-Wall", "-Wextra", "-Wpedantic", "-Werror"]
SANITIZERS = ["-g", "-fsanitize=address,undefined", "-fno-sanitize-recover=all"]
STANDARDS = {"c": "-std=c11", "cpp": "-std=c++17"}
SUFFIXES = {"c": ".c", "cpp": ".cpp"}
HAS_MAIN = re.compile(r"^int main\(", re.MULTILINE)
SECONDS = 120

# Every command of a shell block that is not run must exist.
SEPARATORS = {"&&", "||", "|", ";", "&", "(", ")", "|&"}
# Words of the shell, and commands whose argument is a command.
SHELL_WORDS = {"cd", "export", "set", ".", "[", "test", "echo", "exit", "for", "in", "do", "done", "if", "then",
               "else", "fi", "while", "until", "!", "{", "}", "true", "false", ":", "ulimit"}
PREFIXES = {"sudo", "time", "nice", "env", "do", "then", "else", "!", "if", "while"}
ASSIGNMENT = re.compile(r"^[A-Za-z_][A-Za-z0-9_]*=")


class BlockError(Exception):
    """A block that does not do what its page says."""


def same_output(expected, actual):
    """Whether the output is the expected one; three dots match anything, a line of three dots any lines."""
    def lines(text):
        return "\n".join(line.rstrip() for line in text.strip("\n").splitlines())
    pattern = re.escape(lines(expected)).replace(re.escape("..."), "(?:.|\n)*")
    return re.fullmatch(pattern, lines(actual)) is not None


def commands_of(script):
    """The words of a shell script in the place of a command."""
    found = []
    for line in script.replace("\\\n", " ").splitlines():
        words = shlex.shlex(line, posix=True, punctuation_chars=True)
        words.whitespace_split = True
        expecting = True
        for word in words:
            if word in SEPARATORS:
                expecting = True
            elif expecting and not ASSIGNMENT.match(word) and word not in PREFIXES:
                found.append(word)
                expecting = False
    return found


def is_there(command, project, path):
    if command in SHELL_WORDS or shutil.which(command, path=path):
        return True
    # Skips files that a build makes.
    return command.startswith("build/") or os.access(os.path.join(project, command), os.X_OK)


def missing_commands(script, project, path):
    """The errors of a script that is not run: its syntax, or commands that do not exist."""
    checked = subprocess.run(["bash", "-n"], input=script, text=True, capture_output=True, check=False)
    if checked.returncode != 0:
        return [checked.stderr.strip()]
    return [f"there is no command {command}" for command in commands_of(script) if not is_there(command, project, path)]


class Page:
    """A folder for the blocks of one page, which see the files of earlier blocks."""

    def __init__(self, tree, folder):
        self.tree = tree
        self.folder = folder
        self.parts = {}
        self.saved = {}
        self.environment = tree.environment(folder)
        self.programs = 0
        self.outputs = []

    def write(self, name, text):
        path = os.path.join(self.folder, name)
        with open(path, "w", encoding="utf-8") as file:
            file.write(text)
        return path

    def execute(self, command, block):
        """Runs a command in the page's folder; its output is that of both streams."""
        try:
            return subprocess.run(command, cwd=self.folder, env=self.environment, timeout=SECONDS, check=False,
                                  text=True, errors="replace", stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                                  stderr=subprocess.STDOUT)
        except subprocess.TimeoutExpired as error:
            raise BlockError(f"{block.place}: {command[0]} did not end in {SECONDS} seconds") from error

    def run(self, command, block):
        """Runs a command for a block and compares its status and output with the page."""
        done = self.execute(command, block)
        wanted = int(block.instructions.get("exits", "0"))
        if done.returncode != wanted:
            raise BlockError(f"{block.place}: ended with {done.returncode} instead of {wanted}:\n{done.stdout}")
        if block.expected and not same_output(block.expected.text, done.stdout):
            difference = difflib.unified_diff(block.expected.text.splitlines(), done.stdout.splitlines(),
                                              "on the page", "printed", lineterm="", n=1)
            raise BlockError(f"{block.expected.place}: another output:\n" + "\n".join(difference))

    def compile(self, block, source, link):
        """Compiles C or C++; the name of the program or, without linking, nothing."""
        self.programs += 1
        stem = os.path.join(self.folder, f".program{self.programs}")
        path = self.write(stem + SUFFIXES[block.language], source)
        inside = "inside" in block.instructions
        standard = "-std=c++20" if inside and block.language == "cpp" else STANDARDS[block.language]
        command = [self.tree.compilers[block.language], standard, *WARNINGS, *SANITIZERS, path]
        if link:
            command += [*self.tree.flags(inside), "-o", stem]
        else:
            command += [*self.tree.include_flags(inside), "-fsyntax-only"]
        done = self.execute(command, block)
        if done.returncode != 0:
            raise BlockError(f"{block.place}: does not compile:\n" + "\n".join(done.stdout.splitlines()[:20]))
        return stem

    def program(self, block):
        """C and C++: compiled, and run if it is a whole program."""
        source = block.source()
        name = block.instructions.get("part") or block.instructions.get("end")
        if name:
            self.parts.setdefault(name, []).append(source)
            if "end" not in block.instructions:
                return "part of a program"
            source = "".join(self.parts.pop(name))
        if not HAS_MAIN.search(source):
            if "not run" not in block.instructions:
                raise BlockError(f"{block.place}: no main in it; give the text around it, or the file that it is from")
            self.compile(block, source, link=False)
            return "compiled only"
        program = self.compile(block, source, link=True)
        if "not run" in block.instructions:
            return "compiled only"
        self.run([program], block)
        return "compiled and run"

    def shell(self, block):
        if any(line.startswith("$ ") for line in block.text.splitlines()):
            raise BlockError(f"{block.place}: a prompt cannot be typed; show outputs in a block of their own")
        if "not run" in block.instructions:
            problems = missing_commands(block.source(), self.tree.project, self.environment["PATH"])
            if problems:
                raise BlockError(f"{block.place}: " + "; ".join(problems))
            return "commands exist"
        # As in one terminal: folder and exported variables stay for the next block.
        state = shlex.quote(os.path.join(self.folder, ".state"))
        keep = f"trap '{{ export -p; printf \"cd %q\\n\" \"$PWD\"; }} >{state}' EXIT\n"
        script = f"[ ! -e {state} ] || . {state}\n{keep}{block.source()}"
        self.run(["bash", "-e", "-o", "pipefail", "-c", script], block)
        return "run"

    def python(self, block):
        try:
            compile(block.source(), block.place, "exec")
        except SyntaxError as error:
            raise BlockError(f"{block.place}: {error}") from error
        if "not run" in block.instructions:
            return "compiled only"
        self.run(["python3", "-c", block.source()], block)
        return "run"

    def cmake(self, block):
        """A CMakeLists.txt, configured and built in the page's folder."""
        self.write("CMakeLists.txt", block.source())
        self.run(["bash", "-e", "-c", "rm -rf .cmake; cmake -S . -B .cmake -DCMAKE_BUILD_TYPE=Debug >.log 2>&1 && "
                  "cmake --build .cmake >>.log 2>&1 || { cat .log; exit 1; }"], block)
        return "built"

    def json(self, block):
        try:
            json.loads(block.text)
        except ValueError as error:
            raise BlockError(f"{block.place}: {error}") from error
        return "parsed"

    def save(self, block):
        name = block.instructions["save"]
        self.write(name, block.text)
        self.saved[name] = block.place
        return "saved for a command"

    def stands_in_file(self, block):
        """The lines of the block, at any indentation, one after the other in the file."""
        name = block.instructions["from"]
        try:
            with open(os.path.join(self.tree.project, name), encoding="utf-8") as file:
                there = [line.strip() for line in file]
        except OSError as error:
            raise BlockError(f"{block.place}: {name}: {error.strerror}") from error
        here = [line.strip() for line in block.text.strip("\n").splitlines()]
        if not any(there[start:start + len(here)] == here for start in range(len(there))):
            raise BlockError(f"{block.place}: these lines do not stand in {name}")
        return "from a file of the tree"

    def treat(self, block):
        """Treats a block; returns the kind of treatment."""
        if "save" in block.instructions:
            return self.save(block)
        if "from" in block.instructions:
            return self.stands_in_file(block)
        if is_output(block) or "drawing" in block.instructions:
            return "compared" if self.is_shown_output(block) else "text"
        languages = {"c": self.program, "cpp": self.program, "sh": self.shell, "python": self.python,
                     "cmake": self.cmake, "json": self.json}
        if block.language not in languages:
            known = ", ".join([*languages, "text", "output"])
            raise BlockError(f"{block.place}: nobody knows what to do with '{block.language}'; known are {known}")
        for name in list(self.saved):
            if name in block.source():
                del self.saved[name]
        return languages[block.language](block)

    def is_shown_output(self, block):
        return block in self.outputs

    def treat_all(self, blocks):
        """(kind, result) of each block, and all errors."""
        self.outputs = [block.expected for block in blocks if block.expected]
        happened, complaints = [], []
        for block in blocks:
            try:
                happened.append((block.language or "no language", self.treat(block)))
            except BlockError as error:
                complaints.append(str(error))
        complaints += [f"{place}: {name} is saved and no command uses it" for name, place in self.saved.items()]
        complaints += [f"{blocks[0].page}: the program {name} has parts and no end" for name in self.parts]
        return happened, complaints
