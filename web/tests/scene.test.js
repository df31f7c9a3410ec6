// The scene in the browser, beside the picture of it that the demo draws with Mesa.

import assert from 'node:assert/strict';
import { readFileSync, writeFileSync } from 'node:fs';
import { test } from 'node:test';
import { PNG } from 'pngjs';
import { pictures, openPlayground } from './harness.js';

// What is scaled or blended into a buffer is rounded by each driver in its own way, so that its colour and
// its alpha may be one level apart. To present it multiplies the two, and rounds once more: that is two.
// Alpha is not compared: the window that the demo's picture is of has none.
const mostDifference = 2;

const reference = process.env.PLAYGROUND_REFERENCE ?? 'out/web-test/mesa/osd.png';

const playground = openPlayground();

/**
 * @param {Buffer} pixels the window's, rows from the bottom
 * @param {PNG} expected
 */
function compare(pixels, expected) {
    const { width, height, data } = expected;
    const counts = new Map();
    const marks = new PNG({ width, height });
    for (let y = 0; y < height; ++y) {
        for (let x = 0; x < width; ++x) {
            const there = ((height - 1 - y) * width + x) * 4;
            const here = (y * width + x) * 4;
            const channels = [0, 1, 2].map((c) => Math.abs(pixels[there + c] - data[here + c]));
            const difference = Math.max(...channels);
            counts.set(difference, (counts.get(difference) ?? 0) + 1);
            const shade = Math.min(255, difference * 60);
            marks.data.set([shade, shade, shade, 255], here);
        }
    }
    return { counts: [...counts].sort(([a], [b]) => a - b), marks };
}

test('the scene is what Mesa draws', async (t) => {
    const pixels = await playground.windowPixels(); // waits for the driver to have drawn them
    const now = await playground.page.evaluate(() => performance.now());
    t.diagnostic(`first picture within ${Math.round(now)} ms of the visit`);
    const expected = PNG.sync.read(readFileSync(reference));
    const { counts, marks } = compare(pixels, expected);
    t.diagnostic(`pixels by their largest difference in a channel: ${JSON.stringify(counts)}`);
    writeFileSync(`${pictures}/difference.png`, PNG.sync.write(marks));
    assert.ok(counts.every(([difference]) => difference <= mostDifference));
});

test('the scene plays, and pauses for what is drawn on the window', async () => {
    const { page } = playground;
    const still = await playground.windowPixels();
    await playground.press('Play');
    await page.waitForTimeout(500);
    assert.notDeepEqual(await playground.windowPixels(), still);
    await playground.press('Pause');
    const paused = await playground.windowPixels();
    await page.waitForTimeout(300);
    assert.deepEqual(await playground.windowPixels(), paused);

    await playground.press('Play');
    await playground.run('ZoDisplayBitmap');
    await page.getByText('The scene pauses').waitFor();
    const drawn = await playground.windowPixels();
    await page.waitForTimeout(300);
    assert.deepEqual(await playground.windowPixels(), drawn);
});
