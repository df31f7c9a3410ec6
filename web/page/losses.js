// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// Loses the window or the WebGL context, and shows what is restored afterwards.

import { Emitter, find, make } from './dom.js';
import { windowHandle } from './targets.js';

/** @param {import('./engine.js').Engine} engine */
function listBuffers(engine) {
    return [...engine.targets.keys()].filter((handle) => handle !== windowHandle);
}

/**
 * Describes what a binding restored, found by calls and by reading pixels.
 *
 * @param {import('./engine.js').Engine} engine
 * @param {number[]} before the handles before the loss
 */
function findFacts(engine, before) {
    const back = listBuffers(engine);
    const isBlank = back.every((handle) =>
        engine.read(handle)?.data.every((channel) => channel === 0),
    );
    const { code } = engine.withoutLog(() => engine.surface.ZoGetTextSize('a', 1));
    return [
        `${back.length} of ${before.length} buffers are back, with the same handles.`,
        isBlank ? 'Their pixels are lost: all are transparent black.' : 'Their pixels are kept.',
        code === 0 ? 'The font is kept.' : `The font is lost: measuring a text returns ${code}.`,
        'The page then loads its font and paints the scene again, if enough buffers are free.',
    ];
}

/** Emits "back" when a lost window is bound again. */
export class Losses extends Emitter {
    /** @type {number[] | null} the handles when the window was lost */
    #lost = null;

    /** @type {WEBGL_lose_context | null} restores the context that it took */
    #taker = null;

    /** @param {import('./engine.js').Engine} engine */
    constructor(engine) {
        super();
        this.engine = engine;
        this.window = find('lose-window', HTMLButtonElement);
        this.context = find('lose-context', HTMLButtonElement);
        this.window.addEventListener('click', () =>
            engine.isBound ? engine.destroyWindow() : engine.bind(),
        );
        this.context.addEventListener('click', () => this.#toggleContext());
        engine.on('binding', () => this.#follow());
        engine.on('restored', () => engine.bind());
        this.#follow();
    }

    #toggleContext() {
        if (this.#taker) {
            this.#taker.restoreContext();
            this.#taker = null;
        } else {
            this.#taker = this.engine.gl.getExtension('WEBGL_lose_context');
            this.#taker?.loseContext();
        }
    }

    #follow() {
        const { engine } = this;
        if (!engine.isBound) {
            this.#lost ??= listBuffers(engine);
            this.#show(['The window is lost. Operations fail until one is bound.']);
        } else if (this.#lost) {
            this.#show(findFacts(engine, this.#lost));
            this.#destroyMissing(this.#lost);
            this.#lost = null;
            this.#taker = null;
            this.emit('back');
        }
        this.window.textContent = engine.isBound ? 'Destroy the window' : 'Create a window';
        this.window.disabled = this.#taker !== null;
        this.context.textContent = this.#taker ? 'Restore the context' : 'Lose the WebGL context';
        this.context.disabled = !engine.isBound && this.#taker === null;
    }

    /**
     * Frees the handles of buffers that were not restored: otherwise they stay reserved.
     *
     * @param {number[]} before the handles before the loss
     */
    #destroyMissing(before) {
        const { engine } = this;
        const missing = before.filter((handle) => !engine.targets.has(handle));
        engine.withoutLog(() => missing.forEach((handle) => engine.surface.ZoDestoryGLFBO(handle)));
    }

    /** @param {string[]} lines */
    #show(lines) {
        const items = lines.map((line) => make('li', {}, line));
        find('loss-facts', HTMLElement).replaceChildren(...items);
    }
}
