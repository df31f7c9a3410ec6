// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// The form of one operation: its fields, its result, and the same call in C++.

import { writeCpp } from './cpp.js';
import { Emitter, make } from './dom.js';
import { makeField } from './fields.js';
import { operationNotes, results } from './library.js';
import { makeLine } from './log.js';
import { operations } from './operations.js';

const mostLines = 6;

/** Emits "run", and "change" when a value changes. */
export class Form extends Emitter {
    #code = make('code');
    #copy = make('button', { type: 'button' }, 'Copy the C++');
    #result = make('div', { class: 'result', role: 'status' });

    /**
     * @param {string} name of the operation
     * @param {import('./fields.js').Choices} choices
     */
    constructor(name, choices) {
        super();
        this.name = name;
        this.operation = operations[name];
        this.choices = choices;
        this.widgets = Object.entries(this.operation.fields).map(([key, field]) => {
            const widget = makeField({ name: key, ...field }, choices);
            widget.element.dataset.field = key;
            return { key, ...widget };
        });
        this.element = make(
            'form',
            {},
            make('p', { class: 'note' }, operationNotes[name]),
            ...this.widgets.map(({ element }) => element),
            make(
                'div',
                { class: 'outcome' },
                make('button', { class: 'main' }, `Run ${name}`),
                this.#result,
            ),
            make(
                'div',
                { class: 'bar' },
                make('p', { class: 'note' }, 'The same in C++'),
                this.#copy,
            ),
            make('pre', { tabIndex: 0, 'aria-label': 'The same in C++' }, this.#code),
        );
        this.#copy.addEventListener('click', () => this.#copyCode());
        this.element.addEventListener('input', (event) => this.#update(event));
        this.element.addEventListener('submit', (event) => {
            event.preventDefault();
            this.emit('run');
        });
        this.#update();
    }

    get values() {
        return Object.fromEntries(this.widgets.map(({ key, read }) => [key, read()]));
    }

    /** @param {Record<string, any>} values by the name of the field */
    write(values) {
        for (const { key, write } of this.widgets) {
            if (key in values) {
                write(values[key]);
            }
        }
        this.#update();
    }

    /** Updates the choices. */
    refresh() {
        this.widgets.forEach(({ refresh }) => refresh?.());
        this.#update();
    }

    /**
     * @param {import('./operations.js').Outcome} outcome
     * @param {import('./log.js').LogLine[]} lines that it logged
     */
    show({ code, note }, lines) {
        this.#result.classList.toggle('bad', Boolean(code));
        this.#result.replaceChildren();
        if (code !== undefined) {
            const { name, meaning, advice } = results[code];
            const sentence = code === 0 ? ` ${meaning}.` : ` ${meaning}. ${advice}`;
            this.#result.append(make('p', {}, make('strong', {}, `${code} ${name}`), sentence));
        }
        if (note || code === undefined) {
            this.#result.append(make('p', {}, note ?? 'It returns nothing.'));
        }
        this.#result.append(...lines.slice(0, mostLines).map((line) => makeLine(line)));
        if (lines.length > mostLines) {
            this.#result.append(`and ${lines.length - mostLines} more lines in the log`);
        }
    }

    async #copyCode() {
        try {
            await navigator.clipboard.writeText(this.#code.textContent ?? '');
            this.#copy.textContent = 'Copied';
            setTimeout(() => (this.#copy.textContent = 'Copy the C++'), 1500);
        } catch {
            getSelection()?.selectAllChildren(this.#code); // without TLS or permission there is no clipboard
        }
    }

    /** @param {Event} [event] of a visitor's input */
    #update(event) {
        this.#limitLength(event?.target);
        this.#limitPixels();
        this.#code.textContent = writeCpp(this.operation, this.values, this.choices);
        this.#copy.disabled = this.element.matches(':invalid');
        if (event) {
            this.#result.replaceChildren(); // the result belongs to other values
        }
        this.emit('change');
    }

    /** @param {string} name */
    #find(name) {
        return this.widgets.find(({ key }) => key === name);
    }

    // Keeps the length equal to the text while the visitor types, and rejects a longer one.
    /** @param {EventTarget | null} [source] */
    #limitLength(source) {
        const [text, length] = [this.#find('text')?.input, this.#find('length')?.input];
        if (text && length) {
            length.max = `${text.value.length}`;
            length.value = source === text ? length.max : length.value;
        }
    }

    // A bitmap must not have more pixels than the picture: the library would read past them.
    #limitPixels() {
        const { data, width, height } = this.values;
        if (data) {
            const isTooLarge = data.length > 0 && width * height * 4 > data.length;
            const message = isTooLarge ? 'The picture has fewer pixels.' : '';
            this.#find('width')?.input?.setCustomValidity(message);
        }
    }
}
