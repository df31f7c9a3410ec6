// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "Menu.h"

#include "Palette.h"

#include <string>

namespace {

struct Channel {
    std::u16string_view name;
    std::u16string_view language;
};

constexpr Channel channels[] = {
    {u"Hafenlicht", u"DE"},    {u"Fjällvind", u"SV"},      {u"Śnieżna Góra", u"PL"},
    {u"Marée Haute", u"FR"},   {u"Άνεμος Νήσων", u"EL"},   {u"Тихая Река", u"RU"},
    {u"Niño Vecino", u"ES"},   {u"Kék Őszibarack", u"HU"}, {u"Зоряна Їжачка", u"UK"},
    {u"Žlutá Řeka", u"CS"},    {u"Çınar Altı", u"TR"},     {u"Φως & Σκιά", u"EL"},
    {u"Orizzonte Più", u"IT"}, {u"Þoka og Ís", u"IS"},     {u"Северен Бряг", u"BG"},
    {u"Pão de Manhã", u"PT"},  {u"Smørblomst", u"DA"},     {u"Ține Minte", u"RO"},
};
constexpr int channelCount = static_cast<int>(sizeof(channels) / sizeof(channels[0]));
constexpr int firstNumber = 101;
constexpr int highlightedRow = 3;

} // namespace

Menu::Menu(Canvas& target, Typesetter& setter, const Layout& where)
    : canvas(target), typesetter(setter), layout(where) {}

void Menu::CreateBuffers() {
    rows = canvas.CreateBuffer(layout.list.width, layout.list.height);
    coming = canvas.CreateBuffer(layout.list.width, layout.rowHeight);
    pill = canvas.CreateBuffer(layout.list.width, layout.rowHeight);
    chosen = canvas.CreateBuffer(layout.list.width, layout.rowHeight);
    thumb = canvas.CreateBuffer(GetThumb().width, GetThumb().height);
}

void Menu::Paint(Stage& stage) {
    first = 0;
    offset = 0;
    const Rect row{0, 0, layout.list.width, layout.rowHeight};
    stage.FillRounded(row, 0, Palette::well);
    stage.FillRounded(row, layout.Scale(10), Palette::accent);
    stage.ReduceTo(pill, row.width, row.height);
    const Rect handle{0, 0, GetThumb().width, GetThumb().height};
    stage.FillRounded(handle, 0, Palette::track);
    stage.FillRounded(handle, handle.width / 2, Palette::quiet);
    stage.ReduceTo(thumb, handle.width, handle.height);

    canvas.Fill(rows, {0, 0, layout.list.width, layout.list.height}, Palette::well);
    for (int i = 0; i < layout.rowCount; ++i) {
        PaintRow(rows, i * layout.rowHeight, i, false);
    }
    PaintHighlight();
}

void Menu::PaintHeader(unsigned int buffer) {
    const int baseline =
        Typesetter::CenterBaseline(layout.menu.y, layout.list.y - layout.menu.y, layout.Scale(26));
    const Type title{layout.Scale(26), Palette::text, true, false};
    typesetter.Write(buffer, u"Channels", title, layout.list.x + layout.Scale(16), baseline);
    const Type note{layout.Scale(18), Palette::quiet, false, true};
    typesetter.Write(buffer, u"all languages", note, layout.list.Right() - layout.Scale(14),
                     baseline, Align::Right);
}

void Menu::PaintRow(unsigned int buffer, int top, int index, bool isHighlighted) {
    const int channel = index % channelCount;
    const int pixels = layout.Scale(22);
    const int baseline = Typesetter::CenterBaseline(top, layout.rowHeight, pixels);
    const Color strong = isHighlighted ? Palette::ink : Palette::text;
    const Color weak = isHighlighted ? Palette::ink : Palette::quiet;
    typesetter.Write(buffer, Widen(std::to_string(firstNumber + channel)), {pixels, weak},
                     layout.Scale(58), baseline, Align::Right);
    typesetter.Write(buffer, channels[channel].name, {pixels, strong, isHighlighted, false},
                     layout.Scale(76), baseline);
    const int small = layout.Scale(17);
    typesetter.Write(buffer, channels[channel].language, {small, weak},
                     layout.list.width - layout.Scale(14), baseline, Align::Right);
}

void Menu::PaintHighlight() {
    const Rect row{0, 0, layout.list.width, layout.rowHeight};
    canvas.Copy(pill, row, chosen, row);
    PaintRow(chosen, 0, first + std::min(highlightedRow, layout.rowCount - 1), true);
}

// Text of this size is expensive, so the row is drawn once; each step of the scroll copies a part.
void Menu::BringNextRow() {
    canvas.Fill(coming, {0, 0, layout.list.width, layout.rowHeight}, Palette::well);
    PaintRow(coming, 0, first + layout.rowCount, false);
}

void Menu::Scroll(int pixels) {
    if (offset == 0) {
        BringNextRow();
    }
    const int step = std::min(pixels, layout.rowHeight - offset);
    const int width = layout.list.width;
    const int rest = layout.list.height - step;
    canvas.Copy(rows, {0, step, width, rest}, rows, {0, 0, width, rest});
    canvas.Copy(coming, {0, offset, width, step}, rows, {0, rest, width, step});
    offset += step;
    if (offset == layout.rowHeight) {
        offset = 0;
        first = (first + 1) % channelCount;
        PaintHighlight();
    }
}

void Menu::Compose(unsigned int frame) {
    const Rect list{0, 0, layout.list.width, layout.list.height};
    canvas.Copy(rows, list, frame, layout.list);
    const Rect row{0, 0, layout.list.width, layout.rowHeight};
    const int slot = std::min(highlightedRow, layout.rowCount - 1);
    canvas.Copy(chosen, row, frame,
                {layout.list.x, layout.list.y + slot * layout.rowHeight, row.width, row.height});

    const Rect handle = GetThumb();
    canvas.Copy(thumb, {0, 0, handle.width, handle.height}, frame, handle);
}

// The list repeats after its end, so the last channel comes just before the first one.
Rect Menu::GetThumb() const {
    const Rect& bar = layout.scrollbar;
    const int length = bar.height * layout.rowCount / (channelCount + layout.rowCount);
    const int place = (first * layout.rowHeight + offset) * (bar.height - length) /
                      (channelCount * layout.rowHeight);
    return {bar.x, bar.y + place, bar.width, length};
}
