"""The operators and their replacements."""

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
COMPARISONS = {"==", "!=", "<", "<=", ">", ">="}
LOGICAL = {"&&": "||", "||": "&&"}
STEPS = {"++": ("step_up", "--"), "--": ("step_down", "++")}
