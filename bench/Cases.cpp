#include "Cases.h"

#include "FrameContent.h"

#include <utility>

namespace {

constexpr tagZoColorRGBA color = {255, 128, 3, 200};
constexpr tagZoRectInfo small = {10, 20, 300, 40};
constexpr unsigned int baseline = 200;
constexpr int manyCalls = 64;

template <typename Call>
std::function<void(int)> Loop(Call call) {
    return [call](int count) {
        for (; count > 0; --count) {
            call();
        }
    };
}

template <typename Library, typename ByHand>
Case Pair(std::string name, int batch, Library library, ByHand byHand) {
    return {std::move(name), batch, false, {{"library", Loop(library)}, {"floor", Loop(byHand)}}};
}

template <typename Library>
Case Alone(std::string name, int batch, Library library) {
    return {std::move(name), batch, false, {{"library", Loop(library)}}};
}

Case OnWindow(Case work) {
    work.isOnWindow = true;
    return work;
}

Case BitmapCase(Stage& stage, const std::string& name, unsigned int width, unsigned int height,
                const tagZoRectInfo& rect) {
    const auto pixels = std::make_shared<std::vector<unsigned char>>(width * height * 4);
    for (size_t i = 0; i < pixels->size(); ++i) {
        (*pixels)[i] = static_cast<unsigned char>(i * 7 / 5);
    }
    const tagZoBitmapInfo info = {pixels->data(), ZO_FORMAT_RGBA8888, 0, 0, width, height, rect};
    return OnWindow(Pair(
        name, width > 1000 ? 1 : 8,
        [&stage, info, pixels] { stage.surface.ZoDisplayBitmap(&info); },
        [&stage, info, pixels] {
            stage.floor.ShowBitmap(info.data, static_cast<int>(info.width),
                                   static_cast<int>(info.height), info.rect);
        }));
}

Case TextCase(Stage& stage, const std::string& prefix, size_t length) {
    const auto text = std::make_shared<std::u16string>(Line(length));
    const tagZoTextInfo info = Request(*text, color);
    const int batch = length <= 30 ? manyCalls : length <= 1000 ? 8 : 1;
    return Pair(
        prefix + std::to_string(length), batch,
        [&stage, info, text] {
            constexpr tagZoRectInfo start = {10, baseline, 0, 0};
            stage.surface.ZoDrawText(stage.target, &info, &start);
        },
        [&stage, info, text, floorColor = ToFloorColor(color)] {
            stage.floor.DrawLine(stage.floorTarget, info.text, info.length, floorColor, 10,
                                 baseline);
        });
}

// The floor draws no spaces, so the library stands alone.
Case SpacesCase(Stage& stage) {
    static const std::u16string text = u"Wh en sp aces me et ou rwordsh";
    const tagZoTextInfo info = Request(text, color);
    return Alone("text/30-spaces", manyCalls, [&stage, info] {
        constexpr tagZoRectInfo start = {10, baseline, 0, 0};
        stage.surface.ZoDrawText(stage.target, &info, &start);
    });
}

Case StyledCase(Stage& stage, size_t length, const std::string& name, const Floor::Style& style) {
    const auto text = std::make_shared<std::u16string>(Line(length));
    tagZoTextInfo info = Request(*text, color);
    info.fontSize = style.size;
    info.bold = style.isBold ? 1 : 0;
    info.italic = style.isItalic ? 1 : 0;
    Case styled = Pair(
        "styled/" + std::to_string(length) + "-" + name, 1,
        [&stage, info, text] {
            constexpr tagZoRectInfo start = {10, baseline, 0, 0};
            stage.surface.ZoDrawText(stage.target, &info, &start);
        },
        [&stage, info, text, style, floorColor = ToFloorColor(color)] {
            stage.floor.DrawStyled(stage.floorTarget, info.text, info.length, style, floorColor, 10,
                                   baseline);
        });
    styled.sides.push_back({"freetype", Loop([&stage, info, text, style] {
                                stage.floor.RenderStyled(info.text, info.length, style);
                            })});
    return styled;
}

Case LoadCase(Stage& stage, const std::string& name, const std::string& path,
              unsigned int characters) {
    const auto load = [path, characters](auto action) {
        return [path, characters, action] {
            LimitFont(characters);
            action(path.c_str());
            LimitFont(0);
        };
    };
    Case loading = Pair(
        name, 1, load([&stage](const char* file) { stage.surface.ZoLoadFont(file, fontSize); }),
        load([&stage](const char* file) { stage.floor.LoadFont(file, fontSize); }));
    loading.sides.push_back({"freetype", Loop(load([&stage](const char* file) {
                                 stage.floor.RenderFont(file, fontSize);
                             }))});
    return loading;
}

// Runs a case of a stage that is made at the first run.
template <typename Make>
Case Lazy(const std::string& name, int batch, const std::vector<std::string>& sides, Make make) {
    Case lazy = {name, batch, false, {}};
    const auto made = std::make_shared<std::unique_ptr<std::pair<Case, std::unique_ptr<Stage>>>>();
    for (size_t i = 0; i < sides.size(); ++i) {
        lazy.sides.push_back({sides[i], [made, make, i](int count) {
                                  if (!*made) {
                                      *made = make();
                                  }
                                  (*made)->first.sides[i].run(count);
                              }});
    }
    return lazy;
}

template <typename MakeCase>
auto OnOwnStage(const std::string& font, unsigned int characters, int buffers, MakeCase makeCase) {
    return [font, characters, buffers, makeCase] {
        auto stage = std::make_unique<Stage>(font, characters, buffers);
        Case made = makeCase(*stage);
        return std::make_unique<std::pair<Case, std::unique_ptr<Stage>>>(std::move(made),
                                                                         std::move(stage));
    };
}

} // namespace

