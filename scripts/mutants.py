"""The small changes of a C++ source that its tests should notice.

It reads sources as clang-format lays them out: an operator between two operands stands between
blanks, and a template's brackets do not. What no run can notice stays as it is: comments, texts,
preprocessor lines, assertions.
"""

import re

OTHER = {"<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "==", "&&": "||",
         "||": "&&", "+": "-", "-": "+", "*": "/", "/": "*", "%": "*", "+=": "-=", "-=": "+=",
         "true": "false", "false": "true", "++": "--", "--": "++", "!": ""}
SILENT = re.compile(r'//[^\n]*|/\*.*?\*/|R"(\w*)\(.*?\)\1"|"(?:\\.|[^"\\\n])*"'
                    r"|(?<![0-9A-Fa-f])'(?:\\.|[^'\\\n])+'|^[ \t]*#(?:\\\n|[^\n])*",
                    re.DOTALL | re.MULTILINE)
ASSERTION = re.compile(r"\b(?:static_)?assert\(")
TOKEN = re.compile(r"(?<=\s)(?:<=?|>=?|==|!=|&&|\|\||\+=?|-=?|[*/%])(?=\s)"
                   r"|\+\+|--|!(?=[\w(:])|\b(?:true|false)\b")
NUMBER = re.compile(r"(?<![\w.'])(?:0x[0-9A-Fa-f]+|\d+)(?![\w.'])")
CONDITION = re.compile(r"\b(?:if|while) \(")
# But for what is the same as {}.
RETURNED = re.compile(r"\breturn\s+(?!(?:0|true|false|nullptr|std::nullopt|_+);)([^;{}]+);")
LEAD = re.compile(r"(?:else\s+)?(?:if|for|while)\s*(?=\()|else\s+")
STATEMENT = re.compile(r"(?:[\w:.\[\]*()]|->)+(?:\([^;{}]*\)| [-+*/|&]?= [^;{}]*);"
                       r"|(?:break|continue|return);(?!\s*})|throw\b[^;{}]*;|(?:\+\+|--)[\w.]+;")
TYPE_HEAD = re.compile(r"\b(?:namespace|class|struct|union|enum)\b[^(){}]*$")
FUNCTION_HEAD = re.compile(r"[])](?:\s*(?:const|noexcept|override|mutable|->[\w:<>*& ]+))*\s*$")
CONTROL_HEAD = re.compile(r"^(?:else\s+)?(?:if|for|while|switch|catch)\b")
BLOCK_HEAD = re.compile(r"(?:\b(?:else|do|try)|:)\s*$|^\s*$")
GIVES_NOTHING = re.compile(r"\bvoid\s+[\w:]+\(|\b(\w+)::~?\1\(|^\s*(?:explicit\s+)?[A-Z]\w*\(|\]")
CLOSING = {"(": ")", "{": "}"}


class Mutant:
    """A source in which the characters from `start` to `end` gave way to `text`."""

    def __init__(self, source, start, end, text):
        first = source.rfind("\n", 0, start) + 1
        last = source.find("\n", end)
        self.original = source
        self.source = source[:start] + text + source[end:]
        self.line = source.count("\n", 0, start) + 1
        self.before = " ".join(source[first:last].split())
        self.after = " ".join((source[first:start] + text + source[end:last]).split())


def mutants_of(source):
    """The mutants of a source, in a list for each line that has any."""
    lines = {}
    for start, end, text in sorted(set(_changes(source, _that_runs(source)))):
        mutant = Mutant(source, start, end, text)
        lines.setdefault(mutant.line, []).append(mutant)
    return [lines[line] for line in sorted(lines)]


def _that_runs(source):
    """The source with every other character blank, but for texts: these stay, as operands."""
    def hide(match):
        operand = match[0][0] in "\"'R"
        return re.sub(r"[^\n]", "_" if operand else " ", match[0])

    code = SILENT.sub(hide, source)
    while match := ASSERTION.search(code):
        end = _closing(code, match.end() - 1)
        code = code[:match.start()] + re.sub(r"[^\n]", " ", code[match.start():end]) + code[end:]
    return code


def _closing(code, opening):
    """Behind the bracket that closes the one at a place."""
    pair, depth = (code[opening], CLOSING[code[opening]]), 0
    for place in range(opening, len(code)):
        depth += (code[place] == pair[0]) - (code[place] == pair[1])
        if not depth:
            return place + 1
    return len(code)


def _changes(source, code):
    for match in TOKEN.finditer(code):
        yield match.start(), match.end(), OTHER[match[0]]
    for match in NUMBER.finditer(code):
        yield from _other_numbers(match)
    for match in CONDITION.finditer(code):
        start, end = match.end(), _closing(code, match.end() - 1) - 1
        yield start, end, f"!({source[start:end]})"
    for match in RETURNED.finditer(code):
        yield match.start(1), match.end(1), "{}"
    yield from _changes_of_bodies(code)


def _other_numbers(match):
    hexadecimal = match[0].startswith("0x")
    value = int(match[0], 16 if hexadecimal else 10)
    for other in {value + 1, max(value - 1, 0)} - {value}:
        yield match.start(), match.end(), hex(other) if hexadecimal else str(other)


def _changes_of_bodies(code):
    """Statements taken out, and functions that return at once."""
    inside = []  # for each open brace whether it holds statements
    begun = 0
    for match in re.finditer(r"[;{}]", code):
        head = code[begun:match.start()]
        if match[0] == "{":
            if FUNCTION_HEAD.search(head) and not CONTROL_HEAD.search(head.strip()):
                yield match.end(), match.end(), _early_return(head)
            inside.append(_holds_statements(head, bool(inside) and inside[-1]))
        elif match[0] == "}" and inside:
            inside.pop()
        elif inside and inside[-1]:
            yield from _without_statement(code, begun, match.end())
        begun = match.end()


def _holds_statements(head, outside_does):
    if TYPE_HEAD.search(head):
        return False
    return bool(FUNCTION_HEAD.search(head)) or (outside_does and bool(BLOCK_HEAD.search(head)))


def _early_return(head):
    return " return; " if GIVES_NOTHING.search(head) else " return {}; "


def _without_statement(code, begun, end):
    start = begun + len(code[begun:end]) - len(code[begun:end].lstrip())
    while match := LEAD.match(code, start, end):
        start = match.end() if code[match.end()] != "(" else _closing(code, match.end())
        start += len(code[start:end]) - len(code[start:end].lstrip())
    statement = STATEMENT.match(code, start)
    if statement and statement.end() == end:
        yield start, end, "{}"
