"""Finds the places of a C++ source that can be mutated, in clang's syntax tree.

A mutant is one small change: a comparison inverted or moved by one, an operator exchanged for its counterpart, a whole
number one higher or lower (zero only higher), a condition or truth value negated, a call or an assignment left out, a
return of the empty value. Only run-time code is changed. find_constants.py has constants, their computation and
template arguments. Array bounds, operands of sizeof, static_assert and `if constexpr` stay, and so does the number in
`return {nullptr, 0}`, because a null position has no value. A template is one place for all its instantiations.
"""
import hashlib
import re
from dataclasses import dataclass

from clang.cindex import CursorKind, Index, TypeKind

from find_constants import BINARY, COMPILED_FUNCTIONS, LOGICAL, changes_of_number

COMPARISONS = {"==", "!=", "<", "<=", ">", ">="}
STEPS = {"++": ("step_up", "--"), "--": ("step_down", "++")}
# Only assertions call them.
ASSERTED_FUNCTIONS = {"is_well_formed"}
FUNCTIONS = {CursorKind.FUNCTION_DECL, CursorKind.FUNCTION_TEMPLATE, CursorKind.CXX_METHOD,
             CursorKind.CONSTRUCTOR, CursorKind.DESTRUCTOR}
RECORDS = {CursorKind.STRUCT_DECL, CursorKind.CLASS_DECL, CursorKind.CLASS_TEMPLATE,
           CursorKind.CLASS_TEMPLATE_PARTIAL_SPECIALIZATION}
SKIPPED = {CursorKind.STATIC_ASSERT, CursorKind.ENUM_DECL, CursorKind.PARM_DECL, CursorKind.TYPE_ALIAS_DECL,
           CursorKind.TYPEDEF_DECL, CursorKind.TEMPLATE_NON_TYPE_PARAMETER, CursorKind.TEMPLATE_TYPE_PARAMETER,
           CursorKind.DECL_REF_EXPR, CursorKind.TYPE_REF, CursorKind.TEMPLATE_REF, CursorKind.TYPE_ALIAS_TEMPLATE_DECL,
           CursorKind.CXX_UNARY_EXPR}  # the last is sizeof
VARIABLES = {CursorKind.VAR_DECL, CursorKind.FIELD_DECL}
LOOPS = {CursorKind.FOR_STMT, CursorKind.WHILE_STMT, CursorKind.CXX_FOR_RANGE_STMT, CursorKind.DO_STMT}
OPERATORS = {CursorKind.BINARY_OPERATOR, CursorKind.COMPOUND_ASSIGNMENT_OPERATOR}
OWN_MUTANT_OR_EMPTY = re.compile(
    r"true|false|nullptr|MAVA_TUM_OK|-?\d\w*|\{((nullptr|0|false)(, )?)*\}"
    r"|(\w+<\w+>::)?truncated(\(\))?|follower::element")
COMMA_FOLD = re.compile(r"^\(.*,\s*\.\.\.\)$", re.S)


@dataclass
class Site:
    """One place: `before` and `after` go around [start, end); `operator` (from, to, text) replaces the operator."""
    file: str
    function: str
    start: int
    end: int
    before: str
    after: str
    changes: list  # the description of each mutant; their numbers are consecutive
    within: str  # of the function's text, to detect changes
    operator: tuple = None
    first: int = 0
    dropped: bool = False