void WarmUp(Side& side) {
    if (!side.isWarm) {
        side.run(1);
        side.isWarm = true;
    }
}

std::vector<Case> BasicCases(Stage& stage) {
    const Floor::Color floorColor = ToFloorColor(color);
    const tagZoBlitInfo blit = {
        stage.source, stage.target, {50, 30, 200, 100}, {400, 300, 200, 100}};
    tagZoBlitInfo within = blit;
    within.srcHandle = stage.target;
    std::vector<Case> cases = {
        Pair(
            "rect", manyCalls, [&stage] { stage.surface.ZoDrawRect(stage.target, &small, &color); },
            [&stage, floorColor] { stage.floor.FillRect(stage.floorTarget, small, floorColor); }),
        Pair(
            "blit", manyCalls, [&stage, blit] { stage.surface.ZoBlit(&blit); },
            [&stage, blit] {
                stage.floor.Blit(stage.floorSource, stage.floorTarget, blit.srcRect, blit.dstRect);
            }),
        Alone("blit-within", manyCalls, [&stage, within] { stage.surface.ZoBlit(&within); }),
        OnWindow(Pair(
            "present", 8, [&stage] { stage.Show(true); }, [&stage] { stage.Show(false); })),
        BitmapCase(stage, "bitmap/256x256", 256, 256, {900, 100, 256, 256}),
        BitmapCase(stage, "bitmap/1920x1080", 1920, 1080, wholeWindow),
    };
    for (const size_t length : {10U, 24U, 30U, 100U, 1000U}) {
        cases.push_back(TextCase(stage, "text/", length));
    }
    cases.push_back(SpacesCase(stage));
    static const std::u16string line = Line(30);
    cases.push_back(Alone("measure/30", manyCalls, [&stage, info = Request(line, color)] {
        unsigned int width = 0;
        unsigned int height = 0;
        stage.surface.ZoGetTextSize(&info, &width, &height);
    }));
    for (const size_t length : {20U, 30U}) {
        cases.push_back(StyledCase(stage, length, "plain", {32, false, false}));
        cases.push_back(StyledCase(stage, length, "bold", {32, true, false}));
        cases.push_back(StyledCase(stage, length, "italic", {32, false, true}));
    }
    const auto content = std::make_shared<FrameContent>(stage);
    cases.push_back(OnWindow(Pair(
        "frame", 1, [&stage, content] { content->Draw(stage.surface); },
        [&stage, content] { content->Draw(stage.floor); })));
    // Where a run starts up often, or is slow, a part of the font will do.
    const char* limit = getenv("ZOGLES_BENCH_FONT_CHARACTERS");
    cases.push_back(LoadCase(stage, "font", FontPath(),
                             limit == nullptr ? 0 : static_cast<unsigned int>(atoi(limit))));
    return cases;
}

std::vector<Case> TextGrowthCases(Stage& stage) {
    std::vector<Case> cases;
    for (const size_t length :
         {1U, 3U, 10U, 30U, 100U, 300U, 1000U, 3000U, 10000U, 30000U, 100000U}) {
        cases.push_back(TextCase(stage, "growth/text/", length));
    }
    return cases;
}

std::vector<Case> SurfaceGrowthCases() {
    std::vector<Case> cases;
    for (const int buffers : {2, 4, 8, 15}) {
        cases.push_back(Lazy("growth/buffers/" + std::to_string(buffers), manyCalls, {"library"},
                             OnOwnStage(FontPath(), 128, buffers, [](Stage& stage) {
                                 return Alone("", 1, [&stage] {
                                     stage.surface.ZoDrawRect(stage.last, &small, &color);
                                 });
                             })));
    }
    if (LargeFontPath().empty()) {
        return cases;
    }
    for (const unsigned int characters : {128U, 1000U, 10000U, 40000U}) {
        const std::string number = std::to_string(characters);
        cases.push_back(Lazy("growth/font/" + number, manyCalls, {"library", "floor"},
                             OnOwnStage(LargeFontPath(), characters, 2,
                                        [](Stage& stage) { return TextCase(stage, "", 30); })));
        cases.push_back(Lazy("growth/load/" + number, 1, {"library", "floor", "freetype"},
                             OnOwnStage(LargeFontPath(), 128, 2, [characters](Stage& stage) {
                                 return LoadCase(stage, "", LargeFontPath(), characters);
                             })));
    }
    return cases;
}
