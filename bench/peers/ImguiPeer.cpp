// The frame by Dear ImGui's draw lists and its OpenGL ES 2 backend, in plain EGL.

#include "Frame.h"
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
    int width;
    int height;
};

ImVec2 Point(int x, int y) {
    return {static_cast<float>(x), static_cast<float>(y)};
}

ImTextureID ToId(GLuint texture) {
    return reinterpret_cast<ImTextureID>(static_cast<uintptr_t>(texture));
}

Target MakeTarget(int width, int height) {
    Target target = {MakeTexture(width, height), 0, width, height};
    glGenFramebuffers(1, &target.framebuffer);
    glBindFramebuffer(GL_FRAMEBUFFER, target.framebuffer);
    glFramebufferTexture2D(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_TEXTURE_2D, target.texture, 0);
    return target;
}

void Begin(ImDrawList& list, const Target& target) {
    list._ResetForNewFrame();
    list.PushTextureID(ImGui::GetIO().Fonts->TexID);
    list.PushClipRect({0, 0}, Point(target.width, target.height));
}

void Render(ImDrawList& list, const Target& target) {
    ImDrawList* lists[] = {&list};
    ImDrawData data;
    data.Valid = true;
    data.CmdLists = lists;
    data.CmdListsCount = 1;
    data.TotalVtxCount = list.VtxBuffer.Size;
    data.TotalIdxCount = list.IdxBuffer.Size;
    data.DisplaySize = Point(target.width, target.height);
    data.FramebufferScale = {1, 1};
    glBindFramebuffer(GL_FRAMEBUFFER, target.framebuffer);
    ImGui_ImplOpenGL3_RenderDrawData(&data);
}

void AddTiles(ImDrawList& list, const std::vector<Tile>& tiles) {
    for (const auto& [area, shade] : tiles) {
        list.AddRectFilled(Point(area.x, area.y), Point(area.x + area.width, area.y + area.height),
                           IM_COL32(shade.r, shade.g, shade.b, 255));
    }
}

// GL's rows start at the bottom, so a target's texture is upside down to ImGui.
void AddTarget(ImDrawList& list, const Target& source, const Area& from, const Area& to) {
    const float width = static_cast<float>(source.width);
    const float height = static_cast<float>(source.height);
    const ImVec2 start = Point(from.x, from.y);
    const ImVec2 end = Point(from.x + from.width, from.y + from.height);
    list.AddImage(ToId(source.texture), Point(to.x, to.y), Point(to.x + to.width, to.y + to.height),
                  {start.x / width, 1 - start.y / height}, {end.x / width, 1 - end.y / height});
}

void ClearWindow() {
    glClearColor(0, 0, 0, 0);
    glClear(GL_COLOR_BUFFER_BIT);
}

} // namespace

int main(int argc, char** argv) {
    OpenContext();
    ImGui::CreateContext();
    ImGuiIO& io = ImGui::GetIO();
    io.IniFilename = nullptr;
    io.DisplaySize = Point(frameWidth, frameHeight);
    // The font rasteriser that all the others use; the default one knows no hinting.
    io.Fonts->FontBuilderIO = ImGuiFreeType::GetBuilderForFreeType();
    ImFont* font = io.Fonts->AddFontFromFileTTF(fontPath, imguiFontSize);
    Require(font != nullptr, fontPath);
    Require(ImGui_ImplOpenGL3_Init("#version 100"), "ImGui's OpenGL ES 2 backend");
    // One empty frame sets up the fonts and what the draw lists share; after it, nothing of ImGui
    // but the lists and the backend is used.
    ImGui_ImplOpenGL3_NewFrame();
    ImGui::NewFrame();
    ImGui::EndFrame();

    const Target window = {0, 0, frameWidth, frameHeight};
    const Target composed = MakeTarget(frameWidth, frameHeight);
    const Target source = MakeTarget(sourceWidth, sourceHeight);
    const GLuint bitmap = MakeTexture(bitmapArea.width, bitmapArea.height);
    ImDrawList list(ImGui::GetDrawListSharedData());
    Begin(list, source);
    AddTiles(list, MakeSourceTiles());
    Render(list, source);

    const std::vector<Tile> rectangles = MakeRectangles();
    const std::vector<Copy> copies = MakeCopies();
    const std::vector<Line> lines = MakeLines();
    const std::vector<unsigned char> pixels = MakeBitmap();

    Contestant contestant;
    contestant.draw = [&] {
        Begin(list, composed);
        AddTiles(list, rectangles);
        for (const Copy& copy : copies) {
            AddTarget(list, source, {copy.srcX, copy.srcY, copy.dst.width, copy.dst.height},
                      copy.dst);
        }
        for (const Line& line : lines) {
            const ImVec2 topLeft = {static_cast<float>(line.x),
                                    static_cast<float>(line.baseline) - font->Ascent};
            list.AddText(font, imguiFontSize, topLeft,
                         IM_COL32(line.shade.r, line.shade.g, line.shade.b, 255), line.text.data(),
                         line.text.data() + line.text.size());
        }
        Render(list, composed);

        glBindTexture(GL_TEXTURE_2D, bitmap);
        glTexSubImage2D(GL_TEXTURE_2D, 0, 0, 0, bitmapArea.width, bitmapArea.height, GL_RGBA,
                        GL_UNSIGNED_BYTE, pixels.data());
        glBindFramebuffer(GL_FRAMEBUFFER, 0);
        ClearWindow();
        Begin(list, window);
        list.AddImage(ToId(bitmap), Point(bitmapArea.x, bitmapArea.y),
                      Point(bitmapArea.x + bitmapArea.width, bitmapArea.y + bitmapArea.height));
        Render(list, window);
        ClearWindow();
        Begin(list, window);
        AddTarget(list, composed, wholeFrame, wholeFrame);
        Render(list, window);
    };
    contestant.swap = SwapContext;
    RunContestant(argc, argv, contestant);
}
