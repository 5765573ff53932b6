#!/usr/bin/env python3
"""Draws the pictures of this example and writes its project: a walk through what the program can do."""
import math
import sys
from pathlib import Path

HERE = Path(__file__).resolve().parent
sys.path.insert(0, str(HERE.parent))
from pictures import write_bmp, write_gif, write_jpeg, write_png

FILTERS = {
    "EditColor": "100,100,100,100,0,0,0,0",
    "DropShadow": "0,0,0,100,2,2,45,5,1,False,False,True,2",
    "Blur": "4,4,2",
    "Glow": "255,255,0,100,10,10,1,False,False,True,2",
    "Bevel": "0,0,0,100,255,255,255,100,2,2,45,5,1,False,False,True,False,2",
    "Convolution": "5,5,1,0," + "0," * 12 + "1," + "0," * 12 + "0,0,0,0,False,False",
    "ColorMatrix": "1,0,0,0,0,0,1,0,0,0,0,0,1,0,0,0,0,0,1,0",
}
BACKGROUND, LABEL, FRAME_ACTION, LAYER_FOLDER = -1, -2, -3, -4
SCRIPT = ",-1,0,0,,,"
PLACED_TEXT = ["False,in,False,0,Left,False,20,,"]
PLACED_SPRITE = ["False,in,False,0,Left,False,20,,"]


