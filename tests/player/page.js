// Runs in the page before the player's own script. The player advances a movie from animation frames and reads the
// time from performance.now; both are replaced here, so that a movie moves on only when a test says so, one frame at
// a time, and a picture of frame N is the same on a busy machine.
(() => {
  let time = 0;
  let waiting = new Map();
  let last = 0;
  Performance.prototype.now = () => time;
  Date.now = () => time;
  window.requestAnimationFrame = (callback) => {
    waiting.set(++last, callback);
    return last;
  };
  window.cancelAnimationFrame = (id) => waiting.delete(id);

  const drawAt = (moment) => {
    time = moment;
    const callbacks = [...waiting.values()];
    waiting = new Map();
    for (const callback of callbacks) callback(moment);
  };
  // The player's own tasks (downloads, decoding) finish between two frames.
  const letTasksRun = () => new Promise((done) => setTimeout(done, 0));

  let player = null;
  let movie = null;
  let frame = 0;
  let traces = [];

  window.movieStage = {
    /** Loads a movie given as base64; answers its metadata. */
    async load(base64, width, height) {
      player?.remove();
      waiting = new Map();
      time = 0;
      frame = 0;
      player = window.RufflePlayer.newest().createPlayer();
      player.style.width = `${width}px`;
      player.style.height = `${height}px`;
      document.body.appendChild(player);
      const style = document.createElement('style');
      style.textContent = '[id$="-modal"], #unmute-overlay, #play-button { display: none !important }';
      player.shadowRoot.appendChild(style);
      const loaded = new Promise((done) => player.addEventListener('loadedmetadata', done, { once: true }));
      movie = player.ruffle();
      await movie.load({
        data: Uint8Array.from(atob(base64), (letter) => letter.charCodeAt(0)),
        autoplay: 'on', unmuteOverlay: 'hidden', letterbox: 'off', splashScreen: false, contextMenu: 'off',
        warnOnUnsupportedContent: false, scale: 'noScale', salign: 'tl', quality: 'high',
        preferredRenderer: 'wgpu-webgl', logLevel: 'warn',
      });
      const tooLate = new Promise((_, fail) => setTimeout(() => fail(new Error('the player read no movie in 20 s')), 20000));
      await Promise.race([loaded, tooLate]);
      traces = [];
      movie.traceObserver = (text) => traces.push(text);
      const { frameRate, numFrames, swfVersion } = movie.metadata;
      return { frameRate, numFrames, swfVersion };
    },

    /** Plays on to the end of the given frame, counted from 1. */
    async playTo(wanted) {
      const length = 1000 / movie.metadata.frameRate;
      while (frame < wanted) {
        frame += 1;
        // A little past the frame's beginning: rounding must not leave it to the next.
        drawAt((frame + 0.01) * length);
        await letTasksRun();
      }
    },

    /** The texts traced since the last call. */
    takeTraces() {
      return traces.splice(0);
    },

    /** The text of the screen that the player shows when it broke down, or null. */
    breakdown() {
      return player?.shadowRoot.getElementById('panic')?.innerText ?? null;
    },
  };
})();
