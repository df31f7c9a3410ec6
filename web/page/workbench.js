// Forms and picture, tied together: the form's rectangles lie on the picture, and the picture shows what
// the form's operation did.

import { notice } from './dom.js';
import { compareSizes, placeBox, takePicture } from './measure.js';
import { ownHandle } from './operations.js';
import { windowHandle } from './targets.js';

/** Where a text is drawn unless its form says otherwise. */
const usualPen = { handle: ownHandle, rect: { x: 60, y: 200 } };

export class Workbench {
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

        panel.addEventListener('change', () => this.#mark());
        panel.addEventListener('choose', () => this.#showTarget());
        panel.addEventListener('run', () => this.#run());
        panel.panel.addEventListener('focusin', (event) => this.#followFocus(event));
        table.addEventListener('view', (event) =>
            stage.view(/** @type {CustomEvent} */ (event).detail),
        );
        table.addEventListener('destroy', (event) =>
            this.#destroy(/** @type {CustomEvent} */ (event).detail),
        );
        engine.addEventListener('targets', () => panel.form.refresh());
        this.#mark();
    }

    get #pen() {
        return this.panel.forms.get('ZoDrawText')?.values ?? usualPen;
    }

    /**
     * The target that a rectangle or a pen lies on.
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
                .map(([name, field]) => ({
                    label: field.label,
                    handle: this.#targetOf(field),
                    rect: { width: 0, height: 0, ...form.values[name] },
                    isPen: field.kind === 'pen',
                    move: (rect) => form.write(name, rect),
                })),
        );
    }

    #showTarget() {
        const { operation, values } = this.panel.form;
        const isMeasuring = operation.name === 'ZoGetTextSize';
        this.#view(isMeasuring ? this.#pen.handle : operation.drawsInto?.(values));
        this.#mark();
    }

    /**
     * Who fills in a rectangle sees what it lies on.
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

    #run() {
        const { engine, player, stage, panel } = this;
        const { operation, values } = panel.form;
        const handle = operation.drawsInto?.(values);
        if (handle === windowHandle && player.isPlaying) {
            player.pause();
            notice('The scene pauses, so that what you draw on the window stays.');
        }
        const before = operation.name === 'ZoDrawText' ? takePicture(engine, values.handle) : null;
        const { outcome, lines } = this.#call();
        if (handle === windowHandle && operation.name !== 'ZoDisplayFBO') {
            engine.presentation = null;
        }
        engine.updateTargets();
        this.#view(handle);
        stage.refresh();
        this.#showBox(outcome, before);
        panel.form.show(outcome, lines);
        this.table.draw(stage.handle);
        engine.tellDrawn();
    }

    /** Runs the operation, and gathers what it logs. */
    #call() {
        const { operation, values } = this.panel.form;
        /** @type {import('./log.js').LogLine[]} */
        const lines = [];
        const listen = (/** @type {Event} */ event) =>
            lines.push(/** @type {CustomEvent} */ (event).detail);
        this.engine.addEventListener('log', listen);
        try {
            return { outcome: operation.run(this.engine, values), lines };
        } catch {
            // Not the library: what is handed to it is copied first.
            return { outcome: { note: 'The page has no memory for such a call.' }, lines };
        } finally {
            this.engine.removeEventListener('log', listen);
        }
    }

    /**
     * Shows the size that the library reports of a text, over what was drawn.
     *
     * @param {import('./operations.js').Outcome} outcome gets a note of it
     * @param {ReturnType<typeof takePicture>} before the target before it was drawn, if it was
     */
    #showBox(outcome, before) {
        const { engine, stage } = this;
        if (outcome.box) {
            stage.setBox({ handle: this.#pen.handle, ...placeBox(outcome.box, this.#pen.rect) });
            return;
        }
        const { values } = this.panel.form;
        const after = before && outcome.code === 0 ? takePicture(engine, values.handle) : null;
        if (before && after) {
            const size = engine.withoutLog(() => engine.surface.ZoGetTextSize(values));
            stage.setBox({ handle: values.handle, ...placeBox(size, values.rect) });
            outcome.note = compareSizes(size, before, after);
        }
    }

    /** @param {number} handle */
    #destroy(handle) {
        this.panel.choose('ZoDestoryGLFBO');
        this.panel.form.write('handle', handle);
        this.#run();
        this.panel.focus(); // the button that was pressed is gone
    }
}
