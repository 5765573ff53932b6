// Reads the PNG files of screenshots: eight bits a channel, with or without alpha, not interlaced.
import { inflateSync } from 'node:zlib';

const paeth = (a, b, c) => {
  const p = a + b - c;
  const [pa, pb, pc] = [Math.abs(p - a), Math.abs(p - b), Math.abs(p - c)];
  return pa <= pb && pa <= pc ? a : pb <= pc ? b : c;
};
const predictors = [() => 0, (a) => a, (a, b) => b, (a, b) => (a + b) >> 1, paeth];

/** Answers { width, height, at(x, y) }, where at gives [red, green, blue]. */
export function decodePng(bytes) {
  let width = 0, height = 0, channels = 0;
  const parts = [];
  for (let at = 8; at < bytes.length;) {
    const size = bytes.readUInt32BE(at), kind = bytes.toString('latin1', at + 4, at + 8);
    const body = bytes.subarray(at + 8, at + 8 + size);
    if (kind === 'IHDR') {
      width = body.readUInt32BE(0);
      height = body.readUInt32BE(4);
      channels = { 2: 3, 6: 4 }[body[9]];
      if (body[8] !== 8 || !channels || body[12]) throw new Error('a PNG of another form than a screenshot');
    } else if (kind === 'IDAT') {
      parts.push(body);
    }
    at += size + 12;
  }
  const raw = inflateSync(Buffer.concat(parts)), stride = width * channels;
  const pixels = Buffer.alloc(stride * height);
  for (let y = 0; y < height; y++) {
    const predict = predictors[raw[y * (stride + 1)]];
    for (let i = 0; i < stride; i++) {
      const here = y * stride + i;
      const left = i >= channels ? pixels[here - channels] : 0, up = y ? pixels[here - stride] : 0;
      const upLeft = y && i >= channels ? pixels[here - stride - channels] : 0;
      pixels[here] = raw[y * (stride + 1) + 1 + i] + predict(left, up, upLeft);
    }
  }
  return { width, height, at: (x, y) => [...pixels.subarray(y * stride + x * channels, y * stride + x * channels + 3)] };
}
