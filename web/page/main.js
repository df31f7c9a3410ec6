// The page: starts the library and the scene, and ties the page's parts together.

import { BuffersTable } from './bufferstable.js';
import { find } from './dom.js';
import { Engine } from './engine.js';
import { Files, ownFont } from './files.js';
import { LogPanel } from './logpanel.js';
import { Losses } from './losses.js';
import { Magnifier } from './magnifier.js';
import { makeBox, takePicture } from './measure.js';
import { ownHandle, ownSize } from './operations.js';
import { OperationsPanel } from './operationspanel.js';
import { Player } from './scene.js';
import { Stage } from './stage.js';
import { windowHandle } from './targets.js';

/** @param {string} text */
function notice(text) {
  find('notice', HTMLElement).textContent = text;
}

/**
 * Something for the visitor to draw into, that is not empty.
 *
 * @param {Engine} engine
 */
function createOwnBuffer({ surface }) {
  const { width, height } = ownSize;
  surface.ZoCreateGLFBO(width, height, 9);
  surface.ZoDrawRect(ownHandle, { x: 0, y: 0, width, height }, { r: 32, g: 40, b: 92, a: 255 });
  surface.ZoDrawRect(ownHandle, { x: 360, y: 80, width: 200, height: 200 }, { r: 238, g: 116, b: 104, a: 128 });
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
    targets: () => [...engine.targets.keys()].map((handle) => ({ handle, name: nameOf(handle) })),
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
  if (!player.isGood && !player.engine.withoutLog(() => player.restart())) {
    notice('The scene needs eleven free buffers to be made anew: destroy some of yours.');
    return;
  }
  notice('');
  player.play();
}

/**
 * The marks of the shown form, on the targets that they lie on.
 *
 * @param {OperationsPanel} panel
 * @param {Stage} stage
 */
function markFields(panel, stage) {
  const { form } = panel;
  const fields = Object.entries(form.operation.fields).filter(([, { kind }]) => kind === 'rect' || kind === 'pen');
  stage.setMarks(
    fields.map(([name, { label, target, kind }]) => ({
      label,
      handle: target ? form.values[target] : windowHandle,
      rect: { width: 0, height: 0, ...form.values[name] },
      isPen: kind === 'pen',
      move: ({ x, y, width, height }) => form.write(name, kind === 'pen' ? { x, y } : { x, y, width, height }),
    })),
  );
}

/**
 * @param {Engine} engine
 * @param {Player} player
 * @param {ReturnType<typeof createPanels>} panels
 */
function wireOperations(engine, player, { stage, panel, table }) {
  const textPen = () => panel.forms.get('ZoDrawText')?.values ?? { handle: ownHandle, rect: { x: 60, y: 200 } };

  panel.addEventListener('change', () => markFields(panel, stage));
  panel.addEventListener('choose', () => {
    const { operation, values } = panel.form;
    const handle = operation.name === 'ZoGetTextSize' ? textPen().handle : operation.drawsInto?.(values);
    if (handle !== undefined && engine.targets.has(handle)) {
      stage.view(handle);
    }
    markFields(panel, stage);
  });
  // Who fills in a rectangle sees what it lies on.
  panel.panel.addEventListener('focusin', (event) => {
    const name = event.target instanceof Element ? event.target.closest('[data-field]')?.getAttribute('data-field') : '';
    const field = panel.form.operation.fields[name ?? ''];
    if (field?.kind === 'rect' || field?.kind === 'pen') {
      const handle = field.target ? panel.form.values[field.target] : windowHandle;
      if (handle !== stage.handle && engine.targets.has(handle)) {
        stage.view(handle);
      }
    }
  });
  panel.addEventListener('run', () => {
    const { form } = panel;
    const { operation, values } = form;
    const handle = operation.drawsInto?.(values);
    if (handle === windowHandle && player.isPlaying) {
      player.pause();
      notice('The scene pauses, so that what you draw on the window stays.');
    }
    const isText = operation.name === 'ZoDrawText';
    const before = isText ? takePicture(engine, values.handle) : null;
    /** @type {import('./log.js').LogLine[]} */
    const lines = [];
    const listen = (/** @type {Event} */ event) => lines.push(/** @type {CustomEvent} */ (event).detail);
    engine.addEventListener('log', listen);
    const outcome = operation.run(engine, values);
    engine.removeEventListener('log', listen);
    form.show(outcome, lines);
    engine.updateTargets();
    if (handle !== undefined && engine.targets.has(handle)) {
      stage.view(handle);
    }
    if (isText && outcome.code === 0) {
      const after = takePicture(engine, values.handle);
      const size = engine.withoutLog(() => engine.surface.ZoGetTextSize(values));
      stage.setBox({ handle: values.handle, ...makeBox(size, values.rect, before, after) });
    } else if (outcome.box) {
      const pen = textPen();
      stage.setBox({ handle: pen.handle, ...makeBox(outcome.box, pen.rect) });
    }
    stage.refresh();
    table.draw(stage.handle);
    engine.tellDrawn();
  });
  table.addEventListener('view', (event) => stage.view(/** @type {CustomEvent} */ (event).detail));
  table.addEventListener('destroy', (event) => {
    panel.choose('ZoDestoryGLFBO');
    panel.form.write('handle', /** @type {CustomEvent} */ (event).detail);
    panel.dispatchEvent(new Event('run'));
    panel.focus(); // the button that was pressed is gone
  });
}

/**
 * @param {Engine} engine
 * @param {Player} player
 * @param {Files} files
 * @param {ReturnType<typeof createPanels>} panels
 */
function wireFiles(engine, player, files, { panel }) {
  files.addEventListener('font', (event) => {
    const { path, code } = /** @type {CustomEvent} */ (event).detail;
    player.fontPath = code === 0 ? path : ownFont;
    engine.withoutLog(() => player.repaint());
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
  const log = new LogPanel(engine);
  const code = engine.bind();
  if (code !== 0) {
    throw new Error(`binding the canvas gave ${code}`);
  }
  const player = new Player(engine, ownFont);
  engine.withoutLog(() => {
    player.restart();
    createOwnBuffer(engine);
    engine.updateTargets();
  });
  const panels = createPanels(engine, player, files);
  new Magnifier(engine, panels.stage);
  wirePlayer(player);
  wireOperations(engine, player, panels);
  wireFiles(engine, player, files, panels);
  panels.losses.addEventListener('back', () => {
    if (player.isGood && !engine.withoutLog(() => player.repaint())) {
      notice('The scene could not paint itself again: it needs two free buffers for that.');
    }
  });
  find('behind', HTMLSelectElement).addEventListener('change', (event) => {
    find('viewport', HTMLElement).dataset.behind = /** @type {HTMLSelectElement} */ (event.target).value;
  });
  if (!matchMedia('(prefers-reduced-motion: reduce)').matches) {
    player.play();
  }
  markFields(panels.panel, panels.stage);
  document.documentElement.dataset.state = 'ready';
  return { engine, player, log };
}

start().catch((error) => {
  notice(`The playground cannot start: ${error.message}`);
  document.documentElement.dataset.state = 'failed';
  console.error(error);
});
