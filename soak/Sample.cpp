// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "Sample.h"

#include <GLES2/gl2.h>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <malloc.h>
#include <string>

namespace {

long ReadStatus(const std::string& wanted) {
    std::ifstream status("/proc/self/status");
    std::string name;
    while (status >> name && name != wanted) {
    }
    long value = 0;
    status >> value;
    return value;
}

// Names ascend. Only textures are created all the time: the names of other objects exceed the newest
// texture's by less than the margin, unless hundreds of them have leaked.
int CountObjects() {
    constexpr GLuint margin = 1000;
    GLuint newest = 0;
    glGenTextures(1, &newest);
    glDeleteTextures(1, &newest);
    int count = 0;
    for (GLuint name = 1; name < newest + margin; ++name) {
        for (const auto isObject :
             {glIsTexture, glIsBuffer, glIsFramebuffer, glIsProgram, glIsShader}) {
            count += isObject(name) == GL_TRUE ? 1 : 0;
        }
    }
    return count;
}

} // namespace

Sample TakeSample() {
    Sample sample = {};
    sample.resident = ReadStatus("VmRSS:");
    malloc_trim(0); // the size of malloc's reserves is random and hides small growth
    sample.held = ReadStatus("RssAnon:");
    const struct mallinfo2 info = mallinfo2();
    sample.heap = static_cast<double>(info.uordblks + info.hblkhd) / 1024;
    const std::filesystem::directory_iterator files("/proc/self/fd");
    sample.descriptors = static_cast<int>(std::distance(begin(files), end(files))) - 1; // but this
    sample.objects = CountObjects();
    return sample;
}
