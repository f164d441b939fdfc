"""The mutants of a C++ source: one small change each, found in its text.

The text is expected as clang-format leaves it: binary operators between blanks, statements that end in ';'.
"""
import bisect
import dataclasses
import re

_SWAPS = {
    "<": ["<=", ">="], "<=": ["<", ">"], ">": [">=", "<="], ">=": [">", "<"], "==": ["!="], "!=": ["=="],
    "&&": ["||"], "||": ["&&"], "+": ["-"], "-": ["+"], "+=": ["-="], "-=": ["+="],
}
_HIDDEN = re.compile(r'//[^\n]*|/\*.*?\*/|"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])+\'|^[ \t]*#[^\n]*', re.S | re.M)
_BINARY = re.compile(r"(?<=[\w)\]}'\"]) (<=|>=|==|!=|<|>|&&|\|\||\+=|-=|\+|-)(?=\s)")
_NUMBER = re.compile(r"(?<![\w.])(?:0[xX][0-9a-fA-F]+|\d+(?:\.\d*)?(?:[eE][-+]?\d+)?|\.\d+)[uUlLfF]*(?![\w.'])")
_CONDITION = re.compile(r"\b(?:if|while) \(")
_WORD = re.compile(r"\b(?:true|false)\b")
_STEP = re.compile(r"\+\+|--")
_JUMP = re.compile(r"\b(?:break|continue);")
_RETURN = re.compile(r"\breturn ([^;]+);")
_STATEMENT = re.compile(r"(?<=[;{})])(?:\s+|(?<=\)) )([*\w][^;{}]*;)|\belse ([*\w][^;{}]*;)")
_NO_EXPRESSION = re.compile(
    r"(?:return|using|const|constexpr|static|inline|auto|struct|class|enum|typedef|break|continue|case|default|throw|"
    r"namespace|template|friend|extern|explicit|virtual|if|else|for|while|do|switch|unsigned|goto|public|private|"
    r"static_assert)\b")
_DECLARATION = re.compile(r"[\w:]+(?:<[^;]*?>)?[&*]* [&*]?\w+(?:\[[^\]]*\])?\s*(?:[;({,]|=[^=])")


@dataclasses.dataclass(frozen=True)
class Mutant:
    """A source with text[start:end] replaced."""
    source: str
    kind: str
    start: int
    end: int
    replacement: str

    def apply(self, text):
        return text[:self.start] + self.replacement + text[self.end:]


def _code_only(text):
    """The text with comments, literals in quotes and preprocessor lines blanked out, at the same offsets."""
    def blank(character):
        return character if character == "\n" else "'" if character in "\"'" else " "

    return _HIDDEN.sub(lambda hidden: "".join(map(blank, hidden.group())), text)


def _closing(code, opening):
    """The offset of the parenthesis that closes the one at `opening`."""
    depth = 0
    for at in range(opening, len(code)):
        depth += (code[at] == "(") - (code[at] == ")")
        if depth == 0:
            return at
    return None


def _numbers(text):
    """What a literal may become."""
    digits = text.rstrip("uUlLfF") if not text.lower().startswith("0x") else text.rstrip("uUlL")
    suffix = text[len(digits):]
    if re.fullmatch(r"0[xX][0-9a-fA-F]+|\d+", digits):
        value = int(digits, 0 if digits.lower().startswith("0x") else 10)
        return [f"{value + 1}{suffix}"] + ([f"{value - 1}{suffix}"] if value > 0 else [])
    return [f"({text} + 1)", f"({text} - 1)"]


def _conditions(code):
    for match in _CONDITION.finditer(code):
        opening = match.end() - 1
        closing = _closing(code, opening)
        if closing is not None:
            start = max(opening, code.rfind("; ", opening, closing)) + 1  # behind an init statement
            yield start, closing


def _statements(code):
    for match in _STATEMENT.finditer(code):
        group = 1 if match.group(1) else 2
        statement = match.group(group)
        if statement.count("(") != statement.count(")"):
            continue  # the head of a for loop
        if _NO_EXPRESSION.match(statement) or _DECLARATION.match(statement):
            continue
        if "(" in statement or "=" in statement or "++" in statement or "--" in statement:
            yield match.start(group), match.end(group)


def mutants_of(source, text):
    """All mutants of the text, in the order of their places."""
    code = _code_only(text)
    found = []

    def add(kind, start, end, replacement):
        if text[start:end] != replacement:
            found.append(Mutant(source, kind, start, end, replacement))

    for match in _BINARY.finditer(code):
        for replacement in _SWAPS[match.group(1)]:
            add("operator", match.start(1), match.end(1), replacement)
    for match in _NUMBER.finditer(code):
        for replacement in _numbers(match.group()):
            add("constant", match.start(), match.end(), replacement)
    for start, end in _conditions(code):
        add("negated condition", start, end, f"!({text[start:end].lstrip()})")
    for match in _WORD.finditer(code):
        add("truth value", match.start(), match.end(), "false" if match.group() == "true" else "true")
    for match in _STEP.finditer(code):
        add("step", match.start(), match.end(), "--" if match.group() == "++" else "++")
    for match in _JUMP.finditer(code):
        add("removed jump", match.start(), match.end(), ";")
    for match in _RETURN.finditer(code):
        if match.group(1) not in ("{}", "0", "true", "false", "nullptr", "*this"):
            add("default returned", match.start(), match.end(), "return {};")
    for start, end in _statements(code):
        add("removed statement", start, end, ";")
    return sorted(found, key=lambda mutant: (mutant.start, mutant.end, mutant.replacement))


class Lines:
    """Places of a text as lines."""

    def __init__(self, text):
        self._text = text
        self._starts = [0] + [match.end() for match in re.finditer("\n", text)]

    def number(self, at):
        return bisect.bisect_right(self._starts, at)

    def change(self, mutant):
        """The line number, and the changed lines before and after, on one line each."""
        first = self.number(mutant.start)
        start = self._starts[first - 1]
        end = self._text.find("\n", mutant.end)
        end = len(self._text) if end < 0 else end
        before = self._text[start:end]
        after = self._text[start:mutant.start] + mutant.replacement + self._text[mutant.end:end]
        return first, " ".join(before.split()), " ".join(after.split())
