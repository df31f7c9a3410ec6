#!/usr/bin/env python3
"""Makes the seed fonts anew: fuzz/make_fonts.py [path of DejaVuSans.ttf]. Needs python3-fonttools.

Every font ends with a few zero bytes that belong to no format: the target takes its choices from a
file's end.
"""
import os
import struct
import sys

from fontTools.fontBuilder import FontBuilder
from fontTools.pens.t2CharStringPen import T2CharStringPen
from fontTools.pens.ttGlyphPen import TTGlyphPen
from fontTools.subset import Options, Subsetter
from fontTools.ttLib import TTFont
from fontTools.ttLib.tables.DefaultTable import DefaultTable

SOURCE = "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf"
TEXT = "Ag&1 \u00c9\U00010300"  # one that is a composite, one beyond the basic plane
CHOICES = 24  # zero bytes at the end
FOLDER = os.path.join(os.path.dirname(os.path.abspath(__file__)), "seeds", "fonts")

# 8 by 8 pixels each, drawn by hand; one has a size and no pixels.
BITMAPS = {
    "&": None,
    "A": "18243C4242424200",
    "g": "00003A46463A023C",
    "1": "0818080808081C00",
    " ": "0000000000000000",
}


def subset(source):
    font = TTFont(source, recalcTimestamp=False)
    options = Options(layout_features=[], name_IDs=[0, 1], notdef_outline=True)
    subsetter = Subsetter(options)
    subsetter.populate(text=TEXT)
    subsetter.subset(font)
    return font


def write_postscript(truetype, path):
    """The same outlines as cubic curves in a CFF table."""
    order = truetype.getGlyphOrder()
    glyphs = truetype.getGlyphSet()
    outlines = {}
    for name in order:
        pen = T2CharStringPen(glyphs[name].width, glyphs)
        glyphs[name].draw(pen)
        outlines[name] = pen.getCharString()
    builder = FontBuilder(truetype["head"].unitsPerEm, isTTF=False)
    builder.setupGlyphOrder(order)
    builder.setupCharacterMap(truetype.getBestCmap())
    builder.setupCFF("Seed", {}, outlines, {})
    builder.setupHorizontalMetrics({name: truetype["hmtx"][name] for name in order})
    builder.setupHorizontalHeader(ascent=1901, descent=-483)
    builder.setupNameTable({"copyright": truetype["name"].getDebugName(0), "familyName": "Seed"},
                           mac=False)
    builder.setupOS2()
    builder.setupPost(keepGlyphNames=False)
    builder.font["head"].created = builder.font["head"].modified = truetype["head"].modified
    builder.font.recalcTimestamp = False
    builder.save(path)


def write_bitmap(path):
    lines = ["STARTFONT 2.1", "FONT -seed-seed-medium-r-normal--8-80-75-75-c-80-iso10646-1",
             "SIZE 8 75 75", "FONTBOUNDINGBOX 8 8 0 0", "STARTPROPERTIES 4", "FONT_ASCENT 8",
             "FONT_DESCENT 0", 'CHARSET_REGISTRY "ISO10646"', 'CHARSET_ENCODING "1"',
             "ENDPROPERTIES", f"CHARS {len(BITMAPS)}"]
    for character, rows in sorted(BITMAPS.items()):
        lines += [f"STARTCHAR u{ord(character):04x}", f"ENCODING {ord(character)}",
                  "SWIDTH 1000 0", "DWIDTH 8 0", "BBX 8 8 0 0"]
        if rows is not None:
            lines += ["BITMAP"] + [rows[i:i + 2] for i in range(0, len(rows), 2)]
        lines.append("ENDCHAR")
    with open(path, "w", encoding="ascii") as file:
        file.write("\n".join(lines + ["ENDFONT", ""]))


def write_endless(path):
    """A square for A, for the last code points of Unicode, and for all 32-bit numbers above them."""
    pen = TTGlyphPen(None)
    pen.moveTo((0, 0))
    for point in ((0, 500), (500, 500), (500, 0)):
        pen.lineTo(point)
    pen.closePath()
    square = pen.glyph()
    builder = FontBuilder(1000, isTTF=True)
    builder.setupGlyphOrder([".notdef", "A"])
    builder.setupGlyf({".notdef": square, "A": square})
    builder.setupHorizontalMetrics({".notdef": (600, 0), "A": (600, 0)})
    builder.setupHorizontalHeader(ascent=800, descent=-200)
    # One subtable of format 13, which maps each group of codes to one glyph.
    groups = [(ord("A"), ord("A"), 1), (0x10FFF0, 0xFFFFFFFE, 1)]
    cmap = DefaultTable("cmap")
    cmap.data = (struct.pack(">HHHHL", 0, 1, 3, 10, 12) +
                 struct.pack(">HHLLL", 13, 0, 16 + 12 * len(groups), 0, len(groups)) +
                 b"".join(struct.pack(">LLL", *group) for group in groups))
    builder.font["cmap"] = cmap
    builder.font["head"].created = builder.font["head"].modified = 0
    builder.font.recalcTimestamp = False
    builder.save(path)


def main():
    paths = [os.path.join(FOLDER, name)
             for name in ("truetype.ttf", "postscript.otf", "bitmap.bdf", "endless.ttf")]
    truetype = subset(sys.argv[1] if len(sys.argv) > 1 else SOURCE)
    write_postscript(truetype, paths[1])
    truetype.save(paths[0])
    write_bitmap(paths[2])
    write_endless(paths[3])
    for path in paths:
        with open(path, "ab") as file:
            file.write(bytes(CHOICES))


main()
