// The frame by Dear ImGui's draw lists and its OpenGL ES 2 backend, in plain EGL.

#include "Support.h"

#include <GLES2/gl2.h>
#include <backends/imgui_impl_opengl3.h>
#include <cstdint>
#include <imgui.h>
#include <imgui_freetype.h>

namespace {

// ImGui takes the height from the highest to the lowest point of the font, which in this font is
// 2384 units where the em is 2048.
constexpr float imguiFontSize = fontSize * 2384.0f / 2048.0f;

struct Target {
    GLuint texture;
    GLuint framebuffer;
    ImVec2 size;
};

ImVec2 Point(unsigned int x, unsigned int y) {
    return {static_cast<float>(x), static_cast<float>(y)};
}

ImVec2 TopLeft(const tagZoRectInfo& rect) {
    return Point(rect.x, rect.y);
}

ImVec2 BottomRight(const tagZoRectInfo& rect) {
    return Point(rect.x + rect.width, rect.y + rect.height);
}

ImU32 ToColor(const tagZoColorRGBA& color) {
    return IM_COL32(color.r, color.g, color.b, 255);
}

ImTextureID ToId(GLuint texture) {
    return reinterpret_cast<ImTextureID>(static_cast<uintptr_t>(texture));
}

Target MakeTarget(unsigned int width, unsigned int height) {
    Target target = {MakeTexture(width, height), 0, Point(width, height)};
    glGenFramebuffers(1, &target.framebuffer);
    glBindFramebuffer(GL_FRAMEBUFFER, target.framebuffer);
    glFramebufferTexture2D(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_TEXTURE_2D, target.texture, 0);
    return target;
}

void Begin(ImDrawList& list, const Target& target) {
    list._ResetForNewFrame();
    list.PushTextureID(ImGui::GetIO().Fonts->TexID);
    list.PushClipRect({0, 0}, target.size);
}

void Render(ImDrawList& list, const Target& target) {
    ImDrawList* lists[] = {&list};
    ImDrawData data;
    data.Valid = true;
    data.CmdLists = lists;
    data.CmdListsCount = 1;
    data.TotalVtxCount = list.VtxBuffer.Size;
    data.TotalIdxCount = list.IdxBuffer.Size;
    data.DisplaySize = target.size;
    data.FramebufferScale = {1, 1};
    glBindFramebuffer(GL_FRAMEBUFFER, target.framebuffer);
    ImGui_ImplOpenGL3_RenderDrawData(&data);
}

void AddTiles(ImDrawList& list, const std::vector<Tile>& tiles) {
    for (const auto& [area, color] : tiles) {
        list.AddRectFilled(TopLeft(area), BottomRight(area), ToColor(color));
    }
}

// GL's rows start at the bottom, so to ImGui a target's texture is upside down.
void AddTarget(ImDrawList& list, const Target& source, const tagZoRectInfo& from,
               const tagZoRectInfo& to) {
    const ImVec2 start = TopLeft(from);
    const ImVec2 end = BottomRight(from);
    list.AddImage(ToId(source.texture), TopLeft(to), BottomRight(to),
                  {start.x / source.size.x, 1 - start.y / source.size.y},
                  {end.x / source.size.x, 1 - end.y / source.size.y});
}

void ClearWindow() {
    glClearColor(0, 0, 0, 0);
    glClear(GL_COLOR_BUFFER_BIT);
}

} // namespace

int main(int argc, char** argv) {
    const Frame frame;
    OpenContext();
    ImGui::CreateContext();
    ImGuiIO& io = ImGui::GetIO();
    io.IniFilename = nullptr;
    io.DisplaySize = Point(windowWidth, windowHeight);
    // The font rasteriser that all the others use; the default one knows no hinting.
    io.Fonts->FontBuilderIO = ImGuiFreeType::GetBuilderForFreeType();
    ImFont* font = io.Fonts->AddFontFromFileTTF(frameFontPath, imguiFontSize);
    Require(font != nullptr, frameFontPath);
    Require(ImGui_ImplOpenGL3_Init("#version 100"), "ImGui's OpenGL ES 2 backend");
    // One empty frame sets up the fonts and what the draw lists share; after it, nothing of ImGui
    // but the lists and the backend is used.
    ImGui_ImplOpenGL3_NewFrame();
    ImGui::NewFrame();
    ImGui::EndFrame();

    const Target window = {0, 0, Point(windowWidth, windowHeight)};
    const Target composed = MakeTarget(windowWidth, windowHeight);
    const Target source = MakeTarget(sourceWidth, sourceHeight);
    const GLuint bitmap = MakeTexture(bitmapArea.width, bitmapArea.height);
    ImDrawList list(ImGui::GetDrawListSharedData());
    Begin(list, source);
    AddTiles(list, frame.sourceTiles);
    Render(list, source);

    Contestant contestant;
    contestant.draw = [&] {
        Begin(list, composed);
        AddTiles(list, frame.rectangles);
        for (const Copy& copy : frame.copies) {
            AddTarget(list, source, copy.src, copy.dst);
        }
        for (const Line& line : frame.lines) {
            const ImVec2 topLeft = {static_cast<float>(line.x),
                                    static_cast<float>(line.baseline) - font->Ascent};
            list.AddText(font, imguiFontSize, topLeft, ToColor(line.color), line.text.data(),
                         line.text.data() + line.text.size());
        }
        Render(list, composed);

        glBindTexture(GL_TEXTURE_2D, bitmap);
        glTexSubImage2D(GL_TEXTURE_2D, 0, 0, 0, bitmapArea.width, bitmapArea.height, GL_RGBA,
                        GL_UNSIGNED_BYTE, frame.bitmap.data());
        glBindFramebuffer(GL_FRAMEBUFFER, 0);
        ClearWindow();
        Begin(list, window);
        list.AddImage(ToId(bitmap), TopLeft(bitmapArea), BottomRight(bitmapArea));
        Render(list, window);
        ClearWindow();
        Begin(list, window);
        AddTarget(list, composed, wholeWindow, wholeWindow);
        Render(list, window);
    };
    contestant.swap = SwapContext;
    RunContestant(argc, argv, contestant);
}
