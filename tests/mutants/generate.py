"""Makes mutants of a C++ source file: one token, statement or table row changed in each. See scripts/mutants.

It works on tokens and relies on the format that clang-format gives the sources: a sign between two blanks has two
operands, so that `a < b` compares and `vector<int>` does not. A mutant may fail to compile; whoever runs it finds out.
"""

import re
from typing import NamedTuple


class Mutant(NamedTuple):
    source: str  # the file, from the project's root
    kind: str
    start: int  # what is replaced
    end: int
    new: str

    def broken(self, text):
        return text[: self.start] + self.new + text[self.end :]


class Token(NamedTuple):
    kind: str
    text: str
    start: int
    end: int


# What stands behind an #else is compiled on other machines only.
LEXER = re.compile(
    r"""(?P<skip>\s+|//[^\n]*|/\*.*?\*/|\#else\b.*?\#endif|\#(?:[^\n\\]|\\.)*)
    |(?P<string>(?:u8|[uUL])?R"(?P<raw>[^(\s]*)\(.*?\)(?P=raw)"|(?:u8|[uUL])?"(?:[^"\\\n]|\\.)*")
    |(?P<char>'(?:[^'\\\n]|\\.)+')
    |(?P<number>\.?\d(?:[\w.]|'\w)*)
    |(?P<word>[A-Za-z_]\w*)
    |(?P<sign><=>|<<=|>>=|->\*|\.\.\.|&&|\|\||[-+*/%&|^!=<>]=|\+\+|--|->|<<|>>|::|\.\*|.)""",
    re.VERBOSE | re.DOTALL)

# Kind of mutant: signs between two operands, and what takes their place.
SIGNS = {
    "comparison": {"==": "!=", "!=": "==", "<": "<=", "<=": "<", ">": ">=", ">=": ">"},
    "logic": {"&&": "||", "||": "&&"},
    "arithmetic": {"+": "-", "-": "+", "*": "/", "/": "*", "%": "/", "<<": ">>", ">>": "<<", "&": "|", "|": "&",
                   "^": "&", "+=": "-=", "-=": "+=", "*=": "+=", "/=": "*=", "|=": "&=", "&=": "|=", "^=": "|=",
                   "<<=": ">>=", ">>=": "<<="},
}
FUNCTIONS = [("any_of", "all_of"), ("min", "max"), ("starts_with", "ends_with"), ("front", "back"),
             ("tolower", "toupper")]
OTHER_FUNCTION = {name: other for pair in FUNCTIONS for name, other in (pair, pair[::-1])}

# What is behind these, in brackets, changes nothing when the program runs.
UNSEEN = {"static_assert", "noexcept", "alignas", "decltype", "requires", "__attribute__", "reserve", "shrink_to_fit",
          "va_end"}
DECLARATION = re.compile(
    r"(?:const|auto|static|constexpr|using|struct|class|enum|union|typedef|static_assert|namespace|template)\b"
    r"|(?!(?:return|throw|delete|goto)\b)[\w:]+(?:<[^;=]*>)?[&*]*\s+(?:const\s+)?[&*]*\w+\s*[=;({\[]")
JUMP = re.compile(r"(?:return|break|continue|throw|goto)\b")
FIXED = re.compile(rf"{DECLARATION.pattern}|(?:case|default)\b|{JUMP.pattern}")
PATH = re.compile(r"[A-Za-z_]\w*(?:(?:\.|->\*?|::)[A-Za-z_]\w*)*")
CASE = re.compile(r"if \(([^\s()!]+) == ([^\s()]+)\)")  # one of several values
RESULT = re.compile(r"k[A-Z]\w*$")
CAPITALS = re.compile(r"[A-Z][A-Z0-9_]{2,}$")


def tokens_of(text):
    return [Token(match.lastgroup if match.lastgroup != "raw" else "string", match[0], match.start(), match.end())
            for match in LEXER.finditer(text) if match.lastgroup != "skip"]


