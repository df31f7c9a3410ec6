// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// The channels of the pixel under the pointer, in the buffer and on the window.

import { find, make, makeRow, throttle } from './dom.js';
import { formatHandle, windowHandle } from './targets.js';

/** @typedef {import('./libzogles.mjs').Rect} Rect */
/** @typedef {{ handle: number, x: number, y: number }} Pixel */

const reach = 7; // pixels shown on each side of the one under the pointer
const side = 2 * reach + 1;
const scale = 8;
const pauseBetweenLooks = 100; // milliseconds; the browser waits for the GPU to read pixels

/**
 * The pixel of one rectangle that corresponds to a pixel of another one; null outside.
 *
 * @param {Rect} from
 * @param {Rect} to
 * @param {Pixel} pixel
 */
function carry(from, to, { x, y }) {
    const [right, down] = [(x + 0.5 - from.x) / from.width, (y + 0.5 - from.y) / from.height];
    const isInside = right > 0 && right < 1 && down > 0 && down < 1;
    return isInside
        ? { x: to.x + Math.floor(right * to.width), y: to.y + Math.floor(down * to.height) }
        : null;
}

export class Magnifier {
    /**
     * @param {import('./engine.js').Engine} engine
     * @param {import('./stage.js').Stage} stage
     */
    constructor(engine, stage) {
        this.engine = engine;
        this.stage = stage;
        this.table = find('pixel-table', HTMLElement);
        this.x = find('pixel-x', HTMLInputElement);
        this.y = find('pixel-y', HTMLInputElement);
        const lens = find('lens', HTMLCanvasElement);
        Object.assign(lens, { width: side * scale, height: side * scale });
        this.lens = /** @type {CanvasRenderingContext2D} */ (lens.getContext('2d'));
        Object.assign(this.lens, {
            imageSmoothingEnabled: false,
            strokeStyle: '#ffb020',
            lineWidth: 2,
        });

        const showLater = throttle(() => this.#show(), pauseBetweenLooks);
        const point = (/** @type {{ x: number, y: number }} */ { x, y }) => {
            this.x.value = `${x}`;
            this.y.value = `${y}`;
            showLater();
        };
        stage.on('point', point);
        stage.on('view', () => {
            const { width, height } = stage.target ?? engine.canvas;
            const { x, y } = this.#pixel;
            point(x < width && y < height ? { x, y } : { x: width >> 1, y: height >> 1 });
        });
        engine.on('drawn', showLater);
        this.x.addEventListener('input', showLater);
        this.y.addEventListener('input', showLater);
        showLater();
    }

    /** @returns {Pixel} */
    get #pixel() {
        return {
            handle: this.stage.handle,
            x: Number(this.x.value),
            y: Number(this.y.value),
        };
    }

    #show() {
        if (!this.x.validity.valid || !this.y.validity.valid) {
            return;
        }
        const [buffer, onWindow] = this.#findPair();
        this.table.replaceChildren(
            makeRow(['', 'Target', 'Pixel', 'r', 'g', 'b', 'a'], 'th'),
            this.#makeRow('buffer', buffer),
            this.#makeRow('window', onWindow),
        );
        this.#drawLens();
    }

    // The pixel of the buffer and the pixel of the window that shows it; null if there is none.
    /** @returns {(Pixel | null)[]} */
    #findPair() {
        const pixel = this.#pixel;
        const { presentation, targets } = this.engine;
        if (pixel.handle !== windowHandle) {
            const isShown = presentation?.handle === pixel.handle;
            const place = isShown && carry(presentation.source, presentation.destination, pixel);
            return [pixel, place ? { handle: windowHandle, ...place } : null];
        }
        const place = presentation && carry(presentation.destination, presentation.source, pixel);
        if (!place) {
            return [null, pixel];
        }
        // Outside a buffer, its edge pixels repeat.
        const { handle } = presentation;
        const { width, height } = targets.get(handle) ?? { width: 1, height: 1 };
        const x = Math.min(place.x, width - 1);
        return [{ handle, x, y: Math.min(place.y, height - 1) }, pixel];
    }

    /**
     * @param {string} where
     * @param {Pixel | null} pixel
     */
    #makeRow(where, pixel) {
        const place = pixel ? [formatHandle(pixel.handle), `${pixel.x}, ${pixel.y}`] : ['—', '—'];
        const channels = (pixel && this.#read(pixel)) ?? ['—', '—', '—', '—'];
        return makeRow([where, ...place, ...channels.map(String)]);
    }

    /**
     * @param {Pixel} pixel
     * @returns {(number | string)[] | null} r, g, b and a, or null outside
     */
    #read({ handle, x, y }) {
        const { width, height } = this.engine.targets.get(handle) ?? { width: 0, height: 0 };
        const isInside = x < width && y < height;
        const picture = isInside && this.engine.read(handle, { x, y, width: 1, height: 1 });
        return picture ? [...picture.data] : null;
    }

    #drawLens() {
        const { handle, x, y } = this.#pixel;
        const rect = { x: x - reach, y: y - reach, width: side, height: side };
        const picture = this.engine.read(handle, rect) ?? new ImageData(side, side);
        // The window's colours are already multiplied by alpha, so they are shown opaque.
        for (let i = 3; handle === windowHandle && i < picture.data.length; i += 4) {
            picture.data[i] = 255;
        }
        const pixels = make('canvas', { width: side, height: side });
        pixels.getContext('2d')?.putImageData(picture, 0, 0);
        const size = side * scale;
        this.lens.clearRect(0, 0, size, size);
        this.lens.drawImage(pixels, 0, 0, size, size);
        this.lens.strokeRect(reach * scale, reach * scale, scale, scale);
    }
}
