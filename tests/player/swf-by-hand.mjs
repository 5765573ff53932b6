// A movie assembled without Tamber, so that a failure of the player's set-up is told apart from a wrong movie.

/** Bits, the highest first, as the format packs them. */
class Bits {
  text = '';
  put(value, width) {
    for (let bit = width - 1; bit >= 0; bit--) this.text += (value >> bit) & 1;
    return this;
  }
  bytes() {
    const padded = this.text.padEnd(Math.ceil(this.text.length / 8) * 8, '0');
    return Buffer.from(padded.match(/.{8}/g).map((byte) => parseInt(byte, 2)));
  }
}

const word = (value) => Buffer.from([value & 255, value >> 8]);
const tag = (code, ...parts) => {
  const body = Buffer.concat(parts);
  return Buffer.concat([word((code << 6) | body.length), body]);
};
const rectangle = (left, right, top, bottom) =>
  new Bits().put(15, 5).put(left, 15).put(right, 15).put(top, 15).put(bottom, 15).bytes();
const translation = (x, y) => new Bits().put(0, 2).put(15, 5).put(x, 15).put(y, 15).bytes();

/** A square of 20 pixels, filled red, as the body of DefineShape. */
function redSquare(id) {
  const side = 400, outline = new Bits().put(1, 4).put(0, 4);
  outline.put(0, 1).put(0b00010, 5).put(1, 1);                      // from (0, 0), fill 1 on the right
  for (const [vertical, step] of [[0, side], [1, side], [0, -side], [1, -side]])
    outline.put(0b11, 2).put(10 - 2, 4).put(0, 1).put(vertical, 1).put(step, 10);
  outline.put(0, 6);
  const fill = Buffer.from([1, 0x00, 255, 0, 0]), noLines = Buffer.from([0]);
  return Buffer.concat([word(id), rectangle(0, side, 0, side), fill, noLines, outline.bytes()]);
}

/** White stage of 100 by 80 pixels; in frame N the square's corner is at pixel 10 N, 30. */
export function movingSquare(frames) {
  const place = (x, flags) => tag(26, Buffer.from([flags]), word(1), flags & 2 ? word(1) : Buffer.alloc(0), translation(x, 600));
  const parts = [rectangle(0, 2000, 0, 1600), word(10 << 8), word(frames), tag(9, Buffer.from([255, 255, 255])), tag(2, redSquare(1))];
  for (let frame = 1; frame <= frames; frame++) parts.push(place(frame * 200, frame === 1 ? 6 : 5), tag(1));
  const body = Buffer.concat([...parts, tag(0)]), head = Buffer.from('FWS\x06\0\0\0\0', 'latin1');
  head.writeUInt32LE(body.length + head.length, 4);
  return Buffer.concat([head, body]);
}
