"""What a display shows: its live picture, and text read from it letter by letter."""

import itertools
import mmap
import struct

PIXEL = 4  # bytes


class Screen:
    """The live picture of a display, kept in the folder that its `Desktop` was given for it."""

    def __init__(self, folder):
        file = next(folder.iterdir())
        with open(file, "rb") as opened:
            self.memory = mmap.mmap(opened.fileno(), 0, prot=mmap.PROT_READ)
        header = struct.unpack(">25I", self.memory[:100])
        size, self.height, self.pitch, colours = header[0], header[5], header[12], header[19]
        self.start = size + 12 * colours

    def line(self, number):
        begin = self.start + number * self.pitch
        return self.memory[begin:begin + self.pitch]

    def part(self, left, top, width, height):
        """The rows of pixels of a rectangle as it looks now."""
        rows = []
        for y in range(top, top + height):
            row = bytearray(self.line(y)[PIXEL * left:PIXEL * (left + width)])
            row[3::PIXEL] = bytes(width)  # no part of the colour
            rows.append(bytes(row))
        return rows

    def pixels(self, left, top, width, height):
        """The pixels of a rectangle, row after row."""
        return [row[i:i + PIXEL] for row in self.part(left, top, width, height) for i in range(0, len(row), PIXEL)]


class Lettering:
    """Letters in cells of one size, learned from what is known to be painted.

    Equal letters always look equal and unequal ones different, so that a picture matches a text only
    if it shows this text.
    """

    def __init__(self, width, height, margin=0):
        self.width = width
        self.height = height
        self.margin = margin
        self.looks = {}
        self.letters = {}

    @classmethod
    def learned(cls, rows, lines, margins=(0,)):
        """The lettering in which a picture shows these lines, or None: tries which size of the cells fits."""
        for size in itertools.product(range(4, 30), range(8, 40), margins):
            lettering = cls(*size)
            if lettering.matches(rows, lines):
                return lettering
        return None

    def matches(self, rows, lines):
        """Whether a picture shows the beginnings of these lines from its top on, and nothing else."""
        columns = (len(rows[0]) // PIXEL - self.margin) // self.width
        looks, letters = dict(self.looks), dict(self.letters)
        for number in range(len(rows) // self.height):
            line = lines[number].expandtabs() if number < len(lines) else ""
            band = rows[number * self.height:(number + 1) * self.height]
            for column, letter in enumerate(line[:columns].ljust(columns)):
                begin = PIXEL * (self.margin + column * self.width)
                look = b"".join(row[begin:begin + PIXEL * self.width] for row in band)
                if looks.setdefault(letter, look) != look or letters.setdefault(look, letter) != letter:
                    return False
        self.looks, self.letters = looks, letters
        return True
