#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>

#include "platform/vxFontService.h"

namespace Velarix {
namespace {

vxFontService& service() {
    return vxFontService::get();
}

vxFontFace* requireFace(const std::wstring& name, short style = 0) {
    vxFontFace* face = service().findFace(name, style);
    EXPECT_NE(face, nullptr) << "no face for the name; status " << service().getLastStatus();
    return face;
}

TEST(vxFontService, NamesThatAreNotInstalledAreSubstitutedAndMeasure) {
    for (const wchar_t* name : {L"NoSuchFont 123", L"Verdana", L"Geneva", L""}) {
        SCOPED_TRACE(testing::Message() << "font " << name);
        for (short style : {0, 1, 2, 3}) {
            vxFontFace* face = requireFace(name, style);
            ASSERT_NE(face, nullptr);
            EXPECT_GT(face->getWidth(L"Label", 10.0f), 0.0f);
            const vxFontMetrics metrics = face->getMetrics(10.0f);
            EXPECT_GT(metrics.ascent, 0.0f);
            EXPECT_GT(metrics.descent, 0.0f);
            EXPECT_GE(metrics.lineHeight, metrics.ascent + metrics.descent);
        }
    }
}

TEST(vxFontService, ReservedNamesAreArialAndAlwaysExist) {
    for (short style : {0, 1, 2, 3}) {
        vxFontFace* arial = requireFace(L"Arial", style);
        EXPECT_EQ(service().findFace(L"systemfont", style), arial);
        EXPECT_EQ(service().findFace(L"SystemFont", style), arial);
        EXPECT_EQ(service().findFace(L"applfont", style), arial);
    }
    EXPECT_EQ(vxFontService::platformName(L"APPLFONT"), L"Arial");
    EXPECT_EQ(vxFontService::platformName(L"Systemfonts"), L"Systemfonts");
    EXPECT_TRUE(service().isInstalled(L"systemfont"));
    EXPECT_TRUE(service().isInstalled(L"applfont"));
}

TEST(vxFontService, InstalledMeansTheMatchedFamilyHasTheName) {
    ASSERT_TRUE(service().isInstalled(L"DejaVu Sans")) << "fonts-dejavu-core is missing";
    EXPECT_TRUE(service().isInstalled(L"dejavu SANS"));
    EXPECT_FALSE(service().isInstalled(L"NoSuchFont 123"));
    EXPECT_FALSE(service().isInstalled(L"DejaVu"));
    EXPECT_FALSE(service().isInstalled(L""));
    // Fontconfig's generic aliases resolve to a font but are no family.
    EXPECT_FALSE(service().isInstalled(L"sans-serif"));
}

TEST(vxFontService, FacesAreOpenedOncePerFileAndStyle) {
    vxFontFace* plain = requireFace(L"DejaVu Sans");
    ASSERT_NE(plain, nullptr);
    EXPECT_EQ(service().findFace(L"dejavu sans", 0), plain);
    // Underline and other bits don't change the face.
    EXPECT_EQ(service().findFace(L"DejaVu Sans", 4), plain);
    // Two missing names with the same substitute share the opened face.
    EXPECT_EQ(service().findFace(L"NoSuchFont 123", 0), service().findFace(L"Missing Too", 0));

    vxFontFace* bold = requireFace(L"DejaVu Sans", vxFontService::kBold);
    vxFontFace* italic = requireFace(L"DejaVu Sans", vxFontService::kItalic);
    ASSERT_NE(bold, nullptr);
    ASSERT_NE(italic, nullptr);
    EXPECT_NE(bold->getFile(), plain->getFile());
    EXPECT_NE(italic->getFile(), plain->getFile());
    EXPECT_FALSE(bold->isSyntheticBold());
    EXPECT_GT(bold->getWidth(L"Quarterly revenue", 10.0f),
              plain->getWidth(L"Quarterly revenue", 10.0f));
}

TEST(vxFontService, BoldIsSimulatedWhenTheFamilyHasNoBoldFace) {
    if (!service().isInstalled(L"DejaVu Math TeX Gyre"))
        GTEST_SKIP() << "needs a font without bold";
    vxFontFace* plain = requireFace(L"DejaVu Math TeX Gyre");
    vxFontFace* bold = requireFace(L"DejaVu Math TeX Gyre", vxFontService::kBold);
    ASSERT_NE(bold, plain);
    EXPECT_EQ(bold->getFile(), plain->getFile());
    EXPECT_TRUE(bold->isSyntheticBold());
    // FreeType widens an emboldened glyph by a 24th of the em.
    EXPECT_NEAR(bold->getWidth(U'x', 24.0f), plain->getWidth(U'x', 24.0f) + 1.0f, 0.02f);
}

TEST(vxFontService, ArialMetricsAreThoseOfTheArialDesign) {
    // Arial and its metric-compatible substitutes share the em of 2048
    // units, so measuring at 2048 points gives the design values.
    vxFontFace* face = requireFace(L"Arial");
    ASSERT_NE(face, nullptr);
    if (face->getFamilyName() != "Arial" && face->getFamilyName() != "Liberation Sans") {
        GTEST_SKIP() << "Arial is substituted by " << face->getFamilyName();
    }
    const vxFontMetrics metrics = face->getMetrics(2048.0f);
    EXPECT_FLOAT_EQ(metrics.ascent, 1854.0f);
    EXPECT_FLOAT_EQ(metrics.descent, 434.0f);
    EXPECT_FLOAT_EQ(metrics.lineHeight, 2355.0f);
    EXPECT_FLOAT_EQ(metrics.leading, 67.0f);
    EXPECT_FLOAT_EQ(face->getWidth(L"Hello", 2048.0f), 4667.0f);
    EXPECT_FLOAT_EQ(face->getWidth(L"Hello", 10.0f), 4667.0f * 10.0f / 2048.0f);
}

TEST(vxFontService, Utf16TextIsMeasuredByCodePoint) {
    vxFontFace* face = requireFace(L"DejaVu Sans");
    ASSERT_NE(face, nullptr);
    const float size = 12.0f;
    // U+1F600 as a surrogate pair is one glyph.
    const float smiley = face->getWidth(U'\U0001F600', size);
    EXPECT_GT(smiley, 0.0f);
    EXPECT_FLOAT_EQ(face->getWidth(std::wstring{wchar_t(0xD83D), wchar_t(0xDE00)}, size), smiley);
    EXPECT_FLOAT_EQ(
        face->getWidth(std::wstring{L'a', wchar_t(0xD83D), wchar_t(0xDE00), L'b'}, size),
        face->getWidth(L"ab", size) + smiley);
    // A lone or reversed surrogate is shown as the replacement character.
    const float replacement = face->getWidth(U'\uFFFD', size);
    EXPECT_FLOAT_EQ(face->getWidth(std::wstring{wchar_t(0xD83D)}, size), replacement);
    EXPECT_FLOAT_EQ(face->getWidth(std::wstring{wchar_t(0xDE00), wchar_t(0xD83D)}, size),
                    2.0f * replacement);
    // Control characters, line ends among them, take no room.
    EXPECT_FLOAT_EQ(face->getWidth(L"ab\r\ncd\t", size), face->getWidth(L"abcd", size));
}

TEST(vxFontService, FittingLengthsAgreeWithTheWidths) {
    vxFontFace* face = requireFace(L"DejaVu Sans");
    ASSERT_NE(face, nullptr);
    // The pair at 4 and 5 is never split.
    const std::wstring units = L"Fit " + std::wstring{wchar_t(0xD83D), wchar_t(0xDE00)} + L" in";
    const std::wstring_view text16(units);
    for (float limit = -1.0f; limit <= face->getWidth(text16, 10.0f) + 1.0f; limit += 0.25f) {
        const std::size_t head = face->getFittingLength(text16, 10.0f, limit);
        const std::size_t tail = face->getFittingTailLength(text16, 10.0f, limit);
        EXPECT_LE(face->getWidth(text16.substr(0, head), 10.0f), std::max(limit, 0.0f));
        EXPECT_LE(face->getWidth(text16.substr(text16.size() - tail), 10.0f),
                  std::max(limit, 0.0f));
        if (head < text16.size()) {
            EXPECT_GT(face->getWidth(text16.substr(0, head == 4 ? 6 : head + 1), 10.0f), limit);
        }
        EXPECT_NE(head, 5u);
        EXPECT_NE(tail, 4u);
    }
}

TEST(vxFontService, FamiliesOfTheSameMetricsStandInForEachOther) {
    EXPECT_TRUE(service().hasFont(L"DejaVu Sans"));
    EXPECT_TRUE(service().hasFont(L"systemfont"));
    EXPECT_FALSE(service().hasFont(L"NoSuchFont 123"));
    EXPECT_FALSE(service().hasFont(L""));
    // DejaVu Sans is Bitstream Vera Sans extended.
    EXPECT_FALSE(service().isInstalled(L"Bitstream Vera Sans"));
    EXPECT_TRUE(service().hasFont(L"Bitstream Vera Sans"));
    if (!service().isInstalled(L"Liberation Sans")) GTEST_SKIP() << "needs the Liberation fonts";
    for (const wchar_t* name : {L"Arial", L"helvetica", L"Times New Roman", L"Courier"}) {
        EXPECT_TRUE(service().hasFont(name)) << name;
    }
}

}  // namespace
}  // namespace Velarix
