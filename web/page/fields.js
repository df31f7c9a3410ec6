// The fields of a form: each an element, and a way to read and to write its value. The browser's own
// validation rejects what a record cannot hold, such as a negative number.

import { make } from './dom.js';
import { formatHandle, noHandle, windowHandle } from './targets.js';

/** @typedef {import('./operations.js').Field} Field */

/**
 * @typedef {object} Widget
 * @property {HTMLElement} element
 * @property {HTMLInputElement} [input] of a single number
 * @property {() => any} read
 * @property {(value: any) => void} write
 * @property {() => void} [refresh] updates the choices
 */

/**
 * The choices of fields.
 *
 * @typedef {object} Choices
 * @property {() => { handle: number, name: string, width: number, height: number }[]} targets the live ones
 * @property {() => string[]} fonts paths
 * @property {() => Map<string, ImageData>} pictures by name
 */

const mostUnsigned = 0xffffffff;

/**
 * @param {number} value
 * @param {number} [max]
 */
const makeNumber = (value, max = mostUnsigned) =>
    make('input', { type: 'number', min: 0, max, required: true, value, inputMode: 'numeric' });

/**
 * @param {string} name
 * @param {Field} field
 * @param {HTMLElement} control
 */
const makeRow = (name, { hint = '' }, control) =>
    make('label', { class: 'row' }, make('code', {}, name), control, make('small', {}, hint));

/**
 * @param {string} name
 * @param {Field} field
 * @param {HTMLInputElement} input
 * @param {'value' | 'valueAsNumber' | 'checked'} [property]
 */
const makeInput = (name, field, input, property = 'value') => ({
    element: makeRow(name, field, input),
    input,
    read: () => input[property],
    write: (/** @type {any} */ value) => Object.assign(input, { [property]: value }),
});

/**
 * A group of numbers, with zeros for those of a rectangle that it has no fields for.
 *
 * @param {string} name
 * @param {Field} field
 * @param {number} [most]
 */
function makeNumbers(name, { value, hint = '' }, most) {
    const inputs = Object.entries(value).map(([key, start]) => ({
        key,
        input: makeNumber(/** @type {number} */ (start), most),
    }));
    const element = make(
        'fieldset',
        {},
        make('legend', {}, make('code', {}, name), ' ', make('small', {}, hint)),
        ...inputs.map(({ key, input }) => make('label', { class: 'number' }, key, input)),
    );
    return {
        element,
        read: () => Object.fromEntries(inputs.map(({ key, input }) => [key, Number(input.value)])),
        write: (/** @type {Record<string, number>} */ values) =>
            inputs.forEach(({ key, input }) => (input.value = `${values[key]}`)),
    };
}

/**
 * @param {string} name
 * @param {Field} field
 * @param {(chosen: string) => [string | number, string][]} options values and labels
 * @param {(value: string) => any} parse
 */
function makeSelect(name, field, options, parse) {
    const select = make('select');
    const write = (/** @type {any} */ chosen) => {
        select.replaceChildren(
            ...options(`${chosen}`).map(([value, label]) => make('option', { value }, label)),
        );
        select.value = `${chosen}`;
        select.selectedIndex = Math.max(0, select.selectedIndex);
    };
    write(field.value);
    return {
        element: makeRow(name, field, select),
        read: () => parse(select.value),
        write,
        refresh: () => write(select.value),
    };
}

/**
 * @param {string} name
 * @param {Field} field
 */
function makeColor(name, field) {
    const numbers = makeNumbers(name, field, 255);
    const picker = make('input', { type: 'color', 'aria-label': `${name}, picked` });
    const show = () => {
        if (numbers.element.matches(':invalid')) {
            return; // the picker has no such colour
        }
        const { r, g, b } = numbers.read();
        // As bright as the library draws it.
        const digits = [r, g, b].map((channel) => (channel === 1 ? 255 : channel).toString(16));
        picker.value = `#${digits.map((digit) => digit.padStart(2, '0')).join('')}`;
    };
    numbers.element.addEventListener('input', ({ target }) => {
        if (target === picker) {
            const [r, g, b] = [1, 3, 5].map((at) => parseInt(picker.value.slice(at, at + 2), 16));
            numbers.write({ ...numbers.read(), r, g, b });
        } else {
            show();
        }
    });
    numbers.element.append(picker);
    show();
    return {
        ...numbers,
        write: (/** @type {Record<string, number>} */ color) => {
            numbers.write(color);
            show();
        },
    };
}

