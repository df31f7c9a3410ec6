// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// The page on wide and narrow screens, light and dark, by keyboard, and without WebGL; the scene and the
// log.

import assert from 'node:assert/strict';
import { readFileSync, writeFileSync } from 'node:fs';
import { test } from 'node:test';
import { PNG } from 'pngjs';
import { address, launchBrowser, openPlayground, pictures, wide } from './harness.js';

// Each driver rounds what is scaled or blended into a buffer differently, so that colour and alpha may differ
// by one. Presentation multiplies the two and rounds again: two. Alpha is not compared: the window of
// the reference has none.
const mostDifference = 2;
const phone = { width: 390, height: 844 };

const playground = openPlayground();

test('the scene has the same pixels as with Mesa', async (t) => {
    const pixels = await playground.windowPixels(); // waits until the driver has drawn them
    const now = await playground.page.evaluate(() => performance.now());
    t.diagnostic(`first picture within ${Math.round(now)} ms of the visit`);
    const { width, height, data } = PNG.sync.read(readFileSync(`${pictures}/mesa/osd.png`));
    const shades = new PNG({ width, height });
    /** @type {number[]} */
    const counts = [];
    for (let i = 0; i < data.length; i += 4) {
        const flipped = i + (height - 1 - 2 * Math.floor(i / 4 / width)) * 4 * width;
        const channels = [0, 1, 2].map((c) => Math.abs(pixels[flipped + c] - data[i + c]));
        const difference = Math.max(...channels);
        counts[difference] = (counts[difference] ?? 0) + 1;
        const shade = Math.min(255, difference * 60);
        shades.data.set([shade, shade, shade, 255], i);
    }
    t.diagnostic(`pixels by their largest difference in a channel: ${counts}`);
    writeFileSync(`${pictures}/difference.png`, PNG.sync.write(shades));
    assert.ok(counts.length <= mostDifference + 1);
});

test('the scene plays, and pauses when an operation draws on the window', async () => {
    const { page } = playground;
    const isMoving = async () => {
        const before = await playground.windowPixels();
        await page.waitForTimeout(500);
        return !before.equals(await playground.windowPixels());
    };
    assert.equal(await isMoving(), false);
    await playground.press('Play');
    assert.equal(await isMoving(), true);
    await playground.press('Pause');
    assert.equal(await isMoving(), false);
    await playground.press('Play');
    await playground.run('ZoDisplayBitmap');
    await page.getByText('The scene is paused').waitFor();
    assert.equal(await isMoving(), false);
    // The background behind the window is visible through it.
    await page.locator('#behind').selectOption('checks');
    const { data } = PNG.sync.read(await page.locator('#viewport').screenshot());
    assert.ok(data.includes(Buffer.from([0x8c, 0x8f, 0x9f, 0xff])));
    await page.locator('#behind').selectOption('black');
});

for (const [size, viewport] of Object.entries({ wide, phone })) {
    for (const colorScheme of /** @type {const} */ (['light', 'dark'])) {
        test(`${size} and ${colorScheme}: nothing is cut off`, async () => {
            const { page } = playground;
            await page.setViewportSize(viewport);
            await page.emulateMedia({ colorScheme });
            for (const operation of ['ZoDrawText', 'ZoBlit', 'Init']) {
                await playground.run(operation);
                const [content, screen] = await page.evaluate(() => [
                    document.documentElement.scrollWidth,
                    document.documentElement.clientWidth,
                ]);
                assert.ok(content <= screen, `${operation}: ${content} > ${screen}`);
            }
            await playground.view(0x10000);
            await playground.picture(`${size}-${colorScheme}`);
        });
    }
}

test('on a phone, picture and result are visible after Run, and controls are large enough for a finger', async () => {
    const { page } = playground;
    await page.setViewportSize(phone);
    for (const operation of ['ZoBlit', 'ZoDrawText', 'ZoGetWindowWidth']) {
        await playground.run(operation, {}, /./);
        for (const part of ['#viewport', '.main', '.result p']) {
            const box = await page.locator(part).first().boundingBox();
            const isSeen = box && box.y >= 0 && box.y + box.height <= phone.height;
            assert.ok(isSeen, `${operation}: ${part} ${JSON.stringify(box)}`);
        }
        await page.screenshot({ path: `${pictures}/phone-${operation}.png` });
    }
    for (const control of await page.locator('button, select, label:visible, a').all()) {
        const { height } = (await control.boundingBox()) ?? { height: 0 };
        assert.ok(height >= 44, `${height}: ${await control.innerText()}`);
    }
    await page.setViewportSize(wide);
});

