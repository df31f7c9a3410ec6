// The form of one operation: its fields, the C++ that does the same, and what came of it.

import { make } from './dom.js';
import { makeField } from './fields.js';
import { operationNotes, results } from './library.js';
import { makeLine } from './log-panel.js';

/** @typedef {import('./operations.js').Operation} Operation */
/** @typedef {import('./operations.js').Outcome} Outcome */

const mostLines = 6;

/** @param {Outcome} outcome */
function describe({ code, note }) {
    const told = note ? [make('p', {}, note)] : [];
    if (code === undefined) {
        return note ? told : [make('p', {}, 'It returns nothing.')];
    }
    const { name, meaning, advice } = results[code];
    const sentence = `${meaning}.${code === 0 ? '' : ` ${advice}`}`;
    return [make('p', {}, make('strong', {}, `${code} ${name}`), ` ${sentence}`), ...told];
}

export class Form extends EventTarget {
    /** @type {Record<string, import('./fields.js').Widget>} */
    #widgets = {};

    #code = make('code');
    #copy = make('button', { type: 'button', class: 'quiet' }, 'Copy the C++');
    #result = make('div', { class: 'result', role: 'status' });

    /**
     * Tells of "run" with the values, and of "change".
     *
     * @param {Operation} operation
     * @param {import('./fields.js').Choices} choices
     */
    constructor(operation, choices) {
        super();
        this.operation = operation;
        const fields = Object.entries(operation.fields).map(([name, field]) => {
            this.#widgets[name] = makeField(field, choices);
            this.#widgets[name].element.dataset.field = name;
            return this.#widgets[name].element;
        });
        this.#copy.addEventListener('click', () => this.#copyCode());
        this.element = make(
            'form',
            { class: 'operation' },
            make('p', { class: 'note' }, operationNotes[operation.name]),
            ...fields,
            make('pre', { tabIndex: 0, 'aria-label': 'The same in C++' }, this.#code),
            make(
                'div',
                { class: 'actions' },
                make('button', { class: 'main' }, `Run ${operation.name}`),
                this.#copy,
            ),
            this.#result,
        );
        this.element.addEventListener('input', (event) => this.#update(event));
        this.element.addEventListener('submit', (event) => {
            event.preventDefault();
            this.dispatchEvent(new Event('run'));
        });
        this.#update();
    }

    get values() {
        const entries = Object.entries(this.#widgets).map(([name, widget]) => [
            name,
            widget.read(),
        ]);
        return Object.fromEntries(entries);
    }

    /**
     * @param {string} name of a field
     * @param {any} value
     */
    write(name, value) {
        this.#widgets[name].write(value);
        this.#update();
    }

    /** Lists anew what there is to choose from. */
    refresh() {
        Object.values(this.#widgets).forEach((widget) => widget.refresh?.());
        this.#update();
    }

    /**
     * @param {Outcome} outcome
     * @param {import('./log.js').LogLine[]} lines what it logged
     */
    show(outcome, lines) {
        const logged = lines.slice(0, mostLines).map((line) => makeLine(line));
        const more =
            lines.length > mostLines ? [`… and more in the log: ${lines.length - mostLines}`] : [];
        this.#result.classList.toggle('bad', (outcome.code ?? 0) !== 0);
        this.#result.replaceChildren(...describe(outcome), ...logged, ...more);
    }

    async #copyCode() {
        try {
            await navigator.clipboard.writeText(this.#code.textContent ?? '');
            this.#copy.textContent = 'Copied';
            setTimeout(() => (this.#copy.textContent = 'Copy the C++'), 1500);
        } catch {
            getSelection()?.selectAllChildren(this.#code); // without TLS or leave, there is no clipboard
        }
    }

    /** @param {Event} [event] */
    #update(event) {
        const source =
            event?.target instanceof Element ? event.target.closest('[data-field]') : null;
        this.#followText(source);
        this.#limitPixels();
        this.#code.textContent = this.operation.cpp(this.values).join('\n');
        this.#copy.disabled = this.element.matches(':invalid');
        if (event) {
            this.#result.replaceChildren(); // it belongs to other values
        }
        this.dispatchEvent(new Event('change'));
    }

    // The record's length may not promise more units than the text has.
    /** @param {Element | null} source */
    #followText(source) {
        const { text, length } = this.#widgets;
        if (!text || !length) {
            return;
        }
        const units = text.read().length;
        const input = length.element.querySelector('input');
        if (input) {
            input.max = `${units}`;
        }
        if (source === text.element) {
            length.write(units);
        }
    }

    // Nor may a bitmap promise more pixels than there are: the library would read past them.
    #limitPixels() {
        const { data, width, height } = this.#widgets;
        if (!data) {
            return;
        }
        const pixels = data.read().length / 4;
        const isTooMany = pixels > 0 && width.read() * height.read() > pixels;
        width.element
            .querySelector('input')
            ?.setCustomValidity(
                isTooMany ? 'The picture has fewer pixels: the library would read past them.' : '',
            );
    }
}
