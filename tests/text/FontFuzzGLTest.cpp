// Damaged fonts: whatever FreeType makes of one, the library answers with a documented code and
// goes on. ZOGLES_FUZZ_COPIES and ZOGLES_FUZZ_SEED make longer and other runs.

#include "TextFixture.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>

namespace {

class FontFuzzGLTest : public TextFixture {};

unsigned int FromEnvironment(const char* name, unsigned int otherwise) {
    const char* value = getenv(name);
    return value == nullptr ? otherwise : static_cast<unsigned int>(strtoul(value, nullptr, 10));
}

unsigned int Below(std::mt19937& random, size_t limit) {
    return static_cast<unsigned int>(random() % limit);
}

unsigned int ReadNumber(const std::string& bytes, size_t at) {
    unsigned int number = 0;
    for (const char byte : bytes.substr(at, 4)) {
        number = number << 8 | static_cast<unsigned char>(byte);
    }
    return number;
}

// Changes a few bytes at the start of tables, small and large ones alike, or of the directory of
// tables, and cuts off every eighth font.
std::string Damage(std::string font, std::mt19937& random) {
    constexpr unsigned int directory = 12;
    constexpr unsigned int entry = 16;
    const unsigned int tables = ReadNumber(font, 4) >> 16;
    const std::string original = font;
    for (unsigned int i = 1 + Below(random, 12); i > 0; --i) {
        const unsigned int table = Below(random, tables + 1);
        const unsigned int start =
            table == tables ? 0 : ReadNumber(original, directory + entry * table + 8);
        const char edges[] = {0, 1, 127, -128, -1, static_cast<char>(Below(random, 256))};
        font[(start + Below(random, Below(random, 2) == 0 ? 64 : 4096)) % font.size()] =
            edges[Below(random, std::size(edges))];
    }
    return Below(random, 8) == 0 ? font.substr(0, Below(random, font.size())) : font;
}

} // namespace

TEST_F(FontFuzzGLTest, DamagedFontsAreRefusedOrDrawn) {
    std::ifstream file(monoPath, std::ios::binary);
    const std::string font(std::istreambuf_iterator<char>(file), {});
    const std::string path = ::testing::TempDir() + "zogles_damaged.ttf";
    const unsigned int copies = FromEnvironment("ZOGLES_FUZZ_COPIES", 40);
    std::mt19937 random(FromEnvironment("ZOGLES_FUZZ_SEED", 1));
    std::map<int, unsigned int> outcomes;
    UseFirst(150);
    Load();
    for (unsigned int i = 0; i < copies && !HasFailure(); ++i) {
        SCOPED_TRACE(i);
        std::filesystem::remove(path); // an open face maps the file: a new one, not new content
        std::ofstream(path, std::ios::binary) << Damage(font, random);
        ++outcomes[surface->ZoLoadFont(path.c_str(), 40)];
        EXPECT_LE(harness::Current().live["FreeType face"].size(), 1u) << "the styled atlas's";
        const std::u16string_view text = u"Ag&1\u00C9";
        for (const Style& style : {Style{}, Style{23}, Style{40, true}, Style{30, true, true}}) {
            const int code = Draw(text, style);
            EXPECT_TRUE(code == ZO_SUCCESS || code == ZO_FONT_ATLAS_EMPTY) << code;
        }
        const tagZoTextInfo info = Request(text);
        unsigned int size[] = {0, 0};
        EXPECT_EQ(surface->ZoGetTextSize(&info, &size[0], &size[1]), ZO_SUCCESS);
        harness::TakeLog();
    }
    EXPECT_EQ(outcomes[ZO_SUCCESS] + outcomes[ZO_FONT_FACE_FAILED] + outcomes[ZO_FONT_ATLAS_EMPTY],
              copies);
    EXPECT_GE(outcomes[ZO_SUCCESS], copies / 4) << "too damaged to get to the drawing";
    EXPECT_GE(outcomes[ZO_FONT_FACE_FAILED], copies / 20) << "hardly damaged";
    std::filesystem::remove(path);
    Load();
    Drawn(u"Usable");
    EXPECT_TRUE(Shows(u"Usable", {}));
}
