// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// Every operation of the library: its call in C++, and the fields of its arguments.

import { formatHandle, windowHandle } from './targets.js';

/** @typedef {import('./engine.js').Engine} Engine */

/**
 * A field of a form, named like the parameter or the member of a record.
 *
 * @typedef {object} Field
 * @property {'handle' | 'rect' | 'pen' | 'color' | 'number' | 'format' | 'text' | 'check' | 'flags' | 'font' |
 *     'picture' | 'window'} kind
 * @property {any} value the form's initial value
 * @property {string} [target] for a rectangle or a pen: the field with its target; without it, the window
 * @property {string} [hint]
 */

/**
 * The result of an operation; without a code, the operation returns nothing.
 *
 * @typedef {object} Outcome
 * @property {number} [code]
 * @property {string} [note] its other results
 * @property {{ width: number, height: number }} [box] the measured size
 */

/**
 * @typedef {object} Operation
 * @property {'Window' | 'Buffers' | 'Drawing' | 'Text'} group
 * @property {string} call in C++; `info` is the record, and `&` before a name without a field marks an output
 * @property {string} [record] the type of `info`, which has the fields that the call does not name
 * @property {string} [cppResult] the declaration of a result that is not a code
 * @property {Record<string, Field>} fields
 * @property {(engine: Engine, values: any) => any} [run] if the bindings' function takes other arguments
 * @property {(result: any, engine: Engine, values: any) => Outcome} [report] for results other than codes
 * @property {(values: any) => number} [drawsInto] the target that it changes
 */

/** @type {(kind: Field['kind'], value: any, hint?: string) => Field} */
const field = (kind, value, hint) => ({ kind, value, hint });

/** @type {(target: string | undefined, value: number[]) => Field} */
const rect = (target, [x, y, width, height]) => ({
    ...field('rect', { x, y, width, height }),
    target,
});

/** @type {(color: number[]) => Field} */
const color = ([r, g, b, a]) =>
    field('color', { r, g, b, a }, '1 is full intensity, like 255; 0 is none');

/** The buffer that the page creates for its visitor, the first after the scene's nine. */
export const ownHandle = windowHandle | 10;
export const ownSize = { width: 640, height: 360 };

const whole = [0, 0, ownSize.width, ownSize.height];
const format = field('format', 9, '9 is ZO_FORMAT_RGBA8888, the only one');
const text = {
    text: field('text', 'Volume'),
    length: field('number', 6, 'in UTF-16 units'),
};

