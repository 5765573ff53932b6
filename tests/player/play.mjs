#!/usr/bin/env node
// Generates the movie of every case and looks at it in a real player; then compares drawings with another renderer.
//
//   node play.mjs TAMBER MODULES OUTPUT [CASE... | snapshots | page | drawings]
//
// TAMBER is the program, MODULES the folder with node_modules, OUTPUT where movies and the pictures of all looked-at
// frames go. Exit status 0 when all is as expected, 1 when not.
import { spawnSync } from 'node:child_process';
import { existsSync, mkdirSync, readFileSync, readdirSync, rmSync, writeFileSync } from 'node:fs';
import { fileURLToPath } from 'node:url';
import path from 'node:path';
import { inflateSync } from 'node:zlib';
import { Stage } from './stage.mjs';
import { differences, pictureDifferences, traceDifferences } from './expect.mjs';
import { decodePng } from './png.mjs';
import { movingSquare } from './swf-by-hand.mjs';
import { compareDrawing, drawings, drawingsOf, loadDrawings, movieOfDrawings } from './drawings.mjs';

const casesFolder = path.join(path.dirname(fileURLToPath(import.meta.url)), 'cases');

/** Cases whose frames look alike however the movie came there: nothing in them plays by itself. */
const snapshotCases = ['bitmap-fill', 'deforming', 'divided', 'easing', 'effects', 'mask', 'morph', 'path', 'text-circle-swf8',
  'text-field', 'text-swf4', 'text-swf8', 'vector-mask'];

/** What the file itself says, apart from the player. */
function header(movie) {
  const magic = movie.toString('latin1', 0, 3);
  const body = magic === 'CWS' ? inflateSync(movie.subarray(8)) : movie.subarray(8);
  return { magic, version: movie[3], sizeIsRight: movie.readUInt32LE(4) === body.length + 8 };
}

function headerDifferences(movie, { compressed, version }) {
  const seen = header(movie), lines = [];
  const magic = compressed ? 'CWS' : 'FWS';
  if (seen.magic !== magic) lines.push(`the file begins with ${seen.magic} instead of ${magic}`);
  if (seen.version !== version) lines.push(`the file has version ${seen.version} instead of ${version}`);
  if (!seen.sizeIsRight) lines.push('the length in the file is not its length');
  return lines;
}

/** Runs the program, and answers what it made. The user's own settings are kept out of it. */
function made(tamber, words, output, input = '') {
  rmSync(output, { force: true });
  const run = spawnSync(tamber, words, {
    encoding: 'utf8', input, timeout: 60000, env: { ...process.env, XDG_CONFIG_HOME: path.dirname(output) },
  });
  if (run.error) throw run.error;
  if (run.status !== 0) throw new Error(`Tamber answered ${run.status ?? run.signal}: ${run.stderr.trim()}`);
  return readFileSync(output);
}

const generate = (tamber, { project, arguments: extra = [] }, folder, output) =>
  made(tamber, ['generate', path.join(folder, project), '-o', output, ...extra], output);

async function look(stage, movie, { width, height, expectations }, picturePath) {
  const lines = [];
  await stage.load(movie, width, height);
  for (const expectation of [...expectations].sort((a, b) => a.frame - b.frame)) {
    for (const step of [expectation.before ?? []].flat()) await stage.act(step);
    const { file, picture } = await stage.show(expectation.frame);
    writeFileSync(`${picturePath}-${expectation.frame}.png`, file);
    lines.push(...differences(picture, expectation));
    if (expectation.traces) lines.push(...traceDifferences(await stage.traces(), expectation));
  }
  return lines;
}

/** The runner's own test: the square is where it is said to be, and a wrong claim about it is noticed. */
async function checkRunner(stage, output) {
  const red = (left) => ({ colour: '#ff0000', left, top: 30, right: left + 20, bottom: 50, tolerance: 0 });
  const size = { width: 100, height: 80 }, movie = movingSquare(5);
  const right = await look(stage, movie, { ...size, expectations: [{ frame: 1, box: red(10) }, { frame: 4, box: red(40) }] }, path.join(output, 'runner'));
  const wrong = await look(stage, movie, { ...size, expectations: [{ frame: 2, box: red(30), pixels: [{ x: 25, y: 40, colour: '#ffffff' }] }] }, path.join(output, 'runner'));
  const noticed = ['frame 2: pixel 25, 40 is #ff0000 instead of #ffffff (tolerance 8)',
    'frame 2: left of #ff0000 is 20 instead of 30 (tolerance 0)', 'frame 2: right of #ff0000 is 40 instead of 50 (tolerance 0)'];
  if (wrong.join('\n') !== noticed.join('\n')) right.push(`a wrong claim brought: ${wrong.join('; ') || 'nothing'}`);
  return right;
}

