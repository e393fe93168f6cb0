"""What a screen shows from one moment to the next, read from the memory of a virtual display as it draws."""

import mmap
import pathlib
import struct
import threading

PIXEL = 4
# Of the header of a window dump, in its numbers of four bytes.
HEADER_SIZE, HEIGHT, LINE_SIZE, COLOURS, COLOUR_SIZE = 0, 5, 12, 19, 12


class Frames:
    """Of the display whose memory is in this folder."""

    def __init__(self, folder):
        path = next(pathlib.Path(folder).glob("Xvfb_screen*"))
        with open(path, "rb") as file:
            self.memory = mmap.mmap(file.fileno(), 0, prot=mmap.PROT_READ)
        header = struct.unpack(">25I", self.memory[:100])
        self.start = header[HEADER_SIZE] + COLOUR_SIZE * header[COLOURS]
        self.line, self.height = header[LINE_SIZE], header[HEIGHT]

    def take(self):
        return self.memory[self.start:self.start + self.line * self.height]


class Recording:
    """Every frame that differs from the one before, as often as one can look, while this is entered."""

    def __init__(self, source):
        self.source, self.frames = source, []

    def __enter__(self):
        self.frames.append(self.source.take())
        self.is_over = threading.Event()
        self.thread = threading.Thread(target=self._watch)
        self.thread.start()
        return self

    def _watch(self):
        while not self.is_over.is_set():
            frame = self.source.take()
            if frame != self.frames[-1]:
                self.frames.append(frame)

    def __exit__(self, *_):
        self.is_over.set()
        self.thread.join()
        if (last := self.source.take()) != self.frames[-1]:
            self.frames.append(last)

    def flickers(self, left, top, width, height):
        """How many pixels of that part of the screen show at any time what they show neither before nor after, or go
        back to what they were. A frame that is caught half drawn is none: each of its pixels is old or new."""
        line, first, last = self.source.line, self.frames[0], self.frames[-1]
        wrong = 0
        for y in range(top, top + height):
            start, end = y * line + PIXEL * left, y * line + PIXEL * (left + width)
            versions = []
            for frame in self.frames:
                row = frame[start:end]
                if not versions or row != versions[-1]:
                    versions.append(row)
            if len(versions) > 2:
                wrong += _wrong_pixels(versions, first[start:end], last[start:end])
        return wrong


def _wrong_pixels(versions, before, after):
    """Of one line of the screen, through the versions that it went."""
    wrong = 0
    for index in range(0, len(before), PIXEL):
        # Without the byte that stands for no colour.
        colour = slice(index, index + PIXEL - 1)
        pixels = [version[colour] for version in versions]
        changes = sum(one != other for one, other in zip(pixels, pixels[1:]))
        wrong += changes > (before[colour] != after[colour])
    return wrong
