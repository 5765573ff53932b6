#!/usr/bin/env python3
"""Makes the projects of the cases with text in IPA Gothic; what each must look like stands in its case.json.

The expected places come from the font itself: its cell is 2203 of 2048 to the em, a full-width character 2048 wide. At 40 pixels
U+25A0 fills 4.79 to 32.39 pixels of its cell both ways and the next one begins 37.15 pixels on; U+4E00 is a bar, 2.98 to 34.17
pixels wide and 16.18 to 19.19 high."""
from make_projects import CASES, background, key

EFFECT = "False,in,False,0,Left,False,20,,"
PLAIN_VECTOR = "False,False,0,0,0,0,0,0,0,0,False,False,False,0,0,1024"


def text(number, content, *, font="IPAGothic", size=40, leading=0, space=0, colour=(255, 0, 0), align=0, field=None, embed="",
         box=(0, 0), automatic=True, along=("1", "1", True, False, False, 1)):
    """field: the eight cells of a text field, else static text."""
    quoted = '"' + content.replace('"', '""') + '"'
    cells = [quoted, embed, font, *map(str, box), str(size), str(leading), str(space), "False", "False", *map(str, colour), str(align),
             str(automatic), str(field is not None), *(field or []), "False", "0", "0", *map(str, along)]
    return f"{number},,ﾃｷｽﾄ,,,," + ",".join(cells)


def placed(number, rows):
    return [f"{number},文,,0,,,0,0,0,,,,True,1", *rows[:-1], f"{rows[-1]},{EFFECT}"]


def write(name, version, symbols, references, layers, drawings=None):
    folder = CASES / name
    folder.mkdir(parents=True, exist_ok=True)
    for file, content in (drawings or {}).items():
        (folder / file).write_text(content, encoding="utf-8")
    rows = ["KVF,0,9,0", f"200,150,12,{version}", str(len(symbols)), *symbols, *references, str(len(layers)),
            *(row for rows in layers for row in rows)]
    (folder / f"{name}.kvf").write_bytes("".join(row + "\r\n" for row in rows).encode("cp932"))


at = key(1, 1, 20, 20)
for version in (4, 6, 8):
    write(f"text-swf{version}", version, [text(1, "■一")], ["0"], [placed(1, at)])
write("text-right", 6, [text(1, "■■■\r\n■", align=1)], ["0"], [placed(1, at)])
write("text-centre", 6, [text(1, "■■■\r\n■", align=2)], ["0"], [placed(1, at)])
write("text-long-line", 6, [text(1, "一" * 150 + "■", size=1)], ["0"], [placed(1, key(1, 1, 20, 20, scale=(1, 20)))])
CIRCLE = ('<?xml version="1.0" encoding="UTF-8"?>\n<svg xmlns="http://www.w3.org/2000/svg" width="100" height="100">\n<path d="M50 0 '
          'C77.6 0 100 22.4 100 50 C100 77.6 77.6 100 50 100 C22.4 100 0 77.6 0 50 C0 22.4 22.4 0 50 0" fill="#000000"/>\n</svg>\n')
for name, version, turned in (("text-circle-turned", 6, True), ("text-circle-upright", 6, False), ("text-circle-swf4", 4, True),
                              ("text-circle-swf8", 8, True)):
    # Half a character before the first one's middle, then a quarter of the circle, 78.54 pixels, to each next.
    write(name, version, [text(1, "一一一一", space=41.39, along=("1", "1", turned, False, False, 1)),
                    f"2,円.svg,ﾍﾞｸﾀ,,,,{PLAIN_VECTOR}"], ["2", "0"], [placed(1, key(1, 1, 50, 25))], {"円.svg": CIRCLE})
FIELD = ["False", "True", "True", "False", "True", "False", "False", "v"]
for name, version in (("text-input", 6), ("text-input-swf4", 4), ("text-input-swf7", 7)):
    write(name, version, [text(1, "", field=FIELD, embed="|", box=(160, 50), automatic=False)], ["0"], [placed(1, at)])
write("text-field", 8, [text(1, "■■", field=FIELD, embed="■一", box=(160, 50), automatic=False, colour=(0, 0, 255))], ["0"],
      [placed(1, at)])
# Three lines of an output field, in a box that the program measures: 40 pixels from one to the next.
OUTPUT = ["False", "False", "False", "True", "False", "False", "False", ""]
write("text-field-lines", 6, [text(1, "■\r\n■\r\n■", field=OUTPUT, embed="■")], ["0"], [placed(1, at)])

# Half-width kana are half as wide: U+25A0 begins 2 x 18.59 pixels on, as behind one full-width character. The order of the codes
# differs: A6 to DF come before all of two bytes below version 6, and behind kanji from it on.
for version in (5, 7):
    write(f"text-order-swf{version}", version, [text(1, "ｱ一■ア")], ["0"], [placed(1, at)])
write("text-half-width", 6, [text(1, "ｰｰ■")], ["0"], [placed(1, at)])
# One font is needed from frame 1 on, the other, bold, from frame 3 on.
bold = text(2, "■").replace(",False,False,255,0,0,", ",True,False,0,0,255,")
write("text-later", 6, [text(1, "■"), bold], ["0", "0"], [placed(1, at), placed(2, key(3, 4, 100, 20))])
# Two lines in the player's own font, of which it is only known that an M is some 0.85 em wide and a line 1 to 1.5 em high.
for version in (5, 6):
    write(f"text-device-swf{version}", version, [text(1, "M\r\nM", font="_sans", size=40)], ["0"], [placed(1, at)])
