// Fonts and pictures that a visitor drops on the page. They stay in it.

import { find, make } from './dom.js';
import { results } from './library.js';

/** @typedef {import('./engine.js').Engine} Engine */

export const ownFont = '/fonts/DejaVuSans.ttf';
const mostNamed = 60;

/** @param {ImageBitmapSource} source */
async function decode(source) {
    const bitmap = await createImageBitmap(source, {
        premultiplyAlpha: 'none',
        colorSpaceConversion: 'none',
    });
    const { width, height } = bitmap;
    const canvas = make('canvas', { width, height });
    const context = canvas.getContext('2d', { willReadFrequently: true });
    if (!context) {
        throw new Error('this browser has no 2D canvas');
    }
    context.drawImage(bitmap, 0, 0);
    return context.getImageData(0, 0, width, height);
}

/**
 * The pixels of a PNG file beside the page.
 *
 * @param {string} name
 */
export async function fetchPicture(name) {
    const file = await fetch(`${name}.png`);
    if (!file.ok) {
        throw new Error(`the page’s picture ${name} is not there`);
    }
    return decode(await file.blob());
}

/** @param {number[]} codes */
function nameCharacters(codes) {
    const shown = codes.slice(0, mostNamed).map((code) => {
        const number = `U+${code.toString(16).toUpperCase().padStart(4, '0')}`;
        return code > 0x20 && code < 0xd800 ? `${String.fromCodePoint(code)} ${number}` : number;
    });
    const more = codes.length - shown.length;
    return shown.join(', ') + (more > 0 ? ` and ${more} more` : '');
}

/** Tells of "font" with a path that was loaded, and of "picture" with a name. */
export class Files extends EventTarget {
    /** @type {string[]} */
    fonts = [];

    /** The font that was loaded last. */
    #last = { path: ownFont, size: 40 };

    /** @type {Map<string, ImageData>} */
    pictures = new Map();

    /** @param {Engine} engine */
    constructor(engine) {
        super();
        this.engine = engine;
        this.report = find('file-report', HTMLElement);
        const input = find('file-input', HTMLInputElement);
        input.addEventListener('change', () => {
            this.take([...(input.files ?? [])]);
            input.value = '';
        });
        const zone = document.documentElement;
        document.addEventListener('dragover', (event) => {
            event.preventDefault();
            zone.classList.add('dropping');
        });
        document.addEventListener('dragleave', () => zone.classList.remove('dropping'));
        document.addEventListener('drop', (event) => {
            event.preventDefault();
            zone.classList.remove('dropping');
            this.take([...(event.dataTransfer?.files ?? [])]);
        });
    }

    /** What the page brings along. */
    async loadOwn() {
        const [font, poster] = await Promise.all([fetch('DejaVuSans.ttf'), fetchPicture('poster')]);
        if (!font.ok) {
            throw new Error('the page’s own font is not there');
        }
        this.#store(ownFont, new Uint8Array(await font.arrayBuffer()));
        this.pictures.set('poster.png', poster);
    }

    /** @param {File[]} files */
    async take(files) {
        this.report.replaceChildren();
        for (const file of files) {
            try {
                const isPicture = file.type.startsWith('image/');
                await (isPicture ? this.#takePicture(file) : this.#takeFont(file));
            } catch {
                this.#tell([`${file.name} cannot be read.`]);
            }
        }
    }

    /**
     * Each file gets a path of its own: one that is loaded stays open, and is not to be written over.
     *
     * @param {string} path
     * @param {Uint8Array} data
     */
    #store(path, data) {
        const { FS } = this.engine.library;
        FS.mkdirTree(path.slice(0, path.lastIndexOf('/')));
        FS.writeFile(path, data);
        this.fonts.push(path);
    }

    /** @param {File} file */
    async #takePicture(file) {
        const picture = await decode(file);
        const most = this.engine.gl.getParameter(this.engine.gl.MAX_TEXTURE_SIZE) ?? 0;
        if (picture.width > most || picture.height > most) {
            this.#tell([
                `${file.name} is larger than a texture can be here, ${most} pixels a side.`,
            ]);
            return;
        }
        this.pictures.set(file.name, picture);
        this.#tell([`${file.name} is a bitmap now: ZoDisplayBitmap shows it on the window.`]);
        this.dispatchEvent(new CustomEvent('picture', { detail: file.name }));
    }

    /** @param {File} file */
    async #takeFont(file) {
        const input = find('file-size', HTMLInputElement);
        if (!input.reportValidity()) {
            return;
        }
        const size = Number(input.value);
        const path = `/fonts/${this.fonts.length}/${file.name.replaceAll('/', '_')}`;
        this.#store(path, new Uint8Array(await file.arrayBuffer()));
        const code = this.engine.surface.ZoLoadFont(path, size);
        const { name, meaning, advice } = results[code];
        this.#tell([`${file.name}: ${code} ${name}, ${meaning}.`]);
        if (code === 0) {
            this.#last = { path, size };
            this.#tell(this.#describe(path, size));
            this.dispatchEvent(new CustomEvent('font', { detail: path }));
        } else {
            this.#tell([advice, this.#loadLast()]);
        }
    }

    /** A font that cannot be loaded takes the one before along. */
    #loadLast() {
        const { path, size } = this.#last;
        const code = this.engine.withoutLog(() => this.engine.surface.ZoLoadFont(path, size));
        return code === 0
            ? 'The font before it is gone then; the page has loaded that one again.'
            : `The font before it is gone then, and cannot be loaded now either: ${code}.`;
    }

    /**
     * @param {string} path
     * @param {number} size
     */
    #describe(path, size) {
        const { engine } = this;
        const { family, style, mapped, blank, atlasWidth, atlasHeight, leftOut } =
            engine.withoutLog(() => engine.library.DescribeFont(path, size));
        return [
            `${family} ${style}, ${mapped} characters, ${blank} of them without a mark.`,
            `Its atlas at ${size} pixels is ${atlasWidth} by ${atlasHeight} texels.`,
            leftOut.length === 0
                ? 'No character was left out.'
                : `${leftOut.length} characters were left out: ${nameCharacters(leftOut)}.`,
        ];
    }

    /** @param {string[]} lines */
    #tell(lines) {
        this.report.append(...lines.map((line) => make('p', {}, line)));
    }
}
