// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "Cases.h"

#include "LibraryFrame.h"

#include <utility>

namespace {

constexpr tagZoColorRGBA color = {255, 128, 3, 200};
constexpr tagZoRectInfo small = {10, 20, 300, 40};
constexpr unsigned int startX = 10;
constexpr unsigned int startY = 200;
constexpr int manyCalls = 64;

template <typename Call>
std::function<void(int)> Loop(Call call) {
    return [call](int count) {
        for (; count > 0; --count) {
            call();
        }
    };
}

template <typename Library>
Case Alone(std::string name, int batch, Library library) {
    return {std::move(name), batch, false, {{"library", Loop(library)}}};
}

template <typename Library, typename ByHand>
Case Pair(std::string name, int batch, Library library, ByHand byHand) {
    return {
        std::move(name), batch, false, {{"library", Loop(library)}, {"baseline", Loop(byHand)}}};
}

Case OnWindow(Case work) {
    work.isOnWindow = true;
    return work;
}

Case BitmapCase(Stage& stage, const char* name, unsigned int width, unsigned int height,
                const tagZoRectInfo& rect) {
    const auto pixels = std::make_shared<std::vector<unsigned char>>(width * height * 4);
    for (size_t i = 0; i < pixels->size(); ++i) {
        (*pixels)[i] = static_cast<unsigned char>(i * 7 / 5);
    }
    const tagZoBitmapInfo info = {pixels->data(), ZO_FORMAT_RGBA8888, 0, 0, width, height, rect};
    return OnWindow(Pair(
        name, width > 1000 ? 1 : 8,
        [&stage, info, pixels] { stage.surface.ZoDisplayBitmap(&info); },
        [&stage, info, pixels] { stage.byHand.ShowBitmap(info); }));
}

void DrawText(Stage& stage, const tagZoTextInfo& info) {
    constexpr tagZoRectInfo start = {startX, startY, 0, 0};
    stage.surface.ZoDrawText(stage.target, &info, &start);
}

Case TextCase(Stage& stage, const std::string& name, size_t length) {
    const auto text = std::make_shared<std::u16string>(Words(length));
    const tagZoTextInfo info = Request(*text, color);
    return Pair(
        name,
        length <= 30     ? manyCalls
        : length <= 1000 ? 8
                         : 1,
        [&stage, info, text] { DrawText(stage, info); },
        [&stage, info, text, floats = ToFloats(color)] {
            stage.byHand.DrawText(stage.handTarget, info, floats, startX, startY);
        });
}

Case StyledCase(Stage& stage, const char* name, bool isBold, bool isItalic) {
    static const std::u16string text = Words(30);
    tagZoTextInfo info = Request(text, color);
    info.fontSize = 32;
    info.bold = isBold ? 1 : 0;
    info.italic = isItalic ? 1 : 0;
    Case styled = Alone(name, 1, [&stage, info] { DrawText(stage, info); });
    styled.sides.push_back({"freetype", Loop([&stage, info] { stage.byHand.RenderStyled(info); })});
    return styled;
}

Case LoadCase(Stage& stage, const std::string& name, const char* path, unsigned int characters) {
    const auto load = [path, characters](auto action) {
        return Loop([path, characters, action] {
            LimitFont(characters);
            action(path);
            LimitFont(0);
        });
    };
    return {name,
            1,
            false,
            {{"library",
              load([&stage](const char* file) { stage.surface.ZoLoadFont(file, fontSize); })},
             {"freetype",
              load([&stage](const char* file) { stage.byHand.RenderFont(file, fontSize); })}}};
}

Case FrameCase(Stage& stage) {
    static const Frame frame;
    const auto drawn = std::make_shared<LibraryFrame>(frame, stage.target, stage.source);
    std::vector<Baseline::Color> fills;
    for (const Tile& tile : frame.rectangles) {
        fills.push_back(ToFloats(tile.color));
    }
    std::vector<Baseline::Color> inks;
    for (const TextLine& line : frame.lines) {
        inks.push_back(ToFloats(line.color));
    }
    return OnWindow(Pair(
        "frame", 1, [&stage, drawn] { drawn->Draw(stage.surface); },
        [&stage, drawn, fills, inks] {
            for (size_t i = 0; i < fills.size(); ++i) {
                stage.byHand.FillRect(stage.handTarget, frame.rectangles[i].area, fills[i]);
            }
            for (const Copy& copy : frame.copies) {
                stage.byHand.Blit(stage.handSource, stage.handTarget, copy.src, copy.dst);
            }
            for (size_t i = 0; i < inks.size(); ++i) {
                stage.byHand.DrawText(stage.handTarget, drawn->requests[i], inks[i],
                                      drawn->starts[i].x, drawn->starts[i].y);
            }
            stage.byHand.ShowBitmap(drawn->bitmap);
            stage.byHand.Present(stage.handTarget, wholeWindow, wholeWindow);
        }));
}

} // namespace

