// The library at work: its module, one surface on one canvas, and the losses of both. Knows nothing of
// the page but the canvas's place.

import createLibrary from './libzogles.mjs';
import { createLineReader } from './log.js';
import { findTarget, mostBuffers, windowHandle } from './targets.js';

/** @typedef {import('./libzogles.mjs').Rect} Rect */
/** @typedef {import('./targets.js').Target} Target */
/** @typedef {{ handle: number, source: Rect, destination: Rect }} Presentation */

export const windowSize = { width: 1280, height: 720 };

// The library asks for a plain context. The page asks first, so that what the window holds stays there to
// be looked at: elsewhere it is undefined once it was shown.
function createCanvas() {
    const canvas = document.createElement('canvas');
    Object.assign(canvas, windowSize);
    canvas.setAttribute('role', 'img');
    canvas.setAttribute('aria-label', 'The window that the library draws on');
    const isThere = canvas.getContext('webgl', {
        alpha: true,
        antialias: false,
        depth: false,
        stencil: false,
        preserveDrawingBuffer: true,
    });
    if (!isThere) {
        throw new Error('This browser has no WebGL, which the library draws with.');
    }
    return canvas;
}

/** @param {Map<number, Target>} targets */
function describeTargets(targets) {
    return [...targets].map(([handle, { width, height }]) => `${handle} ${width} ${height}`).join();
}

/**
 * Tells of: "log" with a line; "targets" when a target came, went or changed its size; "drawn" when
 * pixels may have changed; "binding" when the surface was bound or let go of; "restored" when the browser
 * gives back a context that it took.
 */
export class Engine extends EventTarget {
    /**
     * @param {HTMLElement} place where the canvas goes
     */
    static async start(place) {
        /** @type {Engine | undefined} */
        let engine;
        const canvas = createCanvas();
        const stderr = createLineReader((line) => engine?.tellLine(line));
        engine = new Engine(place, canvas, await createLibrary({ canvas, stderr }));
        return engine;
    }

    /**
     * What the window shows, if it was presented from a buffer.
     *
     * @type {Presentation | null}
     */
    presentation = null;

    /**
     * The targets by handle, the window first. While no window is bound, as they last were.
     *
     * @type {Map<number, Target>}
     */
    targets = new Map();

    isBound = false;

    /** Whether the browser took the context, and the surface is to be bound again when it gives it back. */
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
        this.#place();
    }

    /** The library's own WebGL context. */
    get gl() {
        return /** @type {WebGLRenderingContext} */ (this.canvas.getContext('webgl'));
    }

    /** @returns {number} the code of the binding */
    bind() {
        if (!this.canvas.isConnected) {
            this.canvas = createCanvas();
            this.library.canvas = this.canvas;
            this.#place();
        }
        return this.#afterBinding(this.surface.ZoCreateGLWindowSurface(true));
    }

    /** @returns {number} the code of binding to no window at all */
    bindNothing() {
        return this.#afterBinding(this.surface.ZoCreateGLWindowSurface(false));
    }

    /** Lets go of the window, which stays where it is. */
    letGo() {
        this.surface.ZoDestoryGLWindowSurface();
        this.#isTaken = false;
        this.presentation = null;
        this.isBound = false;
        this.#tell('binding');
    }

    /** Lets go of the window, as its owner is about to destroy it, and destroys it. */
    destroyWindow() {
        this.letGo();
        this.canvas.remove();
    }

    /** Looks at the targets anew, after an operation that may have changed them. */
    updateTargets() {
        if (!this.isBound || this.gl.isContextLost()) {
            return;
        }
        const before = describeTargets(this.targets);
        this.targets = this.withoutLog(() => this.#findTargets());
        if (this.presentation && !this.targets.has(this.presentation.handle)) {
            this.presentation = null;
        }
        if (describeTargets(this.targets) !== before) {
            this.#tell('targets');
        }
    }

    tellDrawn() {
        this.#tell('drawn');
    }

    /**
     * @template T
     * @param {() => T} work what the page does for itself, and nobody wants to read about
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

    // A window that was destroyed may lose its context later on, which is nobody's affair any more.
    #place() {
        const { canvas } = this;
        canvas.addEventListener('webglcontextlost', (event) => {
            event.preventDefault(); // or the browser never gives it back
            if (this.isBound && canvas === this.canvas) {
                this.letGo();
                this.#isTaken = true;
            }
        });
        canvas.addEventListener('webglcontextrestored', () => {
            if (this.#isTaken && canvas === this.canvas) {
                this.#isTaken = false;
                this.#tell('restored');
            }
        });
        this.place.prepend(canvas);
    }

    /** @param {number} code */
    #afterBinding(code) {
        const changedNothing = code === 101; // a null window
        this.isBound = changedNothing ? this.isBound : code === 0;
        this.updateTargets();
        this.#tell('binding');
        return code;
    }

    /** @param {import('./log.js').LogLine} line */
    tellLine(line) {
        if (!this.#isMuted) {
            this.dispatchEvent(new CustomEvent('log', { detail: line }));
        }
    }

    /** @param {string} type */
    #tell(type) {
        this.dispatchEvent(new Event(type));
    }
}
