// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// Every operation, run by its form: the code, the report, and the pixels.

import assert from 'node:assert/strict';
import { execFileSync } from 'node:child_process';
import { readFileSync } from 'node:fs';
import { test } from 'node:test';
import { openPlayground, own } from './harness.js';

const include = new URL('../../include', import.meta.url).pathname;
const font = process.env.PLAYGROUND_FONT ?? '../out/web/DejaVuSans.ttf';
const noPixel = '— — — —';

const playground = openPlayground();

/** @param {string} text */
async function measure(text) {
    const report = await playground.run('ZoGetTextSize', { text }, /width \d+, height 50/);
    return Number(/width (\d+)/.exec(report)?.[1]);
}

/**
 * Gives the page a file, as a visitor would, and returns its report.
 *
 * @param {string} name
 * @param {Buffer} buffer
 */
async function give(name, buffer) {
    const report = playground.page.locator('#file-report');
    await report.evaluate((element) => element.replaceChildren());
    const mimeType = name.endsWith('.png') ? 'image/png' : 'font/ttf';
    await playground.page.locator('#file-input').setInputFiles({ name, mimeType, buffer });
    await report.getByText(name).waitFor({ timeout: 60000 });
    return report.innerText();
}

test('rectangles, copies and presentations draw exactly their pixels', async () => {
    const rect = { x: 100, y: 50, width: 20, height: 10 };
    const color = { r: 200, g: 100, b: 0, a: 128 };
    await playground.run('ZoDrawRect', { rect, color });
    assert.deepEqual(await playground.pixel(119, 59), ['200 100 0 128', noPixel]);
    assert.deepEqual(await playground.pixel(120, 59), ['32 40 92 255', noPixel]);

    // Within one buffer, onto the source itself; then onto the window, which is not blended either.
    const srcRect = { x: 96, y: 50, width: 8, height: 10 };
    const dstRect = { x: 100, y: 50, width: 8, height: 10 };
    await playground.run('ZoBlit', { srcHandle: own, srcRect, dstHandle: own, dstRect });
    assert.equal((await playground.pixel(103, 50))[0], '32 40 92 255');
    assert.equal((await playground.pixel(104, 50))[0], '200 100 0 128');
    await playground.run('ZoBlit', { srcRect: dstRect, dstHandle: 0x10000 });
    assert.equal((await playground.pixel(104, 50))[1], '200 100 0 128');

    // A channel of 1 is full intensity.
    await playground.run('ZoDrawRect', { color: { r: 1, g: 2, b: 0, a: 1 } });
    assert.equal((await playground.pixel(100, 50))[0], '255 2 0 255');

    // (r, g, b, a) becomes (r*a, g*a, b*a, a*a), here with a = 128/255.
    await playground.run('ZoDrawRect', { rect, color });
    const dst = { x: 640, y: 360, width: 40, height: 20 };
    await playground.run('ZoDisplayFBO', { fbo: own, src: rect, dst });
    assert.deepEqual(await playground.pixel(660, 370), ['200 100 0 128', '100 50 0 64']);
    assert.deepEqual(await playground.pixel(639, 370), [noPixel, '0 0 0 0']);
    await playground.picture('presentation');

    await playground.run('ZoDisplayBitmap');
    assert.equal((await playground.pixel(459, 300))[1], '0 0 0 0');
    assert.match((await playground.pixel(640, 300))[1], / 255$/);
});

test('text is drawn and measured', async () => {
    const { page } = playground;
    const [a, b, both] = [await measure('A'), await measure('B'), await measure('A B')];
    assert.equal(both, a + 30 + b, 'a space counts as 30');

    const report = await playground.run('ZoDrawText', { text: 'A B' });
    assert.match(report, /OSDText: Char 32 is not exit/);
    assert.match(report, new RegExp(`gives ${both} × 50; \\d+ × \\d+ changed`));
    const label = page.locator('#viewport svg text').last();
    assert.equal(await label.textContent(), `${both} × 50`);
    await playground.picture('text');
    await playground.run('ZoDrawText', { text: 'Styled', fontSize: 64, bold: true, italic: true });
    await playground.run('ZoLoadFont', { size: 24 });
    assert.notEqual(await measure('A'), a);
    await playground.run('ZoLoadFont', { size: 40 });
});

test('buffers and windows can be created and destroyed', async () => {
    await playground.run('ZoGetWindowWidth', {}, /^1280 pixels/);
    await playground.run('ZoGetWindowHeight', {}, /^720 pixels/);
    await playground.run('Init');
    await playground.run('ZoRefreshOnSrceen');
    await playground.run('ZoCreateGLWindowSurface'); // again
    await playground.run('ZoDestoryGLWindowSurface', {}, /^It returns nothing/);
    await playground.run('ZoCreateGLWindowSurface');

    for (const slot of ['B', 'C', 'D', 'E', 'F']) {
        await playground.run('ZoCreateGLFBO', {}, new RegExp(`^0.*\\s+handle 0x1000${slot}`));
    }
    await playground.waitForBuffers('15 of 15');
    await playground.run('ZoCreateGLFBO', {}, /^15 ZO_NO_FREE_FBO.*Destroy one/);
    await playground.picture('pool-full');
    await playground.run('ZoDestoryGLFBO', { handle: 0x1000f });
    await playground.press('Destroy 0x1000B', 'Destroy 0x1000C', 'Destroy 0x1000D');
    await playground.press('Destroy 0x1000E');
    await playground.waitForBuffers('10 of 15');
});

