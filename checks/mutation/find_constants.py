"""Finds compile-time code, each mutant of which needs a build: constants, the functions that compute them
(COMPILED_FUNCTIONS), and template arguments.

In an expression: a whole number one higher or lower (zero only higher), an operator exchanged for its counterpart, a
truth value or a condition negated. In the rows of src/nal: a field number one higher, a limit one higher or lower, a
condition left out, one of several conditions or values left out, a condition added where zeros and empty texts are
sent, one direction made both.

Without mutants: assertions and the numbers in field lists, because a change does not compile.
"""
import hashlib
import os
import re
from dataclasses import dataclass

# operator -> (function of mutant_switch.h, description of each of its mutants)
BINARY = {
    "==": ("equal", ["!="]), "!=": ("unequal", ["=="]),
    "<": ("less", [">=", "<="]), "<=": ("less_or_equal", [">", "<"]),
    ">": ("greater", ["<=", ">="]), ">=": ("greater_or_equal", ["<", ">"]),
    "+": ("plus", ["-"]), "-": ("minus", ["+"]), "*": ("times", ["/"]),
    "/": ("divided", ["*"]), "%": ("remainder", ["*"]),
    "&": ("both_bits", ["|"]), "|": ("any_bits", ["&"]), "^": ("other_bits", ["&"]),
    "<<": ("shifted_left", [">>"]), ">>": ("shifted_right", ["<<"]),
    "+=": ("add", ["-="]), "-=": ("subtract", ["+="]), "|=": ("set_bits", ["&="]), "&=": ("keep_bits", ["|="]),
    "<<=": ("shift_left", [">>="]), ">>=": ("shift_right", ["<<="]),
}
LOGICAL = {"&&": "||", "||": "&&"}
# Evaluated while a constant, a type or an array is made.
COMPILED_FUNCTIONS = {
    "all_scalar", "any_asks_for_room", "any_holds_bytes", "asks_for_room", "holds_bytes", "make_field_tag",
    "make_varint_shapes", "max_head_bytes", "max_put_bytes", "presence_bit", "presence_bits_up_to", "rows_of_counters",
    "sum_of_head_bytes", "sum_of_put_bytes", "tag_value"}

NUMBER = re.compile(r"(?<![\w.'])(?:0[xX][0-9a-fA-F]+|\d+)[uUlL]*(?![\w.'])")
OPERATOR = re.compile(r"(?<=\s)(?:==|!=|<=|>=|<<|>>|&&|\|\||[-<>+*/%&|^])(?=\s)")
TRUTH = re.compile(r"\b(?:true|false)\b")
CONDITION = re.compile(r"(?<![^\s(=] )(?<![=!<>]= )(?<![\w:.<>])[\w:<>]+(?:\(\))? \?")
CONSTANT = re.compile(r"\bconstexpr\b[^;{}()]*?\b(\w+)(?:<[^;={}]*>)?\s*=\s*")
ALIAS = re.compile(r"\busing (\w+) =\s*")
ROWS = re.compile(r"\brow_list<")
TEMPLATE_NAME = re.compile(r"[\w:]+<(?=\S)")
TEMPLATE_CALL = re.compile(r"\b[a-z]\w*<\d+>\s?\(")
ROW_CONDITION = re.compile(r"if_\w+(?:<.*>)?|always", re.S)


@dataclass
class Edit:
    """Replaces a text of the file."""
    file: str
    start: int
    replaced: str
    text: str
    key: str
    within: str  # of the declaration's text, to detect changes
    line: int


def changes_of_number(text):
    """Zero is most often a start, a lower bound or no flags: another number is one mutant, in either direction."""
    return ["+ 1"] if re.fullmatch(r"0[uUlL]*", text) else ["+ 1", "- 1"]


def blanked(found):
    return re.sub(r"[^\n]", " ", found.group())


def without_comments(text):
    """With comments, texts and code for other processors blanked, so that positions stay."""
    text = re.sub(r'//[^\n]*|"(?:[^"\\\n]|\\.)*"', blanked, text)
    return re.sub(r"^#else\n.*?(?=^#endif)", blanked, text, flags=re.M | re.S)


def closing(text, opening):
    """The position of the bracket that closes the one at `opening`."""
    pairs, depth = {"{": "}", "(": ")", "<": ">"}, 0
    left, right = text[opening], pairs[text[opening]]
    for at in range(opening, len(text)):
        if text[at] == left:
            depth += 1
        elif text[at] == right and not (right == ">" and text[at - 1] == "-"):
            depth -= 1
            if depth == 0:
                return at
    raise ValueError(f"nothing closes {text[opening:opening + 40]!r}")


def end_of_statement(text, start):
    depth = 0
    for at in range(start, len(text)):
        depth += (text[at] in "{(") - (text[at] in "})")
        if text[at] == ";" and depth == 0:
            return at
    raise ValueError(f"nothing ends {text[start:start + 40]!r}")


def mutants_of_expression(text, start, end):
    """(from, to, text, change) of an expression."""
    for found in NUMBER.finditer(text, start, end):
        for change in changes_of_number(found.group()):
            yield found.start(), found.end(), f"({found.group()} {change})", change
    for found in OPERATOR.finditer(text, start, end):
        spelling, around = found.group(), text[max(start, found.start() - 4):found.end() + 4]
        others = [LOGICAL[spelling]] if spelling in LOGICAL else BINARY[spelling][1]
        for other in others if "..." not in around else []:
            yield found.start(), found.end(), other, f"{spelling} -> {other}"
    for found in TRUTH.finditer(text, start, end):
        yield found.start(), found.end(), {"true": "false", "false": "true"}[found.group()], "negated"
    for found in CONDITION.finditer(text, start, end):
        yield found.start(), found.end() - 2, f"!{found.group()[:-2]}", "negated"


