// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "Stage.h"

#include <cmath>

namespace {

// Beyond full HD, a stage of four times the width and height takes too much memory.
constexpr int mostPixelsForFour = 1920 * 1080;

int ChooseScale(int width, int height) {
    return width * height <= mostPixelsForFour ? 4 : 2;
}

// The distance of a quarter circle from the side of its square, in a row counted from the top.
int CornerInset(int radius, int row) {
    const double rise = radius - row - 0.5;
    return Round(radius - std::sqrt(radius * radius - rise * rise));
}

} // namespace

Stage::Stage(Canvas& target, int width, int height)
    : canvas(target), scale(ChooseScale(width, height)),
      buffer(canvas.CreateBuffer(width * scale, height * scale)),
      half(scale == 4 ? canvas.CreateBuffer(width * 2, height * 2) : ZO_NO_HANDLE) {}

Stage::~Stage() {
    canvas.DestroyBuffer(buffer);
    if (half != ZO_NO_HANDLE) {
        canvas.DestroyBuffer(half);
    }
}

void Stage::ForEachStrip(const Rect& rect, int radius,
                         const std::function<void(const Rect&)>& draw) const {
    const Rect fine = rect.Times(scale);
    const int corner = std::min({radius * scale, fine.width / 2, fine.height / 2});
    for (int row = 0; row < corner; ++row) {
        const int inset = CornerInset(corner, row);
        draw({fine.x + inset, fine.y + row, fine.width - 2 * inset, 1});
        draw({fine.x + inset, fine.Bottom() - 1 - row, fine.width - 2 * inset, 1});
    }
    draw({fine.x, fine.y + corner, fine.width, fine.height - 2 * corner});
}

void Stage::FillRounded(const Rect& rect, int radius, const Color& color) {
    ForEachStrip(rect, radius, [&](const Rect& strip) { canvas.Fill(buffer, strip, color); });
}

void Stage::Paint(const Picture& picture, const Rect& rect, unsigned char alpha) {
    canvas.Paint(buffer, picture, rect.Times(scale), alpha);
}

void Stage::CopyRounded(unsigned int from, const Rect& rect, int radius) {
    ForEachStrip(rect, radius, [&](const Rect& strip) {
        const Rect source{strip.x / scale, strip.y / scale, std::max(1, strip.width / scale),
                          std::max(1, strip.height / scale)};
        canvas.Copy(from, source, buffer, strip);
    });
}

// Halves the size in each step: a linear copy to half the size averages four pixels, while a larger
// step would skip pixels.
void Stage::ReduceTo(unsigned int to, int width, int height) {
    const Rect target{0, 0, width, height};
    if (half == ZO_NO_HANDLE) {
        canvas.Copy(buffer, target.Times(2), to, target);
        return;
    }
    canvas.Copy(buffer, target.Times(4), half, target.Times(2));
    canvas.Copy(half, target.Times(2), to, target);
}
