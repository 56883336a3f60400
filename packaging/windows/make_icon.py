#!/usr/bin/env python3
"""Puts the drawn pictures of the icon into one file for Windows: make_icon.py PICTURES ICO.

PICTURES is the folder packaging/icons of a build, with a folder for each size. Format: the ICO container, whose pictures
may be whole PNG files since Windows Vista."""
import pathlib
import struct
import sys

SIZES = (16, 24, 32, 48, 64, 128, 256)


def main(pictures, icon):
    files = [(pathlib.Path(pictures) / str(size) / "tolvo.png").read_bytes() for size in SIZES]
    offset = 6 + 16 * len(files)
    header = struct.pack("<HHH", 0, 1, len(files))
    for size, content in zip(SIZES, files):
        side = size % 256  # 256 is written as 0
        header += struct.pack("<BBBBHHII", side, side, 0, 0, 1, 32, len(content), offset)
        offset += len(content)
    pathlib.Path(icon).write_bytes(header + b"".join(files))


main(*sys.argv[1:])
