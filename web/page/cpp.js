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

/** @param {string} text */
export function cppText(text) {
    const units = [...text].map((unit) => escapes[unit] ?? unit);
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

/** @type {Record<string, string>} */
const escapes = { '"': '\\"', '\\': '\\\\', '\n': '\\n', '\t': '\\t', '\0': '\\0' };
