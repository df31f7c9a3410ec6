// The targets that the library draws into, as WebGL has them: where they are, how large they are, and
// what they hold.

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

const nowhere = { x: 0, y: 0, width: 0, height: 0 };
const nothing = { r: 0, g: 0, b: 0, a: 0 };

/**
 * Finds the framebuffer and the size of a handle. Both are the library's own affair; but every drawing
 * operation binds the one and sets the viewport to the other, so an empty rectangle shows them.
 * The surface must be bound: a drawing operation on one that is not would make it a pool of buffers.
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
    try {
        if (surface.ZoDrawRect(handle, nowhere, nothing) !== 0) {
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
 * Reads pixels as the target holds them, rows from the top. What lies outside reads as zeros.
 *
 * @param {WebGLRenderingContext} gl
 * @param {Target} target
 * @param {Rect} rect
 */
export function readPixels(gl, target, { x, y, width, height }) {
    const rows = new Uint8Array(width * height * 4);
    gl.bindFramebuffer(gl.FRAMEBUFFER, target.framebuffer);
    gl.readPixels(x, target.height - y - height, width, height, gl.RGBA, gl.UNSIGNED_BYTE, rows);
    gl.bindFramebuffer(gl.FRAMEBUFFER, null);
    const pixels = new Uint8ClampedArray(rows.length);
    for (let row = 0; row < height; ++row) {
        const start = (height - 1 - row) * width * 4;
        pixels.set(rows.subarray(start, start + width * 4), row * width * 4);
    }
    return pixels;
}

/**
 * Puts what a target holds on a 2D canvas, which gets the target's size.
 *
 * @param {WebGLRenderingContext} gl
 * @param {Target} target
 * @param {HTMLCanvasElement} canvas
 */
export function copyToCanvas(gl, target, canvas) {
    const { width, height } = target;
    if (canvas.width !== width || canvas.height !== height) {
        Object.assign(canvas, { width, height });
    }
    const pixels = readPixels(gl, target, { x: 0, y: 0, width, height });
    canvas.getContext('2d')?.putImageData(new ImageData(pixels, width, height), 0, 0);
}

/**
 * Whether a target's pixels can be read, and are few enough to be read as a whole.
 *
 * @param {Target} target
 */
export function isReadable({ isComplete, width, height }) {
    return isComplete && width * height <= 4096 * 4096;
}

/** @param {number} handle */
export function formatHandle(handle) {
    return `0x${handle.toString(16).toUpperCase()}`;
}
