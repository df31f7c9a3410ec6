// Every operation of the library: the fields of its records, the call, and the C++ that does the same.

import { cppColor, cppFormat, cppHandle, cppPath, cppRect, cppText } from './cpp.js';
import { windowHandle } from './targets.js';

/** @typedef {import('./engine.js').Engine} Engine */
/** @typedef {import('./libzogles.mjs').Color} Color */
/** @typedef {import('./libzogles.mjs').Rect} Rect */

/**
 * What a form asks for.
 *
 * @typedef {object} Field
 * @property {'handle' | 'rect' | 'pen' | 'color' | 'number' | 'text' | 'check' | 'flags' | 'font' |
 *     'picture' | 'window'} kind
 * @property {string} label
 * @property {any} value what the form starts with
 * @property {string} [target] for a rectangle or a pen: the field with the target that it lies on, or
 *     nothing for the window
 * @property {number} [most] of a number: the largest that its type holds
 * @property {string} [hint]
 */

/**
 * What an operation gave. Without a code it returns nothing.
 *
 * @typedef {object} Outcome
 * @property {number} [code]
 * @property {string} [note] what else it told
 * @property {{ width: number, height: number }} [box] the size that it measured
 */

/**
 * @typedef {object} Operation
 * @property {string} name
 * @property {'Window' | 'Buffers' | 'Drawing' | 'Text'} group
 * @property {Record<string, Field>} fields
 * @property {(engine: Engine, values: any) => Outcome} run
 * @property {(values: any) => string[]} cpp the lines of C++
 * @property {(values: any) => number} [drawsInto] the target that shows what it did
 */

/** @type {(label: string, value: number, hint?: string) => Field} */
const handle = (label, value, hint) => ({ kind: 'handle', label, value, hint });

/** @type {(label: string, target: string | undefined, value: number[]) => Field} */
const rect = (label, target, [x, y, width, height]) => ({
    kind: 'rect',
    label,
    target,
    value: { x, y, width, height },
});

/** @type {(label: string, value: number, hint?: string) => Field} */
const number = (label, value, hint) => ({ kind: 'number', label, value, hint });

/** @type {(label: string, value: boolean) => Field} */
const check = (label, value) => ({ kind: 'check', label, value });

/** @type {(label: string, value: string) => Field} */
const text = (label, value) => ({ kind: 'text', label, value });

/** @type {(value: number[]) => Field} */
const color = ([r, g, b, a]) => ({
    kind: 'color',
    label: 'color',
    value: { r, g, b, a },
    hint: '0 and 1 are the intensity itself, so 1 is as bright as 255',
});

/** @type {Field} */
const formatField = {
    ...number('format', 9, '9 is ZO_FORMAT_RGBA8888, the only one'),
    most: 0x7fffffff,
};

/** The buffer that the page makes for its visitor, the first after the scene's nine. */
export const ownHandle = windowHandle | 10;
export const ownSize = { width: 640, height: 360 };

const whole = [0, 0, ownSize.width, ownSize.height];

/** @type {Record<string, Field>} */
const textFields = {
    text: text('text', 'Volume'),
    length: number('length', 6, 'in UTF-16 units'),
    color: color([255, 255, 255, 255]),
    fontSize: number('fontSize', 40, '40, neither bold nor italic, is ready to draw'),
    bold: check('bold', false),
    italic: check('italic', false),
};

/** @param {any} values */
function toTextFields({ text, length, color, fontSize, bold, italic }) {
    return { text, length, color, fontSize, bold, italic };
}

/** @param {any} values */
function cppTextInfo({ text, length, color, fontSize, bold, italic }) {
    return [
        'tagZoTextInfo info = {};',
        `info.text = ${cppText(text)};`,
        `info.length = ${length};`,
        `info.color = ${cppColor(color)};`,
        `info.fontSize = ${fontSize};`,
        ...(bold ? ['info.bold = 1;'] : []),
        ...(italic ? ['info.italic = 1;'] : []),
    ];
}

/**
 * @param {string} name
 * @param {Rect} value
 */
function cppRectInfo(name, value) {
    return `const tagZoRectInfo ${name} = ${cppRect(value)};`;
}