# ---- template arguments ----

@dataclass
class TemplateId:
    """`name<arguments>`, with the start and end of each argument."""
    name: str
    start: int
    end: int
    arguments: list


def template_ids(text, start, end):
    """All templates, also those inside of others."""
    for found in TEMPLATE_NAME.finditer(text, start, end):
        opening = found.end() - 1
        close = closing(text, opening)
        arguments, depth, first = [], 0, opening + 1
        for at in range(opening + 1, close + 1):
            depth += (text[at] in "<({") - (text[at] in ">)}")
            if at == close or (text[at] == "," and depth == 0):
                arguments.append((first + len(text[first:at]) - len(text[first:at].lstrip()), at))
                first = at + 1
        yield TemplateId(found.group()[:-1], found.start(), close + 1, arguments)


def mutants_of_template_id(text, each):
    """(from, to, text, change) of one template and its own arguments."""
    for index, (first, last) in enumerate(each.arguments):
        argument = text[first:last]
        if NUMBER.fullmatch(argument) or re.fullmatch(r"\w+ \+ \d+", argument):
            yield first, last, f"{argument} + 1", "+ 1"
            if index > 0:
                yield first, last, f"{argument} - 1", "- 1"
        if " | " in argument and "<" not in argument:
            for part in argument.split(" | "):
                yield first, last, " | ".join(kept for kept in argument.split(" | ") if kept != part), f"without {part}"
    parts = [text[first:last] for first, last in each.arguments]
    if each.name in ("sent", "received"):
        yield each.start, each.end, parts[0], "in both directions"
    elif each.name == "if_all" or (each.name.startswith("if_") and len(parts) > 1):
        for index, part in enumerate(parts):
            rest = parts[:index] + parts[index + 1:]
            kept = rest[0] if each.name == "if_all" and len(rest) == 1 else f"{each.name}<{', '.join(rest)}>"
            yield each.start, each.end, kept, f"without {part}"
    elif len(parts) > 1 and ROW_CONDITION.fullmatch(parts[-1]):
        yield each.arguments[-2][1], each.arguments[-1][1], "", "without its condition"
    elif each.name in ("number", "ipv4", "text") and len(parts) == 2 and not text.endswith("received<", 0, each.start):
        condition = "always" if each.name == "text" else "if_nonzero"
        yield each.end - 1, each.end - 1, f", {condition}", condition


# ---- declarations ----

def functions(text):
    """(name, start of the body, its end) of the compiled functions."""
    for found in re.finditer(r"\b(\w+)\([^;{}]*\)\s*(?:const\s*)?\{", text):
        if found.group(1) in COMPILED_FUNCTIONS:
            yield found.group(1), found.end(), closing(text, found.end() - 1)


def declarations(text, with_rows):
    """(name, start, end, the mutated text in it)."""
    for name, start, end in functions(text):
        yield name, start, end, mutants_of_expression
    for found in CONSTANT.finditer(text):
        yield found.group(1), found.end(), end_of_statement(text, found.end()), mutants_of_expression
    for found in TEMPLATE_CALL.finditer(text):
        yield found.group().split("<")[0], found.start(), found.end(), mutants_of_template_ids
    if with_rows:
        for found in ALIAS.finditer(text):
            yield found.group(1), found.end(), end_of_statement(text, found.end()), mutants_of_template_ids
        for found in ROWS.finditer(text):
            yield "row_list", found.start(), closing(text, found.end() - 1) + 1, mutants_of_template_ids


def mutants_of_template_ids(text, start, end):
    for each in template_ids(text, start, end):
        for mutant in mutants_of_template_id(text, each):
            yield *mutant, " ".join(text[each.start:each.end].split())


def scopes(text):
    """(start, end, name) of each struct."""
    for found in re.finditer(r"^ *struct (\w+)[^;{}()]*\{", text, re.M):
        yield found.start(), closing(text, found.end() - 1), found.group(1)


def find_edits(path, name):
    """The edits of one file; `name` is its name in reports."""
    with open(path, encoding="latin-1") as stream:
        original = stream.read()
    text = without_comments(original)
    structs, edits, seen = list(scopes(text)), {}, {}
    for declared, start, end, mutants in declarations(text, "nal" in name.split("/")):
        around = [struct for struct in structs if struct[0] < start < struct[1]]
        owner = f"{max(around)[2]}::{declared}" if around else declared
        within = hashlib.sha1(text[start:end].encode("latin-1")).hexdigest()[:12]
        for first, last, replacement, change, *context in mutants(text, start, end):
            if (first, last, replacement) in edits:
                continue
            shown = context[0] if context else " ".join(text[first:last].split())
            what = f"{shown}: {text[first:last]}" if context and NUMBER.fullmatch(text[first:last]) else shown
            key = f"{os.path.basename(name)} {owner}: {what} [{change}]"
            seen[key] = seen.get(key, 0) + 1
            key += f" #{seen[key]}" if seen[key] > 1 else ""
            edits[first, last, replacement] = Edit(
                name, first, original[first:last], replacement, key, within, text.count("\n", 0, first) + 1)
    return list(edits.values())