async function checkCase(stage, tamber, name, output) {
  const folder = path.join(casesFolder, name);
  const description = JSON.parse(readFileSync(path.join(folder, 'case.json'), 'utf8'));
  stage.besideFolder = path.join(output, `${name}-beside`);
  stage.served.clear();
  mkdirSync(stage.besideFolder, { recursive: true });
  for (const project of description.beside ?? [])
    generate(tamber, { project }, folder, path.join(stage.besideFolder, `${path.parse(project).name}.swf`));
  const movie = generate(tamber, description, folder, path.join(output, `${name}.swf`));
  return [...headerDifferences(movie, description), ...await look(stage, movie, description, path.join(output, name))];
}

/** A part of the pixels that may be off, and a mean difference, between the player's picture and the program's own. */
const ownPictureLimits = { off: 0.005, mean: 1.5 };

/** Draws a row of frames with the program itself; answers what gives the picture of one. */
function ownPictures(tamber, project, first, last, output, extra) {
  const pathOf = (frame) => `${output}_${frame}.png`;
  made(tamber, ['picture', project, '--frames', `${first}-${last}`, ...extra, '-o', `${output}_%d.png`], pathOf(last));
  return (frame) => decodePng(readFileSync(pathOf(frame)));
}

/** Answers a line for each of the frames that the program draws other than the player, which plays `movie`. */
async function comparePictures(stage, tamber, { project, movie, width, height, frames, limits = ownPictureLimits }, output) {
  const lines = [], scale = stage.scale > 1 ? ['--scale', `${stage.scale}`] : [];
  const sorted = [...new Set(frames)].sort((a, b) => a - b), last = sorted.at(-1);
  const isRow = last - sorted[0] === sorted.length - 1;
  const draw = (from, to) => ownPictures(tamber, project, from, to, `${output}-own`, scale);
  const row = isRow ? draw(sorted[0], last) : null;
  await stage.load(movie, width, height);
  for (const frame of sorted) {
    const { file, picture } = await stage.show(frame);
    writeFileSync(`${output}-player_${frame}.png`, file);
    const own = (row ?? draw(frame, frame))(frame);
    lines.push(...pictureDifferences(own, picture, limits).map((line) => `frame ${frame}: ${line}`));
  }
  return lines;
}

/** Scripts, and what a person does, change what the player shows; a case that has either says so in `picture`. */
async function checkOwnPicture(stage, tamber, name, output) {
  const folder = path.join(casesFolder, name);
  const description = JSON.parse(readFileSync(path.join(folder, 'case.json'), 'utf8'));
  if (typeof description.picture === 'string') return [];
  const project = path.join(folder, description.project);
  const movie = generate(tamber, description, folder, path.join(output, `${name}.swf`));
  const frames = description.expectations.map(({ frame }) => frame);
  return comparePictures(stage, tamber, { ...description, project, movie, frames, limits: description.picture }, path.join(output, name));
}

/** The page of a movie loads the player that was put beside it. The page's margin is 8 pixels wide. */
async function checkPage(stage, tamber, output) {
  const expectation = { frame: 1, pixels: [{ x: 68, y: 68, colour: '#ff0000' }, { x: 20, y: 20, colour: '#fff0c8' }, { x: 4, y: 4, colour: '#ffffff' }] };
  const folder = path.join(casesFolder, 'order');
  rmSync(stage.pageFolder, { recursive: true, force: true });
  mkdirSync(stage.pageFolder);
  generate(tamber, { project: 'order.kvf', arguments: ['--html'] }, folder, path.join(stage.pageFolder, 'order.swf'));
  const { file, picture } = await stage.openPage('order.html', (seen) => differences(seen, expectation).length === 0);
  writeFileSync(path.join(output, 'page.png'), file);
  return differences(picture, expectation);
}

