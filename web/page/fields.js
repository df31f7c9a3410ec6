// The fields of a form: each an element, and a way to read and to write its value. What a record cannot
// hold, such as a negative number, the browser's own validation keeps back.

import { make } from './dom.js';
import { formatHandle, noHandle, windowHandle } from './targets.js';

/** @typedef {import('./operations.js').Field} Field */

/**
 * @typedef {object} Widget
 * @property {HTMLElement} element
 * @property {() => any} read
 * @property {(value: any) => void} write
 * @property {() => void} [refresh] lists anew what there is to choose from
 */

/**
 * What fields can be chosen from.
 *
 * @typedef {object} Choices
 * @property {() => { handle: number, name: string }[]} targets the live ones
 * @property {() => string[]} fonts paths
 * @property {() => Map<string, ImageData>} pictures by name
 */

const mostUnsigned = 0xffffffff;
let lastId = 0;

/**
 * @param {string} label
 * @param {number} value
 * @param {number} most
 */
function makeNumber(label, value, most) {
    const id = `field-${++lastId}`;
    const input = make('input', {
        ...{ id, type: 'number', min: '0', max: `${most}`, step: '1', required: true },
        ...{ value: `${value}`, inputMode: 'numeric' },
    });
    const element = make('span', { class: 'number' }, make('label', { for: id }, label), input);
    return { element, input };
}

/**
 * @param {string} label
 * @param {Record<string, number>} value
 * @param {number} most
 */
function makeNumbers(label, value, most) {
    const numbers = Object.entries(value).map(([name, start]) => ({
        name,
        ...makeNumber(name, start, most),
    }));
    const element = make(
        'fieldset',
        {},
        make('legend', {}, label),
        make('div', { class: 'numbers four' }, ...numbers.map(({ element }) => element)),
    );
    return {
        element,
        inputs: Object.fromEntries(numbers.map(({ name, input }) => [name, input])),
        read: () =>
            Object.fromEntries(numbers.map(({ name, input }) => [name, Number(input.value)])),
        /** @param {Record<string, number>} values */
        write: (values) => {
            for (const { name, input } of numbers) {
                input.value = `${values[name]}`;
            }
        },
    };
}

/**
 * @param {Field} field
 * @param {HTMLElement & { id: string }} control
 */
function makeRow({ label, hint }, control) {
    control.id = `field-${++lastId}`;
    const row = make('div', { class: 'row' }, make('label', { for: control.id }, label), control);
    if (hint) {
        const id = `${control.id}-hint`;
        control.setAttribute('aria-describedby', id);
        row.append(make('small', { id }, hint));
    }
    return row;
}

/**
 * @param {Field} field
 * @param {(chosen: string) => [string, string][]} options values and labels
 * @param {(value: string) => any} parse
 */
function makeSelect(field, options, parse) {
    const select = make('select');
    /** @param {string} value */
    const fill = (value) => {
        select.replaceChildren(
            ...options(value).map(([value, label]) => make('option', { value }, label)),
        );
        select.value = value;
        if (select.selectedIndex < 0) {
            select.selectedIndex = 0;
        }
    };
    fill(`${field.value}`);
    return {
        element: makeRow(field, select),
        read: () => parse(select.value),
        write: (/** @type {any} */ value) => fill(`${value}`),
        refresh: () => fill(select.value),
    };
}

