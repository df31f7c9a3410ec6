// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// The frame, drawn with SDL2's renderer and SDL2_ttf, in three variants, selected by name:
// sdl-cached keeps each line as a texture, for lines that never change; sdl-atlas keeps the glyphs
// in one texture and draws them with SDL_RenderGeometry; sdl-anew renders each line in each frame.

#include "Support.h"

#include <SDL.h>
#include <SDL_ttf.h>
#include <cstring>

namespace {

SDL_Rect ToRect(const tagZoRectInfo& area) {
    return {static_cast<int>(area.x), static_cast<int>(area.y), static_cast<int>(area.width),
            static_cast<int>(area.height)};
}

SDL_Color ToColor(const tagZoColorRGBA& color) {
    return {color.r, color.g, color.b, 255};
}

void DrawTiles(SDL_Renderer* renderer, const std::vector<Tile>& tiles) {
    for (const Tile& tile : tiles) {
        const SDL_Rect rect = ToRect(tile.area);
        SDL_SetRenderDrawColor(renderer, tile.color.r, tile.color.g, tile.color.b, 255);
        SDL_RenderFillRect(renderer, &rect);
    }
}

SDL_Texture* RenderLine(SDL_Renderer* renderer, TTF_Font* font, const TextLine& line) {
    SDL_Surface* rendered = TTF_RenderUTF8_Blended(font, line.text.c_str(), ToColor(line.color));
    SDL_Texture* texture = SDL_CreateTextureFromSurface(renderer, rendered);
    SDL_FreeSurface(rendered);
    Require(texture != nullptr, SDL_GetError());
    return texture;
}

void CopyLine(SDL_Renderer* renderer, TTF_Font* font, const TextLine& line, SDL_Texture* texture) {
    SDL_Rect place = {static_cast<int>(line.x),
                      static_cast<int>(line.baseline) - TTF_FontAscent(font), 0, 0};
    SDL_QueryTexture(texture, nullptr, nullptr, &place.w, &place.h);
    SDL_RenderCopy(renderer, texture, nullptr, &place);
}

// All glyphs side by side in one texture, in cells of the same width, because the font is monospaced.
// Draws all lines in one call.
class GlyphAtlas {
public:
    GlyphAtlas(SDL_Renderer* usedRenderer, TTF_Font* font)
        : renderer(usedRenderer), ascent(TTF_FontAscent(font)) {
        TextLine all = {"", 0, 0, {255, 255, 255, 255}};
        for (char c = firstGlyph; c <= lastGlyph; ++c) {
            all.text += c;
            int left = 0;
            int right = 0;
            int bottom = 0;
            int top = 0;
            TTF_GlyphMetrics(font, static_cast<Uint16>(c), &left, &right, &bottom, &top, &advance);
            boxes.push_back({left, ascent - top, right - left, top - bottom});
        }
        texture = RenderLine(renderer, font, all);
        SDL_QueryTexture(texture, nullptr, nullptr, &width, &height);
    }

    void Draw(const std::vector<TextLine>& lines) {
        vertices.clear();
        indices.clear();
        for (const TextLine& line : lines) {
            int x = static_cast<int>(line.x);
            for (const char c : line.text) {
                AddGlyph(c - firstGlyph, x, static_cast<int>(line.baseline) - ascent,
                         ToColor(line.color));
                x += advance;
            }
        }
        SDL_RenderGeometry(renderer, texture, vertices.data(), static_cast<int>(vertices.size()),
                           indices.data(), static_cast<int>(indices.size()));
    }

private:
    void AddGlyph(int index, int x, int y, SDL_Color color) {
        const SDL_Rect& box = boxes[static_cast<size_t>(index)];
        const int first = static_cast<int>(vertices.size());
        for (int corner = 0; corner < 4; ++corner) {
            const int right = box.x + corner % 2 * box.w;
            const int down = box.y + corner / 2 * box.h;
            vertices.push_back(
                {{static_cast<float>(x + right), static_cast<float>(y + down)},
                 color,
                 {static_cast<float>(index * advance + right) / static_cast<float>(width),
                  static_cast<float>(down) / static_cast<float>(height)}});
        }
        indices.insert(indices.end(),
                       {first, first + 1, first + 2, first + 1, first + 2, first + 3});
    }

