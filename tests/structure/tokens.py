"""Reading C++ and Objective-C++ text: its tokens, and the words and selectors that it names."""

import re

BLANKED = re.compile(r'//[^\n]*|/\*.*?\*/|@?"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])+\'', re.S)
SELECTOR_TEXT = re.compile(r'NSSelectorFromString\(@"([\w:]+)"\)')
DIRECTIVE = re.compile(r"^[ \t]*#(?:[^\n]*\\\n)*[^\n]*", re.M)
TOKEN = re.compile(r"@?[A-Za-z_]\w*|::|->|\d[\w.']*|\S")
CLOSING = {"(": ")", "[": "]", "{": "}"}


def blanked(text):
    """The same lines without comments, the insides of strings, and directives."""

    def keep_lines(match):
        quote = '""' if match[0].lstrip("@")[0] == '"' else ""
        return quote + "\n" * match[0].count("\n")

    text = SELECTOR_TEXT.sub(r"@selector(\1)", text)
    return DIRECTIVE.sub(lambda match: "\n" * match[0].count("\n"), BLANKED.sub(keep_lines, text))


def tokens_of(text):
    """(token, line) pairs."""
    found, line, place = [], 1, 0
    for match in TOKEN.finditer(text):
        line += text.count("\n", place, match.start())
        place = match.start()
        found.append((match[0], line))
    return found


def is_word(token):
    return re.fullmatch(r"[A-Za-z_]\w*", token) is not None


def partner(tokens, start):
    """The place of the bracket that closes the one at `start`."""
    opening, closing = tokens[start][0], CLOSING[tokens[start][0]]
    depth = 0
    for place in range(start, len(tokens)):
        depth += (tokens[place][0] == opening) - (tokens[place][0] == closing)
        if depth == 0:
            return place
    return len(tokens) - 1


def sent_selector(tokens):
    """The selector of the message that a pair of square brackets with these tokens sends; None for another use."""
    keywords, depth, questions = [], 0, 0
    for place, (token, _) in enumerate(tokens):
        depth += (token in CLOSING) - (token in CLOSING.values())
        if depth > 0 or token in CLOSING.values():
            continue
        questions += token == "?"
        if token == ":" and questions:
            questions -= 1
        elif token == ":" and place > 1 and is_word(tokens[place - 1][0]):
            keywords.append(tokens[place - 1][0] + ":")
    if keywords:
        return "".join(keywords)
    if len(tokens) < 2 or not is_word(tokens[-1][0]):
        return None
    before = tokens[-2][0]
    return tokens[-1][0] if is_word(before) or before in ("]", ")", '"') else None


def references(tokens):
    """The words and the selectors in some text."""
    words = {token for token, _ in tokens if is_word(token)}
    selectors = set()
    for place, (token, _) in enumerate(tokens):
        if token == "@selector" and place + 1 < len(tokens):
            selectors.add("".join(part for part, _ in tokens[place + 2 : partner(tokens, place + 1)]))
        elif token == "[":
            selector = sent_selector(tokens[place + 1 : partner(tokens, place)])
            if selector:
                selectors.add(selector)
    return words, selectors


def selector_of(head):
    """The selector that a method's head, without its sign, declares."""
    plain, depth = [], 0
    for token, _ in head:
        depth += token == "("
        if depth == 0:
            plain.append(token)
        depth -= token == ")"
    keywords = [plain[place - 1] + ":" for place, token in enumerate(plain) if token == ":" and place > 0]
    return "".join(keywords) if keywords else next(iter(plain), "")


def accessors(declared):
    """The getter and the setter of a property."""
    words = [token for token, _ in declared if is_word(token)]
    getter = words[words.index("getter") + 1] if "getter" in words else words[-1]
    return {getter, f"set{words[-1][:1].upper()}{words[-1][1:]}:"}
