// The log, filtered by the platform's own syntax, and by the library's own reading of it.

import { find, make, oncePerFrame } from './dom.js';
import { priorityOf } from './log.js';

/** @typedef {import('./log.js').LogLine & { count: number }} Entry */

const mostEntries = 500;

/**
 * @param {import('./log.js').LogLine} line
 * @param {number} count how often it came in a row
 */
export function makeLine({ priority, tag, text }, count = 1) {
    return make(
        'div',
        { class: `line priority-${priority}` },
        make('span', { class: 'priority' }, priority),
        make('span', { class: 'tag' }, tag),
        make('span', { class: 'text' }, text),
        count > 1 ? make('span', { class: 'count' }, `×${count}`) : '',
    );
}

export class LogPanel {
    /** @type {Entry[]} */
    #entries = [];

    #ask = oncePerFrame(() => this.#show());

    /** @param {import('./engine.js').Engine} engine */
    constructor(engine) {
        this.engine = engine;
        this.list = find('log-lines', HTMLElement);
        this.filter = find('log-filter', HTMLInputElement);
        this.hidden = find('log-hidden', HTMLElement);
        this.filter.addEventListener('input', () => this.#ask());
        find('log-clear', HTMLButtonElement).addEventListener('click', () => {
            this.#entries = [];
            this.#ask();
        });
        engine.addEventListener('log', (event) =>
            this.#add(/** @type {CustomEvent} */ (event).detail),
        );
    }

    /** @param {import('./log.js').LogLine} line */
    #add(line) {
        const last = this.#entries[this.#entries.length - 1];
        if (
            last &&
            last.text === line.text &&
            last.tag === line.tag &&
            last.priority === line.priority
        ) {
            ++last.count;
        } else {
            this.#entries.push({ ...line, count: 1 });
            this.#entries.splice(0, this.#entries.length - mostEntries);
        }
        this.#ask();
    }

    #show() {
        const { library } = this.engine;
        const shown = this.#entries.filter(({ priority, tag }) =>
            library.Shows(this.filter.value, priorityOf(priority), tag),
        );
        const { scrollTop, scrollHeight, clientHeight } = this.list;
        const isAtEnd = scrollTop + clientHeight > scrollHeight - 8;
        this.list.replaceChildren(...shown.map((entry) => makeLine(entry, entry.count)));
        if (isAtEnd) {
            this.list.scrollTop = this.list.scrollHeight; // who reads further up is left there
        }
        const hidden = this.#entries.length - shown.length;
        this.hidden.textContent = hidden === 0 ? '' : `${hidden} filtered out`;
    }
}
