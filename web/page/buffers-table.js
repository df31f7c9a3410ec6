// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// The table of buffers: the handle, the size and a live miniature of each.

import { Emitter, find, make, makeRow } from './dom.js';
import { formatHandle, mostBuffers, windowHandle } from './targets.js';

const pauseBetweenMiniatures = 100; // milliseconds; one is drawn at a time

/** Emits "view" and "destroy" with a handle. */
export class BuffersTable extends Emitter {
    /** @type {Map<number, HTMLCanvasElement>} */
    #miniatures = new Map();

    #next = 0;

    /**
     * @param {import('./engine.js').Engine} engine
     * @param {(handle: number) => string} nameOf
     */
    constructor(engine, nameOf) {
        super();
        this.engine = engine;
        this.nameOf = nameOf;
        this.table = find('buffer-table', HTMLElement);
        engine.on('targets', () => this.#fill());
        engine.on('binding', () => this.#fill());
        setInterval(() => this.#drawNext(), pauseBetweenMiniatures);
        this.#fill();
    }

    #fill() {
        const handles = [...this.engine.targets.keys()].filter((handle) => handle !== windowHandle);
        const state = this.engine.isBound ? 'in use' : 'restored when a window is bound';
        find('buffer-count', HTMLElement).textContent =
            `${handles.length} of ${mostBuffers} ${state}`;
        const known = this.#miniatures;
        this.#miniatures = new Map(
            handles.map((handle) => [handle, known.get(handle) ?? this.#makeMiniature(handle)]),
        );
        this.table.replaceChildren(
            makeRow(['Handle', 'Size', 'Contents', ''], 'th'),
            ...handles.map((handle) => this.#makeRow(handle)),
        );
        handles.filter((handle) => !known.has(handle)).forEach((handle) => this.draw(handle));
    }

    /** @param {number} handle */
    #makeMiniature(handle) {
        return make('canvas', { role: 'img', 'aria-label': `Contents of ${formatHandle(handle)}` });
    }

    /** @param {number} handle */
    #makeRow(handle) {
        const { width, height } = this.engine.targets.get(handle) ?? {};
        const buttons = ['View', 'Destroy'].map((label) => this.#makeButton(label, handle));
        const name = make('small', {}, this.nameOf(handle));
        return makeRow([
            make('div', {}, make('code', {}, formatHandle(handle)), name),
            `${width} × ${height}`,
            this.#miniatures.get(handle) ?? '',
            make('div', { class: 'bar' }, ...buttons),
        ]);
    }

    /**
     * @param {string} label
     * @param {number} handle
     */
    #makeButton(label, handle) {
        const name = `${label} ${formatHandle(handle)}`;
        const button = make('button', { type: 'button', 'aria-label': name }, label);
        button.addEventListener('click', () => this.emit(label.toLowerCase(), handle));
        return button;
    }

    #drawNext() {
        const handles = [...this.#miniatures.keys()];
        const bounds = this.table.getBoundingClientRect();
        const isSeen = bounds.bottom > 0 && bounds.top < innerHeight && !document.hidden;
        if (handles.length > 0 && isSeen) {
            this.#next = (this.#next + 1) % handles.length;
            this.draw(handles[this.#next]);
        }
    }

    /** @param {number} handle */
    draw(handle) {
        const miniature = this.#miniatures.get(handle);
        if (miniature && this.engine.isBound) {
            miniature.hidden = !this.engine.copy(handle, miniature);
        }
    }
}