/** @type {Operation[]} */
export const operations = [
    {
        name: 'ZoDrawRect',
        group: 'Drawing',
        fields: {
            fbo: handle('fbo', ownHandle),
            rect: rect('rect', 'fbo', [80, 60, 240, 160]),
            color: color([255, 194, 77, 255]),
        },
        drawsInto: ({ fbo }) => fbo,
        run: ({ surface }, { fbo, rect, color }) => ({
            code: surface.ZoDrawRect(fbo, rect, color),
        }),
        cpp: ({ fbo, rect, color }) => [
            cppRectInfo('rect', rect),
            `const tagZoColorRGBA color = ${cppColor(color)};`,
            `surface.ZoDrawRect(${cppHandle(fbo)}, &rect, &color);`,
        ],
    },
    {
        name: 'ZoBlit',
        group: 'Drawing',
        fields: {
            srcHandle: handle('srcHandle', windowHandle | 9),
            srcRect: rect('srcRect', 'srcHandle', [40, 500, 640, 180]),
            dstHandle: handle('dstHandle', ownHandle),
            dstRect: rect('dstRect', 'dstHandle', [0, 0, 640, 180]),
        },
        drawsInto: ({ dstHandle }) => dstHandle,
        run: ({ surface }, values) => ({ code: surface.ZoBlit(values) }),
        cpp: ({ srcHandle, srcRect, dstHandle, dstRect }) => [
            `const tagZoBlitInfo info = {${cppHandle(srcHandle)}, ${cppHandle(dstHandle)},`,
            `                            ${cppRect(srcRect)},`,
            `                            ${cppRect(dstRect)}};`,
            'surface.ZoBlit(&info);',
        ],
    },
    {
        name: 'ZoDisplayFBO',
        group: 'Drawing',
        drawsInto: () => windowHandle,
        fields: {
            fbo: handle('fbo', ownHandle),
            src: rect('src', 'fbo', whole),
            dst: rect('dst', undefined, [320, 180, 640, 360]),
        },
        run: (engine, { fbo, src, dst }) => {
            const code = engine.surface.ZoDisplayFBO(fbo, src, dst);
            if (code === 0) {
                engine.presentation = { handle: fbo, source: src, destination: dst };
            }
            return { code };
        },
        cpp: ({ fbo, src, dst }) => [
            cppRectInfo('src', src),
            cppRectInfo('dst', dst),
            `surface.ZoDisplayFBO(${cppHandle(fbo)}, &src, &dst);`,
        ],
    },
    {
        name: 'ZoDisplayBitmap',
        group: 'Drawing',
        drawsInto: () => windowHandle,
        fields: {
            data: { kind: 'picture', label: 'data', value: 'poster.png' },
            format: formatField,
            width: number('width', 360, 'as many pixels as the picture has, or fewer'),
            height: number('height', 480),
            rect: rect('rect', undefined, [460, 120, 360, 480]),
        },
        run: ({ surface }, values) => ({ code: surface.ZoDisplayBitmap(values) }),
        cpp: ({ data, format, width, height, rect }) => [
            'tagZoBitmapInfo info = {};',
            data.length === 0
                ? 'info.data = nullptr;'
                : 'info.data = pixels; // width * height * 4 bytes',
            `info.format = ${cppFormat(format)};`,
            `info.width = ${width};`,
            `info.height = ${height};`,
            `info.rect = ${cppRect(rect)};`,
            'surface.ZoDisplayBitmap(&info);',
        ],
    },
    {
        name: 'ZoDrawText',
        group: 'Text',
        fields: {
            handle: handle('handle', ownHandle),
            rect: { kind: 'pen', label: 'rect', target: 'handle', value: { x: 60, y: 200 } },
            ...textFields,
        },
        drawsInto: ({ handle }) => handle,
        run: ({ surface }, values) => ({
            code: surface.ZoDrawText(values.handle, toTextFields(values), {
                ...values.rect,
                width: 0,
                height: 0,
            }),
        }),
        cpp: (values) => [
            ...cppTextInfo(values),
            cppRectInfo('pen', { ...values.rect, width: 0, height: 0 }),
            `surface.ZoDrawText(${cppHandle(values.handle)}, &info, &pen);`,
        ],
    },
    {
        name: 'ZoGetTextSize',
        group: 'Text',
        fields: { text: text('text', 'Volume'), length: number('length', 6, 'in UTF-16 units') },
        run: ({ surface }, { text, length }) => {
            const { code, width, height } = surface.ZoGetTextSize({
                ...{ text, length, fontSize: 40, bold: false, italic: false },
                color: { r: 0, g: 0, b: 0, a: 0 },
            });
            const isMeasured = code === 0;
            return {
                code,
                note: isMeasured ? `width ${width}, height ${height}` : undefined,
                box: isMeasured ? { width, height } : undefined,
            };
        },
        cpp: ({ text, length }) => [
            'tagZoTextInfo info = {};',
            `info.text = ${cppText(text)};`,
            `info.length = ${length};`,
            'unsigned int width = 0;',
            'unsigned int height = 0;',
            'surface.ZoGetTextSize(&info, &width, &height);',
        ],
    },
    {
        name: 'ZoLoadFont',
        group: 'Text',
        fields: {
            path: { kind: 'font', label: 'path', value: '/fonts/DejaVuSans.ttf' },
            size: number('size', 40, 'pixels, for plain text of size 40 and for measuring'),
        },
        run: ({ surface }, { path, size }) => ({ code: surface.ZoLoadFont(path, size) }),
        cpp: ({ path, size }) => [`surface.ZoLoadFont(${cppPath(path)}, ${size});`],
    },
    {
        name: 'ZoCreateGLFBO',
        group: 'Buffers',
        fields: {
            width: number('width', 320),
            height: number('height', 180),
            format: formatField,
        },
        run: ({ surface }, { width, height, format }) => {
            const { code, handle } = surface.ZoCreateGLFBO(width, height, format);
            return { code, note: code === 0 ? `handle ${cppHandle(handle)}` : undefined };
        },
        cpp: ({ width, height, format }) => [
            'unsigned int handle = ZO_NO_HANDLE;',
            `surface.ZoCreateGLFBO(&handle, ${width}, ${height}, ${cppFormat(format)});`,
        ],
    },
    {
        name: 'ZoDestoryGLFBO',
        group: 'Buffers',
        fields: { handle: handle('handle', ownHandle) },
        run: ({ surface }, { handle }) => ({ code: surface.ZoDestoryGLFBO(handle) }),
        cpp: ({ handle }) => [`surface.ZoDestoryGLFBO(${cppHandle(handle)});`],
    },
    {
        name: 'ZoCreateGLWindowSurface',
        group: 'Window',
        fields: { window: { kind: 'window', label: 'window', value: true } },
        run: (engine, { window }) => ({ code: window ? engine.bind() : engine.bindNothing() }),
        cpp: ({ window }) => [`surface.ZoCreateGLWindowSurface(${window ? 'window' : 'nullptr'});`],
    },
    {
        name: 'ZoDestoryGLWindowSurface',
        group: 'Window',
        fields: {},
        run: (engine) => {
            engine.letGo();
            return {};
        },
        cpp: () => ['surface.ZoDestoryGLWindowSurface();'],
    },
    {
        name: 'Init',
        group: 'Window',
        fields: { flags: { kind: 'flags', label: 'flags', value: 0x3f } },
        run: ({ surface }, { flags }) => ({ code: surface.Init(flags) }),
        cpp: ({ flags }) => [`surface.Init(0x${flags.toString(16).padStart(2, '0')});`],
    },
    {
        name: 'ZoRefreshOnSrceen',
        group: 'Window',
        fields: {},
        run: ({ surface }) => ({ code: surface.ZoRefreshOnSrceen() }),
        cpp: () => ['surface.ZoRefreshOnSrceen();'],
    },
    {
        name: 'ZoGetWindowWidth',
        group: 'Window',
        fields: {},
        run: ({ surface }) => ({ note: `${surface.ZoGetWindowWidth()} pixels` }),
        cpp: () => ['const unsigned int width = surface.ZoGetWindowWidth();'],
    },
    {
        name: 'ZoGetWindowHeight',
        group: 'Window',
        fields: {},
        run: ({ surface }) => ({ note: `${surface.ZoGetWindowHeight()} pixels` }),
        cpp: () => ['const unsigned int height = surface.ZoGetWindowHeight();'],
    },
];
