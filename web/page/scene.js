// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// The demo's scene, playing on the engine's surface.

import { Emitter } from './dom.js';
import { fetchPicture } from './files.js';
import { mostBuffers } from './targets.js';

/** The scene's buffers, in the order in which it creates them. */
const bufferNames = [
    'glass, as cells',
    'list',
    'next row',
    'highlight',
    'chosen row',
    'scrollbar',
    'frosted glass',
    'static parts',
    'frame',
];

const buffersToPaintWith = 2;

const shownMinute = 32; // 21:47 by the scene's clock
const lastMinute = 74;
const minutesPerFrame = 1 / 60; // one minute per second

/** Fetches the scene's pictures. */
export async function fetchScenePictures() {
    const [background, glass, logo, volume] = await Promise.all(
        ['background', 'glass', 'logo', 'volume'].map(fetchPicture),
    );
    return { background, glass, logo, volume };
}

/** Emits "state" when it starts or stops playing. */
export class Player extends Emitter {
    /** @type {Map<number, string>} the names of the scene's buffers, by handle */
    names = new Map();

    isPlaying = false;

    /** @type {import('./libzogles.mjs').DemoScene | null} */
    #scene = null;

    #minute = shownMinute;
    #request = 0;

    /**
     * @param {import('./engine.js').Engine} engine
     * @param {string} fontPath
     * @param {import('./libzogles.mjs').ScenePictures} pictures
     */
    constructor(engine, fontPath, pictures) {
        super();
        this.engine = engine;
        this.pictures = pictures;
        this.fontPath = fontPath;
        engine.on('binding', () => engine.isBound || this.pause());
        engine.on('targets', () => this.#checkBuffers());
    }

    /** False once the scene cannot be drawn any more, for example because one of its buffers was destroyed. */
    get isGood() {
        return this.#scene?.IsGood() ?? false;
    }

    get isReady() {
        return this.isGood && this.engine.isBound;
    }

    /**
     * Creates the scene again, and shows its first frame.
     *
     * @returns {boolean} false if too few buffers are free; nothing is changed then
     */
    restart() {
        const others = this.engine.targets.size - 1 - this.names.size;
        if (mostBuffers - others < bufferNames.length + buffersToPaintWith) {
            return false;
        }
        return this.engine.withoutLog(() => this.#restart());
    }

    #restart() {
        const { engine } = this;
        this.#scene?.delete();
        this.#scene = null;
        for (const handle of this.names.keys()) {
            engine.surface.ZoDestoryGLFBO(handle);
        }
        this.names.clear();
        engine.updateTargets();
        const before = new Set(engine.targets.keys());
        this.#scene = new engine.library.DemoScene(engine.surface, this.pictures);
        this.#scene.CreateBuffers();
        engine.updateTargets();
        const created = [...engine.targets.keys()].filter((handle) => !before.has(handle));
        created.forEach((handle, i) => this.names.set(handle, bufferNames[i]));
        engine.emit('targets'); // they have names now
        return this.repaint();
    }

    /** Loads the scene's font and fills its buffers, as after a loss, and shows its first frame. */
    repaint() {
        if (this.isReady) {
            this.#scene?.LoadFont(this.fontPath);
        }
        return this.rewrite();
    }

    /** Fills the scene's buffers, using the loaded font, and shows its first frame. */
    rewrite() {
        if (!this.isReady) {
            return false;
        }
        this.#scene?.Paint();
        this.#minute = shownMinute;
        this.#drawFrame();
        return this.isGood;
    }

    play() {
        if (!this.isPlaying && this.isReady) {
            this.#setPlaying(true);
            this.#request = requestAnimationFrame(() => this.#step());
        }
    }

    pause() {
        cancelAnimationFrame(this.#request);
        this.#setPlaying(false);
    }

    #step() {
        this.#scene?.Scroll();
        this.#minute = this.#minute > lastMinute ? 0 : this.#minute + minutesPerFrame;
        this.#drawFrame();
        if (this.isReady) {
            this.#request = requestAnimationFrame(() => this.#step());
        } else {
            this.pause();
        }
    }

    // A new buffer may have the handle of a destroyed one, and must not be drawn into.
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
        this.emit('state');
    }

    #drawFrame() {
        const { engine } = this;
        this.#scene?.DrawFrame(this.#minute);
        const [frame] = [...this.names.keys()].slice(-1);
        const { width, height } = engine.canvas;
        const all = { x: 0, y: 0, width, height };
        engine.presentation = { handle: frame, source: all, destination: all };
        engine.emit('drawn');
    }
}