/** @type {Record<Field['kind'], (field: Field, choices: Choices) => Widget>} */
const makers = {
    number: (field) => {
        const { input } = makeNumber(field.label, field.value, field.most ?? mostUnsigned);
        return {
            element: makeRow(field, input),
            read: () => Number(input.value),
            write: (value) => {
                input.value = `${value}`;
            },
        };
    },

    rect: ({ label, value }) => makeNumbers(label, value, mostUnsigned),

    pen: ({ label, value }) =>
        makeNumbers(`${label}: where the text starts, on its baseline`, value, mostUnsigned),

    color: ({ label, value, hint }) => {
        const numbers = makeNumbers(label, value, 255);
        const picker = make('input', { type: 'color', 'aria-label': `${label}, picked` });
        const show = () => {
            if (Object.values(numbers.inputs).some(({ validity }) => !validity.valid)) {
                return; // the picker knows no such colour
            }
            const { r, g, b } = numbers.read();
            // As bright as the library takes it: 1 is full intensity.
            const digits = [r, g, b].map((channel) => (channel === 1 ? 255 : channel).toString(16));
            picker.value = `#${digits.map((digit) => digit.padStart(2, '0')).join('')}`;
        };
        picker.addEventListener('input', () => {
            const [r, g, b] = [1, 3, 5].map((at) => parseInt(picker.value.slice(at, at + 2), 16));
            numbers.write({ ...numbers.read(), r, g, b });
        });
        numbers.element.addEventListener('input', (event) => {
            if (event.target !== picker) {
                show();
            }
        });
        numbers.element.append(
            make('div', { class: 'picker' }, picker, make('small', {}, hint ?? '')),
        );
        show();
        return {
            ...numbers,
            write: (color) => {
                numbers.write(color);
                show();
            },
        };
    },

    text: (field) => {
        const input = make('input', { type: 'text', value: field.value });
        return {
            element: makeRow(field, input),
            read: () => input.value,
            write: (value) => {
                input.value = value;
            },
        };
    },

    check: (field) => {
        const input = make('input', { type: 'checkbox', checked: field.value });
        const element = makeRow(field, input);
        element.classList.add('check');
        return {
            element,
            read: () => input.checked,
            write: (value) => {
                input.checked = value;
            },
        };
    },

    flags: ({ label, value }) => {
        const bits = ['TEXT', 'BLIT', 'BITMAP', 'RECT', 'FRAME', 'FBO'].map((name, i) => {
            const input = make('input', { type: 'checkbox', checked: Boolean(value & (1 << i)) });
            return { input, element: make('label', {}, input, `ZO_COMPONENT_${name}`) };
        });
        const boxes = make('div', { class: 'flags' }, ...bits.map(({ element }) => element));
        return {
            element: make('fieldset', {}, make('legend', {}, label), boxes),
            read: () => bits.reduce((sum, { input }, i) => sum | (input.checked ? 1 << i : 0), 0),
            write: (flags) =>
                bits.forEach(({ input }, i) => (input.checked = Boolean(flags & (1 << i)))),
        };
    },

    // Handles that name nothing are there to be tried, too; one whose buffer is gone stays chosen.
    handle: (field, choices) =>
        makeSelect(
            field,
            (chosen) => {
                const unused = windowHandle | 0x10;
                const live = choices.targets();
                /** @type {[number, string][]} */
                const options = live.map(({ handle, name }) => [
                    handle,
                    `${formatHandle(handle)} ${name}`,
                ]);
                options.push([unused, `${formatHandle(unused)} names no buffer`]);
                options.push([noHandle, 'ZO_NO_HANDLE']);
                if (!options.some(([handle]) => `${handle}` === chosen)) {
                    options.push([Number(chosen), `${formatHandle(Number(chosen))} no buffer now`]);
                }
                return options.map(([handle, label]) => [`${handle}`, label]);
            },
            Number,
        ),

    font: (field, choices) =>
        makeSelect(
            field,
            () => [
                ...choices.fonts().map((path) => /** @type {[string, string]} */ ([path, path])),
                ['/fonts/missing.ttf', '/fonts/missing.ttf (not there)'],
            ],
            String,
        ),

    picture: (field, choices) =>
        makeSelect(
            field,
            () => [
                ...[...choices.pictures()].map(
                    ([name, { width, height }]) =>
                        /** @type {[string, string]} */ ([name, `${name}, ${width} by ${height}`]),
                ),
                ['', 'nullptr'],
            ],
            (name) => new Uint8Array(choices.pictures().get(name)?.data.buffer ?? []),
        ),

    window: (field) =>
        makeSelect(
            { ...field, value: '1' },
            () => [
                ['1', 'the canvas of this page'],
                ['', 'nullptr'],
            ],
            Boolean,
        ),
};

/**
 * @param {Field} field
 * @param {Choices} choices
 */
export function makeField(field, choices) {
    return makers[field.kind](field, choices);
}
