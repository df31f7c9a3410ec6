#include "Landscape.h"

#include <cmath>

namespace {

// Smooth colours are painted as cells of a small buffer, which a linear copy then stretches.
constexpr int coarseWidth = 128;
constexpr int coarseHeight = 72;

// The picture is thought of as 1 high and `aspect` wide.
constexpr double aspect = 16.0 / 9.0;
constexpr double sunX = 1.045;
constexpr double sunY = 0.43;
constexpr double sunRadius = 0.066;

struct Stop {
    double at;
    Color color;
};

constexpr Stop sky[] = {{0.00, {26, 28, 78}},    {0.20, {70, 48, 122}},   {0.36, {158, 70, 132}},
                        {0.48, {238, 116, 104}}, {0.58, {255, 178, 104}}, {1.00, {255, 206, 140}}};

struct Ridge {
    double height; // of its middle line, from the top
    double swing;
    double pitch; // bumps in a picture's width
    double phase;
    Color color;
};

constexpr Ridge ridges[] = {{0.500, 0.030, 1.7, 0.6, {196, 96, 128}},
                            {0.570, 0.036, 1.3, 2.9, {132, 70, 126}},
                            {0.650, 0.040, 1.1, 4.6, {78, 52, 110}},
                            {0.750, 0.044, 0.8, 1.2, {40, 36, 84}}};

double GetRidgeTop(const Ridge& ridge, double x) {
    constexpr double turn = 6.283185307179586;
    const double angle = turn * ridge.pitch * x / aspect + ridge.phase;
    return ridge.height + ridge.swing * (0.62 * std::sin(angle) + 0.26 * std::sin(2.3 * angle + 1) +
                                         0.12 * std::sin(5.1 * angle + 2));
}

Color WithAlpha(Color color, int alpha) {
    color.alpha = alpha;
    return color;
}

} // namespace

Landscape::Landscape(const Rect& target) : window(target), coarse(ZO_NO_HANDLE) {}

void Landscape::Create(Canvas& canvas) {
    coarse = canvas.CreateBuffer(coarseWidth, coarseHeight);
}

Color Landscape::GetSky(double x, double y) const {
    Color color = sky[0].color;
    for (size_t i = 1; i < sizeof(sky) / sizeof(sky[0]); ++i) {
        if (y < sky[i].at) {
            const double share = (y - sky[i - 1].at) / (sky[i].at - sky[i - 1].at);
            color = Mix(sky[i - 1].color, sky[i].color, share);
            break;
        }
        color = sky[i].color;
    }
    const double distance = std::hypot(x - sunX, y - sunY);
    const double glow = 0.75 * std::exp(-distance * distance / 0.035);
    return Mix(color, {255, 176, 96}, glow);
}

Color Landscape::GetColor(double x, double y) const {
    Color color = GetSky(x, y);
    for (const Ridge& ridge : ridges) {
        color = y >= GetRidgeTop(ridge, x) ? ridge.color : color;
    }
    return color;
}

// The mean over a cell and its neighbours' nearer halves.
Color Landscape::GetMeanColor(const Rect& cell, int columns, int rows) const {
    constexpr int samples = 8;
    int sum[3] = {};
    for (int i = 0; i < samples * samples; ++i) {
        const int row = i / samples;
        const double x = cell.x - 0.5 + (i % samples + 0.5) * 2 / samples;
        const double y = cell.y - 0.5 + (row + 0.5) * 2 / samples;
        const Color color = GetColor(x / columns * aspect, y / rows);
        sum[0] += color.red;
        sum[1] += color.green;
        sum[2] += color.blue;
    }
    constexpr int count = samples * samples;
    return {sum[0] / count, sum[1] / count, sum[2] / count};
}

void Landscape::Paint(Canvas& canvas, Stage& stage, int alpha) const {
    for (int row = 0; row < coarseHeight; ++row) {
        for (int column = 0; column < coarseWidth; ++column) {
            const Color color =
                GetSky((column + 0.5) / coarseWidth * aspect, (row + 0.5) / coarseHeight);
            canvas.Fill(coarse, {column, row, 1, 1}, WithAlpha(color, alpha));
        }
    }
    stage.Stretch(coarse, {0, 0, coarseWidth, coarseHeight});

    const auto toX = [&](double x) { return static_cast<int>(x / aspect * window.width); };
    const int radius = static_cast<int>(sunRadius * window.height);
    const Rect disc{toX(sunX) - radius, static_cast<int>(sunY * window.height) - radius, 2 * radius,
                    2 * radius};
    stage.FillDisc(disc, WithAlpha({255, 222, 172}, alpha), WithAlpha({255, 128, 100}, alpha));

    const int step = stage.GetScale() / 2; // half a pixel of the picture
    const Rect fine = window.Times(stage.GetScale());
    for (const Ridge& ridge : ridges) {
        for (int x = 0; x < fine.width; x += step) {
            const double top = GetRidgeTop(ridge, (x + step * 0.5) / fine.width * aspect);
            const int y = Round(top * fine.height);
            stage.FillFine({x, y, step, fine.height - y}, WithAlpha(ridge.color, alpha));
        }
    }
}

// What is painted this small and then stretched is blurred by the stretching itself.
void Landscape::PaintFrosted(Canvas& canvas, unsigned int buffer, const Color& glass,
                             double share) const {
    constexpr int columns = coarseWidth / 4;
    constexpr int rows = coarseHeight / 4;
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            const Rect cell{column, row, 1, 1};
            canvas.Fill(coarse, cell, Mix(GetMeanColor(cell, columns, rows), glass, share));
        }
    }
    canvas.Copy(coarse, {0, 0, columns, rows}, buffer, window);
}
