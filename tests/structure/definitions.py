"""Reading C++ and Objective-C++ sources: what they define, and which names each definition refers to."""

import collections
import dataclasses
import re

from tokens import CLOSING, accessors, blanked, is_word, partner, references, selector_of, tokens_of

RENAMING = re.compile(r"^ *# *define +([A-Za-z_]\w*) +([A-Za-z_]\w*) *$", re.M)
QUALIFIERS = {"static", "const", "constexpr", "inline", "extern", "typedef", "thread_local"}


@dataclasses.dataclass
class Definition:
    """`owner` is the class of a method or member. Local ones can be named in their file alone."""

    kind: str
    name: str
    path: object
    line: int
    owner: str = ""
    is_local: bool = False
    is_given: bool = False
    words: set = dataclasses.field(default_factory=set)
    selectors: set = dataclasses.field(default_factory=set)

    def __str__(self):
        return f"[{self.owner} {self.name}]" if self.kind == "method" else self.name


@dataclasses.dataclass
class Type:
    """What `@interface` says of a class or protocol, all categories together."""

    parent: str = ""
    comment: str = ""
    protocols: set = dataclasses.field(default_factory=set)
    selectors: set = dataclasses.field(default_factory=set)

    def take(self, other):
        self.parent = self.parent or other.parent
        self.comment += other.comment
        self.protocols |= other.protocols
        self.selectors |= other.selectors


