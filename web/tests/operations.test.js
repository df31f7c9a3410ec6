// Every operation by its form: the code, what it tells, and the pixels that it leaves.

import assert from 'node:assert/strict';
import { execFileSync } from 'node:child_process';
import { test } from 'node:test';
import { openPlayground } from './harness.js';

const include = new URL('../../include', import.meta.url).pathname;
const playground = openPlayground();
const success = /^0 ZO_SUCCESS/;
const own = 0x1000a; // the buffer that the page makes for its visitor

test('rectangles, copies and presentations leave the pixels that they should', async () => {
    const rect = { x: 100, y: 50, width: 20, height: 10 };
    const color = { r: 200, g: 100, b: 0, a: 128 };
    assert.match(await playground.run('ZoDrawRect', { rect, color }), success);
    assert.equal((await playground.pixel(119, 59)).buffer, '200 100 0 128');
    assert.equal((await playground.pixel(120, 59)).buffer, '32 40 92 255');
    assert.equal((await playground.pixel(100, 50)).window, '— — — —');
    await playground.picture('rectangle');

    // Within one buffer, onto what is read; then onto the window, where nothing is blended either.
    const srcRect = { x: 96, y: 50, width: 8, height: 10 };
    const dstRect = { x: 100, y: 50, width: 8, height: 10 };
    const within = { srcHandle: own, srcRect, dstHandle: own, dstRect };
    assert.match(await playground.run('ZoBlit', within), success);
    assert.equal((await playground.pixel(103, 50)).buffer, '32 40 92 255');
    assert.equal((await playground.pixel(104, 50)).buffer, '200 100 0 128');
    const onWindow = { srcRect: dstRect, dstHandle: 0x10000 };
    assert.match(await playground.run('ZoBlit', onWindow), success);
    assert.equal((await playground.pixel(104, 50)).window, '200 100 0 128');
    await playground.picture('copy');

    // A channel of 1 is full intensity.
    const full = { r: 1, g: 2, b: 0, a: 1 };
    assert.match(await playground.run('ZoDrawRect', { color: full }), success);
    assert.equal((await playground.pixel(100, 50)).buffer, '255 2 0 255');

    // (r, g, b, a) lands as (r*a, g*a, b*a, a*a), here with a = 128/255.
    await playground.run('ZoDrawRect', { rect, color });
    const src = rect;
    const dst = { x: 640, y: 360, width: 40, height: 20 };
    assert.match(await playground.run('ZoDisplayFBO', { fbo: own, src, dst }), success);
    assert.deepEqual(await playground.pixel(660, 370), {
        buffer: '200 100 0 128',
        window: '100 50 0 64',
    });
    assert.deepEqual(await playground.pixel(639, 370), {
        buffer: '— — — —',
        window: '0 0 0 0',
    });
    await playground.picture('presentation');
});

test('bitmaps, text and measuring', async () => {
    const { page } = playground;
    assert.match(await playground.run('ZoDisplayBitmap'), success);
    assert.equal((await playground.pixel(459, 300)).window, '0 0 0 0');
    assert.match((await playground.pixel(640, 300)).window, / 255$/);
    await playground.picture('bitmap');

    assert.match(await playground.run('ZoGetTextSize', { text: 'A B' }), /width \d+, height 50/);
    const told = [];
    for (const text of ['A', 'B', 'A B']) {
        const result = await playground.run('ZoGetTextSize', { text });
        told.push(Number(/width (\d+)/.exec(result)?.[1]));
    }
    assert.equal(told[2], told[0] + 30 + told[1], 'a blank counts as 30');

    const result = await playground.run('ZoDrawText', { text: 'A B' });
    assert.match(result, success);
    assert.match(result, /OSDText\s+Char 32 is not exit/);
    assert.match(result, new RegExp(`reports ${told[2]} × 50; it left marks of \\d+ × \\d+`));
    const label = page.locator('#viewport svg text').last();
    assert.equal(await label.textContent(), `${told[2]} × 50`);
    await playground.picture('text');
    const styled = { text: 'Styled', fontSize: 64, bold: true, italic: true };
    assert.match(await playground.run('ZoDrawText', styled), success);
    assert.match(await playground.run('ZoLoadFont', { size: 24 }), success);
    assert.match(
        await playground.run('ZoGetTextSize', { text: 'A' }),
        new RegExp(`width (?!${told[0]},)`),
    );
});

test('buffers and the window', async () => {
    assert.match(await playground.run('ZoGetWindowWidth'), /^1280 pixels/);
    assert.match(await playground.run('ZoGetWindowHeight'), /^720 pixels/);
    assert.match(await playground.run('Init'), success);
    assert.match(await playground.run('ZoRefreshOnSrceen'), success);

    assert.match(await playground.run('ZoCreateGLFBO'), /^0 ZO_SUCCESS.*\s+handle 0x1000B/);
    await playground.waitForBuffers('11 of 15');
    assert.match(await playground.run('ZoDestoryGLFBO', { handle: 0x1000b }), success);
    await playground.waitForBuffers('10 of 15');
    await playground.press('Destroy 0x1000A');
    await playground.waitForBuffers('9 of 15');

    assert.match(await playground.run('ZoCreateGLWindowSurface'), success); // once more
    await playground.waitForBuffers('9 of 15');
    assert.match(await playground.run('ZoDestoryGLWindowSurface'), /^It returns nothing/);
    assert.match(await playground.run('ZoCreateGLWindowSurface'), success);
    await playground.waitForBuffers('9 of 15');
    const again = await playground.run('ZoCreateGLFBO', { width: 640, height: 360 });
    assert.match(again, /handle 0x1000A/);
});

test('marks on the picture can be dragged, and the fields follow', async () => {
    const { page } = playground;
    await playground.fill('ZoDrawRect', { rect: { x: 80, y: 60, width: 240, height: 160 } });
    await page.locator('#viewport').scrollIntoViewIfNeeded();
    const box = await page.locator('#viewport svg').boundingBox();
    assert.ok(box);
    const move = (/** @type {number} */ x, /** @type {number} */ y) =>
        page.mouse.move(
            box.x + ((x + 0.5) * box.width) / 640,
            box.y + ((y + 0.5) * box.height) / 360,
        );
    const code = page.locator('#operation-panel code');
    const drags = /** @type {const} */ ([
        [[100, 100], [150, 120], '{130, 80, 240, 160}'], // the whole
        [[370, 240], [400, 250], '{130, 80, 270, 170}'], // its corner
        [[10, 10], [60, 50], '{10, 10, 50, 40}'], // beside it
        [[30, 30], [0, 0], '{0, 0, 50, 40}'], // never past the left and the top
    ]);
    for (const [from, to, expected] of drags) {
        await move(...from);
        await page.mouse.down();
        await move(...to);
        await page.mouse.up();
        assert.ok((await code.innerText()).includes(`rect = ${expected}`), await code.innerText());
    }
});

test('the C++ that the forms show compiles', async () => {
    const { page } = playground;
    const parts = [];
    for (const tab of await page.getByRole('tab').all()) {
        await tab.click();
        parts.push(`{\n${await page.locator('#operation-panel code').innerText()}\n}`);
    }
    assert.equal(parts.length, 15);
    const source = `#include <zogles/ZoGLDrawSurface.h>
        void All(ZoGLDrawSurface& surface, ANativeWindow* window, const unsigned char* pixels) {
        ${parts.join('\n')} }`;
    const options = ['-std=c++17', '-fsyntax-only', `-I${include}`, '-xc++', '-'];
    execFileSync('c++', options, { input: source, stdio: ['pipe', 'inherit', 'inherit'] });
});