def draw_pictures():
    def ball(x, y):
        distance = math.hypot(x - 19.5, y - 19.5)
        light = max(0.0, 1 - math.hypot(x - 13, y - 12) / 26)
        return (int(150 + 105 * light), int(40 + 180 * light), int(60 + 150 * light),
                int(255 * max(0.0, min(1.0, 20 - distance))))

    def sea(x, y):
        wave = math.sin(x / 13 + math.sin(y / 17) * 2) + math.sin(y / 9)
        return (20, int(90 + 25 * wave), int(150 + 35 * wave))

    def wheel(turn):
        def index(x, y):
            dx, dy = x - 15.5, y - 15.5
            distance = math.hypot(dx, dy)
            if distance > 15.5:
                return 0
            if distance > 12:
                return 1
            spoke = (math.degrees(math.atan2(dy, dx)) + turn) % 60
            return 2 if spoke < 14 or distance < 4 else 3
        return index

    write_png("玉.png", 40, 40, ball)
    write_jpeg("海.jpg", 200, 140, sea)
    write_bmp("床.bmp", 400, 60, lambda x, y: (200, 170, 120) if (x // 20 + y // 20) % 2 else (150, 110, 70))
    palette = [[0, 0, 0], [60, 60, 70], [220, 60, 50], [230, 230, 210]]
    for number, turn in enumerate((0, 20, 40), 1):
        write_gif(f"車輪{number}.gif", 32, 32, palette, wheel(turn))


def write_svg(name, width, height, body):
    head = f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{height}">'
    Path(name).write_text(f'<?xml version="1.0" encoding="UTF-8"?>\n{head}\n{body}\n</svg>\n', encoding="utf-8")


def star(radius_of):
    """A closed curve of sixteen quadratics round (40, 40); radius_of tells how far each point lies out."""
    def point(step):
        angle = math.pi * step / 16 - math.pi / 2
        return f"{40 + radius_of(step) * math.cos(angle):.2f} {40 + radius_of(step) * math.sin(angle):.2f}"
    return f"M{point(0)} " + " ".join(f"Q{point(step)} {point(step + 1)}" for step in range(1, 32, 2)) + " Z"


def draw_vectors():
    round_window = "M60 0 C93 0 120 25 120 55 C120 85 93 110 60 110 C27 110 0 85 0 55 C0 25 27 0 60 0 Z"
    write_svg("丸窓.svg", 120, 110, f'<path d="{round_window}" fill="#000000"/>')
    write_svg("花.svg", 80, 80, f'<path d="{star(lambda step: 46 if step % 2 else 28)}" fill="#e0508c"/>')
    write_svg("星.svg", 80, 80, f'<path d="{star(lambda step: 38 if step % 8 == 0 else 16)}" fill="#ffc814"/>')
    write_svg("弓.svg", 150, 40, '<path d="M0 38 Q75 -30 150 38" fill="none" stroke="#000000" stroke-width="1"/>')
    write_svg("旗.svg", 60, 80, '<rect x="0" y="0" width="4" height="80" fill="#604020"/>'
              '<path d="M4 4 L60 4 L60 40 L4 40 Z" fill="#ffffff" stroke="#c0c0c0" stroke-width="1"/>'
              '<path d="M32 10 C38.6 10 44 15.4 44 22 C44 28.6 38.6 34 32 34 C25.4 34 20 28.6 20 22 C20 15.4 25.4 10 32 10 Z" fill="#d01030"/>')
    gradient = ('<defs><linearGradient id="wall" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#fff4d8"/>'
                '<stop offset="1" stop-color="#e0b070"/></linearGradient></defs>')
    write_svg("家.svg", 80, 80, gradient + '<rect x="10" y="30" width="60" height="46" fill="url(#wall)"/>'
              '<path d="M0 36 L40 4 L80 36 Z" fill="#b04030"/>'
              '<rect x="16" y="44" width="18" height="16" fill="#80c0ff" stroke="#604020" stroke-width="2"/>'
              '<rect x="46" y="46" width="16" height="30" fill="#604020"/>')

    disc = "M40 20 C40 31 31 40 20 40 C9 40 0 31 0 20 C0 9 9 0 20 0 C31 0 40 9 40 20 Z"
    for name, colour in (("釦", "#3070d0"), ("釦（上）", "#50a0ff"), ("釦（押）", "#204080")):
        write_svg(f"{name}.svg", 40, 40, f'<path d="{disc}" fill="{colour}"/><path d="M14 10 L32 20 L14 30 Z" fill="#ffffff"/>')
    write_svg("籠.svg", 60, 40, '<path d="M0 0 L60 0 L50 40 L10 40 Z" fill="#c08840" stroke="#805020" stroke-width="2"/>')
    for name, mouth in (("顔", "M8 14 L22 14"), ("笑顔", "M8 12 Q15 22 22 12")):
        write_svg(f"{name}.svg", 30, 20, '<rect x="7" y="2" width="4" height="6" fill="#402000"/><rect x="19" y="2" width="4" height="6" fill="#402000"/>'
                  f'<path d="{mouth}" fill="none" stroke="#402000" stroke-width="2"/>')


# The game: balls fall, and the basket catches them, led by the mouse or by the arrow keys.
DROP = """var speed;
function Drop() { this.again(); }
function again() {
  this._x = 30 + random(340);
  this._y = -30 - random(120);
  this.speed = 3 + random(4);
}
function onEnterFrame() {
  this._y += this.speed;
  if (this.hitTest(_root.basket)) {
    _root.catchBall();
    this.again();
  } else if (this._y > 260) {
    this.again();
  }
}
"""
BASKET = """onClipEvent (load) { mouse = _root._xmouse; }
onClipEvent (enterFrame) {
  if (mouse != _root._xmouse) _x = mouse = _root._xmouse;
  if (Key.isDown(Key.LEFT)) _x -= 8;
  if (Key.isDown(Key.RIGHT)) _x += 8;
  _x = Math.max(30, Math.min(370, _x));
}
"""
GAME = """stop();
caught = 0;
wanted = 10;
function catchBall() {
  caught++;
  basket.face.gotoAndPlay("笑う");
  tellScore();
}
function tellScore() {
  var left = wanted - caught;
  score = left > 0 ? "あと" + left + "個" : caught + "個集めました！";
}
function leave() {
  for (var i = 0; i < 3; i++) removeMovieClip(this["drop" + i]);
}
for (i = 0; i < 3; i++) attachMovie("drop", "drop" + i, i + 1);
tellScore();
"""


VECTOR = "False,False,0,0,0,0,0,0,0,0,False,False,False,0,0,1024"
UPRIGHT = ["False,0,0,0,0,0,0,0,0,False"]


def vector(number, name, options=VECTOR):
    return f"{number},{name},ﾍﾞｸﾀ,,,,{options}"


def bent(*corners):
    """The tail of a vector element whose corners lie elsewhere: pixels, from top left clockwise."""
    return ["True," + ",".join(str(round(value * 20)) for point in corners for value in point) + ",False"]


def text(number, content, size, colour, *, field="", embed="", box=(0, 0), space=0, align=0, along="1,1,True,False,False,1"):
    """field: the cells of a text field, empty for static text."""
    cells = f"{content},{embed},IPAGothic,{box[0]},{box[1]},{size},0,{space},False,False,{colour},{align},{not field},{bool(field)}"
    return f"{number},,ﾃｷｽﾄ,,,,{cells},{field + ',' if field else ''}False,0,0,{along}"


def sprite(number, name, width, height, base, linkage=",,"):
    return f"{number},,ｽﾌﾟﾗｲﾄ,{linkage},{name},{width},{height},{base[0]},{base[1]},False,0,0,0,0"


def cell(content):
    return '"' + content.replace("\n", "\r\n").replace('"', '""') + '"'


def script(content):
    return f"{cell(content)},-1,0,0,,,"


def frame_actions(*actions):
    return [f"{FRAME_ACTION},,,0,,{SCRIPT},True,{len(actions)}",
            *(f"{frame},1,False,False,True,,{script(content)}" for frame, content in actions)]


def bitmap(number, name, options="False,0,0,0,False,CR,100,False,70", linkage=",,"):
    return f"{number},{name},画像,{linkage},{options}"


def placement(x, y, *, offset=(0, 0), scale=1.0, bright=0, opacity=100, angle=0, skew=0, easing=0, curve=(), blend=0,
              filters=None, path=(), tail=()):
    """The rows of an element, the first to go on behind a key frame's cells."""
    points = [(0, 0), *curve]
    chosen = filters or {}
    switches = ",".join(f"{name in chosen},{chosen.get(name, cells)}" for name, cells in FILTERS.items())
    rows = [
        f"{x},{y},{offset[0]},{offset[1]},True,{round(scale * 10000)},{round(scale * 10000)},{bright},{opacity},"
        f"{round(angle * 10000)},{round(skew * 10000)},0,{easing},XY,{bool(curve)},{len(points)}",
        ",".join(f"{time},{progress}" for time, progress in points) + ",1",
        "0,0",
        f"{blend},{switches},{len(path)}",
    ]
    if path:
        rows.append(",".join(f"{kind},{px},{py}" for kind, px, py in path))
    if tail:
        rows[-1] += "," + tail[0]
    return rows


def key(start, count, rows, *, tween=False, fixed=False):
    return [f"{start},{count},{fixed},{tween},True,{rows[0]}", *rows[1:]]


def layer(number, name, *keys, mask=0, instance="", visible=True, actions=SCRIPT):
    return [f"{number},{name},{instance},{mask},,{actions},{visible},{len(keys)}", *(row for rows in keys for row in rows)]


def button_layer(number, name, content, *keys):
    return layer(number, name, *keys, actions="release," + script(content))


def folder(name, count):
    return layer(LAYER_FOLDER, name, key(1, 1, [f"{name},0,{count},True,"]))


def timeline(*layers):
    return [str(len(layers)), *(row for rows in layers for row in rows)]


def project():
    ball, sea, floor, wheel1, wheel2, wheel3, wheel, cart, window, flower, yellow_star, flag, house, title, name, motto, bow = range(1, 18)
    disc, disc_over, disc_down, button, basket_shape, face_shape, smile, face, basket, drop, drop_class, play, back, score = range(18, 32)
    symbols = [
        "100,,Sﾌｫﾙﾀﾞ,,,,絵,6,True",
        bitmap(ball, "玉.png", linkage="ball,,ExportTop"),
        bitmap(sea, "海.jpg", "False,0,0,0,False,CR,100,True,60"),
        bitmap(floor, "床.bmp"),
        *(bitmap(number, f"車輪{number - 3}.gif") for number in (wheel1, wheel2, wheel3)),
        f"{wheel},,ｺﾏ動画,,,,車輪,2",
        sprite(cart, "荷車", 100, 60, (50, 60)),
        "101,,Sﾌｫﾙﾀﾞ,,,,図形,5,True",
        vector(window, "丸窓.svg"),
        vector(flower, "花.svg"),
        vector(yellow_star, "星.svg"),
        vector(flag, "旗.svg"),
        vector(house, "家.svg", "True" + VECTOR.removeprefix("False")),
        "102,,Sﾌｫﾙﾀﾞ,,,,文字,4,True",
        text(title, "タンバーの旅", 24, "60,40,120"),
        text(name, "お名前", 14, "0,0,0", field="False,True,True,False,True,False,False,player_name", box=(90, 22),
             embed="お名前" + "".join(map(chr, [*range(48, 58), *range(65, 91), *range(97, 123)]))),
        text(motto, "絵と図形と文字", 14, "200,60,40", align=2, along="1,1,True,True,False,2"),
        vector(bow, "弓.svg"),
        "103,,Sﾌｫﾙﾀﾞ,,,,遊び,14,True",
        vector(disc, "釦.svg"),
        vector(disc_over, "釦（上）.svg"),
        vector(disc_down, "釦（押）.svg"),
        f"{button},,ﾎﾞﾀﾝ,,,,矢印,False,False,0,0,0,0,False,False",
        vector(basket_shape, "籠.svg"),
        vector(face_shape, "顔.svg"),
        vector(smile, "笑顔.svg"),
        sprite(face, "顔つき", 30, 20, (15, 10)),
        sprite(basket, "籠", 60, 40, (30, 20)),
        sprite(drop, "落ちる玉", 40, 40, (20, 20), "drop,game.Drop,ExportTop"),
        f"{drop_class},,ｸﾗｽ,,,ExportTop,game.Drop,MovieClip,1\r\n落ちる玉,{cell(DROP)}",
        text(play, "遊ぶ", 14, "40,60,120"),
        text(back, "もどる", 14, "40,60,120"),
        text(score, "", 16, "40,60,120", field="False,False,False,False,False,False,False,score", box=(160, 24),
             embed="あと個集めました！0123456789"),
    ]
    # Positions in the library: the pictures of the wheel, what each drawing morphs into or each text follows, and the states
    # of the button, its hit area first.
    references = ["5,6,7", "0", "13", "0", "0", "0", "0", "0", "20", "0", "0", "0", "0", "0,24,23,22", "0", "0", "0", "0", "0", "0"]
    cart_layers = timeline(
        layer(wheel, "左の車輪", key(1, 6, placement(18, 44, offset=(16, 16)))),
        layer(wheel, "右の車輪", key(1, 6, placement(82, 44, offset=(16, 16)))),
        layer(floor, "荷台", key(1, 6, placement(0, 26, scale=0.25))),
    )
    face_layers = timeline(
        layer(LABEL, "", key(2, 1, ["笑う,False"])),
        frame_actions((1, "stop();"), (12, "gotoAndStop(1);")),
        layer(face_shape, "", key(1, 1, placement(0, 0, tail=UPRIGHT))),
        layer(smile, "", key(2, 11, placement(0, 0, tail=UPRIGHT))),
    )
    basket_layers = timeline(
        layer(face, "", key(1, 1, placement(30, 22, tail=PLACED_SPRITE)), instance="face"),
        layer(basket_shape, "", key(1, 1, placement(0, 0, tail=UPRIGHT))),
    )
    drop_layers = timeline(layer(ball, "", key(1, 1, placement(0, 0))))
    shadow = {"DropShadow": "0,0,0,60,6,6,45,6,1,False,False,True,2"}
    main = timeline(
        layer(LABEL, "しおり", key(1, 1, ["はじまり,True"]), key(60, 1, ["おわり,False"]), key(82, 1, ["遊び,False"])),
        folder("跳ねる玉", 2),
        layer(ball, "玉",
              key(1, 40, placement(30, 150, offset=(20, 20), filters=shadow, curve=((0.3, 0.9),),
                                   path=(("Off", 90, -40), ("On", 150, 150), ("Off", 200, 20))), tween=True),
              key(41, 39, placement(250, 150, offset=(20, 20), bright=40, filters=shadow, angle=360), tween=True),
              key(80, 1, placement(360, 60, offset=(20, 20), scale=0.4, opacity=30, angle=720))),
        layer(ball, "影の玉", key(1, 80, placement(320, 150, offset=(20, 20), opacity=60, blend=3))),
        layer(cart, "荷車", key(1, 80, placement(-40, 244, tail=PLACED_SPRITE, easing=-120), tween=True),
              key(81, 1, placement(440, 244, tail=PLACED_SPRITE)), instance="cart"),
        frame_actions((81, 'gotoAndPlay("はじまり");'), (82, GAME)),
        layer(basket, "籠", key(82, 1, placement(200, 232, tail=PLACED_SPRITE)), instance="basket", actions=script(BASKET)),
        button_layer(button, "遊ぶ釦", 'on (release, keyPress "<Enter>") { gotoAndStop("遊び"); }', key(1, 81, placement(16, 254))),
        layer(play, "遊ぶ", key(1, 81, placement(60, 266, tail=PLACED_TEXT))),
        button_layer(button, "もどる釦", 'on (release, keyPress "<Escape>") { leave(); gotoAndPlay("はじまり"); }',
                     key(82, 1, placement(16, 254))),
        layer(back, "もどる", key(82, 1, placement(60, 266, tail=PLACED_TEXT))),
        layer(score, "得点", key(82, 1, placement(200, 264, tail=PLACED_TEXT))),
        layer(title, "題", key(1, 20, placement(110, 262, opacity=0, tail=PLACED_TEXT), tween=True),
              key(21, 61, placement(110, 262, tail=PLACED_TEXT))),
        layer(name, "お名前", key(1, 81, placement(300, 264, tail=PLACED_TEXT)), instance="name_field"),
        layer(motto, "弓なりの文", key(1, 81, placement(185, 124, tail=PLACED_TEXT))),
        layer(flower, "花から星", key(1, 50, placement(20, 20, tail=UPRIGHT), tween=True),
              key(51, 31, placement(70, 30, tail=UPRIGHT))),
        layer(flag, "旗",
              key(1, 20, placement(330, 165, tail=UPRIGHT), tween=True),
              key(21, 20, placement(330, 165, tail=bent((4, -8), (70, 10), (56, 84), (0, 80))), tween=True),
              key(41, 40, placement(330, 165, tail=UPRIGHT), tween=True),
              key(81, 1, placement(330, 165, tail=bent((6, 6), (64, -10), (66, 76), (0, 80))))),
        layer(house, "家", key(1, 81, placement(30, 164, tail=UPRIGHT))),
        layer(sea, "海",
              key(1, 80, placement(150, -20, skew=0), tween=True), key(81, 1, placement(210, 0, skew=15))),
        layer(window, "丸窓", key(1, 81, placement(200, 10, tail=UPRIGHT)), mask=1),
        layer(floor, "床", key(1, 82, placement(0, 240))),
        [f"{BACKGROUND},,,0,,{SCRIPT},True,1", "1,1,True,False,True,250,240,230"],
    )
    return ["KVF,0,9,0", "400,300,24,8", str(len(symbols)), *symbols, *references, *cart_layers, *face_layers,
            *basket_layers, *drop_layers, *main]


draw_pictures()
draw_vectors()
Path("tour.kvf").write_bytes("".join(row + "\r\n" for row in project()).encode("cp932"))
