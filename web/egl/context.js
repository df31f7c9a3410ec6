// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// Fixes Emscripten's EGL and GL: calls without a current context, destroyed contexts, and images without
// pixels.
//
// On other platforms a call without a context has no effect, and destroying a context destroys its objects.
// Emscripten's calls do not check for a current context, and its tables keep the objects, so that the browser
// cannot free their context.
mergeInto(LibraryManager.library, {
    $Contexts__deps: ['$GL'],
    $Contexts__postset: 'Contexts.install();',
    $Contexts: {
        // Replaces the current context if there is none: every call returns null.
        none: null,

        install: function () {
            Contexts.none = new Proxy({}, { get: () => () => null });
            var makeCurrent = GL.makeContextCurrent;
            GL.makeContextCurrent = function (handle) {
                var isDone = makeCurrent(handle);
                GLctx = GLctx || Contexts.none;
                return isDone;
            };
            var createContext = GL.createContext;
            var deleteContext = GL.deleteContext;
            GL.deleteContext = function (handle) {
                var context = GL.contexts[handle];
                if (context) {
                    Contexts.deleteObjects(context);
                }
                deleteContext(handle);
            };
            // A canvas returns its context even if it is lost.
            GL.createContext = function (canvas, attributes) {
                var handle = createContext(canvas, attributes);
                if (handle && GL.contexts[handle].GLctx.isContextLost()) {
                    deleteContext(handle);
                    return 0;
                }
                return handle;
            };
            GLctx = Contexts.none;
        },

        deleteObjects: function (context) {
            var gl = context.GLctx;
            var remove = function (names, deleteOne) {
                for (var i = 0; i < names.length; ++i) {
                    if (names[i]) {
                        deleteOne.call(gl, names[i]);
                        names[i] = null;
                    }
                }
            };
            remove(GL.framebuffers, gl.deleteFramebuffer);
            remove(GL.textures, gl.deleteTexture);
            remove(GL.buffers, gl.deleteBuffer);
            remove(GL.programs, gl.deleteProgram);
            remove(GL.shaders, gl.deleteShader);
            remove(context.tempIndexBuffers, gl.deleteBuffer); // hold indices from client memory
        },
    },

    // Emscripten returns a name even if WebGL creates no object.
    glCreateShader__deps: ['$GL', '$Contexts'],
    glCreateShader: function (type) {
        var shader = GLctx.createShader(type);
        if (!shader) {
            return 0;
        }
        var name = GL.getNewId(GL.shaders);
        GL.shaders[name] = shader;
        return name;
    },

    glCreateProgram__deps: ['$GL', '$Contexts'],
    glCreateProgram: function () {
        var program = GLctx.createProgram();
        if (!program) {
            return 0;
        }
        // Emscripten's other calls expect these.
        program.name = GL.getNewId(GL.programs);
        program.maxUniformLength =
            program.maxAttributeLength =
            program.maxUniformBlockNameLength =
                0;
        program.uniformIdCounter = 1;
        GL.programs[program.name] = program;
        return program.name;
    },

    // A blank glyph has no pixels; WebGL rejects a null pointer for them.
    glTexSubImage2D__deps: ['$emscriptenWebGLGetTexPixelData'],
    glTexSubImage2D: function (target, level, x, y, width, height, format, type, pixels) {
        if (width !== 0 && height !== 0) {
            var data = emscriptenWebGLGetTexPixelData(type, format, width, height, pixels, 0);
            GLctx.texSubImage2D(target, level, x, y, width, height, format, type, data);
        }
    },
});
