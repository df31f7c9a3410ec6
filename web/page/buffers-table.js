// The table of buffers: the handle, the size and a live miniature of each.

import { find, make } from './dom.js';
import { copyToCanvas, formatHandle, isReadable, mostBuffers, windowHandle } from './targets.js';

const pauseBetweenMiniatures = 100; // milliseconds; one is drawn at a time
const mostWidth = 112;
const mostHeight = 63;

/** Tells of "view" and "destroy" with a handle. */
export class BuffersTable extends EventTarget {
    /** @type {Map<number, HTMLCanvasElement>} */
    #miniatures = new Map();

    #next = 0;
    #scratch = document.createElement('canvas');

    /**
     * @param {import('./engine.js').Engine} engine
     * @param {(handle: number) => string} nameOf
     */
    constructor(engine, nameOf) {
        super();
        this.engine = engine;
        this.nameOf = nameOf;
        this.body = find('buffer-rows', HTMLElement);
        this.count = find('buffer-count', HTMLElement);
        engine.addEventListener('targets', () => this.#fill());
        engine.addEventListener('binding', () => this.#fill());
        setInterval(() => this.#drawNext(), pauseBetweenMiniatures);
        this.#fill();
    }

    #fill() {
        const handles = [...this.engine.targets.keys()].filter((handle) => handle !== windowHandle);
        const state = this.engine.isBound ? 'in use' : 'remembered until a window is bound';
        this.count.textContent = `${handles.length} of ${mostBuffers} ${state}`;
        this.#forgetMiniatures(handles);
        this.body.replaceChildren(...handles.map((handle) => this.#makeRow(handle)));
    }

    /** @param {number} handle */
    #makeRow(handle) {
        const target = this.engine.targets.get(handle);
        const name = formatHandle(handle);
        const holds = target && isReadable(target) ? this.#makeMiniature(handle, target) : '—';
        return make(
            'tr',
            {},
            make(
                'th',
                { scope: 'row' },
                make('code', {}, name),
                make('small', {}, this.nameOf(handle)),
            ),
            make('td', {}, `${target?.width} × ${target?.height}`),
            make('td', { class: 'miniature' }, holds),
            make(
                'td',
                {},
                this.#makeButton('view', 'View', handle),
                this.#makeButton('destroy', 'Destroy', handle),
            ),
        );
    }

    /** @param {number[]} handles those that are still there */
    #forgetMiniatures(handles) {
        for (const handle of this.#miniatures.keys()) {
            if (!handles.includes(handle)) {
                this.#miniatures.delete(handle);
            }
        }
    }

    /**
     * A miniature stays what it is while others come and go.
     *
     * @param {number} handle
     * @param {import('./targets.js').Target} target
     */
    #makeMiniature(handle, { width, height }) {
        const scale = Math.min(mostWidth / width, mostHeight / height, 1);
        const size = {
            width: Math.max(1, Math.round(width * scale)),
            height: Math.max(1, Math.round(height * scale)),
        };
        const known = this.#miniatures.get(handle);
        if (known?.width === size.width && known.height === size.height) {
            return known;
        }
        const label = `What ${formatHandle(handle)} holds`;
        const miniature = make('canvas', { role: 'img', 'aria-label': label, ...size });
        this.#miniatures.set(handle, miniature);
        return miniature;
    }

    /**
     * @param {string} type
     * @param {string} label
     * @param {number} handle
     */
    #makeButton(type, label, handle) {
        const button = make('button', { type: 'button', class: 'quiet' }, label);
        button.setAttribute('aria-label', `${label} ${formatHandle(handle)}`);
        button.addEventListener('click', () =>
            this.dispatchEvent(new CustomEvent(type, { detail: handle })),
        );
        return button;
    }

    #drawNext() {
        const handles = [...this.#miniatures.keys()];
        const bounds = this.body.getBoundingClientRect();
        const isSeen = bounds.bottom > 0 && bounds.top < innerHeight && !document.hidden;
        if (handles.length > 0 && isSeen) {
            this.#next = (this.#next + 1) % handles.length;
            this.draw(handles[this.#next]);
        }
    }

    /**
     * Draws a miniature at once, where there is one.
     *
     * @param {number} handle
     */
    draw(handle) {
        const miniature = this.#miniatures.get(handle);
        const target = this.engine.targets.get(handle);
        const context = miniature?.getContext('2d');
        if (!miniature || !context || !target || !this.engine.isBound || !isReadable(target)) {
            return;
        }
        copyToCanvas(this.engine.gl, target, this.#scratch);
        context.clearRect(0, 0, miniature.width, miniature.height);
        context.drawImage(this.#scratch, 0, 0, miniature.width, miniature.height);
    }
}
