#!/usr/bin/env python3
"""Draws the pictures of this example."""
import math
import random
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent))
from pictures import write_bmp, write_gif, write_jpeg, write_png

random.seed(8)
stars = {(random.randrange(320), random.randrange(150)): random.randrange(120, 256) for _ in range(110)}


def sky(x, y):
    light = stars.get((x, y))
    if light:
        return (light, light, light)
    t = y / 240
    return (int(12 + 70 * t * t), int(16 + 60 * t), int(52 + 96 * t))


def disc(radius, colour):
    def pixel(x, y):
        distance = math.hypot(x + 0.5 - radius, y + 0.5 - radius)
        alpha = max(0.0, min(1.0, radius - distance))
        shade = 0.86 + 0.14 * math.cos(x / 5) * math.cos(y / 6)
        return tuple(int(c * shade) for c in colour) + (int(255 * alpha),)
    return pixel


def star(x, y):
    dx, dy = x - 15.5, y - 15.5
    angle = math.atan2(dy, dx) + math.pi / 2
    reach = 15 * (0.62 + 0.38 * math.cos(5 * angle))
    distance = math.hypot(dx, dy)
    if distance > reach:
        return 0
    return 1 if distance > reach - 3 else 2


def hills(x, y):
    first = 34 + 16 * math.sin(x / 46) + 7 * math.sin(x / 17)
    second = 50 + 10 * math.sin(x / 30 + 2)
    if y > second:
        return (16, 40, 34)
    if y > first:
        return (26, 58, 52)
    return (255, 0, 255)


write_jpeg("夜空.jpg", 320, 240, sky)
write_png("月.png", 72, 72, disc(36, (250, 240, 200)))
write_gif("星.gif", 32, 32, [[0, 0, 0], [255, 190, 40], [255, 240, 150], [255, 255, 255]], star)
write_bmp("丘.bmp", 320, 90, hills)
