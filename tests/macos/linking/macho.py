"""Reads what the linker wrote: the slices of a universal Mach-O file, their libraries, symbols, classes, signature."""
import hashlib
import re
import struct
from typing import NamedTuple

FAT_MAGIC, MAGIC_64 = 0xCAFEBABE, 0xFEEDFACF
PROCESSORS = {0x01000007: "x86_64", 0x0100000C: "arm64"}
LC_SYMTAB, LC_SEGMENT_64, LC_CODE_SIGNATURE = 0x2, 0x19, 0x1D
LC_VERSION_MIN_MACOSX, LC_BUILD_VERSION = 0x24, 0x32
LOADED_LIBRARIES = {0xC, 0x80000018, 0x8000001F, 0x20, 0x80000023}
N_STAB, N_TYPE, N_EXT = 0xE0, 0x0E, 0x01
CODE_DIRECTORY, SHA256 = 0xFADE0C02, 2


def text_at(data, offset):
    return data[offset:data.index(b"\0", offset)].decode()


def version(number):
    return number >> 16, number >> 8 & 0xFF


class Symbol(NamedTuple):
    name: str
    kind: int
    library: int
    address: int
    at: int


class Slice:
    """The program for one processor, which lies in the file from `start` on."""

    def __init__(self, data, start=0):
        magic, processor, _, _, count, _, _, _ = struct.unpack_from("<8I", data)
        if magic != MAGIC_64 or processor not in PROCESSORS:
            raise ValueError("a slice is no 64-bit program for a Mac")
        self.data, self.start = data, start
        self.processor = PROCESSORS[processor]
        self.libraries, self.sections, self.symbols = [], {}, []
        self.minimum = self.sdk = self.signature = None
        position = 32
        for _ in range(count):
            command, size = struct.unpack_from("<2I", data, position)
            self.read(command, position)
            position += size

    def read(self, command, at):
        if command in LOADED_LIBRARIES:
            self.libraries.append(text_at(self.data, at + struct.unpack_from("<I", self.data, at + 8)[0]))
        elif command == LC_SEGMENT_64:
            count = struct.unpack_from("<I", self.data, at + 64)[0]
            for section in range(at + 72, at + 72 + 80 * count, 80):
                name = self.data[section:section + 16].rstrip(b"\0").decode()
                self.sections[name] = struct.unpack_from("<2QI", self.data, section + 32)
        elif command == LC_VERSION_MIN_MACOSX:
            self.minimum, self.sdk = map(version, struct.unpack_from("<2I", self.data, at + 8))
        elif command == LC_BUILD_VERSION:
            self.minimum, self.sdk = map(version, struct.unpack_from("<2I", self.data, at + 12))
        elif command == LC_CODE_SIGNATURE:
            offset, size = struct.unpack_from("<2I", self.data, at + 8)
            self.signature = self.data[offset:offset + size]
        elif command == LC_SYMTAB:
            self.read_symbols(*struct.unpack_from("<4I", self.data, at + 8))

    def read_symbols(self, offset, count, strings, _):
        for position in range(offset, offset + 16 * count, 16):
            name, kind, _, description, address = struct.unpack_from("<IBBHQ", self.data, position)
            if not kind & N_STAB:
                name = text_at(self.data, strings + name)
                self.symbols.append(Symbol(name, kind, description >> 8, address, position))

    def imports(self):
        """The names that others have to define, each with the library that is to have it; None: whoever has."""
        for symbol in self.symbols:
            if symbol.kind & N_EXT and not symbol.kind & N_TYPE:
                known = 0 < symbol.library <= len(self.libraries)
                yield symbol.name, self.libraries[symbol.library - 1] if known else None

    def offset(self, address):
        for start, size, offset in self.sections.values():
            if start <= address < start + size:
                return offset + address - start
        raise ValueError(f"nothing is at {address:x}")

    def pointer(self, address):
        return struct.unpack_from("<Q", self.data, self.offset(address))[0]

    def listed(self, section):
        """The addresses that a section lists."""
        start, size, _ = self.sections.get(section, (0, 0, 0))
        return [self.pointer(address) for address in range(start, start + size, 8)]

    def classes(self):
        """The classes that the run time finds: of each, its data's address is after four others, the name within it."""
        return {text_at(self.data, self.offset(self.pointer((self.pointer(address + 32) & ~7) + 24)))
                for address in self.listed("__objc_classlist")}

    def categories(self):
        """As (class, category). The class of another library is known by the symbol's name alone."""
        names = {symbol.address: re.fullmatch(r"__OBJC_\$_CATEGORY_(\w+)_\$_(\w+)", symbol.name)
                 for symbol in self.symbols}
        return {names[address].groups() for address in self.listed("__objc_catlist")}

    def signed(self):
        """Whether there is a code directory whose hashes are those of the program's pages."""
        if not self.signature:
            return False
        count = struct.unpack_from(">I", self.signature, 8)[0]
        for index in range(count):
            at = struct.unpack_from(">2I", self.signature, 12 + 8 * index)[1]
            if struct.unpack_from(">I", self.signature, at)[0] == CODE_DIRECTORY:
                return self.hashes_hold(at)
        return False

    def hashes_hold(self, at):
        hashes, _, _, pages, limit, size, kind, _, page = struct.unpack_from(">5I4B", self.signature, at + 16)
        if kind != SHA256 or pages != -(-limit >> page):
            return False
        return all(self.signature[at + hashes + size * index:at + hashes + size * (index + 1)]
                   == hashlib.sha256(self.data[index << page:min(limit, index + 1 << page)]).digest()
                   for index in range(pages))


def slices(path):
    data = path.read_bytes()
    magic, count = struct.unpack_from(">2I", data)
    if magic != FAT_MAGIC:
        return [Slice(data)]
    places = [struct.unpack_from(">5I", data, 8 + 20 * index) for index in range(count)]
    return [Slice(data[offset:offset + size], offset) for _, _, offset, size, _ in places]
