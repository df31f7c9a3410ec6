// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "gl/RendererObjects.h"

#include "platform/Log.h"

#include <new>

int BuildRenderer(const ProgramSource& source, const RendererObjects& objects,
                  const Location& attribute, std::initializer_list<Location> uniforms) {
    ReleaseRenderer(objects);
    objects.helper.reset(new (std::nothrow) ShaderProgram());
    const auto& helper = objects.helper;
    const GLuint program = helper ? helper->CreateProgram(source.vertex, source.fragment) : 0;
    if (program == 0) {
        __android_log_print(LogError, source.tag, "create shader program fail");
        return ZO_PROGRAM_FAILED;
    }
    objects.program = program;
    attribute.value = helper->GetAttribLocation(program, attribute.name);
    for (const Location& uniform : uniforms) {
        uniform.value = helper->GetUniformLocation(program, uniform.name);
    }
    glGenBuffers(1, &objects.vertexBuffer);
    return ZO_SUCCESS;
}

void ReleaseRenderer(const RendererObjects& objects) {
    if (objects.vertexBuffer != 0) {
        glDeleteBuffers(1, &objects.vertexBuffer);
        objects.vertexBuffer = 0;
    }
    if (objects.helper) {
        objects.helper->ReleaseProgram(objects.program);
        objects.program = 0;
    }
}
