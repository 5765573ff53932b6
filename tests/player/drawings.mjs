// Drawings that stay within what the SVG reader takes, played beside a rendering of the same files by rsvg-convert.
import { spawnSync } from 'node:child_process';
import { copyFileSync, mkdirSync, readFileSync, readdirSync, writeFileSync } from 'node:fs';
import { fileURLToPath } from 'node:url';
import path from 'node:path';
import { decodePng } from './png.mjs';

const drawingsFolder = path.join(path.dirname(fileURLToPath(import.meta.url)), 'drawings');
export const drawings = readdirSync(drawingsFolder).filter((name) => name.endsWith('.svg')).sort();

/** Size of every drawing, pixels. */
const width = 160, height = 120;
/** A pixel is off when a channel differs by more than this: edges are smoothed in two ways. */
const farOff = 64;
/** Pixels that may be off, and the mean difference of all channels that may be left. */
const mostOff = width * height * 0.004, mostMean = 1.5;

const filters = ['100,100,100,100,0,0,0,0', '0,0,0,100,2,2,45,5,1,False,False,True,2', '4,4,2',
  '255,255,0,100,10,10,1,False,False,True,2', '0,0,0,100,255,255,255,100,2,2,45,5,1,False,False,True,False,2',
  `5,5,1,0,${'0,'.repeat(12)}1,${'0,'.repeat(12)}0,0,0,0,False,False`, '1,0,0,0,0,0,1,0,0,0,0,0,1,0,0,0,0,0,1,0']
  .map((cells) => `False,${cells}`).join(',');

/** A project that shows drawing N on frame N. */
function project() {
  const symbols = drawings.map((name, i) => `${i + 1},${name},\xCD\xDE\xB8\xC0,,,,False,False,0,0,0,0,0,0,0,0,False,False,False,0,0,1024`);
  const layers = drawings.flatMap((name, i) => [`${i + 1},${name},,0,,,0,0,0,,,,True,1`,
    `${i + 1},1,False,False,True,0,0,0,0,False,10000,10000,0,100,0,0,0,0,XY,False,1`, '0,0,1', '0,0',
    `0,${filters},0,False,0,0,0,0,0,0,0,0,False`]);
  return ['KVF,0,9,0', `${width},${height},12,8`, String(drawings.length), ...symbols, ...drawings.map(() => '0'),
    String(drawings.length), ...layers].map((row) => `${row}\r\n`).join('');
}

function run(command, parameters) {
  const result = spawnSync(command, parameters, { encoding: 'utf8', timeout: 60000 });
  if (result.error) throw result.error;
  if (result.status !== 0) throw new Error(`${command} answered ${result.status}: ${result.stderr.trim()}`);
}

/** Builds the movie of all drawings in a folder and answers its bytes. */
export function movieOfDrawings(tamber, folder) {
  mkdirSync(folder, { recursive: true });
  for (const name of drawings) copyFileSync(path.join(drawingsFolder, name), path.join(folder, name));
  const file = path.join(folder, 'drawings.kvf'), movie = path.join(folder, 'drawings.swf');
  writeFileSync(file, Buffer.from(project(), 'latin1'));
  run(tamber, ['generate', file, '-o', movie, '--strict']);
  return readFileSync(movie);
}

export const loadDrawings = (stage, movie) => stage.load(movie, width, height);

/** Answers a line when drawing number `index` looks other than rsvg-convert draws it. */
export async function compareDrawing(stage, index, folder) {
  const name = drawings[index], expected = path.join(folder, `${name}-expected.png`);
  run('rsvg-convert', ['--background-color=white', '-o', expected, path.join(folder, name)]);
  const { file, picture } = await stage.show(index + 1);
  writeFileSync(path.join(folder, `${name}-seen.png`), file);
  const reference = decodePng(readFileSync(expected));
  if (reference.width !== width || reference.height !== height) return [`${name} is not ${width} by ${height}`];
  let off = 0, sum = 0;
  for (let y = 0; y < height; y++)
    for (let x = 0; x < width; x++) {
      const seen = picture.at(x, y), wanted = reference.at(x, y);
      const gaps = seen.map((value, i) => Math.abs(value - wanted[i]));
      if (Math.max(...gaps) > farOff) off++;
      sum += gaps[0] + gaps[1] + gaps[2];
    }
  const mean = sum / (width * height * 3);
  if (off <= mostOff && mean <= mostMean) return [];
  return [`${off} pixels are off (at most ${Math.floor(mostOff)}), mean difference ${mean.toFixed(2)} (at most ${mostMean})`];
}
