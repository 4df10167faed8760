// The TrueType reader against the fonts installed here, read back through
// FreeType by the font service: the same names, the same advances.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

#include "platform/vxFontFace.h"
#include "platform/vxFontFiles.h"
#include "platform/vxFontService.h"
#include "platform/vxTrueTypeFile.h"

namespace Velarix {
namespace {

std::vector<uint8_t> bytesOf(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return std::vector<uint8_t>((std::istreambuf_iterator<char>(in)),
                                std::istreambuf_iterator<char>());
}

uint32_t u32(const std::vector<uint8_t>& b, size_t at) {
    return (uint32_t(b[at]) << 24) | (uint32_t(b[at + 1]) << 16) | (uint32_t(b[at + 2]) << 8) |
           b[at + 3];
}

// The offset of a table of a plain (non-collection) file.
size_t tableOffset(const std::vector<uint8_t>& b, const std::string& tag) {
    const size_t count = (size_t(b[4]) << 8) | b[5];
    for (size_t i = 0; i < count; ++i) {
        if (std::string(b.begin() + 12 + 16 * i, b.begin() + 16 + 16 * i) == tag) {
            return u32(b, 12 + 16 * i + 8);
        }
    }
    ADD_FAILURE() << "no table " << tag;
    return 0;
}

std::string fileOf(const std::wstring& family, short style = 0) {
    vxFontFileMatch match;
    EXPECT_TRUE(vxFindFontFile(family, style, match));
    return match.file;
}

TEST(vxTrueTypeFile, ReadsNamesMetricsAndTheAdvancesFreeTypeMeasures) {
    for (short style : {0, 1, 2, 3}) {
        SCOPED_TRACE(testing::Message() << "style " << style);
        vxFontFace* face = vxFontService::get().findFace(L"DejaVu Sans", style);
        ASSERT_NE(face, nullptr);
        std::string failure;
        auto font = vxTrueTypeFile::read(face->getFile(), face->getFaceIndex(), failure);
        ASSERT_TRUE(font) << failure;
        EXPECT_EQ(font->getPostScriptName(), face->getPostScriptName());
        EXPECT_EQ(font->getMetrics().unitsPerEm, face->getUnitsPerEm());
        EXPECT_EQ(font->getMetrics().italicAngle != 0.0, (style & 2) != 0);
        EXPECT_EQ(font->getMetrics().weightClass >= 600, (style & 1) != 0);
        EXPECT_TRUE(font->hasAllRequiredTablesForFontEmbedding());
        for (char32_t c : {U' ', U'A', U'i', U'W', U'\u00e9', U'\u20ac', U'\u2014', U'\u0416'}) {
            EXPECT_EQ(font->getAdvance(font->getGlyph(c)), face->getAdvance(c)) << "U+" << int(c);
        }
        EXPECT_EQ(font->getGlyph(U'\U0010FFFD'), 0);
    }
}

TEST(vxTrueTypeFile, MetricsOfAKnownFont) {
    std::string failure;
    auto font = vxTrueTypeFile::read(fileOf(L"Liberation Sans"), 0, failure);
    ASSERT_TRUE(font) << failure;
    const vxTrueTypeMetrics& m = font->getMetrics();
    EXPECT_EQ(font->getPostScriptName(), "LiberationSans");
    EXPECT_EQ(m.unitsPerEm, 2048);
    EXPECT_EQ(m.weightClass, 400);
    EXPECT_GT(m.ascender, 0);
    EXPECT_LT(m.descender, 0);
    EXPECT_LT(m.box[0], 0);
    EXPECT_GT(m.box[2], m.unitsPerEm);
    EXPECT_GT(m.capHeight, 0);
    EXPECT_LT(m.underlinePosition, 0);
    // Arial's metrics: "a" is 1139 units wide, as Helvetica's 556/1000.
    EXPECT_EQ(font->getAdvance(font->getGlyph(U'a')), 1139);
    EXPECT_FALSE(font->isSymbolic());
}

TEST(vxTrueTypeFile, LicenceFlagsDecideEmbedding) {
    std::vector<uint8_t> bytes = bytesOf(fileOf(L"DejaVu Sans"));
    ASSERT_FALSE(bytes.empty());
    const size_t fsType = tableOffset(bytes, "OS/2") + 8;
    // fsType: 0 installable, 2 restricted, 4 preview and print, 8 editable.
    for (auto [flags, allowed] : {std::pair{0, true},
                                  {2, false},
                                  {2 | 4, true},
                                  {2 | 8, true},
                                  {4, true},
                                  {8, true},
                                  {2 | 0x100, false}}) {
        bytes[fsType] = static_cast<uint8_t>(flags >> 8);
        bytes[fsType + 1] = static_cast<uint8_t>(flags & 0xFF);
        std::string failure;
        auto font = vxTrueTypeFile::parse(bytes, 0, failure);
        ASSERT_TRUE(font) << failure;
        EXPECT_EQ(font->getMetrics().fsType, flags);
        EXPECT_EQ(font->isEmbeddingAllowed(), allowed) << "fsType " << flags;
    }
}

TEST(vxTrueTypeFile, DamagedOrMissingFilesAreRefused) {
    std::string failure;
    EXPECT_FALSE(vxTrueTypeFile::read("/no/such/font.ttf", 0, failure));
    EXPECT_EQ(failure, "Unable to open font file: /no/such/font.ttf");

    const std::string path = fileOf(L"DejaVu Sans");
    const std::vector<uint8_t> bytes = bytesOf(path);
    EXPECT_FALSE(vxTrueTypeFile::parse({}, 0, failure));
    EXPECT_EQ(failure, "Invalid font file");
    // Cut short: the directory points beyond the end.
    EXPECT_FALSE(vxTrueTypeFile::parse({bytes.begin(), bytes.begin() + 400}, 0, failure));
    // A required table renamed away.
    std::vector<uint8_t> noName = bytes;
    const size_t name = tableOffset(noName, "name");
    for (size_t i = 0; i < 16 * 30; i += 16) {
        if (u32(noName, 12 + i + 8) == name) noName[12 + i] = 'x';
    }
    EXPECT_FALSE(vxTrueTypeFile::parse(noName, 0, failure));
    // Bytes of some other kind.
    EXPECT_FALSE(vxTrueTypeFile::parse(std::vector<uint8_t>(4096, 0x41), 0, failure));
}

// Whatever a damaged file says, the reader stays inside its bytes (the
// sanitizer build watches) and answers glyphs within the font.
TEST(vxTrueTypeFile, ScrambledTablesAreReadWithinTheBytes) {
    const std::vector<uint8_t> bytes = bytesOf(fileOf(L"DejaVu Sans Mono"));
    ASSERT_GT(bytes.size(), 4096u);
    std::mt19937 random(7);
    for (const char* tag : {"cmap", "hhea", "name", "head"}) {
        const size_t start = tableOffset(bytes, tag);
        for (int round = 0; round < 40; ++round) {
            std::vector<uint8_t> damaged = bytes;
            for (int i = 0; i < 8; ++i) damaged[start + random() % 64] = random() & 0xFF;
            std::string failure;
            auto font = vxTrueTypeFile::parse(std::move(damaged), 0, failure);
            if (!font) continue;
            for (char32_t c : {U'A', U'\u00e9', U'\u4e2d', U'\U0001F600'}) {
                EXPECT_LT(font->getGlyph(c), std::max<long>(font->getNumOfGlyphs(), 1));
                font->getAdvance(font->getGlyph(c));
            }
        }
    }
}

TEST(vxFontFiles, FamiliesInstalledOrOfEqualMetricsHaveAFile) {
    vxFontFileMatch match;
    ASSERT_TRUE(vxFindFontFile(L"DejaVu Sans", 3, match));
    EXPECT_NE(match.file.find("DejaVuSans-BoldOblique"), std::string::npos) << match.file;
    EXPECT_FALSE(match.isSyntheticBold);
    EXPECT_EQ(match.boldExtra, 0);
    // Arial stands in through a font of the same metrics, as in the layout.
    ASSERT_TRUE(vxFindFontFile(L"Arial", 1, match));
    EXPECT_EQ(match.file, vxFontService::get().findFace(L"Arial", 1)->getFile());
    EXPECT_FALSE(vxFindFontFile(L"No Such Font 77", 0, match));
    EXPECT_FALSE(vxFindFontFile(L"", 0, match));
}

TEST(vxFontFiles, BoldOfAFileWithoutBoldIsSimulated) {
    vxFontFileMatch match;
    if (!vxFindFontFile(L"cmr10", 1, match)) GTEST_SKIP() << "cmr10 is not installed";
    EXPECT_TRUE(match.isSyntheticBold);
    EXPECT_GT(match.boldExtra, 0);
}

}  // namespace
}  // namespace Velarix
