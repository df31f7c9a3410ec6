// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// C++ code that does the same as a form.

import { formatHandle, noHandle, windowHandle } from './targets.js';

/** @param {Record<string, number>} value */
const braces = (value) => `{${Object.values(value).join(', ')}}`;

/**
 * A literal with exactly the units of a text, including unpaired surrogates and control characters.
 *
 * @param {string} text
 */
function quote(text) {
    const units = [...text].map((unit) => {
        if (unit === '"' || unit === '\\') {
            return `\\${unit}`;
        }
        // A new literal begins after a number: otherwise digits that follow would belong to it.
        return /^[\0-\x1f\x7f\ud800-\udfff]$/.test(unit)
            ? `\\x${unit.charCodeAt(0).toString(16)}" u"`
            : unit;
    });
    return `u"${units.join('')}"`;
}

/** @type {Record<string, (value: any) => string>} literals by the kind of a field */
const literals = {
    number: String,
    format: (format) => (format === 9 ? 'ZO_FORMAT_RGBA8888' : `${format}`),
    rect: braces,
    pen: braces,
    color: braces,
    text: quote,
    check: (isOn) => (isOn ? '1' : '0'),
    flags: (bits) => `0x${bits.toString(16).padStart(2, '0')}`,
    font: (path) => JSON.stringify(path),
    picture: ({ length }) => (length === 0 ? 'nullptr' : 'rgbaPixels'),
    window: (isThere) => (isThere ? 'window' : 'nullptr'),
};

/** @type {Record<string, string>} */
const types = { rect: 'tagZoRectInfo', pen: 'tagZoRectInfo', color: 'tagZoColorRGBA' };

/**
 * Declares variables for all arguments that need one, and creates buffers.
 *
 * @param {import('./operations.js').Operation} operation
 * @param {Record<string, any>} values
 * @param {import('./fields.js').Choices} choices
 */
export function writeCpp({ fields, record, call, cppResult = '' }, values, { targets }) {
    /** @type {string[]} */
    const lines = [];
    const handles = new Map([
        [windowHandle, 'ZO_WINDOW_HANDLE'],
        [noHandle, 'ZO_NO_HANDLE'],
    ]);
    const nameHandle = (/** @type {number} */ handle) => {
        if (!handles.has(handle)) {
            const name = handles.size === 2 ? 'buffer' : 'otherBuffer';
            const target = targets().find((known) => known.handle === handle);
            const size = `${target?.width}, ${target?.height}`;
            const create = `surface.ZoCreateGLFBO(&${name}, ${size}, ZO_FORMAT_RGBA8888);`;
            handles.set(handle, name);
            lines.push(`unsigned int ${name} = ${target ? 'ZO_NO_HANDLE' : formatHandle(handle)};`);
            lines.push(target ? create : '// No buffer has this handle.');
        }
        return handles.get(handle);
    };
    const literal = (/** @type {string} */ name) =>
        fields[name].kind === 'handle'
            ? nameHandle(values[name])
            : literals[fields[name].kind](values[name]);

    const statement = call.replace(/(?<=[(, ])(&?)(\w+)/g, (argument, pointer, name) => {
        if (name in fields && !pointer) {
            return `${literal(name)}`;
        }
        if (name in fields) {
            lines.push(`const ${types[fields[name].kind]} ${name} = ${literal(name)};`);
        } else if (name !== 'info') {
            lines.push(`unsigned int ${name} = ${name === 'handle' ? 'ZO_NO_HANDLE' : 0};`);
        }
        return argument;
    });
    if (record) {
        const members = Object.keys(fields)
            .filter((name) => !new RegExp(`\\b${name}\\b`).test(call))
            .map((name) => `info.${name} = ${literal(name)};`);
        lines.push(`${record} info = {};`, ...members);
    }
    return [...lines, `${cppResult}surface.${statement};`].join('\n');
}
