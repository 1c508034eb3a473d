"""Small changes to C++ sources, one at a time, each of which a test ought to notice."""
import dataclasses
import hashlib
import re

# What is looked for in the code (texts and comments are blanked out), and what takes its place. Spaces around an
# operator tell it from a template's bracket, a pointer or a reference.
EXCHANGES = [
    (r" (==) ", "!="), (r" (!=) ", "=="),
    (r" (<) ", "<="), (r" (<=) ", "<"), (r" (>) ", ">="), (r" (>=) ", ">"),
    (r" (&&) ", "||"), (r" (\|\|) ", "&&"),
    (r"[\w)\]] (\+) ", "-"), (r"[\w)\]] (-) ", "+"),
    (r"[\w)\]] (\*) ", "/"), (r"[\w)\]] (/) ", "*"), (r" (%) ", "*"),
    (r"[\w)\]] (&) ", "|"), (r" (\|) ", "&"), (r" (<<) (?!\")", ">>"), (r" (>>) ", "<<"),
    (r" (\+=) ", "-="), (r" (-=) ", "+="), (r" (\|=) ", "&="), (r" (&=) ", "|="),
    (r"(\+\+)\w", "--"), (r"(--)\w", "++"),
    (r"\b(true)\b", "false"), (r"\b(false)\b", "true"),
    (r"[(\s](!)[\w(]", ""), (r"[(\s=](~)[\w(]", ""),
    (r"^\s+(break;)$", "[[fallthrough]];"), (r"^\s+(continue;)$", ";"),
]
NUMBER = re.compile(r"(?<![\w.\"'])(0[xX][0-9a-fA-F]+|\d+)(?![\w.'])")
CONDITION = re.compile(r"\b(?:if|while) \((?!const |auto )(.+)\)(?: \{)?$")
# A condition that holds one of these is changed by another rule already.
OPERATOR = re.compile(r"[!=<>]=|^!| [<>] |&&|\|\|")
# A line that is a whole statement and whose removal leaves valid code: a call or an assignment to what exists.
STATEMENT = re.compile(r"^(\s+)([\w:.>()\[\]-]+(?:\(.*\)| (?:[-+|&*]?=) [^=].*)|\+\+\w+|--\w+);$")
NO_STATEMENT = re.compile(r"^\s*(return|using|case|static_assert|throw|delete|public|private)\b")
LINES_WITHOUT_BEHAVIOUR = re.compile(r"^\s*(#|static_assert|using |namespace |template|///|//)")


@dataclasses.dataclass(frozen=True)
class Mutant:
    path: str
    line: int  # counted from 1
    column: int
    old: str
    new: str
    text: str  # the line as it was, without indentation
    source: str  # fingerprint of the whole file as it was

    def applied_to(self, content):
        lines = content.split("\n")
        row = lines[self.line - 1]
        assert row[self.column:].startswith(self.old)
        lines[self.line - 1] = row[:self.column] + self.new + row[self.column + len(self.old):]
        return "\n".join(lines)

    def change(self):
        return f"{self.old} -> {self.new or 'nothing'}"

    def key(self):
        return f"{self.source} {self.line}:{self.column} {self.change()}"


def blanked(content):
    """The same text with comments, string and character literals replaced by spaces, place by place."""
    literal = re.compile(r"//[^\n]*|/\*.*?\*/|R\"\((?:.*?)\)\"|\"(?:\\.|[^\"\\\n])*\"|(?<![0-9a-fA-F])'(?:\\.|[^'\\\n])+'",
                         re.DOTALL)
    return literal.sub(lambda match: re.sub(r"[^\n]", " ", match[0]), content)


def balanced(code):
    return code.count("(") == code.count(")")


def one_more(literal):
    """The next number, octal where the literal is: that is how permissions are written."""
    if re.fullmatch(r"0\d+", literal):
        return f"0{int(literal, 8) + 1:o}"
    return str(int(literal, 0) + 1)


def of_line(code):
    """(column, old, new) of every small change to one line of blanked code."""
    if LINES_WITHOUT_BEHAVIOUR.match(code):
        return
    for pattern, new in EXCHANGES:
        for match in re.finditer(pattern, code):
            yield match.start(1), match[1], new
    for match in NUMBER.finditer(code):
        yield match.start(), match[0], one_more(match[0])
    condition = CONDITION.search(code)
    if condition and balanced(condition[1]) and not OPERATOR.search(condition[1]):
        yield condition.start(1), condition[1], f"!({condition[1]})"
    statement = STATEMENT.match(code)
    if statement and balanced(code) and not NO_STATEMENT.match(code):
        yield len(statement[1]), code.strip(), ";"


def of_source(path, content):
    """Every mutant of a source file, in the order of its lines."""
    fingerprint = hashlib.sha1(content.encode()).hexdigest()[:12]
    original = content.split("\n")
    found = []
    for number, code in enumerate(blanked(content).split("\n")):
        whole = original[number]
        for column, old, new in of_line(code):
            # Blanked texts inside the changed part come back as they were.
            kept = whole[column:column + len(old)]
            new = f"!({kept})" if new.startswith("!(") else new
            found.append(Mutant(path, number + 1, column, kept, new, whole.strip(), fingerprint))
    return found
