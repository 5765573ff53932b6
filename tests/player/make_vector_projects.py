#!/usr/bin/env python3
"""Makes the drawings and projects of the cases with vector symbols; what each must look like stands in its case.json."""
import struct
import zlib
from pathlib import Path

from make_projects import CASES, background, key

PLAIN_OPTIONS = "False,False,0,0,0,0,0,0,0,0,False,False,False,0,0,1024"
DIVIDED = PLAIN_OPTIONS.replace("False", "True", 1)
BENT = "False,True,50,0,150,0,200,100,0,100,False,False,False,0,0,1024"


def svg(width, height, body):
    return (f'<?xml version="1.0" encoding="UTF-8"?>\n<svg xmlns="http://www.w3.org/2000/svg" '
            f'xmlns:xlink="http://www.w3.org/1999/xlink" width="{width}" height="{height}">\n{body}\n</svg>\n').encode()


def gradient(kind, attributes, stops):
    lines = "".join(f'<stop offset="{offset}" stop-color="{colour}"/>' for offset, colour in stops)
    return f'<defs><{kind}Gradient id="g" {attributes}>{lines}</{kind}Gradient></defs>'


def placed(number, name, frames, mask=0):
    """A layer of the symbol; each key frame is a list of rows, or a pair with the element's own cells."""
    head = f"{number},{name},,{mask},,,0,0,0,,,,True,{len(frames)}"
    rows = [head]
    for frame in frames:
        lines, tail = frame if isinstance(frame, tuple) else (frame, "False,0,0,0,0,0,0,0,0,False")
        rows += [*lines[:-1], f"{lines[-1]},{tail}"]
    return rows


def write(name, version, drawings, layers, *, options=PLAIN_OPTIONS, morphs=()):
    """drawings: file names with their content; the first symbol morphs into the second when morphs says so."""
    folder = CASES / name
    folder.mkdir(parents=True, exist_ok=True)
    for file, content in drawings.items():
        (folder / file).write_bytes(content)
    symbols = [f"{i},{file},ﾍﾞｸﾀ,,,,{options}" for i, file in enumerate(drawings, 1)]
    references = [str(dict(morphs).get(i, 0)) for i in range(1, len(drawings) + 1)]
    rows = ["KVF,0,9,0", f"200,150,12,{version}", str(len(symbols)), *symbols, *references, str(len(layers)),
            *(row for rows in layers for row in rows)]
    (folder / f"{name}.kvf").write_bytes("".join(row + "\r\n" for row in rows).encode("cp932"))


class Bits:
    def __init__(self):
        self.text = ""

    def put(self, count, *values):
        for value in values:
            self.text += format(value & ((1 << count) - 1), f"0{count}b")
        return self

    def bytes(self):
        text = self.text + "0" * (-len(self.text) % 8)
        return bytes(int(text[i:i + 8], 2) for i in range(0, len(text), 8))


def tag(code, body):
    return struct.pack("<HI", code << 6 | 63, len(body)) + body


def tiled_movie():
    """A movie of another maker: a square of 100 pixels filled with a chequered bitmap of 2 x 2, 20 pixels a pixel."""
    pixels = bytes.fromhex("ffff0000" "ff0000ff" "ff0000ff" "ffff0000")
    bitmap = tag(36, struct.pack("<HBHH", 1, 5, 2, 2) + zlib.compress(pixels))
    bounds = Bits().put(5, 12).put(12, 0, 2000, 0, 2000).bytes()
    # Scale 400 (20 pixels a pixel, 20 twips each) in 16.16, no rotation, no translation.
    matrix = Bits().put(1, 1).put(5, 26).put(26, 400 << 16, 400 << 16).put(1, 0).put(5, 0).bytes()
    # A move to the origin with fill 1 on the right, then round the square.
    records = Bits().put(4, 1).put(4, 0).put(1, 0).put(5, 0b00101).put(5, 0).put(1, 1)
    for vertical, delta in ((1, 2000), (0, 2000), (1, -2000), (0, -2000)):
        records.put(2, 3).put(4, 10).put(1, 0).put(1, vertical).put(12, delta)
    records.put(6, 0)
    shape = tag(32, struct.pack("<H", 2) + bounds + b"\x01\x42" + struct.pack("<H", 1) + matrix + b"\x00" + records.bytes())
    place = tag(26, struct.pack("<BHH", 6, 1, 2) + b"\x00")
    body = bounds + struct.pack("<HH", 12 << 8, 1) + bitmap + shape + place + struct.pack("<HH", 1 << 6, 0)
    return b"FWS\x06" + struct.pack("<I", len(body) + 8) + body


