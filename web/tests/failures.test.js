// What goes wrong is told by its code, and the page stays whole.

import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { test } from 'node:test';
import { openPlayground } from './harness.js';

const font = process.env.PLAYGROUND_FONT ?? '../out/web/DejaVuSans.ttf';

const playground = openPlayground();
const own = 0x1000a; // the buffer that the page makes for its visitor

/**
 * Gives the page a file, as a visitor would, and waits for what it says.
 *
 * @param {{ name: string, mimeType: string, buffer: Buffer }} file
 */
async function give(file) {
    const { page } = playground;
    const report = page.locator('#file-report');
    await report.evaluate((element) => element.replaceChildren());
    await page.locator('#file-input').setInputFiles(file);
    await report.getByText(file.name).waitFor({ timeout: 60000 });
    return report.innerText();
}

test('unknown handles, null pointers and a full pool', async () => {
    for (const fbo of [0x10010, 0xffffffff]) {
        assert.match(await playground.run('ZoDrawRect', { fbo }), /^101 ZO_INVALID_PARAM/);
    }
    assert.match(await playground.run('ZoDrawText', { handle: 0x10010 }), /There is not the fbo/);
    assert.match(
        await playground.run('ZoDestoryGLFBO', { handle: 0x10010 }),
        /^0 .*FBO is not exist/s,
    );
    assert.match(await playground.run('ZoCreateGLWindowSurface', { window: '' }), /^101/);
    assert.match(await playground.run('ZoDisplayBitmap', { data: '' }), /^0/);
    assert.match(await playground.run('ZoLoadFont', { path: '/fonts/missing.ttf' }), /^31/);
    assert.match(await playground.run('ZoLoadFont', { path: '/fonts/DejaVuSans.ttf' }), /^0/);
    for (let count = 11; count <= 15; ++count) {
        assert.match(await playground.run('ZoCreateGLFBO'), /^0/);
        await playground.waitForBuffers(`${count} of 15`);
    }
    assert.match(await playground.run('ZoCreateGLFBO'), /^15 ZO_NO_FREE_FBO.*Destroy one/);
    await playground.picture('pool-full');
    for (const handle of ['B', 'C', 'D', 'E', 'F']) {
        await playground.press(`Destroy 0x1000${handle}`);
    }
    await playground.waitForBuffers('10 of 15');
});

test('sizes that no driver has', async () => {
    const { page } = playground;
    const sizes = [0, 1, 100000, 4294967295];
    for (const size of sizes) {
        await playground.run('ZoCreateGLFBO', { width: size, height: size });
        const shown = await page.locator('#buffer-rows tr').last().innerText();
        assert.ok(shown.includes(`${size} × ${size}`), shown);
        assert.match(await playground.run('ZoDrawRect', { fbo: 0x1000b }), /^0/);
        const text = await playground.run('ZoDrawText', { handle: 0x1000b });
        assert.match(text, size === 0 ? /^101/ : /^0/);
        await playground.run('ZoDestoryGLFBO', { handle: 0x1000b });
    }
    const far = { x: 4294967295, y: 4294967295, width: 4294967295, height: 4294967295 };
    assert.match(await playground.run('ZoDrawRect', { fbo: own, rect: far }), /^0/);
    assert.match(await playground.run('ZoBlit', { srcRect: far, dstRect: far }), /^0/);
    assert.match(await playground.run('ZoDisplayFBO', { src: far, dst: far }), /^0/);
    for (const fontSize of [0, 1, 2000]) {
        const fields = { handle: own, fontSize, bold: true, text: 'g' };
        assert.match(await playground.run('ZoDrawText', fields), /^0/);
    }
    assert.match(await playground.run('ZoDrawText', { fontSize: 70000 }), /^32/);
    assert.match(
        await playground.run('ZoDrawRect', { rect: { x: 0, y: 0, width: 9, height: 9 } }),
        /^0/,
    );
});

test('promises that a record cannot keep are held back by the form', async () => {
    const { page } = playground;
    const isValid = () =>
        page.locator('#operation-panel form').evaluate((form) => form.matches(':valid'));
    await playground.fill('ZoDrawText', { text: 'ab' });
    assert.equal(await isValid(), true);
    await playground.fill('ZoDrawText', { length: 3 });
    assert.equal(await isValid(), false);
    await playground.fill('ZoDisplayBitmap', { data: 'poster.png', width: 361 });
    assert.equal(await isValid(), false);
    await playground.fill('ZoDisplayBitmap', { width: 120, height: 1440 });
    assert.equal(await isValid(), true);
    await playground.fill('ZoDrawRect', { rect: { x: -1 } });
    assert.equal(await isValid(), false);
    await playground.fill('ZoGetTextSize', { text: 'ab', length: 3 });
    await playground.press('Run ZoGetTextSize');
    assert.equal(await page.locator('#operation-panel').getByRole('status').innerText(), '');
});

test('damaged fonts leave the one before', async () => {
    const whole = readFileSync(font);
    const measure = () => playground.run('ZoGetTextSize', { text: 'Volume' });
    const width = async () => /width \d+/.exec(await measure())?.[0];
    const good = { name: 'same.ttf', mimeType: 'font/ttf', buffer: whole };
    const report = await give(good);
    assert.match(report, /DejaVu Sans Book.*1023 by \d+ texels.*No character/s);
    const before = await width();
    assert.match(before ?? '', /width [1-9]/);
    const damaged = [Buffer.from('no font at all'), Buffer.alloc(0), whole.subarray(0, 4000)];
    for (const buffer of damaged) {
        const told = await give({ ...good, buffer });
        assert.match(told, /same.ttf: 31 ZO_FONT_FACE_FAILED.*loaded that one again/s);
        assert.equal(await width(), before);
    }
    const noPicture = { name: 'x.png', mimeType: 'image/png', buffer: whole };
    assert.match(await give(noPicture), /x.png cannot be read/);
    assert.equal(await width(), before);
});

test('a font too large for its atlas names what was left out', async () => {
    await playground.page.locator('#file-size').fill('300');
    const file = { name: 'large.ttf', mimeType: 'font/ttf', buffer: readFileSync(font) };
    const report = await give(file);
    const [, count, first] = /(\d+) characters were left out: (.) U\+/.exec(report) ?? [];
    assert.ok(Number(count) > 0, report);
    const log = await playground.page.getByRole('log').innerText();
    assert.ok(log.includes(`${count} characters are left out of the texture`), log);
    // What is not in the atlas cannot be shown.
    assert.match(
        await playground.run('ZoDrawText', { handle: own, text: first, fontSize: 40, bold: false }),
        /Char \d+ is not exit/,
    );
    await playground.picture('font');
});
