#!/usr/bin/env python3
"""Makes the projects of the cases; what each must look like stands in its case.json."""
from pathlib import Path

CASES = Path(__file__).parent / "cases"
PICTURES = ["赤", "緑", "青", "黄", "水色"]
RED, GREEN, BLUE, YELLOW, CYAN = (name for name in PICTURES)

PLAIN_FILTERS = [
    ("EditColor", "100,100,100,100,0,0,0,0"),
    ("DropShadow", "0,0,0,100,2,2,45,5,1,False,False,True,2"),
    ("Blur", "4,4,2"),
    ("Glow", "255,255,0,100,10,10,1,False,False,True,2"),
    ("Bevel", "0,0,0,100,255,255,255,100,2,2,45,5,1,False,False,True,False,2"),
    ("Convolution", "5,5,1,0," + "0," * 12 + "1," + "0," * 12 + "0,0,0,0,False,False"),
    ("ColorMatrix", "1,0,0,0,0,0,1,0,0,0,0,0,1,0,0,0,0,0,1,0"),
]


def filter_cells(switched_on):
    """All seven switches, each with its record; switched_on maps a name to the cells of its record."""
    return ",".join(f"{name in switched_on},{switched_on.get(name, cells)}" for name, cells in PLAIN_FILTERS)


def key(start, count, x, y, *, tween=False, offset=(0, 0), scale=(1, 1), bright=0, opacity=100, angle=0, easing=0,
        curve=None, blend=0, filters=None, path=()):
    """One key frame of a picture, as its rows. curve: inner points of an easing curve for everything;
    path: (on the curve?, x, y) between this key frame and the next."""
    points = [(0, 0), *(curve or ())]
    table = ",".join(f"{time},{progress}" for time, progress in points)
    whole = lambda value: round(value * 10000)
    rows = [
        f"{start},{count},False,{tween},True,{x},{y},{offset[0]},{offset[1]},False,{whole(scale[0])},{whole(scale[1])},"
        f"{bright},{opacity},{whole(angle)},0,0,{easing},XY,{curve is not None},{len(points)}",
        f"{table},1",
        "0,0",
        f"{blend},{filter_cells(filters or {})},{len(path)}",
    ]
    if path:
        rows.append(",".join(f"{'On' if on else 'Off'},{px},{py}" for on, px, py in path))
    return rows


def layer(picture, *keys, mask=0):
    head = f"{PICTURES.index(picture) + 1},{picture}の層,,{mask},,,0,0,0,,,,True,{len(keys)}"
    return [head, *(row for rows in keys for row in rows)]


def background(red, green, blue, frames=1):
    return ["-1,背景,,0,,,0,0,0,,,,True,1", f"1,{frames},False,False,True,{blue},{green},{red}"]


def write(name, version, *layers):
    symbols = [f"{i},..\\..\\pictures\\{picture}.png,画像,,,,False,0,0,0,False,CR,100,False,70"
               for i, picture in enumerate(PICTURES, 1)]
    rows = ["KVF,0,9,0", f"200,150,12,{version}", str(len(symbols)), *symbols, str(len(layers)),
            *(row for rows in layers for row in rows)]
    folder = CASES / name
    folder.mkdir(parents=True, exist_ok=True)
    (folder / f"{name}.kvf").write_bytes("".join(row + "\r\n" for row in rows).encode("cp932"))


def position():
    return layer(RED, key(1, 2, 30, 20), key(3, 1, 110.5, 70))


def effects():
    shadow = {"DropShadow": "255,0,0,100,0,0,0,10,1,False,False,True,1"}
    return [layer(RED, key(1, 1, 20, 20, filters=shadow)), layer(YELLOW, key(1, 1, 100, 30, blend=3)), layer(CYAN, key(1, 1, 120, 50))]


