// The browser that the tests drive, and what they all watch: whatever a visit does, nothing may reach the
// console as an error, no request may fail, and none may leave the page's own server.

import assert from 'node:assert/strict';
import { mkdirSync } from 'node:fs';
import { after, afterEach, before } from 'node:test';
import { chromium } from 'playwright-core';

/** Where the playground is served, and where pictures of it go: set by scripts/web --test. */
export const address = process.env.PLAYGROUND_ADDRESS ?? 'http://localhost:8000/';
export const pictures = process.env.PLAYGROUND_PICTURES ?? 'out/web-test';

export const wide = { width: 1440, height: 900 };
export const narrow = { width: 390, height: 844 };

/**
 * Opens the playground for all tests of a file. After each of them, nothing may have gone wrong beside what
 * the test looks at. A script that shall run before the page's own is `prepare`.
 *
 * @param {{ prepare?: () => void }} [options]
 */
export function openPlayground({ prepare } = {}) {
    const playground = new Playground();
    /** @type {import('playwright-core').Browser} */
    let browser;
    before(async () => {
        browser = await launchBrowser();
        // Who wants less motion gets a scene that stands still.
        const context = await browser.newContext({ viewport: wide, reducedMotion: 'reduce' });
        playground.page = await context.newPage();
        watch(playground.page, playground.faults);
        if (prepare) {
            await playground.page.addInitScript(prepare);
        }
        await playground.page.goto(address);
        await playground.page.waitForSelector('html[data-state]', { timeout: 60000 });
    });
    afterEach(() => assert.deepEqual(playground.faults, []));
    after(() => browser.close());
    return playground;
}

export function launchBrowser() {
    mkdirSync(pictures, { recursive: true });
    return chromium.launch({
        executablePath: process.env.CHROMIUM ?? '/usr/bin/chromium',
        // The same software driver on every machine.
        args: ['--no-sandbox', '--use-angle=swiftshader', '--enable-unsafe-swiftshader'],
    });
}

/**
 * @param {import('playwright-core').Page} page
 * @param {string[]} faults gets what goes wrong
 */
export function watch(page, faults) {
    page.on('console', (message) => {
        if (message.type() === 'error') {
            faults.push(`console: ${message.text()}`);
        }
    });
    page.on('pageerror', (error) => faults.push(`page: ${error.stack}`));
    page.on('requestfailed', (request) => faults.push(`failed request: ${request.url()}`));
    page.on('request', (request) => {
        const { origin, protocol } = new URL(request.url());
        if (origin !== new URL(address).origin && protocol !== 'blob:' && protocol !== 'data:') {
            faults.push(`request leaves the page: ${request.url()}`);
        }
    });
    page.on('response', (response) => {
        if (response.status() >= 400) {
            faults.push(`${response.status()} ${response.url()}`);
        }
    });
}

/** @typedef {Record<string, number>} Numbers */

/** The page as a visitor has it. */
export class Playground {
    /** @type {import('playwright-core').Page} */
    page = /** @type {any} */ (undefined); // until it is opened

    /** @type {string[]} what went wrong so far */
    faults = [];

    /**
     * Fills in a form.
     *
     * @param {string} operation
     * @param {Record<string, string | number | boolean | Numbers>} [fields] by name; a select's is a value
     */
    async fill(operation, fields = {}) {
        await this.page.getByRole('tab', { name: operation, exact: true }).click();
        for (const [name, value] of Object.entries(fields)) {
            const field = this.page.locator(`#operation-panel [data-field=${name}]`);
            if (typeof value === 'object') {
                for (const [label, number] of Object.entries(value)) {
                    await field.getByLabel(label, { exact: true }).fill(`${number}`);
                }
            } else if (typeof value === 'boolean') {
                await field.getByRole('checkbox').setChecked(value);
            } else if ((await field.getByRole('combobox').count()) > 0) {
                await field.getByRole('combobox').selectOption(`${value}`);
            } else {
                await field.locator('input').fill(`${value}`);
            }
        }
    }

    /**
     * Fills in a form, runs it, and gives what the page says came of it.
     *
     * @param {string} operation
     * @param {Parameters<Playground['fill']>[1]} [fields]
     */
    async run(operation, fields) {
        await this.fill(operation, fields);
        await this.press(`Run ${operation}`);
        return this.page.locator('#operation-panel').getByRole('status').innerText();
    }

    /** @param {string} name of a button */
    async press(name) {
        await this.page.getByRole('button', { name, exact: true }).click();
    }

    /**
     * What the magnifier tells of the pixel at (x, y) of the shown target.
     *
     * @param {number} x
     * @param {number} y
     * @returns {Promise<{ buffer: string, window: string }>} "r g b a"
     */
    async pixel(x, y) {
        await this.page.locator('#pixel-x').fill(`${x}`);
        await this.page.locator('#pixel-y').fill(`${y}`);
        await this.page.evaluate(() => new Promise(requestAnimationFrame));
        const [buffer, window] = await this.page.locator('#pixel-values').evaluate((body) =>
            [...body.children].map((row) => {
                const cells = [...row.children].map((cell) => cell.textContent);
                return cells.slice(-4).join(' ');
            }),
        );
        return { buffer, window };
    }

    /** The window's pixels as WebGL has them, rows from the bottom. */
    async windowPixels() {
        const text = await this.page.locator('#viewport canvas').first().evaluate(readWindow);
        return Buffer.from(text, 'base64');
    }

    /** @param {string} text of the list of buffers */
    async waitForBuffers(text) {
        await this.page.locator('#buffer-count').getByText(text).waitFor();
    }

    /**
     * @param {string} name
     * @param {boolean} [isWhole] whether it goes beyond what the screen shows
     */
    async picture(name, isWhole = true) {
        await this.page.evaluate(() => scrollTo(0, 0)); // what sticks to the screen stands at the top
        await this.page.screenshot({ path: `${pictures}/${name}.png`, fullPage: isWhole });
    }
}

/** @param {HTMLElement | SVGElement} element the window's canvas */
function readWindow(element) {
    const canvas = /** @type {HTMLCanvasElement} */ (element);
    const gl = /** @type {WebGLRenderingContext} */ (canvas.getContext('webgl'));
    const pixels = new Uint8Array(canvas.width * canvas.height * 4);
    gl.readPixels(0, 0, canvas.width, canvas.height, gl.RGBA, gl.UNSIGNED_BYTE, pixels);
    let text = '';
    for (let i = 0; i < pixels.length; i += 30000) {
        text += String.fromCharCode(...pixels.subarray(i, i + 30000));
    }
    return btoa(text);
}