def other_character(literal):
    """The literal with its middle character changed to one that differs in more than case; None for an empty one."""
    parts = re.findall(r"\\(?:x[0-9a-fA-F]+|[0-7]+|.)|[^\\]", literal)
    if not parts:
        return None
    middle = len(parts) // 2
    parts[middle] = "y" if parts[middle] in "xX" else "x"
    return "".join(parts)


def number_texts(text):
    """The numbers beside this one, in its base and with its suffix."""
    match = re.fullmatch(r"(0[xX][\da-fA-F']+|0[bB][01']+|\d[\d']*)([uUlLzZ]*)", text)
    if not match:
        return []
    digits = match[1].replace("'", "")
    octal = len(digits) > 1 and digits.isdigit() and digits[0] == "0"
    value = int(digits, 8 if octal else 0)
    show = "{:#o}" if octal else "{:#x}" if digits[:2] in ("0x", "0X") else "{}"
    return [show.format(n).replace("0o", "0") + match[2] for n in (value + 1, value - 1) if n >= 0]


def objects(statement):
    """The names that a statement uses, and those among them that it may change: all of them if it calls something."""
    statement = re.sub(r'"(?:[^"\\]|\\.)*"', '""', statement)
    moved = re.findall(rf"std::move\(({PATH.pattern})\)", statement)
    plain = re.sub(r"std::move\(|static_cast<[^()]*>\(|\b(?:if|while|switch) \(", "", statement)
    used = {re.sub(r"->\*?|::", ".", name) for name in PATH.findall(statement)}
    if re.search(r"[\w>\])]\(", plain):
        # A method changes the object before its name.
        return used, used | {name.rpartition(".")[0] or name for name in used}
    changed = moved + re.findall(rf"({PATH.pattern})\s*(?:[-+*/%&|^]|<<|>>)?=(?!=)", plain)
    if "++" in plain or "--" in plain:
        changed += used
    return used, {re.sub(r"->\*?|::", ".", name) for name in changed}


def order_matters(one, other):
    """Whether two statements can be swapped and may do something else then."""
    if any(FIXED.match(text) for text in (one, other)):
        return False
    cases = [CASE.match(text) for text in (one, other)]
    if all(cases) and cases[0][1] == cases[1][1] and cases[0][2] != cases[1][2]:
        return False

    def meet(a, b):
        return any((x + ".").startswith(y + ".") or (y + ".").startswith(x + ".") for x in a for y in b)

    (used, changed), (other_used, other_changed) = objects(one), objects(other)
    return any(JUMP.search(text) for text in (one, other)) or meet(changed, other_used) or meet(other_changed, used)


