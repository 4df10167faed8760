// Text on the raster device: its ink against the box that the layout gives
// and against the glyph boxes that FreeType reads from the font.
#include <gtest/gtest.h>

#include <ft2build.h>
#include FT_FREETYPE_H

#include <array>
#include <cmath>

#include "drawing/vxDrawingSpecs.h"
#include "graphics/vxFontOLD.h"
#include "output/vxRasterTestSupport.h"
#include "platform/vxFontFace.h"
#include "platform/vxFontService.h"
#include "settings/vxUserSettings.h"

namespace Velarix::test {
namespace {

bool isDark(const Pixel& p) {
    return p.a > 127;
}

// The ink of a line whose pen starts at x on the baseline, from the boxes
// of its glyphs in font units: left, top, right, bottom.
std::array<double, 4> expectedInk(const vxFontOLD& font, const std::wstring& text, double x,
                                  double baseline) {
    vxFontFace* face = vxFontService::get().findFace(font.getName(), font.getStyle());
    FT_Face ft = face->getFTFace();
    const double scale = font.getSize() / face->getUnitsPerEm();
    std::array<double, 4> box = {1e9, 1e9, -1e9, -1e9};
    double pen = 0.0;
    for (wchar_t c : text) {
        EXPECT_EQ(FT_Load_Glyph(ft, FT_Get_Char_Index(ft, c), FT_LOAD_NO_SCALE), 0);
        const FT_Glyph_Metrics& m = ft->glyph->metrics;
        box[0] = std::min(box[0], x + (pen + m.horiBearingX) * scale);
        box[1] = std::min(box[1], baseline - m.horiBearingY * scale);
        box[2] = std::max(box[2], x + (pen + m.horiBearingX + m.width) * scale);
        box[3] = std::max(box[3], baseline - (m.horiBearingY - m.height) * scale);
        pen += face->getAdvance(static_cast<char32_t>(c));
    }
    return box;
}

// Within two pixels: an antialiased edge may fall on either side of the
// darkness threshold.
void expectInk(const Box& ink, const std::array<double, 4>& expected, const std::string& what) {
    EXPECT_NEAR(ink.left, expected[0], 2.0) << what;
    EXPECT_NEAR(ink.top, expected[1], 2.0) << what;
    EXPECT_NEAR(ink.right, expected[2], 2.0) << what;
    EXPECT_NEAR(ink.bottom, expected[3], 2.0) << what;
}

// For each alignment the line stands at the left edge, in the middle or at
// the right edge of the box, its baseline at the top plus the line height
// minus the descent, and its ink inside the laid-out box.
TEST(vxDeviceGDIPlusText, InkMatchesTheLayout) {
    const vxFontOLD font(L"Arial", 24, vxFontOLD::kPlain);
    const std::wstring text = L"Hamburg";
    const float width = font.getWidth(text);
    const float bounds[4] = {20, 10, 230, 10 + font.getStringHeight()};
    const double baseline = 10 + font.getLineHeight() - font.getDescent();
    const double starts[3] = {20, 125 - width / 2.0, 230 - width};
    for (short alignment : {1, 2, 3}) {
        const Drawn d = draw(
            250, 50,
            [&](vxDevice& d) {
                d.drawString2D(text, font, *rgba(0, 0, 0), bounds, alignment, 1, 0.0f);
            },
            Route::kRecorded, 1);
        const Box ink = boxOf(d.picture, isDark);
        const double start = starts[alignment - 1];
        expectInk(ink, expectedInk(font, text, start, baseline), std::to_string(alignment));
        EXPECT_TRUE(ink.left >= start - 2 && ink.right <= start + width + 2);
        EXPECT_TRUE(ink.top >= bounds[1] - 2 && ink.bottom <= bounds[3] + 2);
    }
}

// Lines split at carriage returns, one line height apart; a rotation turns
// the block about the centre of its bounds, an angle of 0.0001 doesn't.
TEST(vxDeviceGDIPlusText, LinesAndRotation) {
    const vxFontOLD font(L"Arial", 20, vxFontOLD::kPlain);
    const float lineHeight = font.getLineHeight();
    const float bounds[4] = {60, 40, 140, 40 + 2 * lineHeight};
    auto text = [&](float angle) {
        return draw(
            200, 200,
            [&](vxDevice& d) {
                d.drawString2D(L"HH\rHH", font, *rgba(0, 0, 0), bounds, 1, 1, angle);
            },
            Route::kRecorded, 1);
    };
    auto both = expectedInk(font, L"HH", 60, 40 + lineHeight - font.getDescent());
    both[3] += lineHeight;
    const Drawn plain = text(0.0f);
    expectInk(boxOf(plain.picture, isDark), both, "two lines");
    // A quarter turn, clockwise as y grows downward: x becomes
    // cx - (y - cy), y becomes cy + (x - cx).
    const double cx = 100, cy = 40 + lineHeight;
    expectInk(boxOf(text(static_cast<float>(M_PI / 2)).picture, isDark),
              {cx - (both[3] - cy), cy + (both[0] - cx), cx - (both[1] - cy), cy + (both[2] - cx)},
              "rotated");
    EXPECT_EQ(maxDifference(text(0.0001f).picture, plain.picture), 0);
}

// The underline runs under the whole line as it is drawn, below the
// baseline: as wide as the layout measured it with fractional metrics, and
// four advances fitted to whole pixels without.
TEST(vxDeviceGDIPlusText, Underline) {
    const vxFontOLD font(L"Arial", 20, vxFontOLD::kUnderline);
    const float width = font.getWidth(L"HHHH");
    vxFontFace* face = vxFontService::get().findFace(font.getName(), font.getStyle());
    const double fittedWidth =
        4 * std::round(face->getAdvance(U'H') * 20.0 / face->getUnitsPerEm());
    const float bounds[4] = {10, 10, 10 + width, 10 + font.getStringHeight()};
    const int baseline = static_cast<int>(10 + font.getLineHeight() - font.getDescent());
    for (bool isFractional : {true, false}) {
        const Drawn d = draw(
            120, 50,
            [&](vxDevice& d) {
                d.setUseFractionalMetrics(isFractional);
                d.drawString2D(L"HHHH", font, *rgba(255, 0, 0), bounds, 1, 1, 0.0f);
            },
            Route::kRecorded, 1);
        const Box ink = boxOf(d.picture, isDark);
        EXPECT_NEAR(ink.left, 10, 1);
        EXPECT_NEAR(ink.right, 10 + (isFractional ? width : fittedWidth), 1) << isFractional;
        EXPECT_TRUE(ink.bottom > baseline + 1 && ink.bottom < baseline + 5) << ink.bottom;
    }
}

// Without fractional metrics each advance is fitted to whole pixels: a run
// of a letter whose advance isn't whole ends where the rounded advances
// take it, and a centred line is centred by that width.
TEST(vxDeviceGDIPlusText, AdvancesFittedToPixelsUnlessFractional) {
    const vxFontOLD font(L"Arial", 20, vxFontOLD::kPlain);
    const std::wstring text(30, L'l');
    vxFontFace* face = vxFontService::get().findFace(font.getName(), font.getStyle());
    const double advance = face->getAdvance(U'l') * 20.0 / face->getUnitsPerEm();
    ASSERT_GT(std::fabs(advance - std::round(advance)), 0.2) << advance;
    const float bounds[4] = {10, 10, 290, 10 + font.getStringHeight()};
    auto inkOf = [&](bool isFractional, short alignment) {
        const Drawn d = draw(
            300, 50,
            [&](vxDevice& d) {
                d.setUseFractionalMetrics(isFractional);
                d.drawString2D(text, font, *rgba(0, 0, 0), bounds, alignment, 1, 0.0f);
            },
            Route::kRecorded, 1);
        return boxOf(d.picture, isDark);
    };
    const Box fractional = inkOf(true, 1), fitted = inkOf(false, 1);
    EXPECT_NEAR(fitted.left, fractional.left, 1);
    EXPECT_NEAR(fitted.right - fractional.right, 29 * (std::round(advance) - advance), 1.5);
    const Box centred = inkOf(false, 2);
    EXPECT_NEAR((centred.left + centred.right) / 2.0, 150, 2);
}

// Shapes and text take their antialiasing and fractional metrics from the
// rendering settings, each on its own.
TEST(vxDeviceGDIPlusText, AntialiasingFromTheSettings) {
    vxUserSettings settings(L"", L"", 1, 0);
    vxDrawingSpecs specs;
    specs.setSize(200, 60);
    const vxFontOLD font(L"Arial", 20, vxFontOLD::kPlain);
    const float bounds[4] = {10, 25, 190, 25 + font.getStringHeight()};
    for (bool shapes : {false, true}) {
        settings.getRenderingSettings()->setShapeAntialiasing(shapes);
        settings.getRenderingSettings()->setTextAntialiasing(!shapes);
        settings.getRenderingSettings()->setFractionalMetrics(shapes);
        vxDeviceGDIPlus device(&settings);
        device.setUp(specs);
        EXPECT_EQ(device.getAntialiasing(), shapes ? 1 : 0);
        EXPECT_EQ(device.getUseFractionalMetrics(), shapes);
        device.open();
        device.drawLine2D(*buttStroke(2), *rgba(0, 0, 0), 5, 5, 195, 17);
        device.drawString2D(L"Aa Ww", font, *rgba(0, 0, 0), bounds, 1, 1, 0.0f);
        device.close();
        // The line lies above y = 22, the text below it.
        const Box partial =
            boxOf(device.getPicture(), [](const Pixel& p) { return p.a != 0 && p.a != 255; });
        EXPECT_EQ(partial.top < 22, shapes);
        EXPECT_EQ(partial.bottom > 22, !shapes);
    }
}

}  // namespace
}  // namespace Velarix::test
