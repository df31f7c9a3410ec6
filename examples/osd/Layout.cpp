// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "Layout.h"

namespace {

constexpr double designWidth = 1280;
constexpr double designHeight = 720;
constexpr int mostRows = 12;

} // namespace

Layout::Layout(const Rect& windowRect)
    : window(windowRect),
      unit(std::min(windowRect.width / designWidth, windowRect.height / designHeight)),
      radius(Scale(18)), standardText(std::max(8, Scale(40))), bannerLine(), rowHeight(Scale(44)),
      subtitleLine() {
    const int margin = Scale(40);
    const int gap = Scale(20);

    const int bannerHeight = Scale(164);
    banner = {margin, window.height - margin - bannerHeight, window.width - 2 * margin,
              bannerHeight};
    const int inset = Scale(24);
    logo = {banner.x + inset, banner.y + inset, bannerHeight - 2 * inset, bannerHeight - 2 * inset};
    bannerLeft = logo.Right() + inset;
    bannerRight = banner.Right() - inset;
    bannerLine[0] = banner.y + Scale(55);
    bannerLine[1] = banner.y + Scale(89);
    bannerLine[2] = banner.y + Scale(117);
    progress = {bannerLeft, banner.Bottom() - inset - Scale(6), bannerRight - bannerLeft, Scale(6)};

    // The list has as many whole rows as fit above the banner, within limits.
    const int header = Scale(72);
    const int foot = Scale(24);
    const int side = Scale(16);
    rowCount = std::clamp((banner.y - gap - margin - header - foot) / rowHeight, 2, mostRows);
    menu = {margin, margin, Scale(400), header + rowCount * rowHeight + foot};
    list = {menu.x + side, menu.y + header, menu.width - 2 * side - Scale(14),
            rowCount * rowHeight};
    scrollbar = {list.Right() + Scale(8), list.y, Scale(6), list.height};

    volume = {window.width - margin - Scale(340), margin, Scale(340), Scale(64)};
    volumeIcon = {volume.x + Scale(20), volume.y + Scale(18), Scale(29), Scale(28)};
    volumeBar = {volumeIcon.Right() + Scale(17), volume.y + Scale(20), Scale(200), Scale(24)};

    subtitleCenter = (menu.Right() + window.width - margin + gap) / 2;
    subtitleLine[1] = banner.y - Scale(36);
    subtitleLine[0] = subtitleLine[1] - Scale(52);
}

int Layout::Scale(double length) const {
    return std::max(1, Round(length * unit));
}
