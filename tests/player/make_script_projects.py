#!/usr/bin/env python3
"""Makes the projects of the cases with buttons and scripts; what each must trace and show stands in its case.json."""
from make_projects import CASES, PICTURES, RED, GREEN, BLUE, YELLOW, key

EFFECT = "False,in,False,0,Left,False,20,,"
NO_MATRIX = "False,False"
NO_GRID = "False,0,0,0,0"
SPRITE, BUTTON, CLASS, LINK, KOMA = "ｽﾌﾟﾗｲﾄ", "ﾎﾞﾀﾝ", "ｸﾗｽ", "ﾘﾝｸ", "ｺﾏ動画"


def cell(text):
    return '"' + text.replace("\n", "\r\n").replace('"', '""') + '"'


def picture(number, name):
    return f"{number},..\\..\\pictures\\{name}.png,画像,,,,False,0,0,0,False,CR,100,False,70"


def square(number, colour):
    return f"{number},{colour}.svg,ﾍﾞｸﾀ,,,,False,False,0,0,0,0,0,0,0,0,False,False,False,0,0,1024"


def sprite(number, name, *, link="", class_name="", width=40, height=40, base=(0, 0), grid=NO_GRID):
    export = "ExportTop" if link else ""
    return f"{number},,{SPRITE},{link},{class_name},{export},{name},{width},{height},{base[0]},{base[1]},{grid}"


def button(number, name, matrices=NO_MATRIX, grid=NO_GRID):
    return f"{number},,{BUTTON},,,,{name},False,{grid},{matrices}"


def koma(number, name, frames_each):
    return f"{number},,{KOMA},,,,{name},{frames_each}"


def class_of(number, name, base, *scripts):
    return "\r\n".join([f"{number},,{CLASS},,,ExportTop,{name},{base},{len(scripts)}", *(f",{cell(text)}" for text in scripts)])


def script_cells(script):
    return f"{cell(script)},-1,0,0,,,"


def layer(number, keys, *, name="", instance="", script="", is_button=False, with_effect=False):
    event = "release," if is_button else ""
    rows = [row for one in keys for row in ([*one[:-1], f"{one[-1]},{EFFECT}"] if with_effect else one)]
    return [f"{number},{name},{instance},0,,{event}{script_cells(script)},True,{len(keys)}", *rows]


def clip(number, keys, **more):
    return layer(number, keys, with_effect=True, **more)


def frame_actions(*actions, frames=1):
    rows = [f"{frame},1,False,False,True,,{script_cells(text)}" for frame, text in actions]
    return [f"-3,,,0,,,0,0,0,,,,True,{len(actions)}", *rows]


def write(name, version, symbols, references, sprites, layers, files=None, project=None):
    """references: rows of kinds that refer to symbols; sprites: the layers of each sprite; project: the file's name,
    if it is not the case's."""
    folder = CASES / name
    folder.mkdir(parents=True, exist_ok=True)
    for file, content in (files or {}).items():
        (folder / file).write_bytes(content)
    flat = lambda some: [row for rows in some for row in rows]
    timelines = flat([[str(len(own)), *flat(own)] for own in sprites])
    rows = ["KVF,0,9,0", f"200,150,12,{version}", str(len(symbols)), *symbols, *references, *timelines, str(len(layers)),
            *flat(layers)]
    (folder / f"{project or name}.kvf").write_bytes("".join(row + "\r\n" for row in rows).encode("cp932"))


SVG = '<svg width="40" height="40"><rect width="40" height="40" fill="{}"/></svg>'
# The button's states and, at 5, a picture without any of its own.
STATES = [picture(1, RED), picture(2, GREEN), picture(3, BLUE), picture(4, YELLOW), button(5, "信号")]
EVENTS = """on (rollOver) { trace("over"); }
on (rollOut) { trace("out"); }
on (press) { trace("press"); }
on (release) { trace("release"); }
on (releaseOutside) { trace("outside"); }
on (dragOut, dragOver) { trace("drag"); }
"""


