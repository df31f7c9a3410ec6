// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// Tests the guide's program and page, extracted from the guide.

import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { test } from 'node:test';
import { PNG } from 'pngjs';
import { address, launchBrowser, pictures, watch } from './harness.js';

const build = process.env.PLAYGROUND_BUILD ?? 'build/web/web';
const guide = readFileSync(new URL('../../docs/web.md', import.meta.url), 'utf8');

/**
 * Counts the canvas's pixels of a colour.
 *
 * @param {import('playwright-core').Page} page
 * @param {number[]} color
 */
async function count(page, color) {
    const path = `${pictures}/guide.png`;
    const { data } = PNG.sync.read(await page.locator('canvas').screenshot({ path }));
    let found = 0;
    for (let i = 0; i < data.length; i += 4) {
        found += color.every((channel, c) => data[i + c] === channel) ? 1 : 0;
    }
    return found;
}

test("the guide's program draws, and survives the loss of its context", async () => {
    const browser = await launchBrowser();
    try {
        const page = await browser.newPage();
        /** @type {string[]} */
        const faults = [];
        watch(page, faults);
        const [, html] = /```html\n(.*?)```/s.exec(guide) ?? [];
        await page.route('**/guide/*', (route) => {
            const name = new URL(route.request().url()).pathname.split('/').pop();
            return name === ''
                ? route.fulfill({ body: html, contentType: 'text/html' })
                : route.fulfill({ path: `${build}/${name}` });
        });
        await page.goto(`${address}guide/`);
        const isDrawn = async () => {
            const panel = await count(page, [20, 30, 60]);
            const text = await count(page, [255, 255, 255]);
            return panel > 20000 && text > 500;
        };
        for (const round of ['at first', 'after the loss']) {
            for (let i = 0; i < 50 && !(await isDrawn()); ++i) {
                await page.waitForTimeout(100);
            }
            assert.ok(await isDrawn(), round);
            await page.evaluate(async () => {
                const canvas = document.querySelector('canvas');
                const taker = canvas?.getContext('webgl')?.getExtension('WEBGL_lose_context');
                taker?.loseContext();
                await new Promise((resolve) => setTimeout(resolve, 100));
                taker?.restoreContext();
            });
        }
        assert.deepEqual(faults, []);
    } finally {
        await browser.close();
    }
});
