// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// Runs the library: its module, one surface on one canvas, and the loss of both. Depends on no other part
// of the page.

import { Emitter, make } from './dom.js';
import createLibrary from './libzogles.mjs';
import { parseLine } from './log.js';
import { findTarget, mostBuffers, readPixels, windowHandle } from './targets.js';

/** @typedef {import('./libzogles.mjs').Rect} Rect */
/** @typedef {import('./targets.js').Target} Target */
/** @typedef {{ handle: number, source: Rect, destination: Rect }} Presentation */

export const windowSize = { width: 1280, height: 720 };

// The page creates the context before the library does, so that the window keeps its pixels after they are
// shown; by default they are undefined then.
function createCanvas() {
    const label = 'The window that the library draws on';
    const canvas = make('canvas', { ...windowSize, role: 'img', 'aria-label': label });
    const context = canvas.getContext('webgl', {
        alpha: true,
        antialias: false,
        depth: false,
        stencil: false,
        preserveDrawingBuffer: true,
    });
    if (!context) {
        throw new Error('the library needs WebGL, which this browser does not support.');
    }
    return canvas;
}

/**
 * Emits "log" with a line; "targets" when a target was created, destroyed or resized; "drawn" when pixels
 * may have changed; "binding" when the surface was bound or unbound; "restored" when the browser gives
 * back a context that it took.
 */
export class Engine extends Emitter {
    /** @param {HTMLElement} place where the canvas goes */
    static async start(place) {
        /** @type {(line: string) => void} */
        let log = () => {};
        const canvas = createCanvas();
        const printErr = (/** @type {string} */ line) => log(line);
        const engine = new Engine(place, canvas, await createLibrary({ canvas, printErr }));
        log = (line) => engine.#log(line);
        return engine;
    }

    /**
     * The buffer that the window shows, if it was presented from one.
     *
     * @type {Presentation | null}
     */
    presentation = null;

    /**
     * The targets by handle, the window first. While no window is bound, those of the last binding.
     *
     * @type {Map<number, Target>}
     */
    targets = new Map();

    isBound = false;

    /** Whether the browser took the context. When it restores the context, the surface is bound again. */
    #isTaken = false;

    #isMuted = false;

    /**
     * @param {HTMLElement} place
     * @param {HTMLCanvasElement} canvas
     * @param {import('./libzogles.mjs').Library} library
     */
    constructor(place, canvas, library) {
        super();
        this.place = place;
        this.canvas = canvas;
        this.library = library;
        this.surface = new library.ZoGLDrawSurface();
        this.#placeCanvas();
    }

    /** The library's own WebGL context. */
    get gl() {
        return /** @type {WebGLRenderingContext} */ (this.canvas.getContext('webgl'));
    }

    /**
     * @param {boolean} [hasWindow] whether a window or a null pointer is passed
     * @returns {number} the code
     */
    bind(hasWindow = true) {
        if (hasWindow && !this.canvas.isConnected) {
            this.canvas = createCanvas();
            this.library.canvas = this.canvas;
            this.#placeCanvas();
        }
        const code = this.surface.ZoCreateGLWindowSurface(hasWindow);
        if (hasWindow) {
            this.isBound = code === 0; // a null pointer changes nothing
        }
        this.updateTargets();
        this.emit('binding');
        return code;
    }

    unbind() {
        this.surface.ZoDestoryGLWindowSurface();
        this.#isTaken = false;
        this.presentation = null;
        this.isBound = false;
        this.emit('binding');
    }

    /** Unbinds the window first, as a client must before its window is destroyed. */
    destroyWindow() {
        this.unbind();
        this.canvas.remove();
    }

    /** Updates the targets after an operation that may have changed them. */
    updateTargets() {
        if (!this.isBound || this.gl.isContextLost()) {
            return;
        }
        const before = JSON.stringify([...this.targets]);
        this.targets = this.withoutLog(() => this.#findTargets());
        if (this.presentation && !this.targets.has(this.presentation.handle)) {
            this.presentation = null;
        }
        if (JSON.stringify([...this.targets]) !== before) {
            this.emit('targets');
        }
    }

    /**
     * The pixels of a target, or of a part of it; null if they cannot be read.
     *
     * @param {number} handle
     * @param {Rect} [rect]
     */
    read(handle, rect) {
        const target = this.targets.get(handle);
        return this.isBound && target
            ? readPixels(this.gl, target, rect ?? { x: 0, y: 0, ...target })
            : null;
    }

    /**
     * Copies a target to a 2D canvas, which gets the target's size.
     *
     * @param {number} handle
     * @param {HTMLCanvasElement} canvas
     * @returns {boolean} false if the pixels cannot be read
     */
    copy(handle, canvas) {
        const picture = this.read(handle);
        if (picture) {
            Object.assign(canvas, { width: picture.width, height: picture.height });
            canvas.getContext('2d')?.putImageData(picture, 0, 0);
        }
        return picture !== null;
    }

    /**
     * @template T
     * @param {() => T} work calls that the visitor did not request
     */
    withoutLog(work) {
        const wasMuted = this.#isMuted;
        this.#isMuted = true;
        try {
            return work();
        } finally {
            this.#isMuted = wasMuted;
        }
    }

    /** @param {string} line */
    #log(line) {
        if (!this.#isMuted) {
            this.emit('log', parseLine(line));
        }
    }

    #findTargets() {
        /** @type {Map<number, Target>} */
        const targets = new Map([
            [windowHandle, { framebuffer: null, ...windowSize, isComplete: true }],
        ]);
        for (let slot = 1; slot <= mostBuffers; ++slot) {
            const target = findTarget(this.gl, this.surface, windowHandle | slot);
            if (target) {
                targets.set(windowHandle | slot, target);
            }
        }
        return targets;
    }

    // Events of a destroyed window's canvas are ignored.
    #placeCanvas() {
        const { canvas } = this;
        canvas.addEventListener('webglcontextlost', (event) => {
            event.preventDefault(); // otherwise the browser never restores it
            if (this.isBound && canvas === this.canvas) {
                this.unbind();
                this.#isTaken = true;
            }
        });
        canvas.addEventListener('webglcontextrestored', () => {
            if (this.#isTaken && canvas === this.canvas) {
                this.#isTaken = false;
                this.emit('restored');
            }
        });
        this.place.prepend(canvas);
    }
}
