// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// Fonts and pictures that a visitor drops on the page. They stay in the page.

import { Emitter, find, make } from './dom.js';
import { results } from './library.js';

export const ownFont = '/fonts/DejaVuSans.ttf';
const mostNamed = 60; // characters

/** @param {ImageBitmapSource} source */
async function decode(source) {
    const bitmap = await createImageBitmap(source, {
        premultiplyAlpha: 'none',
        colorSpaceConversion: 'none',
    });
    const { width, height } = bitmap;
    const context = make('canvas', { width, height }).getContext('2d');
    if (!context) {
        throw new Error('this browser has no 2D canvas');
    }
    context.drawImage(bitmap, 0, 0);
    return context.getImageData(0, 0, width, height);
}

/**
 * Fetches one of the page's own files.
 *
 * @param {string} name
 */
async function fetchOwn(name) {
    const response = await fetch(name);
    if (!response.ok) {
        throw new Error(`its file ${name} is missing.`);
    }
    return response.blob();
}

/** @param {string} name of a PNG file, without the ending */
export async function fetchPicture(name) {
    return decode(await fetchOwn(`${name}.png`));
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

/** Emits "font" with the path of a font that was loaded, and "picture" with a name. */
export class Files extends Emitter {
    /** @type {string[]} */
    fonts = [];

    /** The last font that was loaded. */
    #last = { path: ownFont, size: 40 };

    /** @type {Map<string, ImageData>} */
    pictures = new Map();

    /** @param {import('./engine.js').Engine} engine */
    constructor(engine) {
        super();
        this.engine = engine;
        this.report = find('file-report', HTMLElement);
        const input = find('file-input', HTMLInputElement);
        input.addEventListener('change', () => {
            this.#take([...(input.files ?? [])]);
            input.value = '';
        });
        for (const type of /** @type {const} */ (['dragover', 'dragleave', 'drop'])) {
            document.addEventListener(type, (event) => {
                event.preventDefault();
                document.documentElement.classList.toggle('dropping', type === 'dragover');
            });
        }
        document.addEventListener('drop', (event) => {
            this.#take([...(event.dataTransfer?.files ?? [])]);
        });
    }

    /** Loads the page's own font and picture. */
    async loadOwn() {
        const font = await fetchOwn('DejaVuSans.ttf');
        this.#store(ownFont, new Uint8Array(await font.arrayBuffer()));
        this.pictures.set('poster.png', await fetchPicture('poster'));
    }

    /** @param {File[]} files */
    async #take(files) {
        this.report.replaceChildren();
        for (const file of files) {
            try {
                const isPicture = file.type.startsWith('image/');
                await (isPicture ? this.#takePicture(file) : this.#takeFont(file));
            } catch {
                this.#say(`${file.name} cannot be read.`);
            }
        }
    }

    /**
     * Each file gets a new path, because a loaded font stays open and must not be overwritten.
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
        const { gl } = this.engine;
        const most = gl.getParameter(gl.MAX_TEXTURE_SIZE) ?? 0;
        if (picture.width > most || picture.height > most) {
            this.#say(`${file.name} is too large: textures have up to ${most} pixels per side.`);
            return;
        }
        this.pictures.set(file.name, picture);
        this.#say(`${file.name} is a bitmap now: ZoDisplayBitmap shows it on the window.`);
        this.emit('picture', file.name);
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
        this.#say(`${file.name}: ${code} ${name}, ${meaning}.`);
        if (code === 0) {
            this.#last = { path, size };
            this.#describe(path, size);
            this.emit('font', path);
        } else {
            this.#say(advice, this.#loadLast());
        }
    }

    /** Loads the previous font again, because a failed load discards it. */
    #loadLast() {
        const { path, size } = this.#last;
        const code = this.engine.withoutLog(() => this.engine.surface.ZoLoadFont(path, size));
        return code === 0
            ? 'A failed load discards the previous font; the page has loaded it again.'
            : `A failed load discards the previous font; loading it again returned ${code}.`;
    }

    /**
     * @param {string} path
     * @param {number} size
     */
    #describe(path, size) {
        const { engine } = this;
        const { name, mapped, blank, atlasWidth, atlasHeight, leftOut } = engine.withoutLog(() =>
            engine.library.DescribeFont(path, size),
        );
        this.#say(
            `${name}, ${mapped} characters, ${blank} of them blank.`,
            `Its atlas at ${size} pixels is ${atlasWidth} × ${atlasHeight} texels.`,
            leftOut.length === 0
                ? 'No character is missing from the atlas.'
                : `${leftOut.length} characters did not fit: ${nameCharacters(leftOut)}.`,
        );
    }

    /** @param {string[]} lines */
    #say(...lines) {
        this.report.append(...lines.map((line) => make('p', {}, line)));
    }
}
