// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// The list of operations and the form of the chosen one.

import { Emitter, find, make } from './dom.js';
import { Form } from './form.js';
import { operations } from './operations.js';

/** Emits "choose" when another form is shown, and the shown form's "change" and "run". */
export class OperationsPanel extends Emitter {
    /** @type {Map<string, HTMLInputElement>} */
    #radios = new Map();

    /** @type {Map<string, Form>} they keep their values while others are shown */
    forms = new Map();

    panel = find('operation-panel', HTMLElement);

    /** @param {import('./fields.js').Choices} choices */
    constructor(choices) {
        super();
        for (const [name, { group }] of Object.entries(operations)) {
            const form = new Form(name, choices);
            form.on('run', () => this.emit('run'));
            form.on('change', () => this.emit('change'));
            this.forms.set(name, form);
            const radio = make('input', { type: 'radio', name: 'operation' });
            radio.addEventListener('change', () => this.choose(name));
            this.#radios.set(name, radio);
            const label = make('label', {}, radio, make('code', {}, name));
            find(`group-${group}`, HTMLElement).append(label);
        }
        this.form = this.choose('ZoDrawRect');
    }

    /**
     * @param {string} name
     * @returns {Form}
     */
    choose(name) {
        this.form = /** @type {Form} */ (this.forms.get(name));
        this.form.refresh();
        Object.assign(this.#radios.get(name) ?? {}, { checked: true });
        this.panel.replaceChildren(this.form.element);
        this.emit('choose');
        return this.form;
    }

    /** Puts the keyboard's focus on the chosen operation. */
    focus() {
        this.#radios.get(this.form.name)?.focus();
    }
}
