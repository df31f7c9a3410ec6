// The loss of the window, and of the browser's whole context, and what comes back after each.

import { find, make } from './dom.js';
import { isReadable, readPixels, windowHandle } from './targets.js';

/** @typedef {import('./engine.js').Engine} Engine */

/** @param {Engine} engine */
function holdsOnlyZeros(engine) {
    const buffers = [...engine.targets].filter(
        ([handle, target]) => handle !== windowHandle && isReadable(target),
    );
    return buffers.every(([, target]) => {
        const pixels = readPixels(engine.gl, target, {
            x: 0,
            y: 0,
            width: target.width,
            height: target.height,
        });
        return pixels.every((channel) => channel === 0);
    });
}

/** @param {Engine} engine */
function measureCode(engine) {
    const color = { r: 0, g: 0, b: 0, a: 0 };
    const fields = { text: 'a', length: 1, color, fontSize: 40, bold: false, italic: false };
    return engine.withoutLog(() => engine.surface.ZoGetTextSize(fields)).code;
}

/**
 * What is back after a binding, found out by asking and by reading pixels.
 *
 * @param {Engine} engine
 * @param {number[]} before the handles before the loss
 */
function findFacts(engine, before) {
    const back = before.filter((handle) => engine.targets.has(handle));
    const code = measureCode(engine);
    const pixels = holdsOnlyZeros(engine)
        ? 'Their pixels were not: every buffer was transparent black.'
        : 'Their pixels were there still.';
    return [
        `${back.length} of ${before.length} buffers are back under their handles.`,
        ...(back.length > 0 ? [pixels] : []),
        code === 0
            ? 'The font was there still.'
            : `The font was not: measuring a text gave ${code}, as this system has no default font.`,
        'Then the page loads its font, and paints the scene again if there is room for it.',
    ];
}

/** Tells of "back" when a lost window was bound again. */
export class Losses extends EventTarget {
    /** @type {number[] | null} the handles when the window was lost */
    #lost = null;

    /** @type {WEBGL_lose_context | null} what took the context away, until it gives it back */
    #taker = null;

    /** @param {Engine} engine */
    constructor(engine) {
        super();
        this.engine = engine;
        this.window = find('lose-window', HTMLButtonElement);
        this.context = find('lose-context', HTMLButtonElement);
        this.facts = find('loss-facts', HTMLElement);
        this.window.addEventListener('click', () => this.#toggleWindow());
        this.context.addEventListener('click', () => this.#toggleContext());
        engine.addEventListener('binding', () => this.#follow());
        engine.addEventListener('restored', () => engine.bind());
        this.#follow();
    }

    /**
     * Frees the handles of buffers that were not restored: they stay reserved otherwise.
     *
     * @param {number[]} before the handles before the loss
     */
    #destroyMissing(before) {
        const { engine } = this;
        const missing = before.filter((handle) => !engine.targets.has(handle));
        engine.withoutLog(() => missing.forEach((handle) => engine.surface.ZoDestoryGLFBO(handle)));
    }

    #toggleWindow() {
        if (this.engine.isBound) {
            this.engine.destroyWindow();
        } else {
            this.engine.bind();
        }
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
            this.#lost ??= [...engine.targets.keys()].filter((handle) => handle !== windowHandle);
            this.#show(['The window is lost. Operations fail, with codes, until one is bound.']);
        } else if (this.#lost) {
            this.#show(findFacts(engine, this.#lost));
            this.#destroyMissing(this.#lost);
            this.#lost = null;
            this.#taker = null;
            this.dispatchEvent(new Event('back'));
        }
        this.window.textContent = engine.isBound ? 'Destroy the window' : 'Create it again';
        this.window.disabled = this.#taker !== null;
        this.context.textContent = this.#taker ? 'Give it back' : 'Take the WebGL context away';
        this.context.disabled = !engine.isBound && this.#taker === null;
    }

    /** @param {string[]} lines */
    #show(lines) {
        this.facts.replaceChildren(...lines.map((line) => make('li', {}, line)));
    }
}
