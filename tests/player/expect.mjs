// What a case expects of a picture, compared with what is there.

const toRgb = (text) => [1, 3, 5].map((at) => parseInt(text.slice(at, at + 2), 16));
const toText = (rgb) => '#' + rgb.map((value) => value.toString(16).padStart(2, '0')).join('');
const near = (a, b, tolerance) => a.every((value, i) => Math.abs(value - b[i]) <= tolerance);

/** The smallest box around all pixels of a colour, right and bottom not included; null when there are none. */
function boxOf(picture, colour, tolerance) {
  let box = null;
  for (let y = 0; y < picture.height; y++)
    for (let x = 0; x < picture.width; x++) {
      if (!near(picture.at(x, y), colour, tolerance)) continue;
      box ??= { left: x, top: y, right: x + 1, bottom: y + 1 };
      box.left = Math.min(box.left, x);
      box.right = Math.max(box.right, x + 1);
      box.bottom = y + 1;
    }
  return box;
}

/** Answers a line for each difference. */
export function differences(picture, { frame, pixels = [], box }) {
  const lines = [];
  for (const { x, y, colour, tolerance = 8 } of pixels) {
    const seen = picture.at(x, y);
    if (!near(seen, toRgb(colour), tolerance))
      lines.push(`frame ${frame}: pixel ${x}, ${y} is ${toText(seen)} instead of ${colour} (tolerance ${tolerance})`);
  }
  if (box) {
    const { colour, tolerance = 1, colourTolerance = 24 } = box;
    const seen = boxOf(picture, toRgb(colour), colourTolerance);
    if (!seen) lines.push(`frame ${frame}: nothing of colour ${colour}`);
    else
      for (const side of ['left', 'top', 'right', 'bottom'])
        if (Math.abs(seen[side] - box[side]) > tolerance)
          lines.push(`frame ${frame}: ${side} of ${colour} is ${seen[side]} instead of ${box[side]} (tolerance ${tolerance})`);
  }
  return lines;
}

/** Answers a line for the first text that is not the one expected since the frame looked at before. */
export function traceDifferences(seen, { frame, traces }) {
  for (let i = 0; i < Math.max(seen.length, traces.length); i++)
    if (seen[i] !== traces[i])
      return [`frame ${frame}: trace ${i + 1} is ${JSON.stringify(seen[i] ?? null)} instead of ${JSON.stringify(traces[i] ?? null)}`];
  return [];
}

/** A pixel is off when a channel differs by more than this: edges are smoothed in two ways. */
const farOff = 64;

/** Answers a line when two pictures differ by more than the part of pixels that may be off, and the mean difference. */
export function pictureDifferences(picture, expected, { off: mostOff, mean: mostMean }) {
  const { width, height } = expected;
  if (picture.width !== width || picture.height !== height)
    return [`the picture is ${picture.width} by ${picture.height} instead of ${width} by ${height}`];
  let off = 0, sum = 0;
  for (let y = 0; y < height; y++)
    for (let x = 0; x < width; x++) {
      const seen = picture.at(x, y), wanted = expected.at(x, y);
      const gaps = seen.map((value, i) => Math.abs(value - wanted[i]));
      if (Math.max(...gaps) > farOff) off++;
      sum += gaps[0] + gaps[1] + gaps[2];
    }
  const part = off / (width * height), mean = sum / (width * height * 3);
  if (part <= mostOff && mean <= mostMean) return [];
  return [`${(part * 100).toFixed(2)} % of the pixels are off (at most ${mostOff * 100}), mean difference ${mean.toFixed(2)} (at most ${mostMean})`];
}