test('wrong arguments return their documented codes', async () => {
    for (const fbo of [0x10010, 0xffffffff]) {
        await playground.run('ZoDrawRect', { fbo }, /^101 ZO_INVALID_PARAM/);
    }
    await playground.run('ZoDrawText', { handle: 0x10010 }, /There is not the fbo/);
    await playground.run('ZoDestoryGLFBO', { handle: 0x10010 }, /^0 .*FBO is not exist/s);
    await playground.run('ZoCreateGLWindowSurface', { window: '' }, /^101/);
    await playground.run('ZoDisplayBitmap', { data: '' });
    await playground.run('ZoLoadFont', { path: '/fonts/missing.ttf' }, /^31/);
    await playground.run('ZoLoadFont', { path: '/fonts/DejaVuSans.ttf' });
});

test('extreme sizes return codes, too', async () => {
    for (const size of [0, 1, 100000, 4294967295]) {
        await playground.run('ZoCreateGLFBO', { width: size, height: size });
        const shown = await playground.page.locator('#buffer-table tr').last().innerText();
        assert.ok(shown.includes(`${size} × ${size}`), shown);
        await playground.run('ZoDrawRect', { fbo: 0x1000b });
        await playground.run('ZoDrawText', { handle: 0x1000b }, size === 0 ? /^101/ : /^0/);
        await playground.run('ZoDestoryGLFBO', { handle: 0x1000b });
    }
    const far = { x: 4294967295, y: 4294967295, width: 4294967295, height: 4294967295 };
    await playground.run('ZoDrawRect', { fbo: own, rect: far });
    await playground.run('ZoBlit', { dstHandle: own, srcRect: far, dstRect: far });
    await playground.run('ZoDisplayFBO', { fbo: own, src: far, dst: far });
    for (const fontSize of [0, 1, 2000]) {
        await playground.run('ZoDrawText', { handle: own, fontSize, bold: true, text: 'g' });
    }
    await playground.run('ZoDrawText', { fontSize: 70000 }, /^32/);
    await playground.run('ZoDrawText', { fontSize: 40, bold: false, italic: false });
    await playground.run('ZoDrawRect', { rect: { x: 0, y: 0, width: 9, height: 9 } });
});

test('the forms reject values that a record cannot hold', async () => {
    const isValid = () => playground.panel.locator('form').evaluate((f) => f.matches(':valid'));
    for (const [operation, fields, expected] of /** @type {const} */ ([
        ['ZoDrawText', { text: 'ab' }, true],
        ['ZoDrawText', { length: 3 }, false],
        ['ZoDisplayBitmap', { data: 'poster.png', width: 361 }, false],
        ['ZoDisplayBitmap', { width: 120, height: 1440 }, true],
        ['ZoDrawRect', { rect: { x: -1 } }, false],
        ['ZoGetTextSize', { text: 'ab', length: 3 }, false],
    ])) {
        await playground.fill(operation, fields);
        assert.equal(await isValid(), expected, `${operation} ${JSON.stringify(fields)}`);
    }
    await playground.press('Run ZoGetTextSize');
    assert.equal(await playground.panel.getByRole('status').innerText(), '');
});

test('a damaged font keeps the previous font; a large font lists the characters that do not fit', async () => {
    const whole = readFileSync(font);
    assert.match(await give('same.ttf', whole), /DejaVu Sans Book.*1023 × \d+ texels.*No char/s);
    const before = await measure('Volume');
    for (const damaged of [
        Buffer.from('no font at all'),
        Buffer.alloc(0),
        whole.subarray(0, 4000),
    ]) {
        const report = await give('same.ttf', damaged);
        assert.match(report, /same.ttf: 31 ZO_FONT_FACE_FAILED.*the page has loaded it again/s);
        assert.equal(await measure('Volume'), before);
    }
    assert.match(await give('x.png', whole), /x.png cannot be read/);

    await playground.page.locator('#file-size').fill('300');
    const report = await give('large.ttf', whole);
    const [, count, first] = /(\d+) characters did not fit: (.) U\+/.exec(report) ?? [];
    const log = await playground.page.getByRole('log').innerText();
    assert.ok(log.includes(`${count} characters are left out of the texture`), report);
    await playground.run('ZoDrawText', { handle: own, text: first }, /Char \d+ is not exit/);
    await playground.picture('font');
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
    for (const [from, to, expected] of /** @type {const} */ ([
        [[100, 100], [150, 120], '{130, 80, 240, 160}'], // the whole
        [[370, 240], [400, 250], '{130, 80, 270, 170}'], // its corner
        [[10, 10], [60, 50], '{10, 10, 50, 40}'], // beside it
        [[30, 30], [0, 0], '{0, 0, 50, 40}'], // never beyond the left and the top
    ])) {
        await move(...from);
        await page.mouse.down();
        await move(...to);
        await page.mouse.up();
        const code = await playground.panel.locator('code').last().innerText();
        assert.ok(code.includes(`rect = ${expected}`), code);
    }
});

test('the C++ of the forms compiles, with variables for handles', async () => {
    const parts = [];
    for (const radio of await playground.page.getByRole('radio').all()) {
        await radio.check({ force: true });
        parts.push(`{\n${await playground.panel.locator('pre').innerText()}\n}`);
    }
    assert.equal(parts.length, 15);
    const source = `#include <zogles/ZoGLDrawSurface.h>
        void All(ZoGLDrawSurface& surface, ANativeWindow* window, const unsigned char* rgbaPixels) {
        ${parts.join('\n')} }`;
    assert.doesNotMatch(source, /(?<!unsigned int \w+ = )0x1000/);
    const options = ['-std=c++17', '-fsyntax-only', `-I${include}`, '-xc++', '-'];
    execFileSync('c++', options, { input: source, stdio: ['pipe', 'inherit', 'inherit'] });
});