def write_buttons():
    for version in (5, 8):
        write(f"button-swf{version}", version, STATES, ["4,3,2,1"], [],
              [layer(5, [key(1, 1, 20, 20)], is_button=True, script=EVENTS)])
    # Without a hit area of its own; drawn, so that one is made.
    write("button-drawn", 6, [square(1, "red"), square(2, "lime"), button(3, "四角", "True,10,5,50,100,100,100,0,0,0,0,False")],
          ["0", "0", "0,2,0,1"], [], [layer(3, [key(1, 1, 20, 20)], is_button=True, script=EVENTS)],
          {"red.svg": SVG.format("red").encode(), "lime.svg": SVG.format("lime").encode()})
    inside = layer(2, [key(1, 1, 10, 10)], is_button=True, script='on (release) { trace(_name + " " + depth); depth++; }')
    write("button-in-sprite", 6, [picture(1, RED), button(2, "中"), sprite(3, "外", base=(10, 10))], ["0,0,0,1"], [[inside]],
          [clip(3, [key(1, 1, 30, 30)], instance="first", script='onClipEvent(load) { depth = 1; }'),
           clip(3, [key(1, 1, 120, 30)], instance="second", script='onClipEvent(load) { depth = 7; }')])
    keys = 'on (keyPress "<Left>") { trace("left"); } on (keyPress "a") { trace("a"); } on (keyPress "<Space>") { trace("space"); }'
    write("button-keys", 6, STATES, ["4,3,2,1"], [], [layer(5, [key(1, 1, 20, 20)], is_button=True, script=keys)])
    names = ["<Enter>", "<BackSpace>", "<DELETE>", "<home>", "<End>", "<PgUp>", "<PageDown>", "<Up>", "<Down>", "<Escape>", "<Insert>", "<Tab>",
             '\\"', "\\'", "\\\\", "<", "Z"]
    keys = "\n".join(f'on (keyPress "{name}") {{ trace({number}); }}' for number, name in enumerate(names, 1))
    write("button-key-names", 6, STATES, ["4,3,2,1"], [], [layer(5, [key(1, 1, 20, 20)], is_button=True, script=keys)])


def write_clips():
    events = """onClipEvent (load) { trace("load"); frames = 0; }
onClipEvent (enterFrame) { if (++frames == 2) trace("second frame"); }
onClipEvent (mouseDown) { trace("down " + _xmouse + "," + _ymouse); }
onClipEvent (keyDown) { trace("key " + Key.getCode()); }
onClipEvent (unload) { trace("unload"); }
on (press) { trace("pressed"); }
on (keyPress "<Right>") { trace("right"); }
"""
    body = [layer(1, [key(1, 1, 0, 0)])]
    write("clip-events", 6, [picture(1, RED), sprite(2, "クリップ")], [], [body],
          [clip(2, [key(1, 5, 20, 20)], script=events), layer(1, [key(6, 3, 100, 100)])])
    write("clip-events-swf5", 5, [picture(1, RED), sprite(2, "クリップ")], [], [body],
          [clip(2, [key(1, 5, 20, 20)], script=events[:events.index("on (press)")]), layer(1, [key(6, 3, 100, 100)])])
    more = """onClipEvent (initialize) { trace("initialize"); }
onClipEvent (construct) { trace("construct"); }
onClipEvent (load) { trace("load"); }
onClipEvent (mouseMove) { trace("move"); }
onClipEvent (mouseUp) { trace("up"); }
onClipEvent (keyUp, data) { trace("key " + Key.getCode()); }
on (rollOver, rollOut) { trace("roll"); }
on (release, releaseOutside) { trace("release"); }
"""
    write("clip-events-swf7", 7, [picture(1, RED), sprite(2, "クリップ")], [], [body], [clip(2, [key(1, 1, 20, 20)], script=more)])


def write_linkage():
    attach = 'attachMovie("ball", "b1", 1);\nb1._x = 60;\nattachMovie("ball", "b2", 2);\nb2._y = 60;\ntrace(b1._width);'
    write("attach-swf5", 5, [picture(1, RED), sprite(2, "玉", link="ball")], [], [[layer(1, [key(1, 1, 0, 0)])]], [frame_actions((1, attach))])


def write_imports():
    """A sprite that comes from another movie, which lies beside the one that shows it: placed and attached."""
    body = [layer(1, [key(1, 1, 0, 0)])]
    link = f"1,,{LINK},,,ExportTop,ball,library.swf,40,40,{SPRITE},{sprite(2, '玉').split(',', 6)[6]}"
    attach = 'attachMovie("ball", "b", 9);\nb._x = 120;\nb._y = 20;\ntrace(b._width);'
    for version in (6, 8):
        name = f"import-swf{version}"
        write(name, version, [picture(1, RED), sprite(2, "玉", link="ball")], [], [body], [], project="library")
        write(name, version, [link], [], [], [clip(1, [key(1, 9, 30, 20)]), frame_actions((5, attach))])


def write_class_imports():
    """A class that comes from another movie, and a sprite of this one that is of it."""
    body = [layer(1, [key(1, 1, 0, 0)])]
    walker = 'function Walker() { trace("made " + this._name); }\nfunction go() { this._x += 50; return this._x; }\n'
    link = f"3,,{LINK},,,ExportTop,__Packages.zoo.Walker,classes.swf,0,0,{CLASS},zoo.Walker,,1\r\n,,"
    attach = 'attachMovie("walker", "w", 1);\ntrace(w.go());'
    write("import-class", 6, [class_of(1, "zoo.Walker", "MovieClip", walker)], [], [], [], project="classes")
    write("import-class", 6, [picture(1, RED), sprite(2, "歩く", link="walker", class_name="zoo.Walker"), link], [], [body],
          [frame_actions((1, attach))])