    SDL_Renderer* renderer;
    SDL_Texture* texture = nullptr;
    int ascent;
    int advance = 0;
    int width = 0;
    int height = 0;
    std::vector<SDL_Rect> boxes; // the visible part of each glyph within its cell
    std::vector<SDL_Vertex> vertices;
    std::vector<int> indices;
};

SDL_Renderer* OpenRenderer() {
    SDL_SetHint(SDL_HINT_VIDEO_X11_FORCE_EGL, "1");
    SDL_SetHint(SDL_HINT_RENDER_DRIVER, "opengles2");
    SDL_SetHint(SDL_HINT_RENDER_BATCHING, "1");
    Require(SDL_Init(SDL_INIT_VIDEO) == 0 && TTF_Init() == 0, SDL_GetError());
    SDL_Window* window = SDL_CreateWindow("peers", 0, 0, windowWidth, windowHeight, 0);
    Require(window != nullptr, SDL_GetError());
    SDL_Renderer* renderer = SDL_CreateRenderer(
        window, -1, SDL_RENDERER_ACCELERATED | SDL_RENDERER_TARGETTEXTURE); // without vsync
    SDL_RendererInfo info{};
    SDL_GetRendererInfo(renderer, &info);
    Require(info.name != nullptr && strcmp(info.name, "opengles2") == 0, "SDL by OpenGL ES 2");
    return renderer;
}

SDL_Texture* MakeTexture(SDL_Renderer* renderer, SDL_TextureAccess access, SDL_BlendMode blending,
                         unsigned int width, unsigned int height) {
    SDL_Texture* texture = SDL_CreateTexture(renderer, SDL_PIXELFORMAT_RGBA32, access,
                                             static_cast<int>(width), static_cast<int>(height));
    Require(texture != nullptr, SDL_GetError());
    SDL_SetTextureBlendMode(texture, blending);
    return texture;
}

} // namespace

int main(int argc, char** argv) {
    const Frame frame;
    SDL_Renderer* renderer = OpenRenderer();
    TTF_Font* font = TTF_OpenFont(frameFontPath, fontSize);
    Require(font != nullptr, frameFontPath);
    SDL_Texture* composed = MakeTexture(renderer, SDL_TEXTUREACCESS_TARGET, SDL_BLENDMODE_BLEND,
                                        windowWidth, windowHeight);
    SDL_Texture* source = MakeTexture(renderer, SDL_TEXTUREACCESS_TARGET, SDL_BLENDMODE_NONE,
                                      sourceWidth, sourceHeight);
    SDL_Texture* bitmap = MakeTexture(renderer, SDL_TEXTUREACCESS_STREAMING, SDL_BLENDMODE_BLEND,
                                      bitmapArea.width, bitmapArea.height);
    SDL_SetRenderTarget(renderer, source);
    DrawTiles(renderer, frame.sourceTiles);

    const SDL_Rect bitmapPlace = ToRect(bitmapArea);

    std::function<void()> drawLines;
    const std::string variant = argc > 1 ? argv[1] : "";
    if (variant == "sdl-cached") {
        std::vector<SDL_Texture*> textures;
        for (const TextLine& line : frame.lines) {
            textures.push_back(RenderLine(renderer, font, line));
        }
        drawLines = [renderer, font, &frame, textures] {
            for (size_t i = 0; i < textures.size(); ++i) {
                CopyLine(renderer, font, frame.lines[i], textures[i]);
            }
        };
    } else if (variant == "sdl-atlas") {
        drawLines = [&frame, atlas = GlyphAtlas(renderer, font)]() mutable {
            atlas.Draw(frame.lines);
        };
    } else {
        Require(variant == "sdl-anew", "a name of sdl-cached, sdl-atlas or sdl-anew");
        drawLines = [renderer, font, &frame] {
            for (const TextLine& line : frame.lines) {
                SDL_Texture* texture = RenderLine(renderer, font, line);
                CopyLine(renderer, font, line, texture);
                SDL_DestroyTexture(texture);
            }
        };
    }
    const auto clearWindow = [renderer] {
        SDL_SetRenderDrawColor(renderer, 0, 0, 0, 0);
        SDL_RenderClear(renderer);
    };

    Contestant contestant;
    contestant.draw = [&] {
        SDL_SetRenderTarget(renderer, composed);
        DrawTiles(renderer, frame.rectangles);
        for (const Copy& copy : frame.copies) {
            const SDL_Rect from = ToRect(copy.src);
            const SDL_Rect to = ToRect(copy.dst);
            SDL_RenderCopy(renderer, source, &from, &to);
        }
        drawLines();
        SDL_SetRenderTarget(renderer, nullptr);
        clearWindow();
        SDL_UpdateTexture(bitmap, nullptr, frame.bitmap.data(), bitmapPlace.w * 4);
        SDL_RenderCopy(renderer, bitmap, nullptr, &bitmapPlace);
        clearWindow();
        SDL_RenderCopy(renderer, composed, nullptr, nullptr);
    };
    contestant.flush = [renderer] { SDL_RenderFlush(renderer); };
    contestant.swap = [renderer] { SDL_RenderPresent(renderer); };
    RunContestant(argc, argv, contestant);
}
