// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// The picture: one target (the window or a buffer) and, on it, the rectangles of the chosen form.

import { Emitter, find, make, throttle } from './dom.js';
import { formatHandle, windowHandle } from './targets.js';

/** @typedef {import('./libzogles.mjs').Rect} Rect */

/**
 * A rectangle or a pen on the picture that can be dragged.
 *
 * @typedef {object} Mark
 * @property {string} label
 * @property {number} handle of its target
 * @property {Rect} rect
 * @property {boolean} isPen a position without a size
 * @property {(rect: Rect) => void} move receives the dragged rectangle
 */

const pauseBetweenCopies = 200; // milliseconds; the browser waits for the GPU to read pixels

/**
 * @param {string} name
 * @param {Record<string, any>} attributes
 */
function makeShape(name, attributes) {
    const shape = document.createElementNS('http://www.w3.org/2000/svg', name);
    for (const [key, value] of Object.entries(attributes)) {
        shape.setAttribute(key, `${value}`);
    }
    return shape;
}

/** Emits "view" when another target is shown, and "point" with a pixel of it. */
export class Stage extends Emitter {
    handle = windowHandle;

    /** @type {Mark[]} */
    #marks = [];

    /** @type {(Rect & { handle: number, label: string }) | null} */
    #box = null;

    /**
     * @param {import('./engine.js').Engine} engine
     * @param {(handle: number) => string} nameOf
     */
    constructor(engine, nameOf) {
        super();
        this.engine = engine;
        this.nameOf = nameOf;
        this.select = find('view', HTMLSelectElement);
        this.viewport = find('viewport', HTMLElement);
        this.copy = make('canvas', { role: 'img' });
        this.message = make('p', { class: 'note' });
        this.overlay = /** @type {SVGElement} */ (makeShape('svg', { 'aria-hidden': 'true' }));
        this.viewport.append(this.copy, this.message, this.overlay);

        this.select.addEventListener('change', () => this.view(Number(this.select.value)));
        engine.on('targets', () => this.#listTargets());
        engine.on('binding', () => this.#listTargets());
        engine.on(
            'drawn',
            throttle(() => this.refresh(), pauseBetweenCopies),
        );
        this.overlay.addEventListener('pointerdown', (event) => this.#startDrag(event));
        for (const type of /** @type {const} */ (['pointerdown', 'pointermove'])) {
            this.viewport.addEventListener(type, (event) =>
                this.emit('point', this.#locate(event)),
            );
        }
        this.#listTargets();
    }

    get target() {
        return this.engine.targets.get(this.handle);
    }

    /** @param {number} handle */
    view(handle) {
        this.handle = handle;
        this.select.value = `${handle}`;
        this.refresh();
        this.#drawOverlay();
        this.emit('view');
    }

    /** @param {Mark[]} marks */
    setMarks(marks) {
        this.#marks = marks;
        this.setBox(null);
    }

    /** @param {Rect & { handle: number, label: string } | null} box the size of a text */
    setBox(box) {
        this.#box = box;
        this.#drawOverlay();
    }

    #listTargets() {
        const handles = [...this.engine.targets.keys()];
        this.select.replaceChildren(
            ...handles.map((value) =>
                make('option', { value }, `${formatHandle(value)} ${this.nameOf(value)}`),
            ),
        );
        this.view(handles.includes(this.handle) ? this.handle : windowHandle);
    }

    /** Shows the target's pixels, or the reason why they cannot be shown. */
    refresh() {
        const { engine, target, copy, message } = this;
        const isWindow = engine.isBound && this.handle === windowHandle;
        engine.canvas.hidden = !isWindow;
        copy.hidden = isWindow || !engine.copy(this.handle, copy);
        copy.setAttribute('aria-label', `Buffer ${formatHandle(this.handle)}`);
        message.hidden = isWindow || !copy.hidden;
        if (!engine.isBound) {
            message.textContent = 'No window is bound. Buffers keep their handles and sizes.';
        } else {
            message.textContent = target?.isComplete
                ? 'This buffer is too large to show. Its pixels can be read one by one below.'
                : 'The driver rejects this size. Drawing into this buffer has no effect.';
        }
        const { width, height } = target?.isComplete ? target : engine.canvas;
        this.viewport.style.setProperty('--width', `${width}`);
        this.viewport.style.setProperty('--height', `${height}`);
        this.overlay.setAttribute('viewBox', `0 0 ${width} ${height}`);
    }

    /**
     * The pixel of the target under the pointer.
     *
     * @param {PointerEvent} event
     */
    #locate({ clientX, clientY }) {
        const { left, top, width, height } = this.overlay.getBoundingClientRect();
        const target = this.target ?? this.engine.canvas;
        return {
            x: Math.floor(((clientX - left) / width) * target.width),
            y: Math.floor(((clientY - top) / height) * target.height),
        };
    }

    #drawOverlay() {
        const { width } = this.target ?? this.engine.canvas;
        const size = (12 * width) / (this.overlay.getBoundingClientRect().width || width);
        const shapes = this.#marks
            .filter(({ handle }) => handle === this.handle)
            .flatMap((mark) => this.#drawMark(mark, size));
        if (this.#box?.handle === this.handle) {
            const { handle, label, ...rect } = this.#box;
            shapes.push(makeShape('rect', { ...rect, class: 'box' }), drawLabel(rect, label, size));
        }
        this.overlay.replaceChildren(...shapes);
    }

    /**
     * @param {Mark} mark
     * @param {number} size of a corner, in the target's pixels
     */
    #drawMark(mark, size) {
        const { x, y, width, height } = mark.rect;
        const index = this.#marks.indexOf(mark);
        const move = { 'data-mark': index, 'data-part': 'move' };
        if (mark.isPen) {
            return [
                makeShape('line', { x1: x, x2: x + 20 * size, y1: y, y2: y, class: 'box' }),
                makeShape('circle', { cx: x, cy: y, r: size * 0.7, class: 'corner', ...move }),
            ];
        }
        const corner = { x: x + width - size / 2, y: y + height - size / 2 };
        return [
            makeShape('rect', { ...mark.rect, class: 'mark', ...move }),
            makeShape('rect', {
                ...{ ...corner, width: size, height: size, class: 'corner' },
                ...{ 'data-mark': index, 'data-part': 'resize' },
            }),
            drawLabel(mark.rect, mark.label, size),
        ];
    }

    /** @param {PointerEvent} event */
    #startDrag(event) {
        const part = event.target instanceof SVGElement ? event.target.dataset : {};
        // A drag that starts outside all marks draws a new first rectangle.
        const mark = part.mark
            ? this.#marks[Number(part.mark)]
            : this.#marks.find(({ isPen, handle }) => !isPen && handle === this.handle);
        if (event.button !== 0 || !event.isPrimary || !mark) {
            return;
        }
        event.preventDefault();
        const from = this.#locate(event);
        const start = part.mark ? mark.rect : { ...from, width: 0, height: 0 };
        this.overlay.setPointerCapture(event.pointerId);
        this.overlay.onpointermove = (moved) => {
            const to = this.#locate(moved);
            mark.move(dragRect(start, to.x - from.x, to.y - from.y, part.part === 'move'));
        };
        this.overlay.onlostpointercapture = () => (this.overlay.onpointermove = null);
    }
}

/**
 * @param {{ x: number, y: number }} place
 * @param {string} text
 * @param {number} size
 */
function drawLabel({ x, y }, text, size) {
    const label = makeShape('text', { x, y: y - size / 2, 'font-size': size * 1.4 });
    label.textContent = text;
    return label;
}

/**
 * A rectangle moved or resized by some pixels. Clamps at 0, because its fields hold no negative numbers.
 *
 * @param {Rect} start
 * @param {number} dx
 * @param {number} dy
 * @param {boolean} isMoving
 * @returns {Rect}
 */
function dragRect({ x, y, width, height }, dx, dy, isMoving) {
    return isMoving
        ? { x: Math.max(0, x + dx), y: Math.max(0, y + dy), width, height }
        : { x, y, width: Math.max(0, width + dx), height: Math.max(0, height + dy) };
}