def write_komas():
    """A sprite with a picture list, as a button's up state and by itself."""
    pictures = [picture(1, RED), picture(2, GREEN), picture(3, BLUE)]
    write("koma", 6, [*pictures, koma(4, "絵", 2), sprite(5, "動く絵"), button(6, "動くボタン")], ["1,2,3", "0,3,0,5"],
          [[layer(4, [key(1, 6, 0, 0)])]],
          [layer(6, [key(1, 1, 20, 20)], is_button=True, script='on (release) { trace("koma"); }'), clip(5, [key(1, 1, 120, 20)])])


def write_grids():
    """Drawings grown to the double. The player leaves grids out of account and grows the frame too; with a grid or without, the middle is the field."""
    grid = "True,200,600,200,600"
    drawing = '<svg width="40" height="40"><rect width="40" height="40" fill="red"/><rect x="10" y="10" width="20" height="20" fill="lime"/></svg>'
    body = [layer(1, [key(1, 1, 0, 0)])]
    twice = {"scale": (2, 2)}
    write("grid-swf8", 8, [square(1, "frame"), sprite(2, "枠", grid=grid), button(3, "枠のボタン", grid=grid)], ["0", "0,0,0,1"], [body],
          [clip(2, [key(1, 1, 10, 10, **twice)]), layer(3, [key(1, 1, 110, 10, **twice)], is_button=True, script='on (press) { trace("grid"); }')],
          {"frame.svg": drawing.encode()})


def write_classes():
    animal = """var legs:Number = 4;
var kind;
function Animal(name) { this.name = name; }
function speak() { return this.name + " has " + this.legs + " legs"; }
"""
    bird = """function Bird(name) { super(name); }
function speak() { return "a bird: " + super.speak(); }
var legs = 2;
"""
    walker = 'function Walker() { trace("made " + this._name); }\nfunction go() { this._x += 50; }\n'
    use = """trace(new zoo.Animal("cow").speak());
trace(new zoo.Bird("hen").speak());
trace(new zoo.Bird("x") instanceof zoo.Animal);
names = [];
for (i in new zoo.Animal("y")) names.push(i);
trace(names.sort());
attachMovie("walker", "w1", 1);
w1.go();
trace(w1._x);
"""
    for version in (6, 7):
        write(f"class-swf{version}", version,
              [picture(1, RED), sprite(2, "歩く", link="walker", class_name="Walker"), class_of(3, "zoo.Animal", "", animal),
               class_of(4, "zoo.Bird", "zoo.Animal", bird), class_of(5, "Walker", "MovieClip", walker)], [],
              [[layer(1, [key(1, 1, 0, 0)])]], [frame_actions((1, use))])


def write_init_order():
    scripts = ['#initclip 2\ntrace("second " + _root._name);\n#endinitclip\ntrace("frame of a");', '#initclip 1\ntrace("first");\n#endinitclip\n']
    own = [[frame_actions((1, text)), layer(1, [key(1, 1, 0, 0)])] for text in scripts]
    write("init-order", 6, [picture(1, RED), sprite(2, "甲"), sprite(3, "乙")], [], own,
          [frame_actions((1, '#initclip\ntrace("never");\n#endinitclip\ntrace("main");'), (2, "stop();\ntrace(\"stopped\");")),
           clip(2, [key(1, 2, 20, 20)]), clip(3, [key(1, 2, 100, 20)])])


def write_includes():
    text = 'trace("かな漢字ソ表");\r\n'
    codes = {"sjis": "cp932", "euc": "euc_jp", "jis": "iso2022_jp", "utf8": "utf-8-sig", "unicode": "utf-16", "utf7": "utf-7"}
    files = {f"{word}.as": text.encode(code) for word, code in codes.items()}
    files["plain.as"] = text.encode("utf-8")
    lines = [f'#include <{word}> "{word}.as"' for word in codes] + [f'#include "{word}.as"' for word in codes if word != "utf7"]
    script = "\n".join([*lines, "#file 'plain.as'"])
    for version in (5, 6):
        write(f"include-swf{version}", version, [], [], [], [frame_actions((1, script))], files)


if __name__ == "__main__":
    write_buttons()
    write_clips()
    write_linkage()
    write_imports()
    write_class_imports()
    write_komas()
    write_grids()
    write_classes()
    write_init_order()
    write_includes()
