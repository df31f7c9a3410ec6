// What the pixel under the pointer is made of, in the buffer and on the window.

import { find, make, oncePerFrame, throttle } from './dom.js';
import { windowSize } from './engine.js';
import { formatHandle, readPixels, windowHandle } from './targets.js';

/** @typedef {{ handle: number, x: number, y: number }} Pixel */

const reach = 7; // pixels shown on each side of the one under the pointer
const pauseBetweenLooks = 100; // milliseconds, while the picture moves

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

    #ask = oncePerFrame(() => this.#update()); // reading pixels waits for the driver

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
        const place = (/** @type {number} */ x, /** @type {number} */ y) => {
            this.x.value = `${x}`;
            this.y.value = `${y}`;
            point(x, y);
        };
        stage.addEventListener('point', (event) => {
            const { x, y } = /** @type {CustomEvent} */ (event).detail;
            place(x, y);
        });
        for (const input of [this.x, this.y]) {
            input.addEventListener('input', () => {
                if (this.x.validity.valid && this.y.validity.valid) {
                    point(Number(this.x.value), Number(this.y.value));
                }
            });
        }
        stage.addEventListener('view', () => {
            const { width, height } = stage.target ?? engine.canvas;
            const isInside = Number(this.x.value) < width && Number(this.y.value) < height;
            place(
                isInside ? Number(this.x.value) : width >> 1,
                isInside ? Number(this.y.value) : height >> 1,
            );
        });
        const lookLater = throttle(() => this.#update(), pauseBetweenLooks);
        engine.addEventListener('drawn', lookLater);
        point(Number(this.x.value), Number(this.y.value));
    }

    #update() {
        const [buffer, onWindow] = this.#findPair();
        this.#drawLens();
        this.rows.replaceChildren(
            this.#makeRow('buffer', buffer),
            this.#makeRow('window', onWindow),
        );
    }

    // The pixel of the buffer and the one of the window that it became, as far as there are both.
    /** @returns {[Pixel | null, Pixel | null]} */
    #findPair() {
        const pixel = this.#pixel;
        const shown = this.engine.presentation;
        if (pixel.handle === windowHandle) {
            const isShown = shown !== null && holds(shown.destination, pixel.x, pixel.y);
            return [isShown ? this.#findSource(shown, pixel) : null, pixel];
        }
        const isShown = shown?.handle === pixel.handle && holds(shown.source, pixel.x, pixel.y);
        const place = isShown ? carry(shown.source, shown.destination, pixel.x, pixel.y) : null;
        return [pixel, place && { handle: windowHandle, ...place }];
    }

    /**
     * The buffer's pixel that became one of the window; past the buffer's sides its edge repeats.
     *
     * @param {import('./engine.js').Presentation} shown
     * @param {Pixel} pixel of the window
     */
    #findSource({ handle, source, destination }, { x, y }) {
        const target = this.engine.targets.get(handle);
        const place = carry(destination, source, x, y);
        return {
            handle,
            x: Math.min(place.x, (target?.width ?? 1) - 1),
            y: Math.min(place.y, (target?.height ?? 1) - 1),
        };
    }

    /**
     * @param {string} where
     * @param {Pixel | null} pixel
     */
    #makeRow(where, pixel) {
        const place = pixel ? [formatHandle(pixel.handle), `${pixel.x}, ${pixel.y}`] : ['—', '—'];
        const channels = (pixel && this.#read(pixel)) ?? ['—', '—', '—', '—'];
        const cells = [...place, ...channels].map((text) => make('td', {}, `${text}`));
        return make('tr', {}, make('th', { scope: 'row' }, where), ...cells);
    }

    /**
     * @param {Pixel} pixel
     * @returns {number[] | null} r, g, b and a, or null where there is none
     */
    #read({ handle, x, y }) {
        const target = this.engine.targets.get(handle);
        const isInside = target?.isComplete && holds({ x: 0, y: 0, ...target }, x, y);
        if (!this.engine.isBound || !target || !isInside) {
            return null;
        }
        return [...readPixels(this.engine.gl, target, { x, y, width: 1, height: 1 })];
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
        const pixels = readPixels(this.engine.gl, target, rect);
        if (handle === windowHandle) {
            // The window's colours are multiplied by alpha already; a buffer's are not.
            for (let i = 0; i < side * side; ++i) {
                const isInside = holds(
                    { x: 0, y: 0, ...windowSize },
                    rect.x + (i % side),
                    rect.y + Math.floor(i / side),
                );
                pixels[i * 4 + 3] = isInside ? 255 : 0;
            }
        }
        context?.putImageData(new ImageData(pixels, side, side), 0, 0);
    }
}