class Source:
    """One file. `definitions` are what it defines, `words` and `selectors` what it names outside of them."""

    def __init__(self, path):
        self.path = path
        self.definitions = []
        self.types = collections.defaultdict(Type)
        self.words, self.selectors = set(), set()
        text = path.read_text()
        self.renamings = dict(RENAMING.findall(text))
        self.lines = text.splitlines()
        self._scope(tokens_of(blanked(text)), owner="", is_local=False, is_given=False)

    def comment_above(self, line):
        """The comment right above a line, as one line."""
        first = line - 1
        while first > 0 and self.lines[first - 1].lstrip().startswith("//"):
            first -= 1
        return " ".join(text.strip().lstrip("/").strip() for text in self.lines[first : line - 1])

    def _define(self, kind, name, tokens, **facts):
        definition = Definition(kind, name, self.path, tokens[0][1], **facts)
        definition.words, definition.selectors = references(tokens)
        self.definitions.append(definition)
        return definition

    def _note(self, tokens):
        words, selectors = references(tokens)
        self.words |= words
        self.selectors |= selectors

    def _scope(self, tokens, **context):
        place = 0
        while place < len(tokens):
            place = self._statement(tokens, place, context)

    def _statement(self, tokens, start, context):
        """Reads what begins at `start` and gives the place behind it."""
        token = tokens[start][0]
        following = tokens[start + 1][0] if start + 1 < len(tokens) else ""
        if is_word(token) and following in ("@interface", "@protocol"):
            return start + 1
        if token == "template" and following == "<":
            return self._behind_angles(tokens, start + 1)
        if token in ("public", "private", "protected") and following == ":":
            return start + 2
        if token in ("@synthesize", "@dynamic"):
            return self._find(tokens, start, {";"})[1] + 1
        if token in ("@class", "@protocol") and self._find(tokens, start, {";", "-", "+", "@end"})[0] == ";":
            return self._find(tokens, start, {";"})[1] + 1
        if token in ("@interface", "@protocol"):
            end = self._find(tokens, start, {"@end"})[1]
            self._interface(tokens[start:end])
            return end + 1
        if token == "@implementation":
            end = self._find(tokens, start, {"@end"})[1]
            body = start + 2
            if tokens[body][0] == "(":
                body = partner(tokens, body) + 1
            self._scope(tokens[body:end], **{**context, "owner": "@" + following})
            return end + 1
        if token in "-+" and context["owner"].startswith("@"):
            return self._method(tokens, start, context)
        if token == "namespace" or (token == "extern" and following == '"'):
            return self._inner_scope(tokens, start, context)
        return self._declaration(tokens, start, context)

    @staticmethod
    def _find(tokens, start, wanted):
        for place in range(start, len(tokens)):
            if tokens[place][0] in wanted:
                return tokens[place][0], place
        return "", len(tokens)

    @staticmethod
    def _behind_angles(tokens, start):
        depth = 0
        for place in range(start, len(tokens)):
            depth += (tokens[place][0] == "<") - (tokens[place][0] == ">")
            if depth == 0:
                return place + 1
        return len(tokens)

    def _interface(self, tokens):
        """@interface NAME : PARENT <P> or NAME (CATEGORY) <P>, @protocol NAME <P>, up to @end."""
        text = " ".join(token for token, _ in tokens)
        text = re.sub(r"GS_GENERIC_CLASS \( (\w+) [^)]*\)", r"\1", text)
        match = re.match(r"@\w+ (\w+)(?: : (\w+))?(?: \( \w* \))?(?: < ([\w ,]+) >)?", text)
        entry = self.types[match[1]]
        entry.parent = match[2] or entry.parent
        entry.comment += self.comment_above(tokens[0][1])
        entry.protocols |= set(re.findall(r"\w+", match[3] or ""))
        variables = self._find(tokens, 0, {"{"})[1]
        if tokens[0][0] == "@interface" and match[2]:
            end = partner(tokens, variables) if variables < len(tokens) else 0
            self._define("class", match[1], tokens[: max(end, 5)])
        for place, (token, _) in enumerate(tokens):
            if token in "-+" and tokens[place + 1][0] == "(":
                end = self._find(tokens, place, {";"})[1]
                entry.selectors.add(selector_of(tokens[place + 1 : end]))
            elif token == "@property":
                end = self._find(tokens, place, {";"})[1]
                entry.selectors |= accessors(tokens[place + 1 : end])

    def _method(self, tokens, start, context):
        ending, body = self._find(tokens, start, {"{", ";"})
        end = partner(tokens, body) if ending == "{" else body
        selector = selector_of(tokens[start + 1 : body])
        self._define(
            "method", selector, tokens[start : end + 1], owner=context["owner"][1:],
            is_given=tokens[start][0] == "+" and selector in ("load", "initialize"),
        )
        return end + 1

    def _inner_scope(self, tokens, start, context):
        ending, body = self._find(tokens, start, {"{", ";"})
        if ending != "{":
            return body + 1
        end = partner(tokens, body)
        is_language = tokens[start][0] == "extern"
        is_anonymous = not is_language and body == start + 1
        self._scope(
            tokens[body + 1 : end],
            owner=context["owner"],
            is_local=context["is_local"] or is_anonymous,
            is_given=context["is_given"] or is_language,
        )
        return end + 1

    def _declaration(self, tokens, start, context):
        place, depth = start, 0
        while place < len(tokens):
            token = tokens[place][0]
            depth += (token in "([") - (token in ")]")
            if depth == 0 and token == ";":
                self._simple(tokens[start:place], context)
                return place + 1
            if depth == 0 and token == "{":
                head = tokens[start:place]
                kind = self._kind_of_braces(head)
                end = partner(tokens, place)
                if kind == "function":
                    self._function(head, tokens[start : end + 1], context)
                    return end + 1
                if kind in ("class", "enum"):
                    return self._type(kind, head, tokens, place, end, context)
                place = end
            place += 1
        return place

    @staticmethod
    def _kind_of_braces(head):
        words = [token for token, _ in head]
        plain = [word for word in words if word not in QUALIFIERS]
        if plain[:1] == ["enum"]:
            return "enum"
        if plain[:1] and plain[0] in ("class", "struct", "union") and "=" not in words and "(" not in words:
            return "class"
        opened = words.index("(") if "(" in words else len(words)
        if opened == len(words) or "=" in words[:opened]:
            return "initializer"
        behind = words[partner(head, opened) :]
        if ":" in behind and is_word(behind[-1]) and behind[-1] not in ("const", "noexcept", "override"):
            # A member that the constructor initialises with braces.
            return "initializer"
        return "function"

    def _function(self, head, tokens, context):
        name, owner = self._name_of(head, context)
        words = {token for token, _ in head}
        is_special = name in ("operator", owner) or "~" in words or "operator" in words
        is_local = context["is_local"] or ("static" in words and not owner)
        definition = self._define(
            "function", name, tokens, owner=owner, is_local=is_local,
            is_given=context["is_given"] or name == "main",
        )
        if is_special or "override" in words or (owner and "virtual" in words):
            definition.kind = "override"

    def _name_of(self, head, context):
        depth = 0
        for place, (token, _) in enumerate(head):
            if token == "<" and place > 0 and is_word(head[place - 1][0]) and head[place - 1][0] != "operator":
                depth += 1
            depth -= token == ">" and depth > 0
            if token == "(" and depth == 0 and place > 0:
                owner = context["owner"] if not context["owner"].startswith("@") else ""
                behind = place - 3 if head[place - 2][0] == "~" else place - 2
                if place > 2 and head[behind][0] == "::":
                    owner = head[behind - 1][0]
                return head[place - 1][0], owner
        return "", ""

    def _type(self, kind, head, tokens, body, end, context):
        names = [token for token, _ in head if is_word(token) and token not in QUALIFIERS]
        names = [name for name in names[1:] if name not in ("class", "struct")]
        semicolon = self._find(tokens, end, {";"})[1]
        if kind == "enum":
            self._enumerators(tokens[body + 1 : end], context)
        else:
            if names:
                self._define("class", names[0], head, is_local=context["is_local"])
            self._scope(tokens[body + 1 : end], **{**context, "owner": names[0] if names else ""})
        if semicolon > end + 1:
            self._simple(tokens[end + 1 : semicolon], context)
        return semicolon + 1

    def _enumerators(self, tokens, context):
        depth, expects = 0, True
        for place, (token, line) in enumerate(tokens):
            depth += (token in CLOSING) - (token in CLOSING.values())
            if expects and is_word(token):
                self._define("constant", token, tokens[place : place + 1], is_local=context["is_local"])
                expects = False
            elif depth == 0 and token == ",":
                expects = True
            elif not expects:
                self._note([(token, line)])

    def _simple(self, tokens, context):
        """A statement without a body: a variable, a declaration, an alias."""
        words = [token for token, _ in tokens]
        if not words or words[0] == "using" or words[0] == "typedef":
            self._note(tokens)
            return
        stops = [place for place, word in enumerate(words) if word in ("=", "[", "{")]
        stop = min(stops, default=len(words))
        if "(" in words[:stop] or ("extern" in words and "=" not in words) or words[0] in ("class", "struct"):
            return
        name = words[stop - 1] if stop > 0 else ""
        is_member = context["owner"] and not context["owner"].startswith("@")
        if is_member or not is_word(name):
            self._note(tokens)
            return
        is_static = "static" in words and self.path.suffix != ".h"
        self._define("constant", name, tokens, is_local=context["is_local"] or is_static)
