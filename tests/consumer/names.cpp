// Classes of a user's program that have the names of the library's internal ones, with the same
// signatures. The library must call its own: any function here ends the program.
#include "names.h"

#include <csignal>
#include <cstdio>
#include <memory>

struct FT_FaceRec_;
struct FT_GlyphSlotRec_;
struct ANativeWindow;
struct tagColorRGBA;
struct tagFrameBuffObject;
struct tagTextInfo;

namespace {

unsigned int Stop() {
    fputs("the program's own function was called\n", stderr);
    raise(SIGABRT);
    return 0;
}

} // namespace

// Compiles an inline function although nothing calls it.
#define USED __attribute__((used))

class FontAtlas {
public:
    FontAtlas();
    ~FontAtlas();
    USED int LoadFontByPath(const char*, unsigned int) { return Stop() != 0; }
    USED int LoadFont(FT_FaceRec_*, unsigned int) { return Stop() != 0; }
    USED int CalculateTexSize(FT_FaceRec_*) { return Stop() != 0; }
    USED int CreateAtlasTex() { return Stop() != 0; }
    USED void FontToTexture(FT_FaceRec_*) { Stop(); }
    USED void FontCharInfoToMap(FT_GlyphSlotRec_*, int, int, unsigned long) { Stop(); }
    USED void DeleteTexture() { Stop(); }
    USED unsigned int GetFontTexture() const { return Stop(); }
};

class FontStyleAtlas {
public:
    FontStyleAtlas();
    ~FontStyleAtlas();
    USED int LoadFontByPath(const char*) { return Stop() != 0; }
    USED int GetFontTexture(const tagTextInfo*, unsigned int*) { return Stop() != 0; }
    USED void DeleteTexture() { Stop(); }
};

class ShaderProgram {
public:
    unsigned int CreateProgram(const char*, const char*) const;
    USED unsigned int LoadShader(unsigned int, const char*) const { return Stop(); }
    USED unsigned int LinkShaderProgram(unsigned int, unsigned int) const { return Stop(); }
    USED void ReleaseProgram(unsigned int) const { Stop(); }
    USED int GetAttribLocation(unsigned int, const char*) const { return Stop() != 0; }
};

class EGLManager {
public:
    EGLManager();
    ~EGLManager();
    USED int EGLSetupContext() { return Stop() != 0; }
    USED int CreateWindowSurface(ANativeWindow*) { return Stop() != 0; }
    USED int MakeCurrent() { return Stop() != 0; }
    USED unsigned int SwapBuffers() const { return Stop(); }
    USED void EGLRelease() { Stop(); }
};

class FBOManager {
public:
    FBOManager(int, int);
    ~FBOManager();
    USED int GLCreateFBO(unsigned int*, int, int, int, bool) { return Stop() != 0; }
    USED bool GetFBOInst(unsigned int, tagFrameBuffObject*) const { return Stop() != 0; }
    USED void GLDestoryFBO(unsigned int) { Stop(); }
    USED void ClearFBOTex(const tagFrameBuffObject*, const tagColorRGBA*) const { Stop(); }
};

class GlyphMap {
public:
    void operator[](unsigned long);
    USED void find(unsigned long) const { Stop(); }
    USED void ReadUnits() const { Stop(); }
    USED void Detach() { Stop(); }
};

FontAtlas::FontAtlas() {
    Stop();
}

FontAtlas::~FontAtlas() {
    Stop();
}

FontStyleAtlas::FontStyleAtlas() {
    Stop();
}

FontStyleAtlas::~FontStyleAtlas() {
    Stop();
}

unsigned int ShaderProgram::CreateProgram(const char*, const char*) const {
    return Stop();
}

EGLManager::EGLManager() {
    Stop();
}

EGLManager::~EGLManager() {
    Stop();
}

FBOManager::FBOManager(int, int) {
    Stop();
}

FBOManager::~FBOManager() {
    Stop();
}

void GlyphMap::operator[](unsigned long) {
    Stop();
}

void MakeOwnObjects() {
    std::make_shared<FontAtlas>();
    std::make_shared<FontStyleAtlas>();
    std::make_shared<EGLManager>();
    std::make_unique<FBOManager>(1, 1);
    std::make_shared<GlyphMap>();
}
