"""Writes picture files with nothing but the standard library; JPEGs through cjpeg (Debian: libjpeg-turbo-progs)."""
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
