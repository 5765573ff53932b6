#!/usr/bin/env python3
"""Writes the drawings that are compared with another renderer. They keep to what the reader takes: no arcs, no text, no clips;
paths do not cross themselves, since the two rules for filling then differ; and no element has
several transforms of one level, which the reader applies in the order that they are written in."""
from pathlib import Path

FOLDER = Path(__file__).parent / "drawings"
HEAD = ('<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" width="160" height="120"{}>\n'
        '{}\n</svg>\n')


def gradient(kind, name, attributes="", stops=(("0", "#d02020"), ("0.5", "#ffe040"), ("1", "#2040c0"))):
    body = "".join(f'<stop offset="{offset}" stop-color="{colour}"/>' for offset, colour in stops)
    return f'<{kind}Gradient id="{name}" {attributes}>{body}</{kind}Gradient>'


HEART = "M80 105 C20 65 25 20 55 20 C70 20 80 35 80 40 C80 35 90 20 105 20 C135 20 140 65 80 105 Z"
BOX = '<rect x="20" y="20" width="120" height="80" fill="url(#g)"/>'

DRAWINGS = {
    "rectangles": '<rect x="10" y="10" width="60" height="40" fill="red"/><rect x="50" y="30" width="80" height="70" '
                  'fill="#00f" fill-opacity="0.5"/>',
    "named-colours": "".join(f'<rect x="{10 + 24 * (i % 6)}" y="{10 + 26 * (i // 6)}" width="20" height="20" fill="{name}"/>'
                             for i, name in enumerate("aliceblue antiquewhite aquamarine bisque blueviolet burlywood cadetblue "
                                                      "chartreuse coral cornflowerblue crimson darkcyan darkkhaki darkorchid "
                                                      "darksalmon deeppink dodgerblue firebrick gainsboro goldenrod hotpink "
                                                      "indigo khaki yellowgreen".split())),
    "colour-forms": '<rect x="5" y="5" width="40" height="40" fill="#3c9"/><rect x="55" y="5" width="40" height="40" '
                    'fill="rgb(200, 30,90)"/><rect x="105" y="5" width="40" height="40" style="fill:#808000;opacity:.5"/>',
    "polygon": '<polygon points="80,10 150,60 120,110 40,110 10,60" fill="teal"/>',
    "polyline-open": '<polyline points="10,100 40,20 70,100 100,20 130,100" fill="none" stroke="navy" stroke-width="4"/>',
    "polyline-filled": '<polyline points="10,100 80,10 150,100" fill="orange" stroke="black" stroke-width="3"/>',
    "line": '<line x1="10" y1="10" x2="150" y2="110" stroke="purple" stroke-width="6"/>'
            '<line x1="150" y1="10" x2="10" y2="110" stroke="green" stroke-width="2"/>',
    "absolute-lines": '<path d="M20 20 H140 V100 L80 60 L20 100 Z" fill="olive"/>',
    "relative-lines": '<path d="m20,20 120,0 0,80 -60-40 -60,40z" fill="maroon"/>',
    "horizontal-vertical": '<path d="M20 20 h30 v20 h30 v20 h30 v40 H20 z" fill="slateblue"/>',
    "cubic": f'<path d="{HEART}" fill="crimson"/>',
    "cubic-relative": '<path d="m10 60 c20-60 50-60 70 0 c20 60 50 60 70 0 l0 50 l-140 0 z" fill="steelblue"/>',
    "smooth-cubic": '<path d="M10 60 C20 10 50 10 60 60 S100 110 110 60 S140 20 150 60" fill="none" stroke="red" stroke-width="5"/>',
    "quadratic": '<path d="M10 100 Q80 -40 150 100 Z" fill="seagreen"/>',
    "smooth-quadratic": '<path d="M10 60 Q30 10 50 60 T90 60 T130 60" fill="none" stroke="blue" stroke-width="5"/>',
    "several-subpaths": '<path d="M10 10 L70 10 L70 50 L10 50 Z M90 60 L150 60 L150 110 L90 110 Z" fill="brown"/>',
    "stroke-and-fill": f'<path d="{HEART}" fill="pink" stroke="darkred" stroke-width="6"/>',
    "caps": "".join(f'<path d="M30 {y} L130 {y}" stroke="black" stroke-width="16" stroke-linecap="{cap}"/>'
                    for y, cap in ((25, "butt"), (60, "round"), (95, "square"))),
    "joins": "".join(f'<path d="M{x} 100 L{x + 22} 30 L{x + 44} 100" fill="none" stroke="black" stroke-width="8" '
                     f'stroke-linejoin="{join}"/>' for x, join in ((7, "miter"), (58, "round"), (109, "bevel"))),
    "scaled-in-moved-group": '<g transform="translate(40 30)"><rect x="0" y="0" width="30" height="20" fill="tomato" '
                             'transform="scale(2)"/></g>',
    "rotate-about": '<rect x="50" y="30" width="60" height="60" fill="goldenrod" transform="rotate(30 80 60)"/>',
    "skews": '<rect x="20" y="20" width="50" height="40" fill="sienna" transform="skewX(20)"/>'
             '<rect x="60" y="30" width="50" height="30" fill="plum" transform="skewY(15)"/>',
    "matrix-list": '<g transform="matrix(0.8 0.3 -0.3 0.8 40 5)"><rect x="10" y="10" width="90" height="60" fill="indianred"/></g>',
    "nested-groups": '<g fill="green" opacity="0.6"><rect x="10" y="10" width="50" height="50"/><g fill="blue">'
                     '<rect x="70" y="10" width="50" height="50"/></g><rect x="10" y="65" width="50" height="50" fill="red"/></g>',
    "linear-default": f'<defs>{gradient("linear", "g")}</defs>{BOX}',
    "linear-vertical": f'<defs>{gradient("linear", "g", """x1="0" y1="0" x2="0" y2="1" """)}</defs>{BOX}',
    "linear-user-space": f'<defs>{gradient("linear", "g", """gradientUnits="userSpaceOnUse" x1="40" y1="20" x2="120" y2="100" """)}</defs>{BOX}',
    "linear-reflect": f'<defs>{gradient("linear", "g", """x1="0" x2="0.25" spreadMethod="reflect" """)}</defs>{BOX}',
    "linear-repeat": f'<defs>{gradient("linear", "g", """x1="0" x2="0.4" spreadMethod="repeat" """)}</defs>{BOX}',
    "linear-opacity": '<defs><linearGradient id="g"><stop offset="0" stop-color="red"/><stop offset="1" stop-color="red" '
                      f'stop-opacity="0"/></linearGradient></defs>{BOX}',
    "linear-linked": f'<defs>{gradient("linear", "stops")}<linearGradient id="g" xlink:href="#stops" x1="0" y1="1" x2="0" y2="0"/>'
                     f'</defs>{BOX}',
    "linear-transform": f'<defs>{gradient("linear", "g", """gradientUnits="userSpaceOnUse" x1="0" y1="0" x2="100" y2="0" gradientTransform="translate(30 0)" """)}'
                        f'</defs>{BOX}',
    "radial-user-space": f'<defs>{gradient("radial", "g", """gradientUnits="userSpaceOnUse" cx="80" cy="60" r="50" """)}</defs>{BOX}',
    "radial-box": f'<defs>{gradient("radial", "g")}</defs><rect x="30" y="10" width="100" height="100" fill="url(#g)"/>',
    "radial-focal": f'<defs>{gradient("radial", "g", """gradientUnits="userSpaceOnUse" cx="80" cy="60" r="50" fx="100" fy="60" """)}</defs>{BOX}',
    "radial-moved-group": f'<defs>{gradient("radial", "g", """gradientUnits="userSpaceOnUse" cx="40" cy="30" r="30" """)}</defs>'
                          '<g transform="translate(30 20)"><rect x="0" y="0" width="80" height="60" fill="url(#g)"/></g>',
    "use": '<defs><rect id="tile" x="0" y="0" width="20" height="20" fill="darkgreen"/></defs>'
           + "".join(f'<use xlink:href="#tile" x="{x}" y="{y}"/>' for x, y in ((10, 10), (50, 30), (90, 50), (130, 90))),
    "switch-and-link": '<switch><g><rect x="10" y="10" width="60" height="60" fill="gold"/></g></switch>'
                       '<a xlink:href="page"><rect x="80" y="40" width="60" height="60" fill="gray"/></a>',
    "scaled-stroke": '<g transform="scale(3)"><path d="M5 5 L45 5 L45 35 Z" fill="none" stroke="black" stroke-width="2"/></g>',
    "exponents": '<path d="M1e1 1E1L15e1,1e1 .8e2 11e1z" fill="cadetblue"/>',
}
VIEW_BOXES = {
    "view-box-scaled": (' viewBox="0 0 320 240"', '<rect x="40" y="40" width="200" height="120" fill="coral"/>'),
    "view-box-centred": (' viewBox="10 20 60 60"', '<rect x="10" y="20" width="60" height="60" fill="orchid"/>'),
}

FOLDER.mkdir(exist_ok=True)
for name, (attributes, body) in {**{name: ("", body) for name, body in DRAWINGS.items()}, **VIEW_BOXES}.items():
    (FOLDER / f"{name}.svg").write_text(HEAD.format(attributes, body), encoding="utf-8")
