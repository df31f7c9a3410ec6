// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// The platform's log, filtered by the library's filter.

import { find, make, throttle } from './dom.js';

/** @typedef {{ priority: string, tag: string, text: string }} LogLine */

const format = /^([VDIWEF])\/([^:]*): ?(.*)$/;
const lowestPriority = 2; // the platform's number of V
const mostEntries = 500;

/** @param {string} line */
export function parseLine(line) {
    const [, priority, tag, text] = format.exec(line) ?? ['', 'E', 'page', line];
    return { priority, tag, text };
}

/**
 * @param {LogLine} line
 * @param {number} count repetitions in a row
 */
export function makeLine({ priority, tag, text }, count = 1) {
    const times = count > 1 ? ` ×${count}` : '';
    return make(
        'code',
        { class: `line priority-${priority}` },
        make('b', {}, priority),
        ` ${tag}: ${text}${times}`,
    );
}

export class LogPanel {
    /** @type {(LogLine & { count: number })[]} */
    #entries = [];

    #showLater = throttle(() => this.#show());

    /** @param {import('./engine.js').Engine} engine */
    constructor(engine) {
        this.library = engine.library;
        this.list = find('log-lines', HTMLElement);
        this.filter = find('log-filter', HTMLInputElement);
        this.hidden = find('log-hidden', HTMLElement);
        this.filter.addEventListener('input', this.#showLater);
        find('log-clear', HTMLButtonElement).addEventListener('click', () => {
            this.#entries = [];
            this.#show();
        });
        engine.on('log', (line) => this.#add(line));
    }

    /** @param {LogLine} line */
    #add(line) {
        const last = this.#entries[this.#entries.length - 1];
        const isRepeated =
            last?.text === line.text && last.tag === line.tag && last.priority === line.priority;
        if (isRepeated) {
            ++last.count;
        } else {
            this.#entries.push({ ...line, count: 1 });
            this.#entries.splice(0, this.#entries.length - mostEntries);
        }
        this.#showLater();
    }

    #show() {
        const shown = this.#entries.filter(({ priority, tag }) => {
            const number = lowestPriority + 'VDIWEF'.indexOf(priority);
            return this.library.Shows(this.filter.value, number, tag);
        });
        const { scrollTop, scrollHeight, clientHeight } = this.list;
        const isAtEnd = scrollTop + clientHeight > scrollHeight - 8;
        this.list.replaceChildren(...shown.map((entry) => makeLine(entry, entry.count)));
        if (isAtEnd) {
            this.list.scrollTop = this.list.scrollHeight; // only if the reader has not scrolled up
        }
        const hidden = this.#entries.length - shown.length;
        this.hidden.textContent = hidden === 0 ? '' : `${hidden} filtered out`;
    }
}
