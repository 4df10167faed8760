// Text on the raster device: its ink against the box that the layout gives
// and against the glyph boxes that FreeType reads from the font.
#include <gtest/gtest.h>

#include <ft2build.h>
#include FT_FREETYPE_H

#include <cmath>

#include "drawing/vxDrawingSpecs.h"
#include "graphics/vxFontOLD.h"
#include "output/vxRasterTestSupport.h"
#include "platform/vxFontFace.h"
#include "platform/vxFontService.h"
#include "settings/vxUserSettings.h"

namespace Velarix::test {
namespace {

constexpr float kLeft = 20.0f;
constexpr float kTop = 10.0f;
constexpr float kRight = 230.0f;

bool isDark(const Pixel& p) {
    return p.a > 127;
}

// The ink box of one line of text whose pen starts at x on the baseline,
// from the glyphs' own boxes in font units: no drawing involved.
struct InkBox {
    double left, top, right, bottom;
};

InkBox expectedInk(const vxFontOLD& font, const std::wstring& text, double x, double baseline) {
    vxFontFace* face = vxFontService::get().findFace(font.getName(), font.getStyle());
    FT_Face ft = face->getFTFace();
    const double scale = font.getSize() / face->getUnitsPerEm();
    InkBox box = {1e9, 1e9, -1e9, -1e9};
    double pen = 0.0;
    for (wchar_t c : text) {
        EXPECT_EQ(FT_Load_Glyph(ft, FT_Get_Char_Index(ft, c), FT_LOAD_NO_SCALE), 0);
        const FT_Glyph_Metrics& m = ft->glyph->metrics;
        box.left = std::min(box.left, x + (pen + m.horiBearingX) * scale);
        box.right = std::max(box.right, x + (pen + m.horiBearingX + m.width) * scale);
        box.top = std::min(box.top, baseline - m.horiBearingY * scale);
        box.bottom = std::max(box.bottom, baseline - (m.horiBearingY - m.height) * scale);
        pen += face->getAdvance(static_cast<char32_t>(c));
    }
    return box;
}

void expectBoxNear(const Box& ink, const InkBox& expected, double tolerance,
                   const std::string& what) {
    EXPECT_NEAR(ink.left, expected.left, tolerance) << what;
    EXPECT_NEAR(ink.top, expected.top, tolerance) << what;
    EXPECT_NEAR(ink.right, expected.right, tolerance) << what;
    EXPECT_NEAR(ink.bottom, expected.bottom, tolerance) << what;
}

// For each alignment the line stands at the left edge, in the middle or at
// the right edge of the box, its first baseline at the top plus the line
// height minus the descent; the ink lies inside the laid-out box.
TEST(vxDeviceGDIPlusText, InkMatchesTheLayout) {
    const vxFontOLD font(L"Arial", 24, vxFontOLD::kPlain);
    const std::wstring text = L"Hamburg";
    const float width = font.getWidth(text);
    const float bounds[4] = {kLeft, kTop, kRight, kTop + font.getStringHeight()};
    const double baseline = kTop + font.getLineHeight() - font.getDescent();
    const double starts[3] = {kLeft, (kLeft + kRight) / 2.0 - width / 2.0, kRight - width};
    for (short alignment : {1, 2, 3}) {
        auto device = openDevice(250, 50, Route::kRecorded, 1);
        device->drawString2D(text, font, *rgba(0, 0, 0), bounds, alignment, 1, 0.0f);
        cairo_surface_t* picture = finish(*device);
        const Box ink = boxOf(picture, isDark);
        const double start = starts[alignment - 1];
        expectBoxNear(ink, expectedInk(font, text, start, baseline), 2.0,
                      "alignment " + std::to_string(alignment));
        EXPECT_GE(ink.left, start - 2);
        EXPECT_LE(ink.right, start + width + 2);
        EXPECT_GE(ink.top, bounds[1] - 2);
        EXPECT_LE(ink.bottom, bounds[3] + 2);
    }
}

// Lines split at carriage returns, one line height apart; a rotation turns
// the block about the centre of its bounds.
TEST(vxDeviceGDIPlusText, LinesAndRotation) {
    const vxFontOLD font(L"Arial", 20, vxFontOLD::kPlain);
    const float lineHeight = font.getLineHeight();
    const float bounds[4] = {60, 40, 140, 40 + 2 * lineHeight};
    const double baseline = 40 + lineHeight - font.getDescent();

    auto device = openDevice(200, 200, Route::kRecorded, 1);
    device->drawString2D(L"HH\rHH", font, *rgba(0, 0, 0), bounds, 1, 1, 0.0f);
    cairo_surface_t* picture = finish(*device);
    InkBox both = expectedInk(font, L"HH", 60, baseline);
    both.bottom += lineHeight;
    expectBoxNear(boxOf(picture, isDark), both, 2.0, "two lines");

    auto turned = openDevice(200, 200, Route::kRecorded, 1);
    turned->drawString2D(L"HH\rHH", font, *rgba(0, 0, 0), bounds, 1, 1,
                         static_cast<float>(M_PI / 2));
    picture = finish(*turned);
    // A quarter turn clockwise (y grows downward) about the centre: x
    // becomes cx - (y - cy), y becomes cy + (x - cx).
    const double cx = 100, cy = 40 + lineHeight;
    const InkBox rotated = {cx - (both.bottom - cy), cy + (both.left - cx), cx - (both.top - cy),
                            cy + (both.right - cx)};
    expectBoxNear(boxOf(picture, isDark), rotated, 2.0, "rotated");

    auto slight = openDevice(200, 200, Route::kRecorded, 1);
    slight->drawString2D(L"HH\rHH", font, *rgba(0, 0, 0), bounds, 1, 1, 0.0001f);
    EXPECT_EQ(maxDifference(finish(*slight), device->getPicture()), 0);
}

// The underline runs under the whole line, below the baseline, in the
// text's colour.
TEST(vxDeviceGDIPlusText, Underline) {
    const vxFontOLD font(L"Arial", 20, vxFontOLD::kUnderline);
    const float width = font.getWidth(L"HHHH");
    const float bounds[4] = {10, 10, 10 + width, 10 + font.getStringHeight()};
    const int baseline = static_cast<int>(10 + font.getLineHeight() - font.getDescent());
    auto device = openDevice(120, 50, Route::kRecorded, 1);
    device->drawString2D(L"HHHH", font, *rgba(255, 0, 0), bounds, 1, 1, 0.0f);
    cairo_surface_t* picture = finish(*device);
    const Box ink = boxOf(picture, isDark);
    EXPECT_NEAR(ink.left, 10, 1);
    EXPECT_NEAR(ink.right, 10 + width, 1);
    EXPECT_GT(ink.bottom, baseline + 1);
    EXPECT_LT(ink.bottom, baseline + 5);
    // Between the letters, only the underline has ink: the text's red, at
    // least half covered on its strongest row.
    const int between = 10 + static_cast<int>(width / 4);
    Pixel strongest;
    for (int y = baseline; y < ink.bottom; ++y) {
        const Pixel p = pixelAt(picture, between, y);
        if (p.a > strongest.a) strongest = p;
    }
    EXPECT_TRUE(isNear(strongest, 255, 0, 0, strongest.a, 2)) << strongest;
    EXPECT_GT(strongest.a, 127);
}

// Shapes and text take their antialiasing from the rendering settings, each
// on its own.
TEST(vxDeviceGDIPlusText, AntialiasingFromTheSettings) {
    vxUserSettings settings(L"", L"", 1, 0);
    settings.getRenderingSettings()->setShapeAntialiasing(0);
    settings.getRenderingSettings()->setTextAntialiasing(1);
    vxDrawingSpecs specs;
    specs.setSize(200, 60);
    vxDeviceGDIPlus device(&settings);
    device.setUp(specs);
    EXPECT_EQ(device.getAntialiasing(), 0);
    EXPECT_FALSE(device.isBitmap());
    device.open();
    device.drawLine2D(*buttStroke(2), *rgba(0, 0, 0), 5, 5, 195, 17);
    const vxFontOLD font(L"Arial", 20, vxFontOLD::kPlain);
    const float bounds[4] = {10, 25, 190, 25 + font.getStringHeight()};
    device.drawString2D(L"Aa Ww", font, *rgba(0, 0, 0), bounds, 1, 1, 0.0f);
    cairo_surface_t* picture = finish(device);
    auto partial = [](const Pixel& p) { return p.a != 0 && p.a != 255; };
    int partialInLine = 0, partialInText = 0;
    for (int y = 0; y < 60; ++y) {
        for (int x = 0; x < 200; ++x) {
            if (partial(pixelAt(picture, x, y))) ++(y < 22 ? partialInLine : partialInText);
        }
    }
    EXPECT_EQ(partialInLine, 0);
    EXPECT_GT(partialInText, 20);

    settings.getRenderingSettings()->setShapeAntialiasing(1);
    settings.getRenderingSettings()->setTextAntialiasing(0);
    device.setUp(specs);
    device.open();
    device.drawString2D(L"Aa Ww", font, *rgba(0, 0, 0), bounds, 1, 1, 0.0f);
    picture = finish(device);
    EXPECT_EQ(countOf(picture, partial), 0);
    EXPECT_GT(countOf(picture, isInked), 50);
}

// A name that no font bears falls back, as in measuring, and draws.
TEST(vxDeviceGDIPlusText, FallbackFontAndEmptyText) {
    const vxFontOLD font(L"No Such Font Anywhere", 16, vxFontOLD::kBold);
    const float bounds[4] = {5, 5, 95, 25};
    auto device = openDevice(100, 30, Route::kBitmap, 1);
    device->drawString2D(L"", font, *rgba(0, 0, 0), bounds, 1, 1, 0.0f);
    device->drawString2D(L"\r\r", font, *rgba(0, 0, 0), bounds, 1, 1, 0.0f);
    device->drawString2D(L"x", font, *rgba(0, 0, 0, 0), bounds, 1, 1, 0.0f);
    EXPECT_EQ(countOf(finish(*device), isInked), 0);
    device->open();
    device->drawString2D(L"Fallback", font, *rgba(0, 0, 0), bounds, 1, 1, 0.0f);
    EXPECT_GT(countOf(finish(*device), isInked), 50);
    EXPECT_FALSE(device->isError());
}

}  // namespace
}  // namespace Velarix::test
