// The window goes, or the browser takes the whole context: what comes back, and that nothing piles up.

import assert from 'node:assert/strict';
import { test } from 'node:test';
import { openPlayground } from './harness.js';

// Counts what WebGL made and was told to delete, in every context.
function countObjects() {
    const counts = { made: 0, deleted: 0 };
    const prototype = /** @type {any} */ (WebGLRenderingContext.prototype);
    for (const kind of ['Texture', 'Buffer', 'Framebuffer', 'Program', 'Shader']) {
        for (const [verb, count] of /** @type {const} */ ([
            ['create', 'made'],
            ['delete', 'deleted'],
        ])) {
            const method = prototype[verb + kind];
            prototype[verb + kind] = function (/** @type {any[]} */ ...values) {
                counts[count] += verb === 'create' || values[0] ? 1 : 0;
                return method.apply(this, values);
            };
        }
    }
    Object.assign(window, { countOfObjects: counts });
}

const playground = openPlayground({ prepare: countObjects });

function countLiveObjects() {
    return playground.page.evaluate(() => {
        const { made, deleted } = /** @type {any} */ (window).countOfObjects;
        return made - deleted;
    });
}

/** @type {Record<string, () => Promise<void>>} */
const losses = {
    window: async () => {
        await playground.press('Destroy the window');
        await playground.page.getByText('The window is lost.').waitFor();
        await playground.press('Create it again');
    },
    context: async () => {
        await playground.press('Take the WebGL context away');
        await playground.page.getByText('The window is lost.').waitFor();
        await playground.press('Give it back');
        await playground.page.getByText('buffers are back').waitFor();
    },
};

for (const [name, lose] of Object.entries(losses)) {
    test(`the ${name} comes back, the scene with it, and no object is left behind`, async () => {
        const { page } = playground;
        await page.locator('#view').selectOption('65536'); // the window
        const before = await playground.windowPixels();
        const counts = [];
        for (let round = 0; round < 2; ++round) {
            await playground.run('ZoDrawRect');
            await lose();
            const facts = await page.locator('#loss-facts').innerText();
            assert.match(facts, /10 of 10 buffers are back/);
            assert.match(facts, /every buffer was transparent black/);
            assert.match(facts, /measuring a text gave 31/);
            assert.equal((await playground.pixel(100, 100)).buffer, '0 0 0 0');
            assert.deepEqual(await playground.windowPixels(), before);
            counts.push(await countLiveObjects());
        }
        assert.ok(counts[0] > 10);
        assert.equal(counts[1], counts[0]);
        assert.match(await playground.run('ZoDrawRect'), /^0/);
        assert.equal((await playground.pixel(100, 100)).buffer, '255 194 77 255');
        await playground.picture(`after-loss-of-${name}`);
    });
}

test('losses in the middle of things', async () => {
    const { page } = playground;
    // While the scene plays, while another target is shown, and a loss upon a loss.
    await playground.press('Play');
    await losses.context();
    await playground.press('Play');
    await page.locator('#view').selectOption('65546'); // 0x1000A
    await playground.press('Destroy the window');
    await playground.run('ZoDestoryGLWindowSurface');
    assert.match(await playground.run('ZoCreateGLWindowSurface'), /^0/);
    await playground.waitForBuffers('10 of 15');
    // There is no binding to a context that is away.
    await playground.press('Take the WebGL context away');
    assert.match(await playground.run('ZoCreateGLWindowSurface'), /^4 ZO_NO_CONTEXT/);
    await playground.press('Give it back');
    await page.getByText('10 of 10 buffers are back').waitFor();
    // A buffer of the scene is destroyed while it plays: it stops, and can be made anew.
    await playground.press('Play');
    await playground.press('Destroy 0x10009');
    await page.getByText('The scene has stopped').waitFor();
    await playground.press('Play');
    await playground.press('Pause');
    await playground.waitForBuffers('10 of 15');
    assert.match(await page.locator('#buffer-rows').innerText(), /scene: frame/);
    // A buffer of the visitor's under a handle of the scene's is not drawn into.
    await playground.press('Destroy 0x10005');
    await page.getByText('The scene has stopped').waitFor();
    assert.match(await playground.run('ZoCreateGLFBO'), /handle 0x10005/);
    await playground.press('Play');
    await playground.press('Pause');
    await playground.waitForBuffers('11 of 15');
    assert.match(
        await page.locator('#buffer-rows tr', { hasText: '0x10005' }).innerText(),
        /yours/,
    );
    await playground.press('Destroy 0x10005');
});

test('an unbound surface answers with codes', async () => {
    await playground.press('Destroy the window');
    await playground.picture('unbound');
    const codes = /** @type {const} */ ([
        ['ZoRefreshOnSrceen', 6],
        ['ZoCreateGLFBO', 100],
        ['ZoDestoryGLFBO', 102],
        ['ZoDisplayBitmap', 20],
        ['ZoDrawRect', 101],
        ['ZoLoadFont', 100],
        ['ZoGetTextSize', 31],
        ['Init', 31],
    ]);
    for (const [operation, code] of codes) {
        assert.match(await playground.run(operation), new RegExp(`^${code} `), operation);
    }
    // Drawing made the surface a pool of its own, so what it remembers does not come back: the scene is made anew.
    await playground.press('Create it again');
    await playground.press('Play');
    await playground.press('Pause');
    await playground.waitForBuffers('9 of 15');
});