test('the keyboard reaches every control, and every control has a name', async () => {
    const { page } = playground;
    const reached = new Set();
    await page.locator('body').click({ position: { x: 1, y: 1 } });
    const controls = await page
        .locator('button, input:not([type=radio]), select, [tabindex="0"], a[href]')
        .all();
    for (let i = 0; i < controls.length + 5; ++i) {
        await page.keyboard.press('Tab');
        reached.add(await page.evaluate(() => document.activeElement?.outerHTML));
    }
    for (const control of controls) {
        const html = await control.evaluate((element) => element.outerHTML);
        assert.ok(reached.has(html), `not reached by Tab: ${html}`);
    }
    const snapshot = await page.locator('body').ariaSnapshot();
    const role = /- (button|textbox|combobox|spinbutton|checkbox|img|radio|link)(:|$)/;
    assert.deepEqual(
        snapshot.split('\n').filter((line) => role.test(line)),
        [],
    );

    await page.getByRole('radio', { name: 'ZoDrawRect' }).focus();
    for (const [key, name] of [
        ['ArrowRight', 'ZoBlit'],
        ['ArrowLeft', 'ZoDrawRect'],
        ['ArrowUp', 'ZoGetWindowHeight'],
        ['ArrowDown', 'ZoDrawRect'],
    ]) {
        await page.keyboard.press(key);
        assert.ok(await page.getByRole('radio', { name }).isChecked(), key);
        await page.getByRole('button', { name: `Run ${name}` }).waitFor();
    }
    await page.keyboard.press('Tab'); // into the form, whose fields Enter runs
    await page.keyboard.press('Tab');
    await page.keyboard.press('Enter');
    assert.match(await playground.panel.getByRole('status').innerText(), /^0/);
});

test('the log shows the lines that pass its filter', async () => {
    const { page } = playground;
    await playground.run('ZoDestoryGLWindowSurface', {}, /nothing/);
    await playground.press('Clear');
    await playground.run('ZoCreateGLWindowSurface');
    await playground.run('ZoDrawText', { text: 'a b' });
    const log = page.getByRole('log');
    for (const [filter, expected] of [
        ['*:V', 'WVEEEEE'],
        ['*:W', 'WEEEEE'],
        ['OSDText:S *:E', 'EEEE'],
        ['OSDText *:S', 'E'],
        ['*:S', ''],
    ]) {
        await page.locator('#log-filter').fill(filter);
        await page.waitForTimeout(50);
        assert.equal((await log.locator('b').allInnerTexts()).join(''), expected, filter);
    }
    assert.match(await page.locator('#log').innerText(), /7 filtered out/);
    await page.locator('#log-filter').fill('');
    await playground.press('Clear');
    await playground.run('ZoDrawText', { text: '   ' });
    assert.match(await log.innerText(), /Char 32 is not exit\s*×3/);
});

test('every link has a target', async () => {
    const { page } = playground;
    const links = await page
        .locator('[href]')
        .evaluateAll((all) => all.map((element) => /** @type {any} */ (element).href));
    assert.ok(links.length >= 6);
    for (const link of links) {
        assert.ok((await page.request.get(link)).ok(), link);
    }
    assert.match(await page.locator('#version').innerText(), /^Version \d+\.\d+\.\d+$/);
});

test('without WebGL there is one message and no panel', async () => {
    const browser = await launchBrowser();
    const page = await browser.newPage();
    await page.addInitScript(() => {
        HTMLCanvasElement.prototype.getContext = () => null;
    });
    await page.goto(address);
    await page.waitForSelector('html[data-state=failed]');
    await page.screenshot({ path: `${pictures}/without-webgl.png` });
    assert.match(await page.locator('#notice').innerText(), /cannot start: .* WebGL/);
    assert.equal(await page.locator('main').isVisible(), false);
    await browser.close();
});
