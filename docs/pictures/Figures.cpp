// Draws the pictures of the guides into a folder.

#include "Figure.h"

#include <cstdio>

namespace {

constexpr Color none = {0, 0, 0, 0};
constexpr Color white = {255, 255, 255, 255};
constexpr Color night = {27, 42, 71, 255};
constexpr Color blue = {70, 130, 180, 255};
constexpr Color orange = {240, 140, 40, 255};

std::u16string Widen(const std::string& text) {
    return {text.begin(), text.end()};
}

// What the first program in the README shows. Not 40, which is drawn at the labels' size here.
void DrawFirstProgram(const std::string& path) {
    Figure figure(660, 380);
    const unsigned int buffer = figure.CreateBuffer(640, 360, {20, 30, 60, 255});
    figure.GetCanvas().DrawText(buffer, u"Hello,world", {white, 41}, 200, 190);
    figure.Show(figure.Read(buffer, 640, 360), View::Colors, 10, 10);
    figure.Save(path + "/first-program.png");
}

void DrawCoordinates(const std::string& path) {
    Figure figure(760, 420);
    const unsigned int target = figure.CreateBuffer(640, 320, night);

    figure.GetCanvas().Fill(target, {160, 60, 300, 110}, orange);
    figure.GetCanvas().Fill(target, {0, 115, 160, 1}, white);
    figure.DrawLabel(target, u"x = 160", white, 44, 106);
    figure.GetCanvas().Fill(target, {310, 0, 1, 60}, white);
    figure.DrawLabel(target, u"y = 60", white, 322, 38);
    figure.DrawLabel(target, u"width = 300", ink, 248, 108);
    figure.DrawLabel(target, u"height = 110", ink, 244, 140);

    figure.GetCanvas().Fill(target, {0, 262, 640, 1}, faint);
    figure.GetCanvas().DrawText(target, u"Typing", {white, 80}, 160, 262);
    figure.GetCanvas().Fill(target, {156, 258, 9, 9}, orange);
    figure.DrawLabel(target, u"(160, 262)", orange, 44, 250);
    figure.DrawLabel(target, u"baseline", white, 520, 252);

    figure.Show(figure.Read(target, 640, 320), View::Blended, 60, 50);
    figure.Label(u"(0, 0)", 60, 36);
    figure.Label(u"x →", 380, 36);
    figure.Label(u"y ↓", 30, 216);
    figure.Label(u"(640, 320)", 690, 398);
    figure.Save(path + "/coordinates.png");
}

void DrawPastTarget(const std::string& path) {
    Figure figure(640, 330);
    const unsigned int target = figure.CreateBuffer(360, 200, night);
    const Rect reaching = {220, 110, 280, 150};
    figure.GetCanvas().Fill(target, reaching, orange);

    figure.DrawLabel(target, u"target", white, 16, 34);
    figure.DrawLabel(target, u"drawn", ink, 262, 162);
    figure.Label(u"cut off", 490, 222);
    figure.Show(figure.Read(target, 360, 200), View::Blended, 60, 30);
    figure.DashOutline({280, 140, reaching.width, reaching.height}, orange);
    figure.Save(path + "/past-the-target.png");
}

void LabelOperations(Figure& figure) {
    int baseline = 112;
    for (const char16_t* name :
         {u"ZoDrawRect", u"ZoBlit", u"ZoDrawText", u"ZoDisplayFBO", u"ZoDisplayFBO"}) {
        figure.DrawLabel(figure.GetPage(), name, ink, 20, baseline);
        baseline += 120;
    }
    figure.DrawLabel(figure.GetPage(), u"on the screen", faint, 20, 497);
    figure.DrawLabel(figure.GetPage(), u"composed", faint, 20, 617);
}

// One row for each operation, one column for each alpha. The number beside a cell is the alpha of
// the result.
void DrawAlpha(const std::string& path) {
    Figure figure(800, 650);
    LabelOperations(figure);
    constexpr int width = 140;
    constexpr int height = 100;
    constexpr Rect middle = {20, 15, 100, 70};
    const unsigned int source = figure.CreateBuffer(middle.width, middle.height, none);
    int x = 190;
    constexpr unsigned char alphas[] = {255, 128, 0};
    for (const unsigned char alpha : alphas) {
        const auto show = [&](const Picture& pixels, View view, int row) {
            const int y = 55 + row * 120;
            char left[8];
            snprintf(left, sizeof(left), "%.2f", pixels.At(width / 2, height / 2)[3] / 255.0);
            figure.DrawLabel(figure.GetPage(), Widen(left), ink, x + width + 8, y + 57);
            figure.Show(pixels, view, x, y);
        };
        const Color color = {orange.r, orange.g, orange.b, alpha};
        figure.Label(u"alpha " + Widen(std::to_string(alpha)), x + width / 2, 36);

        const unsigned int target = figure.CreateBuffer(width, height, blue);
        figure.GetCanvas().Fill(target, middle, color);
        show(figure.Read(target, width, height), View::Blended, 0);

        figure.GetCanvas().Fill(source, {10, 10, 80, 50}, color);
        figure.GetCanvas().Fill(target, {0, 0, width, height}, blue);
        figure.GetCanvas().Copy(source, {0, 0, middle.width, middle.height}, target, middle);
        show(figure.Read(target, width, height), View::Blended, 1);

        figure.GetCanvas().Fill(target, {0, 0, width, height}, blue);
        figure.GetCanvas().DrawText(target, u"H", {color, 108}, 29, 89);
        show(figure.Read(target, width, height), View::Blended, 2);

        figure.GetCanvas().Fill(target, {0, 0, width, height}, none);
        figure.GetCanvas().Fill(target, middle, color);
        show(figure.Present(target, width, height), View::Colors, 3);
        show(figure.Present(target, width, height), View::Composed, 4);
        x += 200;
    }
    figure.Save(path + "/alpha.png");
}

// A small picture with a coloured border, 15 by 15 pixels.
unsigned int CreateMotif(Figure& figure) {
    const unsigned int motif = figure.CreateBuffer(15, 15, orange);
    figure.GetCanvas().Fill(motif, {1, 1, 13, 13}, white);
    figure.GetCanvas().Fill(motif, {3, 3, 3, 9}, night);
    figure.GetCanvas().Fill(motif, {3, 9, 9, 3}, night);
    figure.GetCanvas().Fill(motif, {9, 3, 3, 3}, blue);
    figure.GetCanvas().Fill(motif, {14, 4, 1, 4}, night);
    figure.GetCanvas().Fill(motif, {5, 14, 4, 1}, blue);
    return motif;
}

void DrawScaledBlits(const std::string& path) {
    Figure figure(700, 440);
    const unsigned int motif = CreateMotif(figure);
    const unsigned int large = figure.CreateBuffer(150, 150, none);
    figure.Show(figure.Read(motif, 15, 15), View::Blended, 50, 20, 10);
    figure.Label(u"15 × 15, each ×10", 125, 200);
    figure.GetCanvas().Copy(motif, {0, 0, 15, 15}, large, {0, 0, 150, 150});
    figure.Show(figure.Read(large, 150, 150), View::Blended, 275, 20);
    figure.Label(u"blit to 150 × 150", 350, 200);
    figure.GetCanvas().Copy(motif, {0, 0, 15, 15}, large, {0, 0, 150, 60});
    figure.Show(figure.Read(large, 150, 60), View::Blended, 500, 65);
    figure.Label(u"blit to 150 × 60", 575, 200);

    const unsigned int lines = figure.CreateBuffer(150, 150, white);
    for (int y = 4; y < 150; y += 10) {
        figure.GetCanvas().Fill(lines, {0, y, 150, 1}, night);
    }
    figure.Show(figure.Read(lines, 150, 150), View::Blended, 50, 235);
    figure.Label(u"150 × 150", 125, 415);
    int x = 275;
    for (const int part : {2, 5}) {
        const int size = 150 / part;
        const unsigned int small = figure.CreateBuffer(size, size, none);
        figure.GetCanvas().Copy(lines, {0, 0, 150, 150}, small, {0, 0, size, size});
        figure.Show(figure.Read(small, size, size), View::Blended, x, 235, part);
        x += 225;
    }
    figure.Label(u"to 75 × 75, each ×2", 350, 415);
    figure.Label(u"to 30 × 30, each ×5", 575, 415);
    figure.Save(path + "/scaled-blits.png");
}

void DrawEdges(const std::string& path) {
    Figure figure(680, 330);
    const unsigned int motif = CreateMotif(figure);
    const unsigned int result = figure.CreateBuffer(24, 24, none);
    figure.GetCanvas().Copy(motif, {6, 6, 24, 24}, result, {0, 0, 24, 24});
    figure.Show(figure.Read(motif, 15, 15), View::Blended, 40, 20, 10);
    figure.DashOutline({100, 80, 240, 240}, {200, 40, 60, 255});
    figure.Label(u"source", 64, 198);
    figure.Label(u"region", 255, 218);
    figure.Show(figure.Read(result, 24, 24), View::Blended, 410, 40, 10);
    figure.Label(u"what the blit writes", 530, 308);
    figure.Save(path + "/edges.png");
}

constexpr int letterSide = 40; // of a buffer that holds one letter
constexpr int letterZoom = 4;

void DrawLetter(Figure& figure, unsigned int buffer) {
    figure.GetCanvas().DrawText(buffer, u"ag", {white, 25}, 4, 25);
}

void ShowLetter(Figure& figure, const Picture& pixels, View view, int column,
                std::u16string_view label) {
    const int x = 20 + column * 190;
    figure.Show(pixels, view, x, 20, letterZoom);
    figure.Label(label, x + letterSide * letterZoom / 2, 210);
}

void DrawTextOnOpaque(const std::string& path) {
    Figure figure(770, 230);
    const unsigned int buffer = figure.CreateBuffer(letterSide, letterSide, blue);
    DrawLetter(figure, buffer);
    const Picture pixels = figure.Read(buffer, letterSide, letterSide);
    ShowLetter(figure, pixels, View::Colors, 0, u"colours");
    ShowLetter(figure, pixels, View::Alpha, 1, u"alpha");
    ShowLetter(figure, figure.Present(buffer, letterSide, letterSide), View::Colors, 2,
               u"ZoDisplayFBO");
    ShowLetter(figure, pixels, View::Colors, 3, u"ZoBlit");
    figure.Save(path + "/text-on-opaque.png");
}

void DrawTextOnTransparent(const std::string& path) {
    Figure figure(770, 230);
    constexpr Color grounds[] = {none, {255, 255, 255, 0}, {70, 130, 180, 128}, blue};
    constexpr const char16_t* labels[] = {u"bare", u"white, alpha 0", u"panel, 128", u"panel, 255"};
    for (int column = 0; column < 4; ++column) {
        const unsigned int buffer = figure.CreateBuffer(letterSide, letterSide, grounds[column]);
        DrawLetter(figure, buffer);
        ShowLetter(figure, figure.Present(buffer, letterSide, letterSide), View::Colors, column,
                   labels[column]);
    }
    figure.Save(path + "/text-on-transparent.png");
}

} // namespace

int main(int argc, char* argv[]) {
    for (const auto& draw : {DrawFirstProgram, DrawCoordinates, DrawPastTarget, DrawAlpha,
                             DrawScaledBlits, DrawEdges, DrawTextOnOpaque, DrawTextOnTransparent}) {
        draw(argc > 1 ? argv[1] : ".");
    }
    return 0;
}
