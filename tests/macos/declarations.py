"""Reading Objective-C declarations with regular expressions, for the checks beside this file."""
import re


def without_types(text):
    """The text without anything in round brackets."""
    result, depth = "", 0
    for character in text:
        depth += character == "("
        if depth == 0:
            result += character
        depth -= character == ")"
    return result


def selectors(text, ending):
    """The selectors of method heads that end with `ending` ("{": definitions, ";": declarations)."""
    text = re.sub(r"//.*|/\*.*?\*/", "", text)
    for head in re.findall(r"^[-+] *\([^;{]*?[;{]", text, re.M | re.S):
        if head[-1] in ending:
            plain = re.sub(r"__attribute__|TN_\w+", "", without_types(head[1:-1])).strip()
            keywords = re.findall(r"(\w+):", plain)
            yield "".join(f"{keyword}:" for keyword in keywords) if keywords else plain.split()[0]


def properties(text):
    """The getter and the setter of each property, as selectors."""
    for attributes, name in re.findall(r"@property\s*(\([^)]*\))?[^;]*?(\w+)(?: TN_\w+\([^)]*\))?;", text):
        getter = re.search(r"getter=(\w+)", attributes)
        yield getter[1] if getter else name, f"set{name[:1].upper()}{name[1:]}:"
