"""Builds the test programs with changed sources of the library, or with other flags: the switched mutants, those that
are built one at a time (the edits of find_constants.py), and both under the address sanitizer.

Only objects made from src/ are compiled here; the others come from the ordinary build. For a mutant that is built, the
objects of the edited file are compiled again in another folder, with the edited file over the original (-ivfsoverlay).
So the sanitizer checks the library, its stack and all blocks, but no array on the stack of a test that does not include
src/.
"""
import functools
import json
import os
import re
import shlex
import subprocess
import tempfile
from collections import Counter
from concurrent.futures import ThreadPoolExecutor

from test_programs import programs_of

DOES_NOT_COMPILE = "the compiler"
# Mutants make constants variable, which is narrowing in braces.
COMPILER, FLAGS = "clang++-19", ["-g0", "-w", "-Wno-c++11-narrowing"]
# What many mutants run is optimised; what is compiled for one mutant is not.
OPTIMISED, NOT_OPTIMISED = "-O1", "-O0"
LINKER = "-fuse-ld=lld"
STATIC_LIBRARY = "src/libmava_tum.a"
SHARED_LIBRARY = re.compile(r"src/libmava_tum\.so\S*")
SOURCE = re.compile(r"/(src/(?:codec|messages|nal)/\S+)$")
PRECOMPILED = re.compile(r"-Winvalid-pch|-include \S+\.hxx")


def sources_of(copy):
    """Names the state of all that the programs are built from, in a copy of the project."""
    folders = [f"HEAD:{folder}" for folder in ("src", "include", "tests", "fuzz", "catalogue")]
    return subprocess.run(["git", "-C", copy, "rev-parse", *folders], capture_output=True, text=True,
                          check=True).stdout


class Commands:
    """The ordinary build of `source` as ninja describes it: the commands, and the files of src/ that each object
    depends on."""

    def __init__(self, build, source):
        self.build, self.source = build, source
        self.command = {each["output"]: each["command"] for each in json.loads(self.ninja("compdb"))}
        self.made_from = {}
        for found in re.finditer(r"^(\S+): #deps.*\n((?:    .*\n)*)", self.ninja("deps"), re.M):
            paths = map(SOURCE.search, found.group(2).splitlines())
            self.made_from[found.group(1)] = {path.group(1) for path in paths if path}

    def ninja(self, tool):
        return subprocess.run(["ninja", "-t", tool], cwd=self.build, capture_output=True, text=True, check=True).stdout

    def objects_of(self, archive):
        return re.findall(r"\S+\.o\b", self.command[archive])

    @functools.cache
    def link_words(self, target):
        """The words of the command that links it, with the library's objects instead of the library."""
        [command] = [text for output, text in self.command.items() if os.path.basename(output) == target
                     and " -o " in text]
        words = shlex.split(next(part for part in command.split(" && ") if " -o " in part))[1:]
        archives = {STATIC_LIBRARY if SHARED_LIBRARY.fullmatch(word) else word for word in words}
        if any(self.made_from.get(each) for word in archives & set(self.command) - {STATIC_LIBRARY, target}
               if word.endswith(".a") for each in self.objects_of(word)):
            raise SystemExit(f"{target} is linked with an archive that is made from src/")
        words = [word for word in words if word != STATIC_LIBRARY and not SHARED_LIBRARY.fullmatch(word)]
        return [COMPILER, LINKER, *self.objects_of(STATIC_LIBRARY), *words]


class Folder:
    """Objects compiled from the sources as they are, or with one file edited."""

    def __init__(self, commands, tree, path, flags):
        self.commands, self.tree, self.path, self.flags = commands, tree, path, flags
        self.objects = {}  # object of the build -> object here

    def run(self, words):
        with open(os.path.join(self.path, "log"), "ab") as log:
            return subprocess.run(words, cwd=self.commands.build, check=False, stdout=log, stderr=log).returncode == 0

    def compile(self, target, source=None):
        """The object; None if it does not compile."""
        made = os.path.join(self.path, target.replace("/", "."))
        if os.path.exists(made):
            return made
        command = self.commands.command[target].replace(f"{self.commands.source}/", f"{self.tree}/")
        words = shlex.split(PRECOMPILED.sub("", command))
        words = [COMPILER, *words[next(i for i, word in enumerate(words) if word[0] == "-"):]]
        words[words.index("-o") + 1] = made
        del words[words.index("-MD"):words.index("-o")]
        if source:
            words[-1] = source
        return made if self.run([*words, *self.flags]) else None

    def compile_library(self, objects):
        """All of them, compiled as one source."""
        source = os.path.join(self.path, "library.cpp")
        with open(source, "w", encoding="latin-1") as stream:
            for each in objects:
                path = self.commands.command[each].split()[-1]
                stream.write(f'#include "{path.replace(self.commands.source, self.tree)}"\n')
        made = self.compile(objects[0], source)
        self.objects.update({each: made for each in objects})
        return made is not None

    def link(self, target, others):
        """The program, with objects from here, else from `others`, else from the build."""
        program = os.path.join(self.path, target)
        words = self.commands.link_words(target)
        words[words.index("-o") + 1] = program
        here = [self.objects.get(word) or others.get(word) or word for word in words]
        here = [word for index, word in enumerate(here) if not word.endswith(".o") or word not in here[:index]]
        return program if self.run([*here, *self.flags]) else None