class Finder:
    """Collects the sites of one file."""

    def __init__(self, name, text):
        self.name = name
        self.text = text
        self.sites = []
        self.function = ""
        self.within = ""
        self.returns_nothing = False

    def text_of(self, cursor):
        return self.text[cursor.extent.start.offset:cursor.extent.end.offset]

    def add(self, cursor, before, after, changes, operator=None):
        start, end = cursor.extent.start.offset, cursor.extent.end.offset
        self.sites.append(Site(self.name, self.function, start, end, before, after, changes, self.within, operator))

    # ---- walking ----

    def visit(self, cursor):
        """Dispatches on the kind of the cursor; for other kinds, only visits the children."""
        kind = cursor.kind
        if kind in SKIPPED or (kind in FUNCTIONS and cursor.spelling in COMPILED_FUNCTIONS | ASSERTED_FUNCTIONS):
            return
        if kind in FUNCTIONS or kind in RECORDS:
            self.visit_named(cursor)
        elif kind in VARIABLES:
            self.visit_variable(cursor)
        elif kind == CursorKind.COMPOUND_STMT:
            for child in cursor.get_children():
                self.visit_statement(child)
        elif kind == CursorKind.IF_STMT:
            self.visit_if(cursor)
        elif kind in LOOPS:
            self.visit_loop(cursor)
        elif kind == CursorKind.CASE_STMT:
            self.visit_statement(list(cursor.get_children())[-1])
        elif kind == CursorKind.DEFAULT_STMT:
            self.visit_statement(list(cursor.get_children())[0])
        else:
            self.visit_expression(cursor)

    def visit_children(self, cursor):
        for child in cursor.get_children():
            self.visit(child)

    def visit_named(self, cursor):
        outer = self.function, self.within
        self.function = f"{self.function}::{cursor.spelling}" if self.function else cursor.spelling
        self.within = hashlib.sha1(self.text_of(cursor).encode("latin-1")).hexdigest()[:12]
        self.returns_nothing = cursor.kind in FUNCTIONS and cursor.result_type.kind == TypeKind.VOID
        self.visit_children(cursor)
        self.function, self.within = outer

    def visit_variable(self, cursor):
        """Only the initialiser, if it is not a constant."""
        name = cursor.location.offset
        if re.search(r"\bconstexpr\b", self.text[cursor.extent.start.offset:name]):
            return
        initialiser = re.compile(r"[={]").search(self.text, name, cursor.extent.end.offset)
        if initialiser is None:
            return
        for child in cursor.get_children():
            if child.extent.start.offset >= initialiser.start():
                self.visit(child)

    # ---- statements ----

    def visit_statement(self, cursor):
        if self.text_of(cursor) == "return {nullptr, 0}":
            return
        if cursor.kind == CursorKind.RETURN_STMT:
            self.leave_early(cursor)
        elif self.has_effect(cursor):
            self.add(cursor, "(mut::is({0}) ? void() : void(", "))", ["left out"])
        elif cursor.kind == CursorKind.CONDITIONAL_OPERATOR:
            condition, *results = cursor.get_children()
            self.visit_condition(condition)
            for result in results:
                self.visit_statement(result)
            return
        self.visit(cursor)

    def has_effect(self, cursor):
        if cursor.kind in (CursorKind.CALL_EXPR, CursorKind.COMPOUND_ASSIGNMENT_OPERATOR):
            return True
        if cursor.kind == CursorKind.BINARY_OPERATOR:
            return self.operator_of(cursor)[0] == "="
        if cursor.kind == CursorKind.PAREN_EXPR:
            return self.has_effect(next(cursor.get_children()))
        return cursor.kind == CursorKind.UNARY_OPERATOR and self.text_of(cursor)[:2] in STEPS

    def leave_early(self, cursor):
        """A return gets the empty value, unless it has it already or is a literal, which has its own mutants."""
        value = re.sub(r"^return\s*", "", self.text_of(cursor)).strip()
        if value == "" or OWN_MUTANT_OR_EMPTY.fullmatch(value):
            return
        semicolon = self.text.index(";", cursor.extent.end.offset)
        result = "" if self.returns_nothing else " {{}}"
        self.sites.append(Site(self.name, self.function, cursor.extent.start.offset, semicolon + 1,
                               "{{ if (mut::is({0})) return" + result + "; ", " }}", ["returns the empty value"],
                               self.within))

    def visit_if(self, cursor):
        children = list(cursor.get_children())
        condition = next(i for i, child in enumerate(children) if child.kind.is_expression())
        if not re.match(r"if\s+constexpr\b", self.text_of(cursor)):
            self.visit_condition(children[condition])
        for branch in children[condition + 1:]:
            self.visit_statement(branch)

    def visit_loop(self, cursor):
        *head, body = cursor.get_children()
        for child in head:
            if cursor.kind == CursorKind.WHILE_STMT:
                self.visit_condition(child)
            else:
                self.visit(child)
        self.visit_statement(body)

    def visit_condition(self, cursor):
        """A condition that is no comparison is negated; comparisons and !x have such a mutant themselves."""
        operator = self.operator_of(cursor)[0] if cursor.kind in OPERATORS else ""
        if operator not in COMPARISONS and not self.text_of(cursor).startswith("!"):
            self.add(cursor, "(mut::truth(", ") != mut::is({0}))", ["negated"])
        self.visit(cursor)

    # ---- expressions ----

    def visit_expression(self, cursor):
        kind = cursor.kind
        if kind in OPERATORS:
            self.mutate_operator(cursor)
        elif kind == CursorKind.UNARY_OPERATOR:
            self.mutate_unary(cursor)
        elif kind == CursorKind.INTEGER_LITERAL:
            self.mutate_number(cursor)
        elif kind == CursorKind.CXX_BOOL_LITERAL_EXPR:
            self.add(cursor, "(mut::is({0}) != ", ")", ["negated"])
        elif kind == CursorKind.CONDITIONAL_OPERATOR:
            condition, *results = cursor.get_children()
            self.visit_condition(condition)
            for result in results:
                self.visit(result)
            return
        elif kind == CursorKind.UNEXPOSED_EXPR and COMMA_FOLD.match(self.text_of(cursor)):
            for child in cursor.get_children():
                self.visit_statement(child)
            return
        self.visit_children(cursor)

    def operator_of(self, cursor):
        """The operator's text and position between the two operands."""
        left, right = list(cursor.get_children())[:2]
        gap_start = left.extent.end.offset
        match = re.compile(r"[^\s\w]+").search(self.text, gap_start, right.extent.start.offset)
        return (match.group(), match.start(), match.end()) if match else ("", 0, 0)

    def mutate_operator(self, cursor):
        spelling, start, end = self.operator_of(cursor)
        if spelling in BINARY:
            name, others = BINARY[spelling]
            self.add(cursor, f"mut::{name}({{0}}, ", ")", [f"{spelling} -> {other}" for other in others],
                     (start, end, ","))
        elif spelling in LOGICAL:
            # Negating all three exchanges the operator without a copy of an operand.
            flip = ") != mut::is({0}))"
            self.add(cursor, "(((mut::truth(", flip + ") != mut::is({0}))", [f"{spelling} -> {LOGICAL[spelling]}"],
                     (start, end, f"{flip} {spelling} (mut::truth("))

    def mutate_unary(self, cursor):
        text = self.text_of(cursor)
        start, end = cursor.extent.start.offset, cursor.extent.end.offset
        if text[0] in "*&":
            return
        if text[:2] in STEPS:
            name, other = STEPS[text[:2]]
            self.add(cursor, f"mut::{name}({{0}}, ", ")", [f"{text[:2]} -> {other}"], (start, start + 2, ""))
        elif text[-2:] in STEPS:
            name, other = STEPS[text[-2:]]
            self.add(cursor, f"mut::{name}_after({{0}}, ", ")", [f"{text[-2:]} -> {other}"], (end - 2, end, ""))
        elif text[0] == "!":
            self.add(cursor, "(mut::is({0}) != ", ")", ["without !"])
        elif text[0] in "~-":
            name = "complement" if text[0] == "~" else "negated"
            self.add(cursor, f"mut::{name}({{0}}, ", ")", [f"without {text[0]}"], (start, start + 1, ""))

    def mutate_number(self, cursor):
        is_template_argument = self.text[cursor.extent.start.offset - 1] == "<"
        if self.text_of(cursor)[:1].isdigit() and not is_template_argument:  # nor one from a macro
            changes = changes_of_number(self.text_of(cursor))
            self.add(cursor, "mut::literal({0}, " if len(changes) > 1 else "mut::zero({0}, ", ")", changes)


def find_sites(source, files, arguments):
    """The sites in those of `files` (absolute path -> name in reports) that `source` includes."""
    unit = Index.create().parse(source, args=arguments)
    errors = [d for d in unit.diagnostics if d.severity >= 3]
    if errors:
        raise SystemExit(f"{source}: {errors[0]}")
    finders = {}
    for path, name in files.items():
        with open(path, encoding="latin-1") as stream:
            finders[path] = Finder(name, stream.read())
    for cursor in top_level(unit.cursor):
        path = cursor.location.file.name if cursor.location.file else ""
        if path in finders:
            finders[path].visit(cursor)
    return {path: finder.sites for path, finder in finders.items() if finder.sites}


def top_level(cursor):
    """The declarations in the file's namespaces, which are not part of a function's name."""
    for child in cursor.get_children():
        if child.kind in (CursorKind.NAMESPACE, CursorKind.LINKAGE_SPEC):
            yield from top_level(child)
        elif child.kind != CursorKind.UNEXPOSED_DECL:  # a template of a constant
            yield child