class Generator:
    """All mutants of one file. values: what named constants are, as far as their numbers are known."""

    def __init__(self, source, text, values):
        self.source, self.text, self.values = source, text, values
        self.tokens = tokens_of(text) + [Token("end", "", len(text), len(text))]
        self.match = self.brackets()
        self.unseen = self.unseen_tokens()
        self.mutants = {}

    def all(self):
        for i, token in enumerate(self.tokens):
            if i not in self.unseen:
                getattr(self, "of_" + token.kind)(i, token)
        return sorted(self.mutants.values(), key=lambda mutant: (mutant.start, mutant.end))

    def add(self, kind, first, last, new):
        """Tokens from first to last, inclusive, are replaced."""
        start, end = self.tokens[first].start, self.tokens[last].end
        if new is not None and new != self.text[start:end]:
            self.mutants.setdefault((start, end, new), Mutant(self.source, kind, start, end, new))

    # --- What the text is made of ---

    def brackets(self):
        match, waiting = {}, []
        for i, token in enumerate(self.tokens):
            if token.kind == "sign" and token.text in "([{":
                waiting.append(i)
            elif token.kind == "sign" and token.text in ")]}":
                match[i] = waiting.pop()
                match[match[i]] = i
        return match

    def unseen_tokens(self):
        unseen = set()
        for i, token in enumerate(self.tokens):
            if i in unseen:
                continue
            if token.text in UNSEEN and self.is_at(i + 1, "("):
                unseen.update(range(self.condition_of(i), self.match[i + 1] + 1))
            elif token.text == "[" and self.is_at(i + 1, "["):
                unseen.update(range(i, self.match[i] + 1))
            elif token.text in ("using", "typedef", "namespace", "friend", "extern"):
                unseen.update(range(i, self.find(i, ";", "{")))
            elif token.text == "operator":
                unseen.update(range(i, self.find(i + 2, "(")))
            elif token.text == "template" and self.is_at(i + 1, "<"):
                depth = 0
                for j in range(i + 1, len(self.tokens)):
                    unseen.add(j)
                    depth += {"<": 1, ">": -1, ">>": -2}.get(self.tokens[j].text, 0)
                    if depth <= 0:
                        break
        return unseen

    def condition_of(self, i):
        """Where a statement begins that is a call of the method i, with the condition before it if it has one."""
        while i > 1 and self.tokens[i - 1].text in (".", "->"):
            i -= 2
        condition = self.match.get(i - 1, 0)
        return condition - 1 if self.is_at(condition - 1, "if") else i

    def is_at(self, i, text):
        return 0 <= i < len(self.tokens) and self.tokens[i].text == text and self.tokens[i].kind in ("sign", "word")

    def find(self, i, *texts):
        """The next of these, or the bracket that closes, at the level of the token i."""
        while self.tokens[i].kind != "end" and not any(self.is_at(i, text) for text in (*texts, ")", "]", "}")):
            i = self.match[i] if i in self.match else i
            i += 1
        return i

    def top_level(self, first, last):
        """The tokens between two brackets that are in no further ones."""
        i = first + 1
        while i < last:
            yield i
            i = self.match.get(i, i) + 1

    def span(self, first, last):
        return self.text[self.tokens[first].start : self.tokens[last].end]

    def has_operands(self, i):
        token = self.tokens[i]
        blanks = self.text[token.start - 1].isspace() and self.text[token.end].isspace()
        return blanks and (self.tokens[i - 1].kind != "sign" or self.tokens[i - 1].text in ")]}")

    # --- Tokens ---

    def of_end(self, i, token):
        pass

    def of_sign(self, i, token):
        for kind, signs in SIGNS.items():
            if token.text in signs and self.has_operands(i):
                self.add(kind, i, i, signs[token.text])
        if token.text in ("++", "--"):
            self.add("arithmetic", i, i, "--" if token.text == "++" else "++")
        elif token.text == "!":
            self.add("logic", i, i, "")
        elif token.text == "-" and not self.has_operands(i) and self.text[token.end] != " ":
            self.add("arithmetic", i, i, "")
        elif token.text == "?":
            colon = self.find(i + 1, ":", "?")
            if self.is_at(colon, ":"):
                last = self.find(colon + 1, ",", ";") - 1
                arms = self.span(i + 1, colon - 1), self.span(colon + 1, last)
                self.add("result", i + 1, last, f"{arms[1]} : {arms[0]}")
        elif token.text == "{":
            self.of_braces(i)

    def of_number(self, i, token):
        for text in number_texts(token.text):
            self.add("constant", i, i, text)

    def of_char(self, i, token):
        self.add("text", i, i, f"'{other_character(token.text[1:-1])}'")

    def of_string(self, i, token):
        if not token.text.endswith('"') or "R\"" in token.text:
            return
        prefix, inside = token.text[:-1].split('"', 1)
        if not inside:
            self.add("text", i, i, f'{prefix}"x"')
            return
        self.add("text", i, i, f'{prefix}"{other_character(inside)}"')
        self.add("text", i, i, f'{prefix}"' + re.sub(r"(?:\\(?:x[0-9a-fA-F]+|[0-7]+|.)|[^\\])$", "", inside) + '"')

    def of_word(self, i, token):
        text = token.text
        if text in ("true", "false"):
            self.add("constant", i, i, "false" if text == "true" else "true")
        elif text in OTHER_FUNCTION and self.is_at(i + 1, "("):
            self.add("function", i, i, OTHER_FUNCTION[text])
        elif text == "else" and self.is_at(i + 1, "if"):
            self.add("logic", i, i, "")
        elif text in ("if", "while") and self.is_at(self.find(i + 1, "("), "("):
            self.negated(self.find(i + 1, "("))
        elif text == "return":
            self.other_result(i)
        elif self.is_constant(i):
            self.add("result", i, i, self.other_constant(i))

    def negated(self, opening):
        inside = list(self.top_level(opening, self.match[opening]))
        first = max((i + 1 for i in inside if self.is_at(i, ";")), default=opening + 1)
        signs = {self.tokens[i].text for i in inside if i >= first and self.tokens[i].kind == "sign"}
        # A declaration cannot be negated; a single comparison has its own mutants.
        if "=" in signs or ({"==", "!=", "!"} & signs and not {"&&", "||"} & signs):
            return
        last = self.match[opening] - 1
        self.add("logic", first, last, f"!({self.span(first, last)})")

    def other_result(self, i):
        last = self.find(i + 1, ";") - 1
        if last <= i or self.span(i + 1, last) in ("{}", "true", "false", "nullptr") or \
                (last == i + 1 and self.tokens[last].kind in ("number", "string", "char")):
            return
        if self.is_constant(last) and last <= i + 3:
            if self.other_constant(last) is None:
                self.add("result", i + 1, last, "!" + self.span(i + 1, last))
            return
        self.add("result", i + 1, last, "{}")

    def is_constant(self, i):
        """Whether a word is an enumerator, or a named constant in the place of a result."""
        before, after = self.tokens[i - 1].text, self.tokens[i + 1].text
        if self.tokens[i].kind != "word" or i in self.unseen or after in ("(", "*", "&", "::", "[") or \
                self.tokens[i + 1].kind == "word":
            return False
        if RESULT.match(self.tokens[i].text):
            return before in ("return", "?", ":", "==", "!=", "=")
        return bool(CAPITALS.match(self.tokens[i].text)) and after != "="

    def other_constant(self, i):
        """Another constant of the file in its place: the next one of another value; None when there is none."""
        text = self.tokens[i].text
        pattern = RESULT if RESULT.match(text) else CAPITALS
        qualified = self.is_at(i - 1, "::") and self.tokens[i - 2].text
        names = sorted({token.text for j, token in enumerate(self.tokens)
                        if pattern.match(token.text) and self.is_constant(j) and
                        (self.is_at(j - 1, "::") and self.tokens[j - 2].text) == qualified})
        at = names.index(text)
        value = self.values.get(text)
        return next((name for name in names[at + 1 :] + names[:at]
                     if value is None or self.values.get(name) != value), None)

    # --- Statements and tables ---

    def of_braces(self, opening):
        closing = self.match[opening]
        before = self.tokens[opening - 1].text if opening else ""
        inside = list(self.top_level(opening, closing))
        head = []
        j = opening - 1
        while j >= 0 and self.tokens[j].text not in (";", "{", "}", ")", "="):
            head.append(self.tokens[j].text)
            j -= 1
        control = before in (")", "else", "do", "try", "const", "override", "mutable", "noexcept")
        if not inside or (not control and {"namespace", "class", "struct", "union"} & set(head)):
            return
        if control or any(self.is_at(i, ";") for i in inside):
            self.of_block(opening, closing)
        else:
            self.of_rows(inside, closing, "enum" in head, before != ":")

    def of_block(self, opening, closing):
        siblings = []
        i = opening + 1
        while i < closing:
            end = self.statement(i)
            siblings.append((i, end - 1))
            i = end
        # Without its last return a function would have no result at all.
        before = self.match.get(opening - 1)
        control = before is not None and self.tokens[before - 1].text in ("if", "for", "while", "switch", "constexpr")
        if not control and not self.is_at(opening - 1, "else") and self.is_at(siblings[-1][0], "return"):
            key = self.tokens[siblings[-1][0]].start, self.tokens[siblings[-1][1]].end, ";"
            self.mutants.pop(key, None)
        for (a, b), (c, d) in zip(siblings, siblings[1:]):
            one, other = self.span(a, b), self.span(c, d)
            if a not in self.unseen and c not in self.unseen and order_matters(one, other):
                self.add("order", a, d, other + self.text[self.tokens[b].end : self.tokens[c].start] + one)

    def statement(self, i):
        """The token behind the statement that begins at i, which is dropped, as are those that it is made of."""
        begin = i
        if self.is_at(i, "[") and self.is_at(i + 1, "["):
            i = self.match[i] + 1
        text = self.tokens[i].text
        if text == "{":
            return self.match[i] + 1
        if text in ("case", "default"):
            return self.find(i, ":") + 1
        if text in ("if", "for", "while", "switch"):
            end = self.statement(self.match[self.find(i + 1, "(")] + 1)
            if text == "if" and self.is_at(end, "else"):
                end = self.statement(end + 1)
        elif text in ("try", "do"):
            end = self.match[i + 1] + 1
            while self.is_at(end, "catch"):
                end = self.match[self.match[end + 1] + 1] + 1
            if text == "do":
                end = self.find(end, ";") + 1
        else:
            end = self.find(i, ";") + 1
        if not DECLARATION.match(self.span(i, end - 1)) and i not in self.unseen and text != ";":
            self.add("dropped", begin, end - 1, ";")
        return end

    def of_rows(self, inside, closing, is_enum, is_ordered):
        commas = [i for i in inside if self.is_at(i, ",")]
        starts = [inside[0]] + [i + 1 for i in commas if i + 1 < closing]
        rows = [(start, (commas + [closing])[n] - 1) for n, start in enumerate(starts)]
        if len(rows) < 2:
            return
        for n, (first, last) in enumerate(rows):
            if not is_enum:
                more = n + 1 < len(rows)
                self.add("dropped", first if more else rows[n - 1][1] + 1, rows[n + 1][0] - 1 if more else last, "")
            # Rows that are plain values are not swapped: most such tables are sets.
            first_before, last_before = rows[n - 1]
            alike = self.tokens[first].text == self.tokens[first_before].text != "."
            if n > 0 and is_ordered and alike:
                between = self.text[self.tokens[last_before].end : self.tokens[first].start]
                swapped = self.span(first, last) + between + self.span(first_before, last_before)
                self.add("rows", first_before, last, swapped)



def sample(mutants, count):
    """So many of the mutants, spread over the kinds and, in each kind, over the file; always the same ones."""
    kinds = {}
    for mutant in mutants:
        kinds.setdefault(mutant.kind, []).append(mutant)
    quotas = dict.fromkeys(kinds, 0)
    left = min(count, len(mutants))
    while left > 0:
        for kind, found in sorted(kinds.items()):
            if left > 0 and quotas[kind] < len(found):
                quotas[kind] += 1
                left -= 1
    return sorted((kinds[kind][(2 * i + 1) * len(kinds[kind]) // (2 * quota)]
                   for kind, quota in quotas.items() for i in range(quota)), key=lambda mutant: mutant.start)


def constants(texts):
    """The values of named constants, as far as they are written as literals: kOk = 0."""
    return dict(found for text in texts for found in re.findall(r"\b(k[A-Z]\w*) = (-?\d\w*)[;,]", text))


def generate(source, text, values):
    return Generator(source, text, values).all()
