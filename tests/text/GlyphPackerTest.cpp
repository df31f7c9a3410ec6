#include "text/GlyphPacker.h"

#include <gtest/gtest.h>
#include <vector>

TEST(GlyphPackerTest, LaysGlyphsInRows) {
    struct Cell {
        unsigned int width, height, x, y;
    };
    const struct {
        const char* name;
        std::vector<Cell> cells;
        unsigned int width, height;
    } cases[] = {
        {"nothing", {}, 0, 0},
        {"next row", {{500, 40, 0, 0}, {500, 45, 501, 0}, {30, 20, 0, 45}}, 1002, 65},
        {"1,023 pixels, gap included, fit", {{500, 5, 0, 0}, {521, 9, 501, 0}}, 1023, 9},
        {"1,024 pixels do not", {{500, 5, 0, 0}, {522, 9, 0, 5}}, 523, 14},
        {"wide", {{10, 5, 0, 0}, {1023, 7, 0, 5}, {10, 3, 0, 12}}, 1024, 15},
        {"wide, first in line", {{3000, 7, 0, 0}, {1, 3, 0, 7}}, 3001, 10},
        {"empty bitmaps take the gap", {{0, 0, 0, 0}, {0, 0, 1, 0}}, 2, 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        GlyphPacker packer;
        for (const Cell& cell : c.cells) {
            const GlyphPacker::Position position = packer.Place(cell.width, cell.height);
            EXPECT_TRUE(position.x == cell.x && position.y == cell.y)
                << position.x << ' ' << position.y;
        }
        EXPECT_EQ(packer.Width(), c.width);
        EXPECT_EQ(packer.Height(), c.height);
    }
}
