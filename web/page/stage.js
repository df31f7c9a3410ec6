// The picture: one target, the window or a buffer, with the rectangles of the chosen form upon it.

import { find, make, throttle } from './dom.js';
import { copyToCanvas, formatHandle, isReadable, windowHandle } from './targets.js';

/** @typedef {import('./libzogles.mjs').Rect} Rect */

/**
 * A rectangle or a pen that lies on the picture and can be dragged.
 *
 * @typedef {object} Mark
 * @property {string} label
 * @property {number} handle the target that it belongs to
 * @property {Rect} rect a pen has no extent
 * @property {boolean} isPen
 * @property {(rect: Rect) => void} move tells where it was dragged to
 */

const svgNamespace = 'http://www.w3.org/2000/svg';
const pauseBetweenCopies = 200; // milliseconds; reading pixels makes the browser wait for the GPU

/**
 * @param {string} name
 * @param {Record<string, string | number>} attributes
 */
function makeShape(name, attributes) {
    const shape = document.createElementNS(svgNamespace, name);
    for (const [key, value] of Object.entries(attributes)) {
        shape.setAttribute(key, `${value}`);
    }
    return shape;
}

/** Tells of "view" when another target is shown, and of "point" with a pixel of it. */
export class Stage extends EventTarget {
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
        this.copy = make('canvas', { role: 'img', hidden: true });
        this.message = make('p', { class: 'empty', hidden: true });
        this.overlay = makeShape('svg', { 'aria-hidden': 'true' });
        this.viewport.append(this.copy, this.message, this.overlay);

        this.select.addEventListener('change', () => this.view(Number(this.select.value)));
        for (const type of ['targets', 'binding']) {
            engine.addEventListener(type, () => this.#listTargets());
        }
        const refreshLater = throttle(() => this.refresh(), pauseBetweenCopies);
        engine.addEventListener('drawn', refreshLater);
        this.overlay.addEventListener('pointerdown', (event) =>
            this.#startDrag(/** @type {PointerEvent} */ (event)),
        );
        this.viewport.addEventListener('pointermove', (event) => this.#point(event));
        this.viewport.addEventListener('pointerdown', (event) => this.#point(event));
        this.#listTargets();
    }

    /** @returns {import('./targets.js').Target | undefined} */
    get target() {
        return this.engine.targets.get(this.handle);
    }

    /** @param {number} handle */
    view(handle) {
        this.handle = handle;
        this.select.value = `${handle}`;
        this.#layOut();
        this.refresh();
        this.#drawOverlay();
        this.dispatchEvent(new Event('view'));
    }

    /** @param {Mark[]} marks */
    setMarks(marks) {
        this.#marks = marks;
        this.#box = null;
        this.#drawOverlay();
    }

    /** @param {Rect & { handle: number, label: string } | null} box the extent of a text */
    setBox(box) {
        this.#box = box;
        this.#drawOverlay();
    }

    #listTargets() {
        const handles = [...this.engine.targets.keys()];
        this.select.replaceChildren(
            ...handles.map((handle) =>
                make(
                    'option',
                    { value: `${handle}` },
                    `${formatHandle(handle)} ${this.nameOf(handle)}`,
                ),
            ),
        );
        this.view(handles.includes(this.handle) ? this.handle : windowHandle);
    }

    /** Whether the picture is a copy of a buffer that can be read. */
    get #isCopy() {
        const { engine, target } = this;
        return (
            this.handle !== windowHandle &&
            engine.isBound &&
            target !== undefined &&
            isReadable(target)
        );
    }