void WarmUp(Side& side) {
    if (!side.isWarm) {
        side.run(1);
        side.isWarm = true;
    }
}

std::vector<Case> BasicCases(Stage& stage, unsigned int characters) {
    static const std::u16string line = Words(30);
    static const std::u16string spaced = u"Wh en sp aces me et ou rwordsh";
    const Baseline::Color floats = ToFloats(color);
    const tagZoBlitInfo blit = {
        stage.source, stage.target, {50, 30, 200, 100}, {400, 300, 200, 100}};
    tagZoBlitInfo within = blit;
    within.srcHandle = stage.target;
    std::vector<Case> cases = {
        Pair(
            "rect", manyCalls, [&stage] { stage.surface.ZoDrawRect(stage.target, &small, &color); },
            [&stage, floats] { stage.byHand.FillRect(stage.handTarget, small, floats); }),
        Pair(
            "blit", manyCalls, [&stage, blit] { stage.surface.ZoBlit(&blit); },
            [&stage, blit] {
                stage.byHand.Blit(stage.handSource, stage.handTarget, blit.srcRect, blit.dstRect);
            }),
        Alone("blit-within", manyCalls, [&stage, within] { stage.surface.ZoBlit(&within); }),
        OnWindow(Pair(
            "present", 8, [&stage] { stage.Show(true); }, [&stage] { stage.Show(false); })),
        BitmapCase(stage, "bitmap/256x256", 256, 256, {900, 100, 256, 256}),
        BitmapCase(stage, "bitmap/1920x1080", 1920, 1080, wholeWindow),
        // The baseline draws no spaces and measures nothing.
        Alone("text/30-spaces", manyCalls,
              [&stage, info = Request(spaced, color)] { DrawText(stage, info); }),
        Alone("measure/30", manyCalls,
              [&stage, info = Request(line, color)] {
                  unsigned int width = 0;
                  unsigned int height = 0;
                  stage.surface.ZoGetTextSize(&info, &width, &height);
              }),
        FrameCase(stage),
        LoadCase(stage, "font", fontPath, characters),
        StyledCase(stage, "styled/30-plain", false, false),
        StyledCase(stage, "styled/30-bold", true, false),
        StyledCase(stage, "styled/30-italic", false, true),
    };
    for (const size_t length : {10U, 24U, 30U, 100U, 1000U}) {
        cases.push_back(TextCase(stage, "text/" + std::to_string(length), length));
    }
    return cases;
}

std::vector<Case> GrowthCases(Stage& stage, const std::regex& wanted, Stages* more) {
    std::vector<Case> cases;
    for (const size_t length :
         {1U, 3U, 10U, 30U, 100U, 300U, 1000U, 3000U, 10000U, 30000U, 100000U}) {
        cases.push_back(TextCase(stage, "growth/text/" + std::to_string(length), length));
    }
    if (hasDriver) {
        return cases;
    }
    const auto addStage = [more](const char* font, unsigned int characters, int buffers) -> Stage& {
        return *more->emplace_back(std::make_unique<Stage>(font, characters, buffers));
    };
    for (const int buffers : {2, 4, 8, 15}) {
        const std::string name = "growth/buffers/" + std::to_string(buffers);
        if (std::regex_search(name + "/library", wanted)) {
            cases.push_back(Alone(name, manyCalls, [&own = addStage(fontPath, 128, buffers)] {
                own.surface.ZoDrawRect(own.last, &small, &color);
            }));
        }
    }
    for (const unsigned int characters : {128U, 1000U, 10000U, 40000U}) {
        const std::string number = std::to_string(characters);
        if (std::regex_search("growth/font/" + number + "/library", wanted)) {
            cases.push_back(
                TextCase(addStage(largeFontPath, characters, 2), "growth/font/" + number, 30));
        }
        // Uses the common stage, because drawing costs the same with the glyphs loaded here.
        cases.push_back(LoadCase(stage, "growth/load/" + number, largeFontPath, characters));
    }
    return cases;
}
