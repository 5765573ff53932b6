// A browser with the player in it: loads a movie, plays it to a frame, gives the pixels that are to be seen there.
import { createServer } from 'node:http';
import { existsSync } from 'node:fs';
import { readFile } from 'node:fs/promises';
import { createRequire } from 'node:module';
import { fileURLToPath, pathToFileURL } from 'node:url';
import path from 'node:path';
import { decodePng } from './png.mjs';

const here = path.dirname(fileURLToPath(import.meta.url));
const types = { '.html': 'text/html', '.js': 'text/javascript', '.wasm': 'application/wasm' };
const html = `<!doctype html><meta charset="utf-8">
<style>html, body { margin: 0; overflow: hidden } ruffle-player { display: block }</style><body>
<script>window.RufflePlayer = { config: { polyfills: false } }</script><script src="/player/ruffle.js"></script>`;
// Without CDPScreenshotNewSurface a picture of a page with a WebGL canvas never comes.
const flags = ['--headless', '--no-sandbox', '--disable-gpu', '--disable-quic', '--no-first-run',
  '--disable-background-networking', '--disable-component-update', '--disable-sync', '--use-gl=angle',
  '--use-angle=swiftshader', '--enable-unsafe-swiftshader', '--ignore-gpu-blocklist', '--mute-audio',
  '--enable-features=CDPScreenshotNewSurface', '--force-color-profile=srgb',
  '--autoplay-policy=no-user-gesture-required'];

function findBrowser() {
  const candidates = [process.env.CHROMIUM, '/usr/bin/chromium', '/usr/bin/chromium-browser'];
  const found = candidates.find((candidate) => candidate && existsSync(candidate));
  if (!found) throw new Error('no chromium; CHROMIUM may name one');
  return found;
}

/** What the pages of a stage ask for: its page, the player's files, pages of its page folder, movies beside the one shown. */
function fileOf(stage, playerFolder, name) {
  if (name.startsWith('/page/')) return path.join(stage.pageFolder, name.slice(6));
  return path.join(name.endsWith('.swf') ? stage.besideFolder : playerFolder, path.basename(name));
}

function serve(stage, playerFolder) {
  const server = createServer(async (request, response) => {
    const name = decodeURIComponent(new URL(request.url, 'http://localhost').pathname);
    if (name === '/') return response.writeHead(200, { 'content-type': 'text/html' }).end(html);
    try {
      const file = fileOf(stage, playerFolder, name);
      const body = await readFile(file);
      response.on('finish', () => stage.served.add(path.basename(file)));
      response.writeHead(200, { 'content-type': types[path.extname(file)] ?? 'application/octet-stream' }).end(body);
    } catch {
      response.writeHead(404).end();
    }
  });
  return new Promise((done) => server.listen(0, '127.0.0.1', () => done(server)));
}

export class Stage {
  /** modules: the folder that `npm ci` filled; scale: pixels of a picture for a pixel of the stage, on each side. */
  static async open(modules, scale = 1) {
    const require = createRequire(pathToFileURL(path.join(modules, 'package.json')));
    const { chromium } = require('playwright-core');
    const stage = new Stage();
    stage.scale = scale;
    stage.pageFolder = path.join(modules, 'page');
    stage.besideFolder = stage.pageFolder;
    stage.served = new Set();
    stage.server = await serve(stage, path.join(modules, 'node_modules', '@ruffle-rs', 'ruffle'));
    stage.browser = await chromium.launch({ executablePath: findBrowser(), args: flags });
    stage.page = await stage.browser.newPage({ deviceScaleFactor: scale });
    await stage.page.addInitScript({ path: path.join(here, 'page.js') });
    await stage.page.goto(`http://127.0.0.1:${stage.server.address().port}/`);
    return stage;
  }

  async load(movie, width, height) {
    await this.page.setViewportSize({ width, height });
    return this.page.evaluate(([bytes, w, h]) => window.movieStage.load(bytes, w, h),
      [movie.toString('base64'), width, height]);
  }

  /** Plays on to a frame; answers the picture both as decoded pixels and as the PNG file's bytes. */
  async show(frame) {
    await this.page.evaluate((wanted) => window.movieStage.playTo(wanted), frame);
    const broken = await this.page.evaluate(() => window.movieStage.breakdown());
    if (broken) throw new Error(`the player broke down at frame ${frame}: ${broken}`);
    const file = await this.page.screenshot();
    return { file, picture: decodePng(file) };
  }

  /** What a person does before the next frame, in this order of kinds: moves the mouse, presses its button, lets it go,
   * clicks on the stage, presses a key by its name, types, waits until the player has got a file from beside the movie. */
  async act({ move, down, up, click, press, type, got }) {
    if (move) await this.page.mouse.move(move.x, move.y);
    if (down) await this.page.mouse.down();
    if (up) await this.page.mouse.up();
    if (click) await this.page.mouse.click(click.x, click.y);
    if (press) await this.page.keyboard.press(press);
    if (type) await this.page.keyboard.type(type);
    if (got) await this.waitFor(got);
  }

  async waitFor(file) {
    for (const end = Date.now() + 20000; !this.served.has(file); await new Promise((done) => setTimeout(done, 50)))
      if (Date.now() > end) throw new Error(`the player did not ask for ${file} in 20 s`);
    await this.page.waitForTimeout(500);
  }

  /** The texts that the movie's scripts traced since the last call. */
  async traces() {
    return this.page.evaluate(() => window.movieStage.takeTraces());
  }

  /** Opens a page of the page folder as a person's browser does, its clock running; answers the picture once `isReady` says
   * that it is there, or after 20 seconds. */
  async openPage(name, isReady) {
    const page = await this.browser.newPage({ deviceScaleFactor: 1, viewport: { width: 300, height: 250 } });
    await page.goto(`http://127.0.0.1:${this.server.address().port}/page/${name}`);
    for (const end = Date.now() + 20000; ; await new Promise((done) => setTimeout(done, 200))) {
      const file = await page.screenshot();
      const picture = decodePng(file);
      if (!isReady(picture) && Date.now() < end) continue;
      await page.close();
      return { file, picture };
    }
  }

  async close() {
    await this.browser?.close();
    this.server?.close();
    this.server?.closeAllConnections();
  }
}
