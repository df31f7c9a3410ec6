// What a browser's EGL and GL lack: calls without a current context, the end of a context, and pictures
// without a pixel.
//
// Elsewhere a call without a context is ignored, and the objects of a context go with it. Emscripten's
// calls reach for the current context without asking whether there is one, and its table of names keeps
// objects for good, whose context the browser then cannot let go of either.
mergeInto(LibraryManager.library, {
    $Contexts__deps: ['$GL'],
    $Contexts__postset: 'Contexts.install();',
    $Contexts: {
        // Stands where no context is current: creates nothing, knows nothing, does nothing.
        none: null,

        install: function () {
            Contexts.none = new Proxy(
                {},
                {
                    get: function () {
                        return function () {
                            return null;
                        };
                    },
                },
            );
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
            // A canvas gives the context that it has also while the browser has taken it away.
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
            remove(context.tempIndexBuffers, gl.deleteBuffer); // where client memory's indices went
        },
    },

    // Emscripten hands out a name even where nothing was created.
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
        // What Emscripten's other calls expect of a program.
        program.name = GL.getNewId(GL.programs);
        program.maxUniformLength =
            program.maxAttributeLength =
            program.maxUniformBlockNameLength =
                0;
        program.uniformIdCounter = 1;
        GL.programs[program.name] = program;
        return program.name;
    },

    // A blank glyph has no pixels and no memory for them, which WebGL takes for a mistake.
    glTexSubImage2D__deps: ['$emscriptenWebGLGetTexPixelData'],
    glTexSubImage2D: function (target, level, x, y, width, height, format, type, pixels) {
        if (width !== 0 && height !== 0) {
            var data = emscriptenWebGLGetTexPixelData(type, format, width, height, pixels, 0);
            GLctx.texSubImage2D(target, level, x, y, width, height, format, type, data);
        }
    },
});