class Builder:
    """The programs of one stage, with the sources of the copy `name`, and with its mutants."""

    def __init__(self, work, name, corpus, version, stage):
        """`version` is that of the sources: objects of another version are built again."""
        build = os.path.join(work, "build")
        self.commands = Commands(build, os.path.join(work, "plain"))
        self.tree = os.path.join(work, name)
        self.flags = FLAGS + (["-fsanitize=address"] if stage == "sanitized" else [])
        self.programs = programs_of(build, corpus, stage)
        self.library = self.commands.objects_of(STATIC_LIBRARY)
        self.kills = Counter()
        self.folder = os.path.join(work, f"{name}.{'address' if stage == 'sanitized' else 'objects'}.{version[:12]}")
        self.unmutated = self.prepare()

    def stale_objects(self, program, files=None):
        """A program's objects (not the library's) that depend on one of the files, or on any of src/."""
        return [word for word in self.commands.link_words(program.target)
                if word not in self.library and self.is_made_from(word, files)]

    def is_made_from(self, target, files):
        sources = self.commands.made_from.get(target, set())
        return bool(sources & files if files is not None else sources)

    def prepare(self):
        """Builds everything without a mutant, unless it exists. Returns the objects."""
        os.makedirs(self.folder, exist_ok=True)
        folder = Folder(self.commands, self.tree, self.folder, [OPTIMISED, *self.flags])
        stale = {*self.library, *(each for program in self.programs for each in self.stale_objects(program))}
        with ThreadPoolExecutor(int(os.environ.get("MUTATION_JOBS", os.cpu_count()))) as pool:
            folder.objects = dict(zip(stale, pool.map(folder.compile, stale)))
        if None in folder.objects.values():
            raise SystemExit(f"a source does not compile with nothing mutated: see {self.folder}/log")
        for program in self.programs:
            path = folder.link(program.target, {})
            if path is None:
                raise SystemExit(f"{program.target} does not link with nothing mutated: see {self.folder}/log")
            program.command[0] = path
        return folder.objects

    def order(self, files):
        """First the programs that need only the library compiled, and have killed mutants of the same folder."""
        folder = os.path.dirname(min(files))
        return sorted(self.programs, key=lambda program: (len(self.stale_objects(program, files)),
                                                          -self.kills[program.name, folder]))

    def killer(self, mutant):
        """The name of the program that fails, or does not build; DOES_NOT_COMPILE if the library does not compile;
        otherwise None."""
        if "edit" not in mutant:
            number = mutant["number"]
            return next((program.name for program in self.programs
                         if program.reaches(number) and program.fails({"MUTANT": str(number)})), None)
        edit = mutant["edit"]
        with open(os.path.join(self.tree, edit["file"]), encoding="latin-1") as stream:
            text = stream.read()
        before, rest = text[:edit["start"]], text[edit["start"]:]
        if not rest.startswith(edit["replaced"]):
            raise SystemExit(f"{edit['file']} is not the file that was mutated")
        return self.killer_of({edit["file"]: before + edit["text"] + rest[len(edit["replaced"]):]})

    def killer_of(self, changed):
        """The same for the changed files (path -> text)."""
        files = set(changed)
        with tempfile.TemporaryDirectory() as path:
            folder = Folder(self.commands, self.tree, path, [NOT_OPTIMISED, *self.flags, *self.overlay(changed, path)])
            if not folder.compile_library([each for each in self.library if self.is_made_from(each, files)]):
                return DOES_NOT_COMPILE
            for program in self.order(files):
                if self.is_killed_by(program, files, folder):
                    self.kills[program.name, os.path.dirname(min(files))] += 1
                    return program.name
        return None

    def is_killed_by(self, program, files, folder):
        for each in self.stale_objects(program, files):
            if each not in folder.objects:
                folder.objects[each] = folder.compile(each)
            if folder.objects[each] is None:
                return True
        path = folder.link(program.target, self.unmutated)
        return path is None or program.fails({}, path)

    def overlay(self, changed, path):
        roots, overlay = [], os.path.join(path, "overlay.json")
        for index, (file, text) in enumerate(changed.items()):
            roots.append({"name": os.path.join(self.tree, file), "type": "file",
                          "external-contents": os.path.join(path, f"changed{index}")})
            with open(roots[-1]["external-contents"], "w", encoding="latin-1") as stream:
                stream.write(text)
        with open(overlay, "w", encoding="utf-8") as stream:
            json.dump({"version": 0, "use-external-names": False, "roots": roots}, stream)
        return ["-ivfsoverlay", overlay]
