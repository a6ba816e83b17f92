"""The files of a puzzle: made for the program to open, and read when it has saved them."""
import random

from picture import Picture

DASHES = "-" * 28
WINE = ["B-01 / 2-V", "drank van druiven", "wijn", "-"]
TRAIN = ["C-05 / 43-H", "rijdt op rails", "trein", "-"]
PALE = bytes(131 + value % 120 for value in range(256))  # what is drawn is not taken for ink, lines or frames


def list_file(columns, rows, words, kind=1):
    """The .lst of a puzzle of a kind, of so many cells, with these rows."""
    lines = ["Tessel Hoeksma Software ® 2018", str(kind), str(columns), str(rows), DASHES]
    for word in words:
        lines += [*word, DASHES]
    return "\r\n".join([*lines, ""]).encode("cp1252")


def board(columns, rows, seed):
    """A field as the program shows one: grid lines, white cells, and in all cells but those of the last column something
    that no other seed has there."""
    width, height = columns * 30 + 1, rows * 30 + 1
    line, mark = b"\x96" * 3, random.Random(seed)
    body = bytearray()
    for y in range(height):
        for column in range(columns):
            drawn = mark.randbytes(30).translate(PALE) if 10 <= y % 30 < 20 and column < columns - 1 else b"\xff" * 30
            body += line + (line * 29 if y % 30 == 0 else b"\xff" * 30 + drawn + b"\xff" * 27)
        body += line
    return Picture(width, height, body)


def large_board(columns, rows, seed):
    """A puzzle sheet of the right size in a colour that the seed gives."""
    width, height = columns * 120 + 3, rows * 120 + 3
    return Picture(width, height, random.Random(seed).randbytes(3) * (width * height))


def write_puzzle(folder, name, columns=10, rows=9, words=(WINE, TRAIN)):
    """Makes a puzzle; its name is what its boards are drawn by. Gives the small board and the large one."""
    small, large = board(columns, rows, name), large_board(columns, rows, name)
    (folder / f"{name}.lst").write_bytes(list_file(columns, rows, words))
    (folder / f"{name}1.bmp").write_bytes(small.bmp())
    (folder / f"{name}2.bmp").write_bytes(large.bmp())
    return small, large


def names(folder):
    return sorted(path.name for path in folder.iterdir())


def jpeg_size(data):
    """Width and height by the frame header of a JPEG file; nothing when it isn't a whole one."""
    at = 2
    data = data or b""
    while data[:3] == b"\xff\xd8\xff" and data[-2:] == b"\xff\xd9" and at + 9 < len(data):
        if data[at + 1] in (0xC0, 0xC1, 0xC2):
            return int.from_bytes(data[at + 7 : at + 9], "big"), int.from_bytes(data[at + 5 : at + 7], "big")
        at += 2 + int.from_bytes(data[at + 2 : at + 4], "big")
    return None