SQUARE = '<path d="M0 0 L100 0 L100 100 L0 100 Z" fill="url(#g)"/>'
BLACK_TO_WHITE = [("0", "#000000"), ("1", "#ffffff")]
at = key(1, 1, 50, 25)

write("gradient-linear", 6, {"線形.svg": svg(100, 100, gradient("linear", "", [("0", "#ff0000"), ("1", "#0000ff")]) + SQUARE)},
      [placed(1, "線形", [at])])
write("gradient-radial", 6, {"円形.svg": svg(100, 100, gradient("radial", "", BLACK_TO_WHITE) + SQUARE)},
      [placed(1, "円形", [at])])
write("gradient-focal", 8, {"焦点.svg": svg(100, 100, gradient("radial", 'fx="0.75" fy="0.5"', BLACK_TO_WHITE) + SQUARE)},
      [placed(1, "焦点", [at])])
write("bitmap-fill", 6, {"市松.swf": tiled_movie()}, [placed(1, "市松", [at])])
write("lines", 8, {"線.svg": svg(200, 150, "".join(
    f'<path d="M40 {y} L160 {y}" fill="none" stroke="{colour}" stroke-width="20" stroke-linecap="{cap}"/>'
    for y, colour, cap in ((20, "#ff0000", "butt"), (50, "#00ff00", "square"), (80, "#0000ff", "round")))
    + '<path d="M40 140 L40 110 L70 110" fill="none" stroke="#ff00ff" stroke-width="20" stroke-linejoin="miter"/>'
    + '<path d="M120 140 L120 110 L150 110" fill="none" stroke="#00aaaa" stroke-width="20" stroke-linejoin="bevel"/>')},
      [placed(1, "線", [key(1, 1, 0, 0)])])
write("vector-mask", 6, {
    "地.svg": svg(200, 150, '<rect x="0" y="0" width="200" height="150" fill="#0000ff"/>'),
    "穴.svg": svg(200, 150, '<path d="M100 25 L150 75 L100 125 L50 75 Z" fill="#ff0000"/>')},
      [placed(1, "地", [key(1, 1, 0, 0)]), placed(2, "穴", [key(1, 1, 0, 0)], mask=1)])
write("morph", 6, {
    "四角.svg": svg(100, 100, '<path d="M0 0 L40 0 L40 40 L0 40 Z" fill="#ff0000"/>'),
    "広い四角.svg": svg(200, 150, '<path d="M0 0 L120 0 L120 80 L0 80 Z" fill="#0000ff"/>')},
      [placed(1, "変形", [key(1, 4, 20, 20, tween=True), key(5, 1, 20, 20)])], morphs=[(1, 2)])
write("deformed", 6, {"四角.svg": svg(10, 5, '<rect x="0" y="0" width="10" height="5" fill="#008000"/>')},
      [placed(1, "台形", [key(1, 1, 50, 25, scale=(10, 10))])], options=BENT)
write("deforming", 6, {"四角.svg": svg(100, 100, '<path d="M0 0 L100 0 L100 100 L0 100 Z" fill="#ff0000"/>')},
      [placed(1, "四角", [key(1, 4, 20, 20, tween=True),
                          (key(5, 1, 20, 20), "True,800,0,1200,0,2000,2000,0,2000,False")])])
write("divided", 6, {"重なり.svg": svg(120, 100, '<rect x="0" y="0" width="80" height="80" fill="#ff0000"/>'
                                               '<rect x="40" y="20" width="80" height="80" fill="#0000ff"/>')},
      [placed(1, "重なり", [key(1, 1, 20, 20)]), background(240, 255, 240)], options=DIVIDED)
