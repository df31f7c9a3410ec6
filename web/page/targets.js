// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// The library's targets in WebGL: their framebuffers, sizes and pixels.

/** @typedef {import('./libzogles.mjs').Rect} Rect */
/**
 * @typedef {object} Target
 * @property {WebGLFramebuffer | null} framebuffer null for the window
 * @property {number} width pixels
 * @property {number} height pixels
 * @property {boolean} isComplete whether WebGL can draw into it
 */

export const windowHandle = 0x10000;
export const noHandle = 0xffffffff;
export const mostBuffers = 15;

const mostPixels = 4096 * 4096; // per read

/**
 * Finds the framebuffer and the size of a handle. The library does not report them, but every drawing
 * operation binds the framebuffer and sets the viewport to its size, so drawing an empty rectangle shows both.
 * The surface must be bound: drawing on an unbound one would prevent the restoration of its buffers.
 *
 * @param {WebGLRenderingContext} gl
 * @param {import('./libzogles.mjs').Surface} surface
 * @param {number} handle
 * @returns {Target | null}
 */
export function findTarget(gl, surface, handle) {
    /** @type {Target} */
    const target = { framebuffer: null, width: 0, height: 0, isComplete: false };
    const { bindFramebuffer, viewport, drawArrays } = gl;
    gl.bindFramebuffer = (kind, framebuffer) => {
        target.framebuffer = framebuffer ?? target.framebuffer;
        bindFramebuffer.call(gl, kind, framebuffer);
    };
    gl.viewport = (x, y, width, height) => {
        Object.assign(target, { width: width >>> 0, height: height >>> 0 });
        viewport.call(gl, x, y, width, height);
    };
    gl.drawArrays = () => {};
    const nowhere = { x: 0, y: 0, width: 0, height: 0 };
    try {
        if (surface.ZoDrawRect(handle, nowhere, { r: 0, g: 0, b: 0, a: 0 }) !== 0) {
            return null;
        }
    } finally {
        Object.assign(gl, { bindFramebuffer, viewport, drawArrays });
    }
    gl.bindFramebuffer(gl.FRAMEBUFFER, target.framebuffer);
    target.isComplete = gl.checkFramebufferStatus(gl.FRAMEBUFFER) === gl.FRAMEBUFFER_COMPLETE;
    gl.bindFramebuffer(gl.FRAMEBUFFER, null);
    return target;
}

/**
 * Reads the target's pixels, rows from the top. Pixels outside are zeros.
 *
 * @param {WebGLRenderingContext} gl
 * @param {Target} target
 * @param {Rect} rect
 * @returns {ImageData | null} null if there are too many, or if WebGL cannot read them
 */
export function readPixels(gl, target, { x, y, width, height }) {
    if (!target.isComplete || width * height > mostPixels) {
        return null;
    }
    const rows = new Uint8Array(width * height * 4);
    gl.bindFramebuffer(gl.FRAMEBUFFER, target.framebuffer);
    gl.readPixels(x, target.height - y - height, width, height, gl.RGBA, gl.UNSIGNED_BYTE, rows);
    gl.bindFramebuffer(gl.FRAMEBUFFER, null);
    const picture = new ImageData(width, height);
    for (let row = 0; row < height; ++row) {
        const start = (height - 1 - row) * width * 4;
        picture.data.set(rows.subarray(start, start + width * 4), row * width * 4);
    }
    return picture;
}

/** @param {number} handle */
export function formatHandle(handle) {
    return `0x${handle.toString(16).toUpperCase()}`;
}
