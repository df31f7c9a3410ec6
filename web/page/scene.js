// The demo's scene, playing on the engine's surface.

import { fetchPicture } from './files.js';
import { mostBuffers } from './targets.js';

/** @typedef {import('./engine.js').Engine} Engine */

/** The scene's buffers, in the order in which it creates them. */
const bufferNames = [
    'glass, as cells',
    'list',
    'next row',
    'highlight',
    'chosen row',
    'scrollbar',
    'frosted glass',
    'all that does not move',
    'frame',
];

const buffersToPaintWith = 2;

const shownMinute = 32; // 21:47 by the scene's clock
const lastMinute = 74;
const minutesPerFrame = 1 / 60; // a minute in a second

/** The pictures of the demo that the scene is made of. */
export async function fetchScenePictures() {
    const [background, glass, logo, volume] = await Promise.all(
        ['background', 'glass', 'logo', 'volume'].map(fetchPicture),
    );
    return { background, glass, logo, volume };
}

/** Tells of "state" when it starts or stops to play. */
export class Player extends EventTarget {
    /**
     * The names of the scene's buffers, by handle.
     *
     * @type {Map<number, string>}
     */
    names = new Map();

    isPlaying = false;

    /** @type {import('./libzogles.mjs').DemoScene | null} */
    #scene = null;

    #minute = shownMinute;
    #request = 0;

    /**
     * @param {Engine} engine
     * @param {string} fontPath what the scene is written in
     * @param {import('./libzogles.mjs').ScenePictures} pictures
     */
    constructor(engine, fontPath, pictures) {
        super();
        this.engine = engine;
        this.pictures = pictures;
        this.fontPath = fontPath;
        engine.addEventListener('binding', () => engine.isBound || this.pause());
        engine.addEventListener('targets', () => this.#checkBuffers());
    }

    /** False once the scene cannot be drawn any more, as when a buffer of its was destroyed. */
    get isGood() {
        return this.#scene?.IsGood() ?? false;
    }

    get isReady() {
        return this.isGood && this.engine.isBound;
    }

    /**
     * Creates the scene anew, and shows its first frame.
     *
     * @returns {boolean} whether that went well; without room for it, nothing is changed
     */
    restart() {
        const others = this.engine.targets.size - 1 - this.names.size;
        if (mostBuffers - others < bufferNames.length + buffersToPaintWith) {
            return false;
        }
        return this.engine.withoutLog(() => this.#restart());
    }

    #restart() {
        this.#scene?.delete();
        this.#scene = null;
        for (const handle of this.names.keys()) {
            if (this.engine.targets.has(handle)) {
                this.engine.surface.ZoDestoryGLFBO(handle);
            }
        }
        this.names.clear();
        this.engine.updateTargets();
        const before = new Set(this.engine.targets.keys());
        this.#scene = new this.engine.library.DemoScene(this.engine.surface, this.pictures);
        this.#scene.CreateBuffers();
        this.engine.updateTargets();
        const own = [...this.engine.targets.keys()].filter((handle) => !before.has(handle));
        own.forEach((handle, i) => this.names.set(handle, bufferNames[i]));
        this.engine.dispatchEvent(new Event('targets')); // they have names now
        return this.repaint();
    }

    /** Loads the scene's font and fills its buffers, as after a loss, and shows its first frame. */
    repaint() {
        if (this.isReady) {
            this.#scene?.LoadFont(this.fontPath);
        }
        return this.rewrite();
    }

    /** Fills the scene's buffers in the font that is loaded, and shows its first frame. */
    rewrite() {
        if (!this.isReady) {
            return false;
        }
        this.#scene?.Paint();
        this.#minute = shownMinute;
        this.drawFrame();
        return this.isGood;
    }

    play() {
        if (this.isPlaying || !this.isReady) {
            return;
        }
        this.#setPlaying(true);
        const step = () => {
            if (!this.isPlaying) {
                return;
            }
            this.#scene?.Scroll();
            this.#minute = this.#minute > lastMinute ? 0 : this.#minute + minutesPerFrame;
            this.drawFrame();
            if (this.isReady) {
                this.#request = requestAnimationFrame(step);
            } else {
                this.pause();
            }
        };
        this.#request = requestAnimationFrame(step);
    }

    pause() {
        cancelAnimationFrame(this.#request);
        this.#setPlaying(false);
    }

    // Another buffer may get the handle of one that is gone, and is not the scene's to draw into.
    #checkBuffers() {
        const gone = [...this.names.keys()].filter((handle) => !this.engine.targets.has(handle));
        gone.forEach((handle) => this.names.delete(handle));
        if (gone.length > 0 && this.#scene) {
            this.#scene.delete();
            this.#scene = null;
            this.pause();
        }
    }

    /** @param {boolean} isPlaying */
    #setPlaying(isPlaying) {
        this.isPlaying = isPlaying;
        this.dispatchEvent(new Event('state'));
    }

    drawFrame() {
        const { engine } = this;
        this.#scene?.DrawFrame(this.#minute);
        const [frame] = [...this.names.keys()].slice(-1);
        const { width, height } = engine.canvas;
        const all = { x: 0, y: 0, width, height };
        engine.presentation = { handle: frame, source: all, destination: all };
        engine.tellDrawn();
    }
}