def blends():
    """For each mode a turned square, opaque on the left and half seen through on the right, over two others."""
    layers = []
    for mode in range(1, 15):
        x, y = 5 + (mode - 1) % 7 * 28, 10 + (mode - 1) // 7 * 70
        layers.append(layer(YELLOW, key(1, 1, x, y + 5, scale=(0.3, 0.9), blend=mode)))
        layers.append(layer(CYAN, key(1, 1, x + 13, y + 5, scale=(0.3, 0.9), opacity=60, blend=mode)))
        layers.append(layer(RED, key(1, 1, x, y, scale=(0.6, 0.5), bright=30)))
        layers.append(layer(GREEN, key(1, 1, x, y + 20, scale=(0.6, 0.6), opacity=50)))
    return layers


FILTERS = [
    {"Blur": "6,3,2"},
    {"Blur": "12,12,1"},
    {"DropShadow": "0,0,0,80,4,4,45,6,1,False,False,True,2"},
    {"DropShadow": "0,0,128,100,6,6,30,5,1,True,False,True,2"},
    {"DropShadow": "0,0,128,100,6,6,30,5,1,False,True,True,2"},
    {"DropShadow": "0,0,128,100,6,6,30,5,1,False,False,False,2"},
    {"Glow": "255,0,0,100,8,8,3,False,False,True,3"},
    {"Glow": "255,0,0,100,8,8,2,True,False,True,1"},
    {"Bevel": "0,0,0,100,255,255,255,100,4,4,45,4,1,True,False,True,False,2"},
    {"Bevel": "0,0,0,100,0,255,255,100,4,4,45,4,1,False,False,True,False,2"},
    {"Bevel": "0,0,0,100,255,0,255,100,6,6,200,3,2,False,False,True,True,2"},
    {"ColorMatrix": "0,1,0,0,0,0.5,0,0.5,0,20,1,0,0,0,0,0,0,0,0.7,0"},
    {"DropShadow": "0,0,0,100,0,0,45,6,1,False,False,True,1", "Blur": "5,5,1"},
    {"EditColor": "50,100,100,80,100,0,0,0", "Glow": "0,0,255,100,6,6,2,False,False,True,2"},
]


def filters():
    return [layer(YELLOW, key(1, 1, 12 + at % 5 * 38, 12 + at // 5 * 45, scale=(0.5, 0.6), filters=switched_on))
            for at, switched_on in enumerate(FILTERS)] + [background(200, 210, 220)]


def write_all():
    write("position", 6, position())
    write("swf4", 4, position())
    write("swf8-compressed", 8, position())
    write("swf8-plain", 8, position())
    write("size", 6, layer(GREEN, key(1, 1, 100, 75, offset=(20, 10), scale=(2, 3)), key(2, 1, 100, 75, offset=(20, 10), angle=90)))
    write("order", 6, layer(RED, key(1, 1, 50, 50)), layer(BLUE, key(1, 1, 70, 60)), background(255, 240, 200))
    write("colour", 6, layer(BLUE, key(1, 1, 10, 10, bright=50)), layer(RED, key(1, 1, 60, 10, opacity=50)),
          layer(GREEN, key(1, 1, 110, 10, bright=-100)))
    write("path", 6, layer(RED, key(1, 10, 10, 10, tween=True, path=[(False, 80, 150)]), key(11, 1, 150, 10)))
    write("easing", 6, layer(RED, key(1, 10, 10, 10, tween=True, curve=[(0.5, 1)]), key(11, 1, 150, 10)),
          layer(BLUE, key(1, 10, 10, 100, tween=True, easing=200), key(11, 1, 150, 100)))
    write("growing", 6, layer(BLUE, key(1, 10, 10, 20, tween=True, opacity=100), key(11, 1, 50, 40, scale=(3, 2), opacity=0)))
    write("mask", 6, layer(BLUE, key(1, 1, 100, 20)), layer(RED, key(1, 1, 20, 20)), layer(GREEN, key(1, 1, 30, 30), mask=1))
    write("effects", 8, *effects())
    write("blends", 8, *blends(), background(240, 230, 250))
    write("filters", 8, *filters())
    write("effects-swf6", 6, *effects())


if __name__ == "__main__":
    write_all()
