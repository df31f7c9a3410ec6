#include "Sample.h"

#include <GLES2/gl2.h>
#include <algorithm>
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

// Names ascend, so new ones are above all others.
int CountObjects() {
    GLuint names[3] = {};
    glGenTextures(1, &names[0]);
    glGenBuffers(1, &names[1]);
    glGenFramebuffers(1, &names[2]);
    const GLuint program = glCreateProgram();
    const GLuint end = std::max({names[0], names[1], names[2], program});
    glDeleteTextures(1, &names[0]);
    glDeleteBuffers(1, &names[1]);
    glDeleteFramebuffers(1, &names[2]);
    glDeleteProgram(program);
    int count = 0;
    for (GLuint name = 1; name < end; ++name) {
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
