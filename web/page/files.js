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

/** @param {number[]} codes */
function nameCharacters(codes) {
    const shown = codes.slice(0, mostNamed).map((code) => {
        const number = `U+${code.toString(16).toUpperCase().padStart(4, '0')}`;
        return code > 0x20 && code < 0xd800 ? `${String.fromCodePoint(code)} ${number}` : number;
    });
    const more = codes.length - shown.length;
    return shown.join(', ') + (more > 0 ? ` and ${more} more` : '');
}

/** Tells of "font" with a path and a code, and of "picture" with a name. */
export class Files extends EventTarget {
    /** @type {string[]} */
    fonts = [];

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
        const [font, poster] = await Promise.all(
            ['DejaVuSans.ttf', 'poster.png'].map((name) => fetch(name)),
        );
        if (!font.ok || !poster.ok) {
            throw new Error('the page’s own font and picture are not there');
        }
        this.#store(ownFont, new Uint8Array(await font.arrayBuffer()));
        this.pictures.set('poster.png', await decode(await poster.blob()));
    }

    /** @param {File[]} files */
    async take(files) {
        for (const file of files) {
            await (file.type.startsWith('image/') ? this.#takePicture(file) : this.#takeFont(file));
        }
    }

    /**
     * @param {string} path
     * @param {Uint8Array} data
     */
    #store(path, data) {
        this.engine.library.FS.mkdirTree('/fonts');
        this.engine.library.FS.writeFile(path, data);
        if (!this.fonts.includes(path)) {
            this.fonts.push(path);
        }
    }

    /** @param {File} file */
    async #takePicture(file) {
        try {
            this.pictures.set(file.name, await decode(file));
        } catch {
            this.#show([`${file.name} is no picture that this browser reads.`]);
            return;
        }
        this.#show([`${file.name} is a bitmap now: ZoDisplayBitmap shows it on the window.`]);
        this.dispatchEvent(new CustomEvent('picture', { detail: file.name }));
    }

    /** @param {File} file */
    async #takeFont(file) {
        const path = `/fonts/${file.name}`;
        this.#store(path, new Uint8Array(await file.arrayBuffer()));
        const size = Number(find('file-size', HTMLInputElement).value) || 40;
        const code = this.engine.surface.ZoLoadFont(path, size);
        this.#show([
            `${file.name}: ${code} ${results[code].name}, ${results[code].meaning}.`,
            ...this.#describe(path, size, code),
        ]);
        this.dispatchEvent(new CustomEvent('font', { detail: { path, code } }));
    }

    /**
     * @param {string} path
     * @param {number} size
     * @param {number} code
     */
    #describe(path, size, code) {
        const { engine } = this;
        if (code !== 0) {
            const before = 'The font before it is gone then; the page has loaded that one again.';
            return [results[code].advice, ...(engine.isBound ? [before] : [])];
        }
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
    #show(lines) {
        this.report.replaceChildren(...lines.map((line) => make('p', {}, line)));
    }
}
