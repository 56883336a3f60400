#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""The picture on the left of the installer's last page, in the colours of the icon: make_sidebar.py FILE.bmp"""
import struct
import sys

WIDTH, HEIGHT = 164, 314  # what the page has room for
TOP, BOTTOM = (2, 120, 60), (1, 60, 30)  # red, green, blue


def row(y):
    """A row of the picture, which a bitmap has from the bottom up, as blue, green, red, filled up to whole words."""
    part = 1 - y / (HEIGHT - 1)
    colour = bytes(round(top + (bottom - top) * part) for top, bottom in zip(reversed(TOP), reversed(BOTTOM)))
    return (colour * WIDTH).ljust((3 * WIDTH + 3) // 4 * 4, b"\0")


pixels = b"".join(row(y) for y in range(HEIGHT))
header = struct.pack("<IiiHHIIiiII", 40, WIDTH, HEIGHT, 1, 24, 0, len(pixels), 2835, 2835, 0, 0)
with open(sys.argv[1], "wb") as file:
    file.write(b"BM" + struct.pack("<IHHI", 14 + len(header) + len(pixels), 0, 0, 14 + len(header)) + header + pixels)
