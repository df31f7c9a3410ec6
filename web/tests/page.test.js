// The page for everybody: wide and narrow screens, light and dark, the keyboard, names for all there is to
// use; and the log.

import assert from 'node:assert/strict';
import { test } from 'node:test';
import { narrow, wide, openPlayground } from './harness.js';

const playground = openPlayground();

for (const [size, viewport] of Object.entries({ wide, narrow })) {
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
            await page.locator('#view').selectOption('65536'); // the window
            await page.locator('#buffers').scrollIntoViewIfNeeded();
            await page.waitForTimeout(1200); // the miniatures are drawn one after the other
            await playground.picture(`${size}-${colorScheme}`);
        });
    }
}

test('the keyboard reaches everything, and everything has a name', async () => {
    const { page } = playground;
    const all = await page.locator('button, input, select, [tabindex="0"], a[href]').all();
    const reachable = new Set();
    await page.locator('body').click({ position: { x: 1, y: 1 } });
    for (let i = 0; i < all.length + 5; ++i) {
        await page.keyboard.press('Tab');
        reachable.add(await page.evaluate(() => document.activeElement?.outerHTML));
    }
    for (const control of all) {
        const isChosenByArrows = (await control.getAttribute('role')) === 'tab';
        const html = await control.evaluate((element) => element.outerHTML);
        assert.ok(isChosenByArrows || reachable.has(html), `not reached by Tab: ${html}`);
    }
    const snapshot = await page.locator('body').ariaSnapshot();
    const nameless = snapshot
        .split('\n')
        .filter((line) =>
            /- (button|textbox|combobox|spinbutton|checkbox|img|tab|link)(:|$)/.test(line),
        );
    assert.deepEqual(nameless, []);

    await page.getByRole('tab', { name: 'ZoDrawRect' }).focus();
    for (const [key, name] of [
        ['ArrowRight', 'ZoBlit'],
        ['End', 'ZoGetWindowHeight'],
        ['ArrowDown', 'ZoDrawRect'],
        ['ArrowLeft', 'ZoGetWindowHeight'],
        ['Home', 'ZoDrawRect'],
    ]) {
        await page.keyboard.press(key);
        const tab = page.getByRole('tab', { name, exact: true });
        assert.equal(await tab.getAttribute('aria-selected'), 'true');
        assert.ok(await tab.evaluate((element) => element === document.activeElement));
    }
    await page.keyboard.press('Tab'); // into the form, whose fields Enter runs
    await page.keyboard.press('Tab');
    await page.keyboard.press('Enter');
    assert.match(await page.locator('#operation-panel').getByRole('status').innerText(), /^0/);
});

test('the log shows what its filter says', async () => {
    const { page } = playground;
    await playground.run('ZoDrawText', { text: 'a b' });
    const log = page.getByRole('log');
    const filtered = async (/** @type {string} */ filter) => {
        await page.locator('#log-filter').fill(filter);
        await page.evaluate(() => new Promise(requestAnimationFrame));
        await page.evaluate(() => new Promise(requestAnimationFrame));
        return (await log.innerText()).match(/^[VDIWEF]$|^[VDIWEF]\b/gm)?.join('') ?? '';
    };
    assert.equal(await filtered('*:V'), 'WVEEEE');
    assert.equal(await filtered('*:W'), 'WEEEE');
    assert.equal(await filtered('OSDText:S *:E'), 'EEE');
    assert.equal(await filtered('OSDText *:S'), 'E');
    assert.equal(await filtered('*:S'), '');
    assert.match(await page.locator('#log').innerText(), /6 filtered out/);
    await page.locator('#log-filter').fill('');
    await playground.press('Clear');
    await playground.run('ZoDrawText', { text: '   ' });
    assert.match(await log.innerText(), /Char 32 is not exit\s*×3/);
});
