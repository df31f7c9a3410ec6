// The list of operations, as tabs, and the form of the chosen one.

import { find, make } from './dom.js';
import { Form } from './form.js';
import { operations } from './operations.js';

const groups = /** @type {const} */ (['Drawing', 'Text', 'Buffers', 'Window']);

/**
 * Tells of "choose" when another form is shown, and of "change" and "run" of the shown one.
 */
export class OperationsPanel extends EventTarget {
    /** @param {import('./fields.js').Choices} choices */
    constructor(choices) {
        super();
        this.choices = choices;
        /** @type {Map<string, Form>} */
        this.forms = new Map();
        this.form = this.#formOf(operations[0]);
        this.panel = find('operation-panel', HTMLElement);
        this.tabs = operations.map(({ name }) =>
            make(
                'button',
                {
                    type: 'button',
                    role: 'tab',
                    id: `tab-${name}`,
                    'aria-controls': 'operation-panel',
                },
                name,
            ),
        );
        const list = find('operation-tabs', HTMLElement);
        for (const group of groups) {
            const members = this.tabs.filter((_, i) => operations[i].group === group);
            list.append(
                make(
                    'div',
                    { class: 'group', role: 'presentation' },
                    make('span', { 'aria-hidden': 'true' }, group),
                    ...members,
                ),
            );
        }
        // In the order in which they are seen.
        this.order = /** @type {HTMLButtonElement[]} */ ([...list.querySelectorAll('[role=tab]')]);
        for (const tab of this.order) {
            tab.addEventListener('click', () => this.choose(tab.textContent ?? ''));
            tab.addEventListener('keydown', (event) => this.#move(event, tab));
        }
        this.choose(operations[0].name);
    }

    /** @param {string} name */
    choose(name) {
        const operation = operations.find((candidate) => candidate.name === name) ?? operations[0];
        this.form = this.#formOf(operation);
        this.form.refresh();
        for (const tab of this.order) {
            const isChosen = tab.textContent === operation.name;
            tab.setAttribute('aria-selected', `${isChosen}`);
            tab.tabIndex = isChosen ? 0 : -1;
        }
        this.panel.setAttribute('aria-labelledby', `tab-${operation.name}`);
        this.panel.replaceChildren(this.form.element);
        this.dispatchEvent(new Event('choose'));
    }

    /**
     * A form keeps what was filled in while others are shown.
     *
     * @param {import('./operations.js').Operation} operation
     */
    #formOf(operation) {
        const known = this.forms.get(operation.name);
        if (known) {
            return known;
        }
        const form = new Form(operation, this.choices);
        form.addEventListener('run', () => this.dispatchEvent(new Event('run')));
        form.addEventListener('change', () => this.dispatchEvent(new Event('change')));
        this.forms.set(operation.name, form);
        return form;
    }

    /** Puts the keyboard on the chosen operation. */
    focus() {
        this.order.find(({ tabIndex }) => tabIndex === 0)?.focus();
    }

    /**
     * @param {KeyboardEvent} event
     * @param {HTMLButtonElement} tab
     */
    #move(event, tab) {
        const steps = /** @type {Record<string, number>} */ ({
            ArrowRight: 1,
            ArrowDown: 1,
            ArrowLeft: -1,
            ArrowUp: -1,
            Home: -this.order.indexOf(tab),
            End: -1 - this.order.indexOf(tab),
        });
        if (!(event.key in steps)) {
            return;
        }
        event.preventDefault();
        const count = this.order.length;
        const next = this.order[(this.order.indexOf(tab) + steps[event.key] + count) % count];
        this.choose(next.textContent ?? '');
        next.focus();
    }
}