/**
 * @param {string} name
 * @param {Field} field
 */
function makeFlags(name, { value }) {
    const inputs = ['TEXT', 'BLIT', 'BITMAP', 'RECT', 'FRAME', 'FBO'].map((component, i) => ({
        input: make('input', { type: 'checkbox', checked: Boolean(value & (1 << i)) }),
        label: `ZO_COMPONENT_${component}`,
    }));
    const boxes = inputs.map(({ input, label }) =>
        make('label', {}, input, make('code', {}, label)),
    );
    return {
        element: make(
            'fieldset',
            { class: 'flags' },
            make('legend', {}, make('code', {}, name)),
            ...boxes,
        ),
        read: () => inputs.reduce((sum, { input }, i) => sum | (Number(input.checked) << i), 0),
        write: (/** @type {number} */ flags) =>
            inputs.forEach(({ input }, i) => (input.checked = Boolean(flags & (1 << i)))),
    };
}

/**
 * The live targets, and handles without a buffer to try; a chosen handle stays when its buffer goes.
 *
 * @param {ReturnType<Choices['targets']>} targets
 * @param {string} chosen
 * @returns {[number, string][]}
 */
function listHandles(targets, chosen) {
    /** @type {Map<number, string>} */
    const labels = new Map();
    for (const { handle, name } of targets) {
        labels.set(handle, `${formatHandle(handle)} ${name}`);
    }
    for (const handle of [windowHandle | 0x10, Number(chosen)]) {
        labels.set(handle, labels.get(handle) ?? `${formatHandle(handle)} no buffer`);
    }
    return [...labels.set(noHandle, 'ZO_NO_HANDLE')];
}

/**
 * @param {[string, ImageData]} picture
 * @returns {[string, string]}
 */
const listPicture = ([name, { width, height }]) => [name, `${name}, ${width} × ${height}`];

/**
 * @param {string} name
 * @param {Field} field
 * @param {Choices} choices
 * @returns {Widget}
 */
export function makeField(name, field, choices) {
    switch (field.kind) {
        case 'number':
            return makeInput(name, field, makeNumber(field.value), 'valueAsNumber');
        case 'format':
            return makeInput(name, field, makeNumber(field.value, 0x7fffffff), 'valueAsNumber');
        case 'text':
            return makeInput(name, field, make('input', { value: field.value }));
        case 'check':
            return makeInput(name, field, make('input', { type: 'checkbox' }), 'checked');
        case 'rect':
            return makeNumbers(name, field);
        case 'pen': {
            const pen = makeNumbers(name, field);
            return { ...pen, read: () => ({ ...pen.read(), width: 0, height: 0 }) };
        }
        case 'color':
            return makeColor(name, field);
        case 'flags':
            return makeFlags(name, field);
        case 'handle':
            return makeSelect(
                name,
                field,
                (chosen) => listHandles(choices.targets(), chosen),
                Number,
            );
        case 'font':
            return makeSelect(
                name,
                field,
                () => [...choices.fonts(), '/fonts/missing.ttf'].map((path) => [path, path]),
                String,
            );
        case 'picture':
            return makeSelect(
                name,
                field,
                () => [...[...choices.pictures()].map(listPicture), ['', 'nullptr']],
                (key) => new Uint8Array(choices.pictures().get(key)?.data.buffer ?? []),
            );
        case 'window':
            return makeSelect(
                name,
                field,
                () => [
                    [1, 'the canvas of this page'],
                    ['', 'nullptr'],
                ],
                Boolean,
            );
    }
}
