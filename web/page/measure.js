// The extent of a text: what the library reports, and where it left marks.

import { isReadable, readPixels } from './targets.js';

/** @typedef {import('./engine.js').Engine} Engine */
/** @typedef {import('./libzogles.mjs').Rect} Rect */

// The library tells no place for the height of 50. With the baseline this far below its top, it holds
// what rises above the baseline, and what hangs below.
const rise = 40;

/**
 * The pixels of a target, or null where it cannot be read.
 *
 * @param {Engine} engine
 * @param {number} handle
 */
export function takePicture(engine, handle) {
    const target = engine.targets.get(handle);
    if (!engine.isBound || !target || !isReadable(target)) {
        return null;
    }
    const { width, height } = target;
    return { width, height, data: readPixels(engine.gl, target, { x: 0, y: 0, width, height }) };
}

/**
 * The least rectangle around all pixels that differ, or null if none does.
 *
 * @param {NonNullable<ReturnType<typeof takePicture>>} before
 * @param {NonNullable<ReturnType<typeof takePicture>>} after
 * @returns {Rect | null}
 */
function findChange(before, after) {
    const { width, height } = before;
    const old = new Uint32Array(before.data.buffer);
    const now = new Uint32Array(after.data.buffer);
    let [left, top, right, bottom] = [width, height, -1, -1];
    for (let i = 0; i < old.length; ++i) {
        if (old[i] !== now[i]) {
            const [x, y] = [i % width, Math.floor(i / width)];
            [left, top, right, bottom] = [
                Math.min(left, x),
                Math.min(top, y),
                Math.max(right, x),
                y,
            ];
        }
    }
    return right < 0
        ? null
        : { x: left, y: top, width: right - left + 1, height: bottom - top + 1 };
}

/**
 * Where the reported size lies, with the pen at (x, y).
 *
 * @param {{ width: number, height: number }} size
 * @param {{ x: number, y: number }} pen
 */
export function placeBox({ width, height }, { x, y }) {
    return { x, y: y - rise, width, height, label: `${width} × ${height}` };
}

/**
 * What to say of a text that was drawn.
 *
 * @param {{ width: number, height: number }} size as reported
 * @param {NonNullable<ReturnType<typeof takePicture>>} before the target before
 * @param {NonNullable<ReturnType<typeof takePicture>>} after the target after
 */
export function compareSizes({ width, height }, before, after) {
    const change = findChange(before, after);
    const marks = change ? `marks of ${change.width} × ${change.height}` : 'no mark';
    return `ZoGetTextSize reports ${width} × ${height}; it left ${marks}.`;
}
