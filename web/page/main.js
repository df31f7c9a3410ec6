// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// The page: starts the library and the scene, and connects the page's parts.

import { BuffersTable } from './buffers-table.js';
import { find, notice } from './dom.js';
import { Engine } from './engine.js';
import { Files, ownFont } from './files.js';
import { version } from './library.js';
import { LogPanel } from './log.js';
import { Losses } from './losses.js';
import { Magnifier } from './magnifier.js';
import { ownHandle, ownSize } from './operations.js';
import { OperationsPanel } from './operations-panel.js';
import { fetchScenePictures, Player } from './scene.js';
import { Stage } from './stage.js';
import { windowHandle } from './targets.js';
import { Workbench } from './workbench.js';

/**
 * Creates a buffer for the visitor, with some contents.
 *
 * @param {Engine} engine
 */
function createOwnBuffer({ surface }) {
    const { width, height } = ownSize;
    const square = { x: 360, y: 80, width: 200, height: 200 };
    surface.ZoCreateGLFBO(width, height, 9);
    surface.ZoDrawRect(ownHandle, { x: 0, y: 0, width, height }, { r: 32, g: 40, b: 92, a: 255 });
    surface.ZoDrawRect(ownHandle, square, { r: 238, g: 116, b: 104, a: 128 });
}

/** @param {Player} player */
function wirePlayer(player) {
    const { engine } = player;
    const button = find('play', HTMLButtonElement);
    const show = () => {
        button.textContent = player.isPlaying ? 'Pause' : 'Play';
        button.disabled = !engine.isBound;
        if (engine.isBound && !player.isGood) {
            notice('The scene has stopped: it has lost a buffer. Press Play to create it again.');
        }
    };
    button.addEventListener('click', () => {
        if (player.isPlaying) {
            player.pause();
        } else if (player.isGood || player.restart()) {
            notice('');
            player.play();
        } else {
            notice('The scene needs eleven free buffers: destroy some of yours.');
        }
    });
    player.on('state', show);
    engine.on('binding', show);
    show();
}

/**
 * @param {Player} player
 * @param {Files} files
 */
function createPanels(player, files) {
    const { engine } = player;
    const nameOf = (/** @type {number} */ handle) => {
        if (handle === windowHandle) {
            return 'window';
        }
        return player.names.has(handle) ? `scene: ${player.names.get(handle)}` : 'yours';
    };
    const stage = new Stage(engine, nameOf);
    const panel = new OperationsPanel({
        targets: () =>
            [...engine.targets].map(([handle, { width, height }]) => ({
                ...{ handle, width, height },
                name: nameOf(handle),
            })),
        fonts: () => files.fonts,
        pictures: () => files.pictures,
    });
    new Magnifier(engine, stage);
    const table = new BuffersTable(engine, nameOf);
    const workbench = new Workbench(engine, player, { stage, panel, table });
    new Losses(engine).on('back', () => engine.withoutLog(() => player.repaint()));
    files.on('font', (path) => {
        player.fontPath = path;
        engine.withoutLog(() => player.rewrite());
        panel.form.refresh();
    });
    files.on('picture', (data) => {
        const { width = 0, height = 0 } = files.pictures.get(data) ?? {};
        const rect = { x: 0, y: 0, width, height };
        panel.choose('ZoDisplayBitmap').write({ data, width, height, rect });
        workbench.run();
    });
}

async function start() {
    const viewport = find('viewport', HTMLElement);
    const engine = await Engine.start(viewport);
    const files = new Files(engine);
    await files.loadOwn();
    new LogPanel(engine);
    const code = engine.bind();
    if (code !== 0) {
        throw new Error(`binding the canvas returned ${code}.`);
    }
    const player = new Player(engine, ownFont, await fetchScenePictures());
    engine.withoutLog(() => {
        player.restart();
        createOwnBuffer(engine);
        engine.updateTargets();
    });
    notice('');
    find('panels', HTMLElement).hidden = false;
    createPanels(player, files);
    wirePlayer(player);
    const behind = find('behind', HTMLSelectElement);
    behind.addEventListener('change', () => viewport.style.setProperty('--behind', behind.value));
    if (!matchMedia('(prefers-reduced-motion: reduce)').matches) {
        player.play();
    }
    document.documentElement.dataset.state = 'ready';
}

find('version', HTMLElement).textContent = `Version ${version}`;
start().catch((error) => {
    notice(`The playground cannot start: ${error.message}`);
    document.documentElement.dataset.state = 'failed';
    console.error(error);
});
