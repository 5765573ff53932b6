// Drawings that stay within what the SVG reader takes, played beside a rendering of the same files by rsvg-convert.
import { spawnSync } from 'node:child_process';
import { copyFileSync, mkdirSync, readFileSync, readdirSync, writeFileSync } from 'node:fs';
import { fileURLToPath } from 'node:url';
import path from 'node:path';
import { pictureDifferences } from './expect.mjs';
import { decodePng } from './png.mjs';

const drawingsFolder = path.join(path.dirname(fileURLToPath(import.meta.url)), 'drawings');
export const drawings = readdirSync(drawingsFolder).filter((name) => name.endsWith('.svg')).sort();

/** Size of every drawing, pixels. */
const width = 160, height = 120;
/** Part of the pixels that may be off, and the mean difference of all channels that may be left. */
const limits = { off: 0.004, mean: 1.5 };

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

/** What to compare the program's own pictures of the drawings by. */
export const drawingsOf = (folder) => ({
  project: path.join(folder, 'drawings.kvf'), movie: readFileSync(path.join(folder, 'drawings.swf')), width, height,
  frames: drawings.map((_, index) => index + 1),
});

export const loadDrawings = (stage, movie) => stage.load(movie, width, height);

/** Answers a line when drawing number `index` looks other than rsvg-convert draws it. */
export async function compareDrawing(stage, index, folder) {
  const name = drawings[index], expected = path.join(folder, `${name}-expected.png`);
  run('rsvg-convert', ['--background-color=white', '-o', expected, path.join(folder, name)]);
  const { file, picture } = await stage.show(index + 1);
  writeFileSync(path.join(folder, `${name}-seen.png`), file);
  const reference = decodePng(readFileSync(expected));
  return pictureDifferences(picture, reference, limits);
}
