// The platform's log, as the page receives it: a line at a time, from the module's standard error.

/** @typedef {{ priority: string, tag: string, text: string }} LogLine */

const format = /^([VDIWEF?])\/([^:]*): ?(.*)$/;

/** The platform's numbers of the letters. */
const priorities = /** @type {Record<string, number>} */ ({ V: 2, D: 3, I: 4, W: 5, E: 6, F: 7 });

/** @param {string} letter */
export function priorityOf(letter) {
    return priorities[letter] ?? priorities.F;
}

/**
 * Gathers bytes to lines.
 *
 * @param {(line: LogLine) => void} tell
 * @returns {(byte: number) => void}
 */
export function createLineReader(tell) {
    const decoder = new TextDecoder();
    /** @type {number[]} */
    let bytes = [];
    return (byte) => {
        if (byte !== 10) {
            bytes.push(byte);
            return;
        }
        const line = decoder.decode(new Uint8Array(bytes));
        bytes = [];
        const [, priority, tag, text] = format.exec(line) ?? ['', 'E', 'page', line];
        tell({ priority, tag, text });
    };
}
