// Values as C++ writes them.

import { formatHandle, noHandle, windowHandle } from './targets.js';

/** @param {number} handle */
export function cppHandle(handle) {
    if (handle === windowHandle) {
        return 'ZO_WINDOW_HANDLE';
    }
    return handle === noHandle ? 'ZO_NO_HANDLE' : formatHandle(handle);
}

/** @param {import('./libzogles.mjs').Rect} rect */
export function cppRect({ x, y, width, height }) {
    return `{${x}, ${y}, ${width}, ${height}}`;
}

/** @param {import('./libzogles.mjs').Color} color */
export function cppColor({ r, g, b, a }) {
    return `{${r}, ${g}, ${b}, ${a}}`;
}

/**
 * A literal that holds the very units of a text, also halves of pairs and what cannot be seen.
 *
 * @param {string} text
 */
export function cppText(text) {
    const units = [...text].map((unit) => {
        if (unit === '"' || unit === '\\') {
            return `\\${unit}`;
        }
        // The literal ends after a number, and another begins: digits that follow would belong to it.
        return /^[\0-\x1f\x7f\ud800-\udfff]$/.test(unit)
            ? `\\x${unit.charCodeAt(0).toString(16)}" u"`
            : unit;
    });
    return `u"${units.join('')}"`;
}

/** @param {string} path */
export function cppPath(path) {
    return JSON.stringify(path);
}

/** @param {number} format */
export function cppFormat(format) {
    return format === 9 ? 'ZO_FORMAT_RGBA8888' : `${format}`;
}
