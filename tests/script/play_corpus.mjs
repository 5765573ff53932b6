#!/usr/bin/env node
// Plays the movies of the scripts and compares what they trace with what stands in the scripts' comments:
//
//   node play_corpus.mjs MODULES CORPUS MOVIES [NAME...]
//
// "//= text" at the end of a line is the next text traced; "//=6+ text" from version 6 on, "//=-6 text" up to it,
// "//=5-6 text" from 5 to 6. "//! command|arguments" is the next fscommand, with the same prefixes.
import { readFileSync, readdirSync } from 'node:fs';
import path from 'node:path';
import { Stage } from '../player/stage.mjs';

const framesPlayed = 12;

function isMeant(range, version) {
  if (range === '') return true;
  const [from, to] = range.endsWith('+') ? [range.slice(0, -1), 99] : range.split('-');
  return version >= Number(from || 0) && version <= Number(to);
}

function expectations(script, version) {
  const expected = { traces: [], commands: [] };
  for (const line of script.split('\n')) {
    const found = /\/\/([=!])(\d\+|\d?-\d)? ?(.*)$/.exec(line);
    if (!found || !isMeant(found[2] ?? '', version)) continue;
    (found[1] === '=' ? expected.traces : expected.commands).push(found[3]);
  }
  return expected;
}

async function play(stage, movie) {
  // Without it the player gives no fscommands to the page.
  await stage.page.evaluate(() => { window.RufflePlayer.config.allowScriptAccess = true; });
  await stage.load(movie, 64, 64);
  await stage.page.evaluate(() => {
    window.heard = { traces: [], commands: [] };
    const api = document.querySelector('ruffle-player').ruffle();
    api.traceObserver = (text) => window.heard.traces.push(text);
    api.addFSCommandHandler((command, args) => window.heard.commands.push(`${command}|${args}`));
  });
  await stage.page.evaluate((frames) => window.movieStage.playTo(frames), framesPlayed);
  return stage.page.evaluate(() => window.heard);
}

function differences(what, expected, heard) {
  const lines = [];
  for (let i = 0; i < Math.max(expected.length, heard.length) && lines.length < 5; i++)
    if (expected[i] !== heard[i])
      lines.push(`${what} ${i + 1}: ${JSON.stringify(heard[i] ?? null)} instead of ${JSON.stringify(expected[i] ?? null)}`);
  return lines;
}

/** The runner's own test: a script whose claims are wrong does not pass. */
async function checkRunner(stage, movies) {
  const movie = readFileSync(path.join(movies, readdirSync(movies).sort()[0]));
  const heard = await play(stage, movie);
  const wrong = heard.traces.map((text, i) => (i === 1 ? `${text}!` : text));
  return differences('trace', wrong, heard.traces).length === 1 ? [] : ['a wrong claim was not noticed'];
}

async function main([modules, corpus, movies, ...chosen]) {
  if (!movies) {
    console.error('usage: node play_corpus.mjs MODULES CORPUS MOVIES [NAME...]');
    return 2;
  }
  const stage = await Stage.open(modules);
  let failures = 0;
  const report = (name, lines) => {
    failures += lines.length;
    console.log(`${lines.length ? 'FAIL' : 'ok  '} ${name}`);
    for (const line of lines) console.log(`     ${line}`);
  };
  try {
    report('(the runner itself)', await checkRunner(stage, movies));
    for (const file of readdirSync(movies).sort()) {
      const [, name, version] = /^(.*)-v(\d)\.swf$/.exec(file);
      if (chosen.length && !chosen.includes(name)) continue;
      const expected = expectations(readFileSync(path.join(corpus, `${name}.as`), 'utf8'), Number(version));
      const heard = await play(stage, readFileSync(path.join(movies, file)));
      report(`${name}, version ${version}`, [
        ...differences('trace', expected.traces, heard.traces), ...differences('fscommand', expected.commands, heard.commands)]);
    }
  } finally {
    await stage.close();
  }
  return failures ? 1 : 0;
}

process.exitCode = await main(process.argv.slice(2));
