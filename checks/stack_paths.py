"""The deepest path through the compiler's call graph, for each exported function.

    stack_paths.py <limit in bytes> <file with the exported names> <folder that g++ compiled the library into, with
        -fcallgraph-info=su -save-temps=obj>

Prints "<bytes> <name>" for each export. Exits with 1 and the reason if there is a recursion, a frame without a bound,
an export that the graph does not have, or a figure above the limit.

The stack of libc and of the caller's callbacks is not counted: the path ends at their call. A call through a pointer
may reach each function of the library whose address a function on the path has taken, except those that are already on
the path.
"""

import pathlib
import re
import sys

NODE = re.compile(r'^node: \{ title: "([^"]*)" label: "([^"]*)"( shape : ellipse)? \}$')
EDGE = re.compile(r'^edge: \{ sourcename: "([^"]*)" targetname: "([^"]*)"')
# The size of a "dynamic,bounded" frame is known (it pushes arguments of a call), that of a "dynamic" frame is not.
FRAME = re.compile(r'\\n(\d+) bytes \((static|dynamic,bounded|dynamic)\)')

LABEL = re.compile(r'^([A-Za-z_][\w.$]*):')
ALIAS = re.compile(r'^\s*\.set\s+([\w.$]+)\s*,\s*([\w.$]+)$')
ADDRESS = re.compile(r'^\s+(?:lea|mov)q\s+([A-Za-z_][\w.$]*)(?:@GOTPCREL)?\(%rip\)')
TABLE = re.compile(r'^\s+\.(?:quad|long)\s+([A-Za-z_][\w.$]*)')

POINTER_CALL = "__indirect_call"
# Functions outside of the library. The first two do not return.
LIBC = {
    "__assert_fail", "__stack_chk_fail", "memcmp", "memcpy", "memmove", "memset", "strlen", "strnlen",
}


class Refused(Exception):
    pass


class Graph:
    """Frames, calls and taken addresses. A static function has the name "<source>:<name>"."""

    def __init__(self, folder):
        self.frames, self.calls, self.taken = {}, {}, {}
        units = sorted(pathlib.Path(folder).rglob("*.ci"))
        for unit in units:
            self.read_calls(unit.read_text())
        for unit in units:
            self.read_assembly(source_of(unit.read_text()), unit.with_suffix(".s").read_text())

    def read_calls(self, text):
        for line in text.splitlines():
            if edge := EDGE.match(line):
                self.calls.setdefault(edge[1], set()).add(edge[2])
            elif (node := NODE.match(line)) and not node[3]:
                self.frames[node[1]] = max(frame_bytes(node[1], node[2]), self.frames.get(node[1], 0))

    def read_assembly(self, source, text):
        """The aliases of functions, and which function takes whose address."""
        function = None
        for line in text.splitlines():
            if label := LABEL.match(line):
                function = self.known_as(source, label[1])
            elif alias := ALIAS.match(line):
                self.add_alias(self.known_as(source, alias[2]), alias[1], source)
            elif (address := ADDRESS.match(line)) and (target := self.known_as(source, address[1])):
                self.taken.setdefault(function, set()).add(target)
            elif (entry := TABLE.match(line)) and self.known_as(source, entry[1]):
                raise Refused(f"a table holds the address of {entry[1]}: who calls it cannot be seen")

    def known_as(self, source, name):
        return next((title for title in (f"{source}:{name}", name) if title in self.frames), None)

    def add_alias(self, target, name, source):
        for title in (f"{source}:{name}", name):
            if target and title not in self.frames:
                self.frames[title] = self.frames[target]
                self.calls[title] = {target}


def source_of(text):
    return re.match(r'graph: \{ title: "([^"]*)"', text)[1]


def frame_bytes(name, label):
    frame = FRAME.search(label)
    if frame is None:
        raise Refused(f"no figure for {name}")
    if frame[2] == "dynamic":
        raise Refused(f"a dynamic frame: {name}")
    return int(frame[1])


class Paths:
    def __init__(self, graph):
        self.graph = graph
        self.known = {}

    def deepest(self, name, path=(), handed=frozenset()):
        """The most bytes on the stack from the entry of `name`. `handed`: the addresses taken so far."""
        if name in path:
            raise Refused("recursion: " + " -> ".join(path[path.index(name):] + (name,)))
        if name in LIBC:
            return 0
        if name not in self.graph.frames:
            raise Refused(f"{path[-1]} calls {name}, which is neither in the library nor in libc")
        handed |= self.graph.taken.get(name, frozenset())
        key = name, handed, handed.intersection(path)
        if key not in self.known:
            below = [self.below(called, path + (name,), handed) for called in self.graph.calls.get(name, ())]
            self.known[key] = self.graph.frames[name] + max(below, default=0)
        return self.known[key]

    def below(self, called, path, handed):
        if called != POINTER_CALL:
            return self.deepest(called, path, handed)
        return max((self.deepest(target, path, handed) for target in handed.difference(path)), default=0)


def main(limit, exports, folder):
    graph = Graph(folder)
    paths = Paths(graph)
    worst = 0
    for name in pathlib.Path(exports).read_text().split():
        if name not in graph.frames:
            raise Refused(f"{name} is exported and not in the graph")
        figure = paths.deepest(name)
        worst = max(worst, figure)
        print(figure, name)
    if worst > int(limit):
        raise Refused(f"{worst} bytes are more than the limit of {limit}")


try:
    main(*sys.argv[1:])
except Refused as reason:
    sys.exit(str(reason))
