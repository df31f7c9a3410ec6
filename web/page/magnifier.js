// What the pixel under the pointer is made of, in the buffer and on the window.

import { find } from './dom.js';
import { formatHandle, readPixels, windowHandle } from './targets.js';

/** @typedef {{ handle: number, x: number, y: number }} Pixel */

const reach = 7; // pixels shown on each side of the one under the pointer

/**
 * @param {import('./libzogles.mjs').Rect} rect
 * @param {number} x
 * @param {number} y
 */
function holds(rect, x, y) {
  return x >= rect.x && y >= rect.y && x < rect.x + rect.width && y < rect.y + rect.height;
}

/**
 * The pixel that lies in one rectangle as (x, y) lies in another.
 *
 * @param {import('./libzogles.mjs').Rect} from
 * @param {import('./libzogles.mjs').Rect} to
 * @param {number} x
 * @param {number} y
 */
function carry(from, to, x, y) {
  return {
    x: to.x + Math.floor(((x - from.x + 0.5) * to.width) / from.width),
    y: to.y + Math.floor(((y - from.y + 0.5) * to.height) / from.height),
  };
}

export class Magnifier {
  /** @type {Pixel} */
  #pixel = { handle: windowHandle, x: 0, y: 0 };

  #isWaiting = false;

  /**
   * @param {import('./engine.js').Engine} engine
   * @param {import('./stage.js').Stage} stage
   */
  constructor(engine, stage) {
    this.engine = engine;
    this.lens = find('lens', HTMLCanvasElement);
    this.rows = find('pixel-values', HTMLElement);
    this.x = find('pixel-x', HTMLInputElement);
    this.y = find('pixel-y', HTMLInputElement);
    Object.assign(this.lens, { width: 2 * reach + 1, height: 2 * reach + 1 });

    const point = (/** @type {number} */ x, /** @type {number} */ y) => {
      this.#pixel = { handle: stage.handle, x, y };
      this.#ask();
    };
    stage.addEventListener('point', (event) => {
      const { x, y } = /** @type {CustomEvent} */ (event).detail;
      Object.assign(this.x, { value: `${x}` });
      Object.assign(this.y, { value: `${y}` });
      point(x, y);
    });
    for (const input of [this.x, this.y]) {
      input.addEventListener('input', () => point(Number(this.x.value), Number(this.y.value)));
    }
    stage.addEventListener('view', () => point(Number(this.x.value), Number(this.y.value)));
    engine.addEventListener('drawn', () => this.#ask());
    point(Number(this.x.value), Number(this.y.value));
  }

  // Pixels are read at most once in a frame.
  #ask() {
    if (!this.#isWaiting) {
      this.#isWaiting = true;
      requestAnimationFrame(() => {
        this.#isWaiting = false;
        this.#update();
      });
    }
  }

  #update() {
    const [buffer, onWindow] = this.#findPair();
    this.#drawLens();
    const lines = [
      `buffer ${buffer ? this.#describe(buffer) : '— (no buffer’s pixel is here)'}`,
      `window ${onWindow ? this.#describe(onWindow) : '— (not presented)'}`,
    ];
    this.rows.replaceChildren(
      ...lines.map((line) => {
        const row = document.createElement('div');
        row.textContent = line;
        return row;
      }),
    );
  }

  // The pixel of the buffer and the one of the window that it became, as far as there are both.
  /** @returns {[Pixel | null, Pixel | null]} */
  #findPair() {
    const pixel = this.#pixel;
    const shown = this.engine.presentation;
    if (pixel.handle === windowHandle) {
      const isShown = shown !== null && holds(shown.destination, pixel.x, pixel.y);
      const source = isShown ? carry(shown.destination, shown.source, pixel.x, pixel.y) : null;
      return [shown && source && { handle: shown.handle, ...source }, pixel];
    }
    const isShown = shown?.handle === pixel.handle && holds(shown.source, pixel.x, pixel.y);
    const place = isShown ? carry(shown.source, shown.destination, pixel.x, pixel.y) : null;
    return [pixel, place && { handle: windowHandle, ...place }];
  }

  /** @param {Pixel} pixel */
  #describe({ handle, x, y }) {
    const place = `${formatHandle(handle)} (${x}, ${y})`;
    const target = this.engine.targets.get(handle);
    const isInside = target?.isComplete && holds({ x: 0, y: 0, ...target }, x, y);
    if (!this.engine.isBound || !target || !isInside) {
      return `${place} —`;
    }
    const [r, g, b, a] = readPixels(this.engine.gl, target, { x, y, width: 1, height: 1 });
    return `${place} r ${r} g ${g} b ${b} a ${a}`;
  }

  #drawLens() {
    const { handle, x, y } = this.#pixel;
    const side = 2 * reach + 1;
    const context = this.lens.getContext('2d');
    const target = this.engine.targets.get(handle);
    context?.clearRect(0, 0, side, side);
    if (!this.engine.isBound || !target?.isComplete) {
      return;
    }
    const rect = { x: x - reach, y: y - reach, width: side, height: side };
    context?.putImageData(new ImageData(readPixels(this.engine.gl, target, rect), side, side), 0, 0);
  }
}
