// The page: starts the library and the scene, and ties the page's parts together.

import { BuffersTable } from './buffers-table.js';
import { find, notice } from './dom.js';
import { Engine } from './engine.js';
import { Files, ownFont } from './files.js';
import { LogPanel } from './log-panel.js';
import { Losses } from './losses.js';
import { Magnifier } from './magnifier.js';
import { ownHandle, ownSize } from './operations.js';
import { OperationsPanel } from './operations-panel.js';
import { fetchScenePictures, Player } from './scene.js';
import { Stage } from './stage.js';
import { windowHandle } from './targets.js';
import { Workbench } from './workbench.js';

/**
 * Something for the visitor to draw into, that is not empty.
 *
 * @param {Engine} engine
 */
function createOwnBuffer({ surface }) {
    const { width, height } = ownSize;
    surface.ZoCreateGLFBO(width, height, 9);
    surface.ZoDrawRect(ownHandle, { x: 0, y: 0, width, height }, { r: 32, g: 40, b: 92, a: 255 });
    surface.ZoDrawRect(
        ownHandle,
        { x: 360, y: 80, width: 200, height: 200 },
        { r: 238, g: 116, b: 104, a: 128 },
    );
}

/**
 * @param {Engine} engine
 * @param {Player} player
 * @param {Files} files
 */
function createPanels(engine, player, files) {
    const nameOf = (/** @type {number} */ handle) => {
        if (handle === windowHandle) {
            return 'window';
        }
        return player.names.has(handle) ? `scene: ${player.names.get(handle)}` : 'yours';
    };
    const stage = new Stage(engine, nameOf);
    const panel = new OperationsPanel({
        targets: () =>
            [...engine.targets.keys()].map((handle) => ({ handle, name: nameOf(handle) })),
        fonts: () => files.fonts,
        pictures: () => files.pictures,
    });
    return { stage, panel, table: new BuffersTable(engine, nameOf), losses: new Losses(engine) };
}

/** @param {Player} player */
function wirePlayer(player) {
    const button = find('play', HTMLButtonElement);
    const show = () => {
        button.textContent = player.isPlaying ? 'Pause' : 'Play';
        button.disabled = !player.engine.isBound;
        if (player.engine.isBound && !player.isGood) {
            notice(
                'The scene has stopped: a buffer of its is gone, or there is no room. Play makes it anew.',
            );
        }
    };
    button.addEventListener('click', () => {
        if (player.isPlaying) {
            player.pause();
        } else {
            startScene(player);
        }
    });
    player.addEventListener('state', show);
    player.engine.addEventListener('binding', show);
    show();
}

/**
 * Plays the scene, made anew if it cannot go on.
 *
 * @param {Player} player
 */
function startScene(player) {
    if (!player.isGood && !player.restart()) {
        notice('The scene needs eleven free buffers to be made anew: destroy some of yours.');
        return;
    }
    notice('');
    player.play();
}

/**
 * @param {Engine} engine
 * @param {Player} player
 * @param {Files} files
 * @param {ReturnType<typeof createPanels>} panels
 */
function wireFiles(engine, player, files, { panel }) {
    files.addEventListener('font', (event) => {
        player.fontPath = /** @type {CustomEvent} */ (event).detail;
        engine.withoutLog(() => player.rewrite());
        panel.form.refresh();
    });
    files.addEventListener('picture', (event) => {
        const name = /** @type {CustomEvent} */ (event).detail;
        const { width, height } = files.pictures.get(name) ?? { width: 0, height: 0 };
        panel.choose('ZoDisplayBitmap');
        panel.form.write('data', name);
        panel.form.write('width', width);
        panel.form.write('height', height);
        panel.form.write('rect', { x: 0, y: 0, width, height });
        panel.dispatchEvent(new Event('run'));
    });
}

async function start() {
    const engine = await Engine.start(find('viewport', HTMLElement));
    const files = new Files(engine);
    await files.loadOwn();
    new LogPanel(engine);
    const code = engine.bind();
    if (code !== 0) {
        throw new Error(`binding the canvas gave ${code}`);
    }
    const player = new Player(engine, ownFont, await fetchScenePictures());
    engine.withoutLog(() => {
        player.restart();
        createOwnBuffer(engine);
        engine.updateTargets();
    });
    const panels = createPanels(engine, player, files);
    new Magnifier(engine, panels.stage);
    wirePlayer(player);
    new Workbench(engine, player, panels);
    wireFiles(engine, player, files, panels);
    panels.losses.addEventListener('back', () => {
        engine.withoutLog(() => player.repaint());
    });
    find('behind', HTMLSelectElement).addEventListener('change', (event) => {
        find('viewport', HTMLElement).dataset.behind = /** @type {HTMLSelectElement} */ (
            event.target
        ).value;
    });
    if (!matchMedia('(prefers-reduced-motion: reduce)').matches) {
        player.play();
    }
    document.documentElement.dataset.state = 'ready';
}

start().catch((error) => {
    notice(`The playground cannot start: ${error.message}`);
    document.documentElement.dataset.state = 'failed';
    console.error(error);
});
