#!/usr/bin/env python3
"""Draws the pictures of this example. cjpeg (Debian: libjpeg-turbo-progs) makes the JPEG."""
import math
import random
import struct
import subprocess
import zlib


def write_png(name, width, height, pixel):
    """RGBA picture; pixel(x, y) gives the four channels."""
    rows = b"".join(b"\0" + bytes(c for x in range(width) for c in pixel(x, y)) for y in range(height))

    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))

    header = struct.pack(">IIBBBBB", width, height, 8, 6, 0, 0, 0)
    with open(name, "wb") as file:
        file.write(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", zlib.compress(rows, 9)) + chunk(b"IEND", b""))


def write_bmp(name, width, height, pixel):
    """24-bit picture, bottom row first; pixel(x, y) gives red, green, blue."""
    stride = (width * 3 + 3) // 4 * 4
    body = b""
    for y in reversed(range(height)):
        row = b"".join(bytes(reversed(pixel(x, y))) for x in range(width))
        body += row.ljust(stride, b"\0")
    info = struct.pack("<IiiHHIIiiII", 40, width, height, 1, 24, 0, len(body), 2835, 2835, 0, 0)
    with open(name, "wb") as file:
        file.write(struct.pack("<2sIHHI", b"BM", 54 + len(body), 0, 0, 54) + info + body)


def write_gif(name, width, height, palette, index):
    """Four colours, index 0 transparent. Codes stay uncompressed: a clear code before each pair of pixels."""
    bits = []
    put = lambda code: bits.extend((code >> i) & 1 for i in range(3))
    for i in range(width * height):
        if i % 2 == 0:
            put(4)
        put(index(i % width, i // width))
    put(5)
    bits += [0] * (-len(bits) % 8)
    data = bytes(sum(bits[i + k] << k for k in range(8)) for i in range(0, len(bits), 8))
    blocks = b"".join(bytes([len(data[i:i + 255])]) + data[i:i + 255] for i in range(0, len(data), 255)) + b"\0"
    with open(name, "wb") as file:
        file.write(b"GIF89a" + struct.pack("<HHBBB", width, height, 0x91, 0, 0) + bytes(sum(palette, [])))
        file.write(b"\x21\xf9\x04\x01\0\0\0\0" + b"," + struct.pack("<HHHHB", 0, 0, width, height, 0) + b"\x02" + blocks + b";")


def write_jpeg(name, width, height, pixel):
    ppm = f"P6 {width} {height} 255\n".encode() + bytes(c for y in range(height) for x in range(width) for c in pixel(x, y))
    with open(name, "wb") as file:
        file.write(subprocess.run(["cjpeg", "-quality", "85"], input=ppm, stdout=subprocess.PIPE, check=True).stdout)


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
