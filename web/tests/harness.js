// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// The browser for the tests. Each test fails if an error reaches the console, if a request fails, or if a
// request goes to another server.

import assert from 'node:assert/strict';
import { mkdirSync } from 'node:fs';
import { after, afterEach, before } from 'node:test';
import { chromium } from 'playwright-core';

/** The playground's address and the folder for screenshots, both set by scripts/web --test. */
export const address = process.env.PLAYGROUND_ADDRESS ?? 'http://localhost:8000/';
export const pictures = process.env.PLAYGROUND_PICTURES ?? 'out/web-test';

export const wide = { width: 1440, height: 900 };
export const own = 0x1000a; // the buffer that the page creates for its visitor

/**
 * Opens the playground for all tests of a file. `prepare` runs before the page's own scripts.
 *
 * @param {{ prepare?: () => void }} [options]
 */
export function openPlayground({ prepare = () => {} } = {}) {
    const playground = new Playground();
    /** @type {import('playwright-core').Browser} */
    let browser;
    before(async () => {
        browser = await launchBrowser();
        // With reduced motion the scene does not play by itself.
        const context = await browser.newContext({ viewport: wide, reducedMotion: 'reduce' });
        playground.page = await context.newPage();
        watch(playground.page, playground.faults);
        await playground.page.addInitScript(prepare);
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
 * @param {string[]} faults receives all errors
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
        if (!request.url().startsWith(address)) {
            faults.push(`request leaves the page: ${request.url()}`);
        }
    });
    page.on('response', (response) => {
        if (response.status() >= 400) {
            faults.push(`${response.status()} ${response.url()}`);
        }
    });
}

/** @typedef {Record<string, string | number | boolean | Record<string, number>>} Fields */

/** The page as a visitor uses it. */
export class Playground {
    /** @type {import('playwright-core').Page} */
    page = /** @type {any} */ (undefined); // until it is opened

    /** @type {string[]} all errors so far */
    faults = [];

    get panel() {
        return this.page.locator('#operation-panel');
    }

    /**
     * Fills in a form.
     *
     * @param {string} operation
     * @param {Fields} [fields] by name; of a select the value
     */
    async fill(operation, fields = {}) {
        await this.page.getByRole('radio', { name: operation }).check({ force: true });
        for (const [name, value] of Object.entries(fields)) {
            const field = this.panel.locator(`[data-field=${name}]`);
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
     * Fills in a form, runs it, and returns the page's report of the result.
     *
     * @param {string} operation
     * @param {Fields} [fields]
     * @param {RegExp} [expected] what the report has to match
     */
    async run(operation, fields, expected = /^0 ZO_SUCCESS/) {
        await this.fill(operation, fields);
        await this.press(`Run ${operation}`);
        const report = await this.panel.getByRole('status').innerText();
        assert.match(report, expected, `${operation} ${JSON.stringify(fields)}`);
        return report;
    }

    /** @param {string[]} names of buttons */
    async press(...names) {
        for (const name of names) {
            await this.page.getByRole('button', { name, exact: true }).click();
        }
    }

    /** @param {number} handle */
    async view(handle) {
        await this.page.locator('#view').selectOption(`${handle}`);
    }

    /**
     * The magnifier's values of the pixel at (x, y) of the shown target.
     *
     * @param {number} x
     * @param {number} y
     * @returns {Promise<string[]>} "r g b a" in the buffer and on the window
     */
    async pixel(x, y) {
        await this.page.locator('#pixel-x').fill(`${x}`);
        await this.page.locator('#pixel-y').fill(`${y}`);
        await this.page.waitForTimeout(200); // the values follow at most every 100 ms
        return this.page.locator('#pixel-table').evaluate((table) =>
            [...table.children].slice(1).map((row) => {
                const cells = [...row.children].map((cell) => cell.textContent);
                return cells.slice(-4).join(' ');
            }),
        );
    }

    /** The window's pixels as WebGL returns them, rows from the bottom. */
    async windowPixels() {
        const text = await this.page.locator('#viewport canvas').first().evaluate(readWindow);
        return Buffer.from(text, 'base64');
    }

    /** @param {string} text such as "10 of 15" */
    async waitForBuffers(text) {
        await this.page.locator('#buffer-count').getByText(text).waitFor();
    }

    /** @param {string} name */
    async picture(name) {
        await this.page.evaluate(() => scrollTo(0, 0)); // otherwise sticky parts cover others
        await this.page.screenshot({ path: `${pictures}/${name}.png`, fullPage: true });
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
