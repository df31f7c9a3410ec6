// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// Losses of the window and of the WebGL context: what is restored, and that nothing leaks.

import assert from 'node:assert/strict';
import { test } from 'node:test';
import { openPlayground, own } from './harness.js';

// Counts the objects that WebGL creates and deletes, in every context.
function countObjects() {
    const counts = { create: 0, delete: 0 };
    const prototype = /** @type {any} */ (WebGLRenderingContext.prototype);
    for (const kind of ['Texture', 'Buffer', 'Framebuffer', 'Program', 'Shader']) {
        for (const verb of /** @type {const} */ (['create', 'delete'])) {
            const method = prototype[verb + kind];
            prototype[verb + kind] = function (/** @type {any[]} */ ...values) {
                counts[verb] += verb === 'create' || values[0] ? 1 : 0;
                return method.apply(this, values);
            };
        }
    }
    Object.assign(window, { countLiveObjects: () => counts.create - counts.delete });
}

const playground = openPlayground({ prepare: countObjects });

/** @type {Record<string, string[]>} the buttons to lose and to restore */
const losses = {
    window: ['Destroy the window', 'Create a window'],
    context: ['Lose the WebGL context', 'Restore the context'],
};

/** @param {string} name */
async function lose(name) {
    const [first, second] = losses[name];
    await playground.press(first);
    await playground.page.getByText('The window is lost.').waitFor();
    await playground.press(second);
    await playground.page.getByText('buffers are back').waitFor();
}

for (const name of Object.keys(losses)) {
    test(`after a loss of the ${name}, the scene is restored and no object leaks`, async () => {
        const { page } = playground;
        await playground.view(0x10000);
        const before = await playground.windowPixels();
        const counts = [];
        for (let round = 0; round < 2; ++round) {
            await playground.run('ZoDrawRect');
            await lose(name);
            const facts = await page.locator('#loss-facts').innerText();
            assert.match(
                facts,
                /10 of 10 buffers.*transparent black.*measuring a text returns 31/s,
            );
            assert.equal((await playground.pixel(100, 100))[0], '0 0 0 0');
            assert.deepEqual(await playground.windowPixels(), before);
            counts.push(await page.evaluate(() => /** @type {any} */ (window).countLiveObjects()));
        }
        assert.ok(counts[0] > 10);
        assert.equal(counts[1], counts[0]);
        await playground.run('ZoDrawRect');
        assert.equal((await playground.pixel(100, 100))[0], '255 194 77 255');
    });
}

test('losses during play, with another target shown, and in a row', async () => {
    const { page } = playground;
    // While the scene plays, while another target is shown, and a loss after a loss.
    await playground.press('Play');
    await lose('context');
    await playground.press('Play');
    await playground.view(own);
    await playground.press('Destroy the window');
    await playground.run('ZoDestoryGLWindowSurface', {}, /nothing/);
    await playground.run('ZoCreateGLWindowSurface');
    await playground.waitForBuffers('10 of 15');
    // A lost context cannot be bound.
    await playground.press('Lose the WebGL context');
    await playground.run('ZoCreateGLWindowSurface', {}, /^4 ZO_NO_CONTEXT/);
    await playground.press('Restore the context');
    await page.getByText('10 of 10 buffers are back').waitFor();
    // A buffer of the playing scene is destroyed: the scene stops, and can be created again.
    await playground.press('Play', 'Destroy 0x10009');
    await page.getByText('The scene has stopped').waitFor();
    await playground.press('Play', 'Pause');
    await playground.waitForBuffers('10 of 15');
    assert.match(await page.locator('#buffer-table').innerText(), /scene: frame/);
    // The scene does not draw into a visitor's buffer that reuses one of its handles.
    await playground.press('Destroy 0x10005');
    await page.getByText('The scene has stopped').waitFor();
    await playground.run('ZoCreateGLFBO', {}, /handle 0x10005/);
    await playground.press('Play', 'Pause');
    await playground.waitForBuffers('11 of 15');
    const row = page.locator('#buffer-table tr', { hasText: '0x10005' });
    assert.match(await row.innerText(), /yours/);
    await playground.press('Destroy 0x10005');
});

test('operations on an unbound surface return their documented codes', async () => {
    await playground.press('Destroy the window');
    await playground.picture('unbound');
    for (const [operation, code] of /** @type {const} */ ([
        ['ZoRefreshOnSrceen', 6],
        ['ZoCreateGLFBO', 100],
        ['ZoDestoryGLFBO', 102],
        ['ZoDisplayBitmap', 20],
        ['ZoDrawRect', 101],
        ['ZoLoadFont', 100],
        ['ZoGetTextSize', 31],
        ['Init', 31],
    ])) {
        await playground.run(operation, {}, new RegExp(`^${code} `));
    }
    // Drawing while unbound prevented the restoration: the scene is created again.
    await playground.press('Create a window', 'Play', 'Pause');
    await playground.waitForBuffers('9 of 15');
});