/** @type {Record<string, Operation>} */
export const operations = {
    ZoDrawRect: {
        group: 'Drawing',
        call: 'ZoDrawRect(fbo, &rect, &color)',
        fields: {
            fbo: field('handle', ownHandle),
            rect: rect('fbo', [80, 60, 240, 160]),
            color: color([255, 194, 77, 255]),
        },
        drawsInto: ({ fbo }) => fbo,
    },
    ZoBlit: {
        group: 'Drawing',
        call: 'ZoBlit(&info)',
        record: 'tagZoBlitInfo',
        fields: {
            srcHandle: field('handle', windowHandle | 8),
            dstHandle: field('handle', ownHandle),
            srcRect: rect('srcHandle', [0, 0, 640, 360]),
            dstRect: rect('dstHandle', [20, 20, 320, 180]),
        },
        drawsInto: ({ dstHandle }) => dstHandle,
    },
    ZoDisplayFBO: {
        group: 'Drawing',
        call: 'ZoDisplayFBO(fbo, &src, &dst)',
        fields: {
            fbo: field('handle', ownHandle),
            src: rect('fbo', whole),
            dst: rect(undefined, [320, 180, 640, 360]),
        },
        report: (code, engine, { fbo, src, dst }) => {
            if (code === 0) {
                engine.presentation = { handle: fbo, source: src, destination: dst };
            }
            return { code };
        },
        drawsInto: () => windowHandle,
    },
    ZoDisplayBitmap: {
        group: 'Drawing',
        call: 'ZoDisplayBitmap(&info)',
        record: 'tagZoBitmapInfo',
        fields: {
            data: field('picture', 'poster.png'),
            format,
            width: field('number', 360, 'at most the pixels of the picture'),
            height: field('number', 480),
            rect: rect(undefined, [460, 120, 360, 480]),
        },
        drawsInto: () => windowHandle,
    },
    ZoDrawText: {
        group: 'Text',
        call: 'ZoDrawText(handle, &info, &rect)',
        record: 'tagZoTextInfo',
        fields: {
            handle: field('handle', ownHandle),
            rect: {
                ...field('pen', { x: 60, y: 200 }, 'where the text starts, on its baseline'),
                target: 'handle',
            },
            ...text,
            color: color([255, 255, 255, 255]),
            fontSize: field('number', 40, '40, neither bold nor italic, is the loaded font'),
            bold: field('check', false),
            italic: field('check', false),
        },
        drawsInto: ({ handle }) => handle,
    },
    ZoGetTextSize: {
        group: 'Text',
        call: 'ZoGetTextSize(&info, &width, &height)',
        record: 'tagZoTextInfo',
        fields: text,
        run: ({ surface }, { text, length }) => surface.ZoGetTextSize(text, length),
        report: ({ code, width, height }) =>
            code === 0
                ? { code, note: `width ${width}, height ${height}`, box: { width, height } }
                : { code },
    },
    ZoLoadFont: {
        group: 'Text',
        call: 'ZoLoadFont(path, size)',
        fields: {
            path: field('font', '/fonts/DejaVuSans.ttf'),
            size: field('number', 40, 'pixels, for plain text of size 40 and for measuring'),
        },
    },
    ZoCreateGLFBO: {
        group: 'Buffers',
        call: 'ZoCreateGLFBO(&handle, width, height, format)',
        fields: { width: field('number', 320), height: field('number', 180), format },
        report: ({ code, handle }) =>
            code === 0 ? { code, note: `handle ${formatHandle(handle)}` } : { code },
    },
    ZoDestoryGLFBO: {
        group: 'Buffers',
        call: 'ZoDestoryGLFBO(handle)',
        fields: { handle: field('handle', ownHandle) },
    },
    ZoCreateGLWindowSurface: {
        group: 'Window',
        call: 'ZoCreateGLWindowSurface(window)',
        fields: { window: field('window', 1) },
        run: (engine, { window }) => engine.bind(window),
    },
    ZoDestoryGLWindowSurface: {
        group: 'Window',
        call: 'ZoDestoryGLWindowSurface()',
        fields: {},
        run: (engine) => engine.unbind(),
    },
    Init: {
        group: 'Window',
        call: 'Init(flags)',
        fields: { flags: field('flags', 0x3f) },
    },
    ZoRefreshOnSrceen: {
        group: 'Window',
        call: 'ZoRefreshOnSrceen()',
        fields: {},
    },
    ZoGetWindowWidth: {
        group: 'Window',
        call: 'ZoGetWindowWidth()',
        cppResult: 'const unsigned int width = ',
        fields: {},
        report: (width) => ({ note: `${width} pixels` }),
    },
    ZoGetWindowHeight: {
        group: 'Window',
        call: 'ZoGetWindowHeight()',
        cppResult: 'const unsigned int height = ',
        fields: {},
        report: (height) => ({ note: `${height} pixels` }),
    },
};

/**
 * Makes the same call as the operation's C++.
 *
 * @param {Engine} engine
 * @param {string} name
 * @param {any} values
 * @returns {Outcome}
 */
export function runOperation(engine, name, values) {
    const { fields, call, run, report } = operations[name];
    const callWithFields = () => {
        const [, ...names] = call.match(/\w+/g) ?? [];
        const inputs = names.filter((argument) => argument in fields || argument === 'info');
        return /** @type {any} */ (engine.surface)[name](
            ...inputs.map((argument) => (argument === 'info' ? values : values[argument])),
        );
    };
    const result = run ? run(engine, values) : callWithFields();
    return report ? report(result, engine, values) : { code: result };
}
