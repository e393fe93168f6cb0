"""What the published metadata says of Apple's frameworks: its declaration files (*.d.ts), read line by line."""
import re

FRAMEWORKS = ["Runtime", "Foundation", "AppKit", "CoreFoundation", "CoreServices", "QuartzCore", "FinderSync"]
# The type, the one it extends, those it implements.
TYPE_HEAD = re.compile(r"^declare (?:class|interface) (\w+)(?:<.*?>)?(?: extends (\w+)(?:<.*?>)?)?"
                       r"(?: implements (.*))? \{")


class Published:
    """What the metadata says."""

    MEMBER = re.compile(r"^  (static )?(readonly |get |set )?(\w+)(\??)(?:<.*?>(?=\(this: This))?"
                        r"(?:\((?:this: This(?:, )?)?(.*)\))?(?:: (.*?))?;?$")

    def __init__(self, folder):
        self.types = {}
        self.functions = {}
        self.constants = {}
        self.enums = {}
        for framework in FRAMEWORKS:
            self.read((folder / f"{framework}.d.ts").read_text().splitlines())

    def read(self, lines):
        current = enum = None
        for line in lines:
            if match := TYPE_HEAD.match(line):
                current = self.types.setdefault(match[1], {"parents": [], "members": {}})
                parents = [match[2]] + re.split(r", ", match[3] or "")
                current["parents"] += [parent for parent in parents if parent]
                enum = None
            elif match := re.match(r"^declare const (\w+): \{", line):
                enum, current = self.enums.setdefault(match[1], {}), None
            elif match := re.match(r"^declare const (\w+): (.+);", line):
                self.constants[match[1]] = match[2]
            elif match := re.match(r"^declare function (\w+)\((.*)\): (.*);", line):
                self.functions[match[1]] = (match[2], match[3])
            elif enum is not None and (match := re.match(r"^  (\w+): (-?\d+),", line)):
                enum[match[1]] = int(match[2])
            elif current is not None and (match := self.MEMBER.match(line)):
                static, access, name, _, arguments, result = match.groups()
                result = result if result is not None else ""
                member = (bool(static), access or "", arguments, result.rstrip(";"))
                current["members"].setdefault(name, []).append(member)
            elif line == "}":
                current = None
            elif line == "};":
                enum = None

    def members(self, type_name, name, seen=None):
        """The members of that name of a type and of what it inherits."""
        seen = seen if seen is not None else set()
        if type_name in seen or type_name not in self.types:
            return []
        seen.add(type_name)
        found = list(self.types[type_name]["members"].get(name, []))
        for parent in self.types[type_name]["parents"]:
            found += self.members(parent, name, seen)
        return found

    def inherits(self, name, ancestor):
        parents = self.types.get(name, {"parents": []})["parents"]
        return ancestor in parents or any(self.inherits(parent, ancestor) for parent in parents)

    def enumerator(self, enum_name, name):
        """The value of an enumerator; None when it is not there, a text when only its name is known."""
        if name in self.constants:
            return "named"
        candidates = [enum_name] if enum_name in self.enums else []
        for candidate in candidates or self.enums:
            matching = [member for member in self.enums[candidate] if member in name]
            if candidates and matching:
                return self.enums[candidate][max(matching, key=len)]
        return None


def exports(folder, framework):
    """What the linker knows of a framework: the functions and constants that its own file declares, and the classes."""
    symbols, classes = set(), set()
    for line in (folder / f"{framework}.d.ts").read_text().splitlines():
        if match := re.match(r"^declare (?:function (\w+)\(|const (\w+): [^{])", line):
            symbols.add(f"_{match[1] or match[2]}")
        elif match := re.match(r"^declare class (\w+)(?:<.*?>)? extends \w+(?:<.*?>)?(?: implements (.*))? \{", line):
            # A protocol is there as a class that implements itself, a structure as one that extends nothing.
            if match[1] not in re.findall(r"\w+", match[2] or ""):
                classes.add(match[1])
    return symbols, classes
