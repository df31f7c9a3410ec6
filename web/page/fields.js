// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// The fields of a form: each has an element and functions that read and write its value. The browser's
// validation rejects values that a record cannot hold, such as negative numbers.

import { make } from './dom.js';
import { formatHandle, noHandle, windowHandle } from './targets.js';

/** @typedef {import('./operations.js').Field & { name: string }} NamedField */

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
 * @param {NamedField} field
 * @param {HTMLElement} control
 */
const makeRow = ({ name, hint = '' }, control) =>
    make('label', { class: 'row' }, make('code', {}, name), control, make('small', {}, hint));

/**
 * @param {NamedField} field
 * @param {HTMLInputElement} input
 * @param {'value' | 'valueAsNumber' | 'checked'} [property]
 */
const makeInput = (field, input, property = 'value') => ({
    element: makeRow(field, input),
    input,
    read: () => input[property],
    write: (/** @type {any} */ value) => Object.assign(input, { [property]: value }),
});

/**
 * A group of numbers. Members of a rectangle without a field are 0.
 *
 * @param {NamedField} field
 * @param {number} [most]
 */
function makeNumbers({ name, value, hint = '' }, most) {
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
 * @param {NamedField} field
 * @param {(chosen: string) => [string | number, string][]} options values and labels
 * @param {(value: string) => any} parse
 */
function makeSelect(field, options, parse) {
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
        element: makeRow(field, select),
        read: () => parse(select.value),
        write,
        refresh: () => write(select.value),
    };
}

/**
 * @param {NamedField} field
 */
function makeColor(field) {
    const numbers = makeNumbers(field, 255);
    const picker = make('input', { type: 'color', 'aria-label': `${field.name}, picked` });
    const show = () => {
        if (numbers.element.matches(':invalid')) {
            return; // the picker cannot show these values
        }
        const { r, g, b } = numbers.read();
        // Shows the intensity that the library draws.
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
 * @param {NamedField} field
 */
function makeFlags({ name, value }) {
    const names = ['TEXT', 'BLIT', 'BITMAP', 'RECT', 'FRAME', 'FBO'];
    const inputs = names.map(() => make('input', { type: 'checkbox' }));
    const element = make(
        'fieldset',
        {},
        make('legend', {}, make('code', {}, `${name} ZO_COMPONENT_`)),
        ...names.map((component, i) => make('label', {}, inputs[i], make('code', {}, component))),
    );
    const write = (/** @type {number} */ flags) =>
        inputs.forEach((input, i) => (input.checked = Boolean(flags & (1 << i))));
    write(value);
    return {
        element,
        read: () => inputs.reduce((sum, input, i) => sum | (Number(input.checked) << i), 0),
        write,
    };
}

/**
 * The live targets, and some handles without a buffer. A chosen handle stays after its buffer is destroyed.
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

/** @type {Record<NamedField['kind'], (field: NamedField, choices: Choices) => Widget>} */
const makers = {
    number: (field) => makeInput(field, makeNumber(field.value), 'valueAsNumber'),
    format: (field) => makeInput(field, makeNumber(field.value, 0x7fffffff), 'valueAsNumber'),
    text: (field) => makeInput(field, make('input', { value: field.value })),
    check: (field) => makeInput(field, make('input', { type: 'checkbox' }), 'checked'),
    rect: (field) => makeNumbers(field),
    pen: (field) => {
        const pen = makeNumbers(field);
        return { ...pen, read: () => ({ ...pen.read(), width: 0, height: 0 }) };
    },
    color: makeColor,
    flags: makeFlags,
    handle: (field, { targets }) =>
        makeSelect(field, (chosen) => listHandles(targets(), chosen), Number),
    font: (field, { fonts }) =>
        makeSelect(
            field,
            () => [...fonts(), '/fonts/missing.ttf'].map((path) => [path, path]),
            String,
        ),
    picture: (field, { pictures }) =>
        makeSelect(
            field,
            () => [...[...pictures()].map(listPicture), ['', 'nullptr']],
            (name) => new Uint8Array(pictures().get(name)?.data.buffer ?? []),
        ),
    window: (field) =>
        makeSelect(
            field,
            () => Object.entries({ 1: 'the canvas of this page', '': 'nullptr' }),
            Boolean,
        ),
};

/**
 * @param {NamedField} field
 * @param {Choices} choices
 */
export const makeField = (field, choices) => makers[field.kind](field, choices);
