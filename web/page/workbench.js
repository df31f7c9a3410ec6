// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// Connects forms and picture: the picture shows the form's rectangles and the operation's effect.

import { notice } from './dom.js';
import { runOperation } from './operations.js';
import { windowHandle } from './targets.js';

// The height of a text has no defined position. With the baseline this far below the top, the box covers
// ascenders and descenders.
const rise = 40;

/**
 * The size of the smallest rectangle around all pixels that differ.
 *
 * @param {ImageData} before
 * @param {ImageData} after
 */
function measureChange(before, after) {
    const old = new Uint32Array(before.data.buffer);
    const now = new Uint32Array(after.data.buffer);
    let [left, top, right, bottom] = [before.width, before.height, -1, -1];
    now.forEach((pixel, i) => {
        if (pixel !== old[i]) {
            const [x, y] = [i % before.width, Math.floor(i / before.width)];
            [left, right] = [Math.min(left, x), Math.max(right, x)];
            [top, bottom] = [Math.min(top, y), y];
        }
    });
    return right < 0 ? 'no pixel changed' : `${right - left + 1} × ${bottom - top + 1} changed`;
}

export class Workbench {
    /** @type {import('./log.js').LogLine[]} of the running operation */
    #lines = [];

    /**
     * @param {import('./engine.js').Engine} engine
     * @param {import('./scene.js').Player} player
     * @param {object} panels
     * @param {import('./stage.js').Stage} panels.stage
     * @param {import('./operations-panel.js').OperationsPanel} panels.panel
     * @param {import('./buffers-table.js').BuffersTable} panels.table
     */
    constructor(engine, player, { stage, panel, table }) {
        this.engine = engine;
        this.player = player;
        this.stage = stage;
        this.panel = panel;
        this.table = table;

        engine.on('log', (line) => this.#lines.push(line));
        engine.on('targets', () => panel.form.refresh());
        panel.on('change', () => this.#mark());
        panel.on('choose', () => this.#showTarget());
        panel.on('run', () => this.run());
        panel.panel.addEventListener('focusin', (event) => this.#followFocus(event));
        table.on('view', (handle) => stage.view(handle));
        table.on('destroy', (handle) => {
            panel.choose('ZoDestoryGLFBO').write({ handle });
            this.run();
            panel.focus(); // the pressed button is gone
        });
        this.#mark();
    }

    /**
     * The target of a rectangle or a pen.
     *
     * @param {import('./operations.js').Field} field
     * @returns {number}
     */
    #targetOf({ target }) {
        return target ? this.panel.form.values[target] : windowHandle;
    }

    /** @param {number | undefined} handle */
    #view(handle) {
        if (
            handle !== undefined &&
            handle !== this.stage.handle &&
            this.engine.targets.has(handle)
        ) {
            this.stage.view(handle);
        }
    }

    #mark() {
        const { form } = this.panel;
        const fields = Object.entries(form.operation.fields);
        this.stage.setMarks(
            fields
                .filter(([, { kind }]) => kind === 'rect' || kind === 'pen')
                .map(([label, field]) => ({
                    label,
                    handle: this.#targetOf(field),
                    rect: form.values[label],
                    isPen: field.kind === 'pen',
                    move: (rect) => form.write({ [label]: rect }),
                })),
        );
    }

    #showTarget() {
        const { operation, values, name } = this.panel.form;
        this.#view(name === 'ZoGetTextSize' ? this.#pen.handle : operation.drawsInto?.(values));
        this.#mark();
    }

    /** The position in the form that draws text, for texts that are only measured. */
    get #pen() {
        return this.panel.forms.get('ZoDrawText')?.values ?? {};
    }

    /**
     * Shows the target of the rectangle that the visitor is editing.
     *
     * @param {FocusEvent} event
     */
    #followFocus({ target }) {
        const element = target instanceof Element ? target.closest('[data-field]') : null;
        const field = this.panel.form.operation.fields[element?.getAttribute('data-field') ?? ''];
        if (field?.kind === 'rect' || field?.kind === 'pen') {
            this.#view(this.#targetOf(field));
        }
    }

    /** Runs the chosen operation and shows its effect. */
    run() {
        const { engine, player, stage, panel } = this;
        const { operation, values, name } = panel.form;
        const handle = operation.drawsInto?.(values);
        if (handle === windowHandle && player.isPlaying) {
            player.pause();
            notice('The scene is paused, so that it does not draw over your drawing.');
        }
        const before = name === 'ZoDrawText' ? engine.read(values.handle) : null;
        const outcome = this.#call(name, values);
        const lines = this.#lines;
        if (handle === windowHandle && name !== 'ZoDisplayFBO') {
            engine.presentation = null;
        }
        engine.updateTargets();
        this.#view(handle);
        stage.refresh();
        if (before && outcome.code === 0) {
            this.#compareSizes(outcome, values, before);
        }
        if (outcome.box) {
            const { handle, rect } = name === 'ZoDrawText' ? values : this.#pen;
            const { width, height } = outcome.box;
            const label = `${width} × ${height}`;
            stage.setBox({ handle, x: rect.x, y: rect.y - rise, width, height, label });
        }
        panel.form.show(outcome, lines);
        this.table.draw(stage.handle);
        engine.emit('drawn');
    }

    /**
     * @param {string} name
     * @param {any} values
     */
    #call(name, values) {
        this.#lines = [];
        try {
            return runOperation(this.engine, name, values);
        } catch {
            // Thrown before the library is called, while its arguments are copied.
            return { note: 'The page does not have enough memory for this call.' };
        }
    }

    /**
     * Compares the measured size of a text with the pixels that changed.
     *
     * @param {import('./operations.js').Outcome} outcome receives both
     * @param {any} values
     * @param {ImageData} before
     */
    #compareSizes(outcome, { handle, text, length }, before) {
        const { engine } = this;
        const box = engine.withoutLog(() => engine.surface.ZoGetTextSize(text, length));
        const after = engine.read(handle);
        if (after) {
            const change = measureChange(before, after);
            outcome.note = `ZoGetTextSize gives ${box.width} × ${box.height}; ${change}.`;
            outcome.box = box;
        }
    }
}