    /** Why there is no picture. */
    #explain() {
        if (!this.engine.isBound) {
            return 'No window is bound. Its buffers are remembered by their handles and sizes.';
        }
        return this.target?.isComplete
            ? 'This buffer is too large to be shown whole. Its pixels are told one by one below.'
            : 'Nothing drawn into a buffer of this size leaves a mark.';
    }

    #layOut() {
        const { engine, target } = this;
        const isWindow = this.handle === windowHandle && engine.isBound;
        engine.canvas.hidden = !isWindow;
        this.copy.hidden = !this.#isCopy;
        this.message.hidden = isWindow || this.#isCopy;
        this.message.textContent = this.#explain();
        const { width, height } = target?.isComplete ? target : engine.canvas;
        this.viewport.style.setProperty('--width', `${width}`);
        this.viewport.style.setProperty('--height', `${height}`);
        this.overlay.setAttribute('viewBox', `0 0 ${width} ${height}`);
        this.copy.setAttribute(
            'aria-label',
            `Buffer ${formatHandle(this.handle)} ${this.nameOf(this.handle)}`,
        );
    }

    /** Shows what the buffer holds now. */
    refresh() {
        if (this.#isCopy && this.target) {
            copyToCanvas(this.engine.gl, this.target, this.copy);
        }
    }

    /**
     * Where a pointer is, in pixels of the target.
     *
     * @param {PointerEvent} event
     */
    #locate(event) {
        const bounds = this.overlay.getBoundingClientRect();
        const { width, height } = this.target ?? this.engine.canvas;
        return {
            x: Math.floor(((event.clientX - bounds.left) / bounds.width) * width),
            y: Math.floor(((event.clientY - bounds.top) / bounds.height) * height),
        };
    }

    /** @param {PointerEvent} event */
    #point(event) {
        this.dispatchEvent(new CustomEvent('point', { detail: this.#locate(event) }));
    }

    #drawOverlay() {
        const shapes = this.#marks
            .filter(({ handle }) => handle === this.handle)
            .flatMap((mark) => (mark.isPen ? this.#drawPen(mark) : this.#drawRect(mark)));
        if (this.#box?.handle === this.handle) {
            const { x, y, width, height, label } = this.#box;
            shapes.push(
                makeShape('rect', { x, y, width, height, class: 'box' }),
                this.#drawLabel(x, y, label),
            );
        }
        this.overlay.replaceChildren(...shapes);
    }

    /**
     * @param {number} x
     * @param {number} y
     * @param {string} label
     */
    #drawLabel(x, y, label) {
        const size = this.#handleSize();
        const text = makeShape('text', { x, y: y - size / 2, 'font-size': size * 1.4 });
        text.textContent = label;
        return text;
    }

    /** The side of a mark's corner, in the target's pixels. */
    #handleSize() {
        const { width } = this.target ?? this.engine.canvas;
        const shown = this.overlay.getBoundingClientRect().width || width;
        return (12 * width) / shown;
    }

    /** @param {Mark} mark */
    #drawRect(mark) {
        const { x, y, width, height } = mark.rect;
        const size = this.#handleSize();
        const corner = {
            x: x + width - size / 2,
            y: y + height - size / 2,
            width: size,
            height: size,
        };
        const index = this.#marks.indexOf(mark);
        return [
            makeShape('rect', {
                x,
                y,
                width,
                height,
                class: 'mark',
                'data-mark': index,
                'data-part': 'move',
            }),
            makeShape('rect', {
                ...corner,
                class: 'corner',
                'data-mark': index,
                'data-part': 'resize',
            }),
            this.#drawLabel(x, y, mark.label),
        ];
    }

    /** @param {Mark} mark */
    #drawPen(mark) {
        const { x, y } = mark.rect;
        const size = this.#handleSize();
        return [
            makeShape('line', { x1: x, x2: x + 20 * size, y1: y, y2: y, class: 'baseline' }),
            makeShape('circle', {
                ...{ cx: x, cy: y, r: size * 0.7, class: 'corner' },
                ...{ 'data-mark': this.#marks.indexOf(mark), 'data-part': 'move' },
            }),
        ];
    }

    /** @param {PointerEvent} event */
    #startDrag(event) {
        if (event.button !== 0 || !event.isPrimary) {
            return;
        }
        const part = event.target instanceof SVGElement ? event.target.dataset : {};
        const own = this.#marks.filter(({ handle }) => handle === this.handle);
        // A drag that starts beside all of them draws the first rectangle anew.
        const mark =
            part.mark === undefined
                ? own.find(({ isPen }) => !isPen)
                : this.#marks[Number(part.mark)];
        if (!mark) {
            return;
        }
        event.preventDefault();
        const from = this.#locate(event);
        const start = part.mark === undefined ? { ...from, width: 0, height: 0 } : mark.rect;
        const isResizing = part.part !== 'move';
        this.overlay.setPointerCapture(event.pointerId);
        const drag = (/** @type {Event} */ moved) => {
            const to = this.#locate(/** @type {PointerEvent} */ (moved));
            mark.move(dragRect(start, to.x - from.x, to.y - from.y, isResizing));
        };
        const end = () => {
            this.overlay.removeEventListener('pointermove', drag);
            this.overlay.removeEventListener('pointerup', end);
            this.overlay.removeEventListener('pointercancel', end);
        };
        this.overlay.addEventListener('pointermove', drag);
        this.overlay.addEventListener('pointerup', end);
        this.overlay.addEventListener('pointercancel', end);
    }
}

/**
 * A rectangle moved or resized by some pixels. It never starts outside the target on the left or above:
 * its fields know no negative numbers.
 *
 * @param {Rect} start
 * @param {number} dx
 * @param {number} dy
 * @param {boolean} isResizing
 * @returns {Rect}
 */
function dragRect({ x, y, width, height }, dx, dy, isResizing) {
    if (!isResizing) {
        return { x: Math.max(0, x + dx), y: Math.max(0, y + dy), width, height };
    }
    return { x, y, width: Math.max(0, width + dx), height: Math.max(0, height + dy) };
}
