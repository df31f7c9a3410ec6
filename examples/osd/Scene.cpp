// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "Scene.h"

#include "Palette.h"

#include <cstdio>
#include <utility>

namespace {

// Over the window's black, this alpha dims the background as a display would dim a video. Panels are
// opaque, because text lowers alpha at its edges, which is least visible over opaque pixels.
constexpr unsigned char backgroundAlpha = 200;

constexpr double programmeMinutes = 75;
constexpr int startMinute = 21 * 60 + 15;

constexpr int volumeSteps = 20;
constexpr int volumeLevel = 13;

Rect GetSize(const Picture& picture) {
    return {0, 0, static_cast<int>(picture.width), static_cast<int>(picture.height)};
}

// The rectangle of a picture that covers the whole window and keeps its proportions.
Rect Cover(const Rect& window, const Rect& picture) {
    const double scale =
        std::max(1.0 * window.width / picture.width, 1.0 * window.height / picture.height);
    const int width = Round(picture.width * scale);
    const int height = Round(picture.height * scale);
    return {(window.width - width) / 2, (window.height - height) / 2, width, height};
}

constexpr std::u16string_view subtitleTexts[2] = {u"The ferry is late again.",
                                                  u"Time enough for the lighthouse."};

} // namespace

Scene::Scene(Canvas& target, Typesetter& setter, const Layout& where, ScenePictures files)
    : canvas(target), typesetter(setter), layout(where), pictures(std::move(files)),
      menu(target, setter, where), subtitles{} {}

void Scene::CreateBuffers() {
    const Rect small = GetSize(pictures.glass);
    cells = canvas.CreateBuffer(small.width, small.height);
    menu.CreateBuffers();
    glass = canvas.CreateBuffer(layout.window.width, layout.window.height);
    backdrop = canvas.CreateBuffer(layout.window.width, layout.window.height);
    frame = canvas.CreateBuffer(layout.window.width, layout.window.height);
}

void Scene::Paint() {
    PaintGlass();
    Stage stage(canvas, layout.window.width, layout.window.height);
    menu.Paint(stage);
    stage.Paint(pictures.background, Cover(layout.window, GetSize(pictures.background)),
                backgroundAlpha);
    PaintPanels(stage);
    stage.ReduceTo(backdrop, layout.window.width, layout.window.height);
    PaintTexts();
    ArrangeSubtitles();
}

// Blurs the picture, because it is so small.
void Scene::PaintGlass() {
    const Rect small = GetSize(pictures.glass);
    canvas.Paint(cells, pictures.glass, small);
    canvas.Copy(cells, small, glass, layout.window);
}

void Scene::PaintPanels(Stage& stage) {
    for (const Rect& panel : {layout.banner, layout.menu, layout.volume}) {
        stage.FillRounded(panel, layout.radius, Palette::rim);
        stage.CopyRounded(glass, panel.Inset(1), layout.radius - 1);
    }
    const Rect& list = layout.list;
    const int lip = layout.Scale(8);
    stage.FillRounded({list.x, list.y - lip, list.width, list.height + 2 * lip}, layout.Scale(12),
                      Palette::well);
    const Rect& bar = layout.scrollbar;
    stage.FillRounded(bar, bar.width / 2, Palette::track);
    PaintProgressTrack(stage);
    stage.Paint(pictures.logo, layout.logo);
    stage.Paint(pictures.volume, layout.volumeIcon);
}

// Includes the round start of the bar's filled part, which each frame then lengthens.
void Scene::PaintProgressTrack(Stage& stage) {
    const Rect& bar = layout.progress;
    stage.FillRounded(bar, bar.height / 2, Palette::track);
    stage.FillRounded({bar.x, bar.y, bar.height, bar.height}, bar.height / 2, Palette::accent);
}

void Scene::PaintTexts() {
    menu.PaintHeader(backdrop);

    const int* line = layout.bannerLine;
    const Type number{layout.Scale(36), Palette::accent, true, false};
    const int width = typesetter.Write(backdrop, u"104", number, layout.bannerLeft, line[0]);
    const Type name{layout.Scale(36), Palette::text, true, false};
    typesetter.Write(backdrop, u"Marée Haute", name, layout.bannerLeft + width + layout.Scale(20),
                     line[0]);

    const Type title{layout.Scale(24), Palette::text};
    typesetter.Write(backdrop, u"Les Îles du Nord · Épisode 3", title, layout.bannerLeft, line[1]);
    typesetter.Write(backdrop, u"21:15 – 22:30", title, layout.bannerRight, line[1], Align::Right);

    const Type detail{layout.Scale(19), Palette::quiet, false, true};
    typesetter.Write(backdrop, u"Phares, embruns et longues soirées d’été le long de la côte",
                     detail, layout.bannerLeft, line[2]);
    typesetter.Write(backdrop, u"then: Météo des côtes", detail, layout.bannerRight, line[2],
                     Align::Right);

    const Type level{layout.Scale(24), Palette::text, true, false};
    typesetter.Write(
        backdrop, u"65", level, layout.volume.Right() - layout.Scale(20),
        Typesetter::CenterBaseline(layout.volume.y, layout.volume.height, level.pixels),
        Align::Right);
}

void Scene::ArrangeSubtitles() {
    for (int i = 0; i < 2; ++i) {
        subtitles[i] = typesetter.Arrange(subtitleTexts[i], {layout.standardText, Palette::text});
    }
}

void Scene::DrawFrame(double minutes) {
    canvas.Copy(backdrop, layout.window, frame, layout.window);
    menu.Compose(frame);
    DrawProgress(minutes);
    DrawClock(minutes);
    DrawVolume();
    DrawSubtitles();
    canvas.Present(frame, layout.window);
}

void Scene::DrawClock(double minutes) {
    const int now = startMinute + static_cast<int>(minutes);
    char text[8];
    snprintf(text, sizeof(text), "%02d:%02d", now / 60 % 24, now % 60);
    const Type type{layout.standardText, Palette::text};
    typesetter.Write(frame, Widen(text), type, layout.bannerRight, layout.bannerLine[0],
                     Align::Right);
}

void Scene::DrawProgress(double minutes) {
    const Rect& bar = layout.progress;
    const int start = bar.height / 2;
    const double share = std::min(minutes / programmeMinutes, 1.0);
    const int length = static_cast<int>((bar.width - 2 * start) * share);
    canvas.Fill(frame, {bar.x + start, bar.y, length, bar.height}, Palette::accent);
}

void Scene::DrawVolume() {
    const Rect& bar = layout.volumeBar;
    const int gap = layout.Scale(4);
    for (int i = 0; i < volumeSteps; ++i) {
        const int left = bar.x + bar.width * i / volumeSteps;
        const int right = bar.x + bar.width * (i + 1) / volumeSteps - gap;
        canvas.Fill(frame, {left, bar.y, std::max(1, right - left), bar.height},
                    i < volumeLevel ? Palette::accent : Palette::track);
    }
}

void Scene::DrawSubtitles() {
    const Type type{layout.standardText, Palette::text};
    for (int i = 0; i < 2; ++i) {
        typesetter.DrawOutlined(frame, subtitles[i], type, Palette::ink, layout.Scale(3),
                                layout.subtitleCenter - subtitles[i].width / 2,
                                layout.subtitleLine[i]);
    }
}
