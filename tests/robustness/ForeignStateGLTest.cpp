// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// Draws right after a client has drawn with its own GL: docs/own-gl.md lists the state that a client
// must put back, and says that it may leave any other as it likes.

#include "Session.h"

#include "gl/ShaderProgram.h"

namespace {

// State that operations set, with a client's objects bound. The objects end with the context.
void ChangeWhatOperationsSet() {
    GLuint texture = 0;
    GLuint framebuffer = 0;
    GLuint buffer = 0;
    glGenTextures(1, &texture);
    glGenFramebuffers(1, &framebuffer);
    glGenBuffers(1, &buffer);
    glUseProgram(ShaderProgram().CreateProgram("void main() { gl_Position = vec4(0); }\n",
                                               "void main() { gl_FragColor = vec4(0); }\n"));
    glBindBuffer(GL_ARRAY_BUFFER, buffer);
    glVertexAttribPointer(0, 2, GL_BYTE, GL_TRUE, 2, nullptr);
    for (GLenum unit = GL_TEXTURE0; unit <= GL_TEXTURE3; ++unit) {
        glActiveTexture(unit);
        glBindTexture(GL_TEXTURE_2D, texture);
    }
    glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, 8, 8, 0, GL_RGBA, GL_UNSIGNED_BYTE, nullptr);
    glBindFramebuffer(GL_FRAMEBUFFER, framebuffer);
    glFramebufferTexture2D(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_TEXTURE_2D, texture, 0);
    glViewport(1, 2, 3, 4);
    glClearColor(0.5f, 0.5f, 0.5f, 0.5f);
    glPixelStorei(GL_UNPACK_ALIGNMENT, 2);
    glBlendFunc(GL_ZERO, GL_ONE);
}

void ChangeWhatOperationsIgnore() {
    glCullFace(GL_FRONT_AND_BACK);
    glScissor(0, 0, 1, 1);
    glDepthMask(GL_FALSE);
    glDepthFunc(GL_NEVER);
    glDepthRangef(1, 0);
    glStencilFunc(GL_NEVER, 1, 1);
    glStencilMask(0);
    glDisable(GL_DITHER);
    glEnable(GL_POLYGON_OFFSET_FILL);
    glPolygonOffset(9, 9);
    glEnable(GL_SAMPLE_ALPHA_TO_COVERAGE);
    glEnable(GL_SAMPLE_COVERAGE);
    glVertexAttrib4f(0, 9, 9, 9, 9);
}

class ForeignStateGLTest : public SessionFixture {
protected:
    Image Draw(const Step& step, bool isDisturbed) {
        if (isDisturbed && eglGetCurrentContext() != EGL_NO_CONTEXT) {
            const harness::Outside client;
            ChangeWhatOperationsSet();
            ChangeWhatOperationsIgnore();
        }
        EXPECT_EQ(Run(step), ZO_SUCCESS) << step.name;
        return Look(step.drawing);
    }
};

} // namespace

TEST_F(ForeignStateGLTest, OperationsDrawTheSame) {
    for (const Session* session : {&preparedSession, &firstUseSession}) {
        std::vector<Image> undisturbed;
        for (const Step& step : *session) {
            undisturbed.push_back(Draw(step, false));
        }
        for (size_t i = 0; i < session->size(); ++i) {
            const Image image = Draw((*session)[i], true);
            EXPECT_TRUE(image.pixels == undisturbed[i].pixels) << (*session)[i].name;
        }
    }
}
