#!/usr/bin/env python3
"""Makes the pictures of the cases: plain colours, so that a place on the stage tells what lies there."""
import struct
import zlib
from pathlib import Path

PICTURES = {
    "赤": ((255, 0, 0), 40, 40),
    "緑": ((0, 160, 0), 40, 20),
    "青": ((0, 0, 255), 40, 40),
    "黄": ((255, 255, 0), 40, 40),
    "水色": ((0, 255, 255), 40, 40),
}


def chunk(kind, body):
    return struct.pack(">I", len(body)) + kind + body + struct.pack(">I", zlib.crc32(kind + body))


def png(colour, width, height):
    rows = (b"\0" + bytes(colour) * width) * height
    head = struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0)
    return b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", head) + chunk(b"IDAT", zlib.compress(rows, 9)) + chunk(b"IEND", b"")


folder = Path(__file__).parent / "pictures"
folder.mkdir(exist_ok=True)
for name, (colour, width, height) in PICTURES.items():
    (folder / f"{name}.png").write_bytes(png(colour, width, height))
