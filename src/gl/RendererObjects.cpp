#include "gl/RendererObjects.h"

#include "platform/Log.h"

#include <new>

int BuildProgram(const char* tag, const char* vertexSource, const char* fragmentSource,
                 std::unique_ptr<ShaderProgram>& helper, GLuint& program) {
    helper.reset(new (std::nothrow) ShaderProgram());
    program = helper ? helper->CreateProgram(vertexSource, fragmentSource) : 0;
    if (program == 0) {
        __android_log_print(LogError, tag, "create shader program fail");
        return ZO_PROGRAM_FAILED;
    }
    return ZO_SUCCESS;
}

void ReleaseObjects(const std::unique_ptr<ShaderProgram>& helper, GLuint& program,
                    GLuint& vertexBuffer) {
    if (vertexBuffer != 0) {
        glDeleteBuffers(1, &vertexBuffer);
        vertexBuffer = 0;
    }
    if (helper) {
        helper->ReleaseProgram(program);
        program = 0;
    }
}