/** The movie of one frame, as the canvas shows it, looks like that frame of the whole movie. */
async function checkSnapshot(stage, tamber, name, output) {
  const folder = path.join(casesFolder, name), lines = [];
  const { project, width, height, expectations } = JSON.parse(readFileSync(path.join(folder, 'case.json'), 'utf8'));
  const whole = generate(tamber, { project }, folder, path.join(output, `${name}.swf`));
  for (const frame of new Set(expectations.map((expectation) => expectation.frame))) {
    await stage.load(whole, width, height);
    const expected = await stage.show(frame);
    const words = ['batch', '--set', 'flgPrevPrjPath=0', '--home', output];
    const commands = `OpenProject "${path.join(folder, project)}"\nShowEditSWFBitmap ${frame}\n`;
    await stage.load(made(tamber, words, path.join(output, '_edit.swf'), commands), width, height);
    const seen = await stage.show(1);
    writeFileSync(path.join(output, `${name}-snapshot-${frame}.png`), seen.file);
    if (!seen.file.equals(expected.file)) lines.push(`the picture of frame ${frame} is not that of the movie`);
  }
  return lines;
}

/** Those looked at three times as large, too. */
const largeCases = ['blends', 'effects', 'filters', 'gradient-radial', 'lines', 'mask', 'morph', 'text-swf8', 'vector-mask', 'text-field'];

async function checkLarge(modules, tamber, cases, output, report) {
  const stage = await Stage.open(modules, 3);
  try {
    for (const name of largeCases.filter((large) => cases.includes(large)))
      await report(`own picture of ${name}, large`, () => checkOwnPicture(stage, tamber, name, path.join(output, 'large')));
    if (cases.includes('effects')) await report('own pictures of tour, large', () => checkExample(stage, tamber, 'tour', path.join(output, 'large')));
  } finally {
    await stage.close();
  }
}

/** The examples, at five frames each. */
const exampleFrames = { tour: [1, 20, 40, 60, 80], hello: [1, 25, 49, 73, 97] };

async function checkExample(stage, tamber, name, output) {
  const folder = path.join(casesFolder, '..', '..', '..', 'examples', name);
  const project = path.join(folder, `${name}.kvf`);
  const movie = generate(tamber, { project }, '', path.join(output, `${name}.swf`));
  const size = decodePng(made(tamber, ['picture', project, '-o', path.join(output, `${name}-size.png`)], path.join(output, `${name}-size.png`)));
  return comparePictures(stage, tamber, { project, movie, width: size.width, height: size.height, frames: exampleFrames[name] }, path.join(output, name));
}

async function checkDrawings(stage, tamber, output, report) {
  const folder = path.join(output, 'drawings');
  await report('drawings', async () => {
    await loadDrawings(stage, movieOfDrawings(tamber, folder));
    return [];
  });
  for (const [index, name] of drawings.entries())
    await report(`drawing ${name}`, () => compareDrawing(stage, index, folder));
  await report('own pictures of the drawings', () => comparePictures(stage, tamber, drawingsOf(folder), path.join(folder, 'drawings')));
}

async function main([tamber, modules, output, ...chosen]) {
  if (!output) {
    console.error('usage: node play.mjs TAMBER MODULES OUTPUT [CASE...]');
    return 2;
  }
  mkdirSync(output, { recursive: true });
  const names = chosen.length ? chosen : readdirSync(casesFolder).sort();
  const cases = names.filter((name) => existsSync(path.join(casesFolder, name)));
  const stage = await Stage.open(modules);
  let failures = 0;
  const report = async (name, check) => {
    let lines;
    try {
      lines = await check();
    } catch (error) {
      lines = [error.message];
    }
    failures += lines.length;
    console.log(`${lines.length ? 'FAIL' : 'ok  '} ${name}`);
    for (const line of lines) console.log(`     ${line}`);
  };
  try {
    await report('(the runner itself)', () => checkRunner(stage, output));
    for (const name of cases)
      await report(name, () => checkCase(stage, path.resolve(tamber), name, output));
    for (const name of snapshotCases)
      if (!chosen.length || chosen.includes('snapshots'))
        await report(`snapshots of ${name}`, () => checkSnapshot(stage, path.resolve(tamber), name, output));
    for (const name of cases)
      await report(`own picture of ${name}`, () => checkOwnPicture(stage, path.resolve(tamber), name, output));
    mkdirSync(path.join(output, 'large'), { recursive: true });
    await checkLarge(modules, path.resolve(tamber), cases, output, report);
    for (const name of Object.keys(exampleFrames))
      if (!chosen.length || chosen.includes(name))
        await report(`own pictures of ${name}`, () => checkExample(stage, path.resolve(tamber), name, output));
    if (!chosen.length || chosen.includes('page')) await report('page', () => checkPage(stage, path.resolve(tamber), output));
    if (!chosen.length || chosen.includes('drawings')) await checkDrawings(stage, path.resolve(tamber), output, report);
  } finally {
    await stage.close();
  }
  return failures ? 1 : 0;
}

process.exitCode = await main(process.argv.slice(2));
