// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// Classes of a user's program that have the names and signatures of the library's internal classes.
// The library must not call them: every function here ends the program.
#include "names.h"

#include <csignal>
#include <cstdio>
#include <memory>

struct FT_FaceRec_;
struct tagFrameBuffObject;

namespace {

unsigned int Stop() {
    fputs("the program's own function was called\n", stderr);
    raise(SIGABRT);
    return 0;
}

} // namespace

// Compiles an inline function that nothing calls.
#define USED __attribute__((used))

class FontAtlas {
public:
    FontAtlas();
    ~FontAtlas();
    USED int LoadFontByPath(const char*, unsigned int) { return Stop() != 0; }
    USED void FontToTexture(FT_FaceRec_*) { Stop(); }
    USED unsigned int GetFontTexture() const { return Stop(); }
};

class FBOManager {
public:
    FBOManager(int, int);
    ~FBOManager();
    USED bool GetFBOInst(unsigned int, tagFrameBuffObject*) const { return Stop() != 0; }
};

FontAtlas::FontAtlas() {
    Stop();
}

FontAtlas::~FontAtlas() {
    Stop();
}

FBOManager::FBOManager(int, int) {
    Stop();
}

FBOManager::~FBOManager() {
    Stop();
}

void MakeOwnObjects() {
    std::make_shared<FontAtlas>();
    std::make_unique<FBOManager>(1, 1);
}
