#include "Logo.h"

#include "Palette.h"

#include <cmath>

namespace {

constexpr double corner = 0.24;

// How far a point of the unit square is inside the rounded square; negative outside.
double GetDepth(double u, double v) {
    const double x = std::abs(u - 0.5) - (0.5 - corner);
    const double y = std::abs(v - 0.5) - (0.5 - corner);
    const double outside = std::hypot(std::max(x, 0.0), std::max(y, 0.0));
    return corner - outside - std::min(std::max(x, y), 0.0);
}

// The letter: two bars and the stroke between them.
bool IsLetter(double u, double v) {
    constexpr double left = 0.25;
    constexpr double right = 0.75;
    constexpr double top = 0.25;
    constexpr double bottom = 0.75;
    constexpr double bar = 0.125;
    constexpr double stroke = 0.19; // width of the slanting stroke along a bar
    if (u < left || u > right || v < top || v > bottom) {
        return false;
    }
    if (v < top + bar || v > bottom - bar) {
        return true;
    }
    const double down = (v - top - bar) / (bottom - top - 2 * bar);
    const double start = right - stroke - (right - left - stroke) * down;
    return u >= start && u <= start + stroke;
}

// The colour at a point of the unit square; transparent outside the mark.
Color GetColor(double u, double v) {
    if (GetDepth(u, v) < 0) {
        return Palette::transparent;
    }
    return IsLetter(u, v) ? Palette::ink : Mix(Palette::accent, Palette::accentDeep, v);
}

bool IsSame(const Color& a, const Color& b) {
    return a.red == b.red && a.green == b.green && a.blue == b.blue && a.alpha == b.alpha;
}

// The mean of a pixel's samples; colours count by their alpha.
Color SamplePixel(const Rect& rect, int x, int y) {
    constexpr int samples = 4;
    double sum[4] = {};
    for (int i = 0; i < samples * samples; ++i) {
        const int row = i / samples;
        const double u = (x - rect.x + (i % samples + 0.5) / samples) / rect.width;
        const double v = (y - rect.y + (row + 0.5) / samples) / rect.height;
        const Color color = GetColor(u, v);
        sum[0] += color.red * color.alpha;
        sum[1] += color.green * color.alpha;
        sum[2] += color.blue * color.alpha;
        sum[3] += color.alpha;
    }
    if (sum[3] == 0) {
        return Palette::transparent;
    }
    const auto mean = [&](int channel) { return Round(sum[channel] / sum[3]); };
    return {mean(0), mean(1), mean(2), Round(sum[3] / (samples * samples))};
}

// The glow fades to nothing by its alpha. Eight bits of a wide, dark gradient show as rings; some
// fixed noise, as much alpha as it takes to move the dark colours by one, breaks them up.
Color GetGlow(const Rect& rect, int x, int y) {
    const double dx = (x + 0.5 - (rect.x + rect.width * 0.5)) / rect.width;
    const double dy = (y + 0.5 - (rect.y + rect.height * 0.5)) / rect.height;
    const unsigned int hash =
        (static_cast<unsigned int>(x) * 73856093U) ^ (static_cast<unsigned int>(y) * 19349663U);
    const double noise = ((hash * 2654435761U) >> 16 & 0xFFU) / 255.0;
    const double strength = 150 * std::exp(-(dx * dx + dy * dy) / 1.6);
    return {74, 58, 128, static_cast<int>(strength + 4 * noise)};
}

Color Over(const Color& under, const Color& over) {
    const double share = over.alpha / 255.0;
    Color mixed = Mix(under, over, share);
    mixed.alpha = Round(over.alpha + under.alpha * (1 - share));
    return mixed;
}

bool IsInside(const Rect& rect, int x, int y) {
    return x >= rect.x && x < rect.Right() && y >= rect.y && y < rect.Bottom();
}

} // namespace

// Row by row, one rectangle for each run of one colour.
void Logo::Paint(Stage& stage, const Rect& rect) {
    const Rect fine = rect.Times(stage.GetScale());
    for (int y = 0; y < fine.height; ++y) {
        const double v = (y + 0.5) / fine.height;
        int start = 0;
        Color color = Palette::transparent;
        for (int x = 0; x <= fine.width; ++x) {
            const Color next =
                x < fine.width ? GetColor((x + 0.5) / fine.width, v) : Palette::transparent;
            if (IsSame(next, color)) {
                continue;
            }
            if (color.alpha != 0) {
                stage.FillFine({fine.x + start, fine.y + y, x - start, 1}, color);
            }
            start = x;
            color = next;
        }
    }
}

std::vector<unsigned char> Logo::RenderPixels(const Rect& window, const Rect& rect) {
    std::vector<unsigned char> pixels;
    pixels.reserve(static_cast<size_t>(window.width) * static_cast<size_t>(window.height) * 4);
    for (int y = 0; y < window.height; ++y) {
        for (int x = 0; x < window.width; ++x) {
            Color color = GetGlow(rect, x, y);
            if (IsInside(rect, x, y)) {
                color = Over(color, SamplePixel(rect, x, y));
            }
            for (const int channel : {color.red, color.green, color.blue, color.alpha}) {
                pixels.push_back(static_cast<unsigned char>(channel));
            }
        }
    }
    return pixels;
}
