// Whole SVG documents, one per topic, compared byte for byte with the files
// in output/golden. With VELARIX_UPDATE_GOLDEN set, the actual document is
// written beside its golden file as NAME.new for review; a golden file that
// is missing fails its test.
//
// The baselines of text depend on the metrics of the installed fonts, so
// the text document carries "*" in place of each y of a <text> element and
// the test checks those values against the font's metrics on its own.
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <vector>

#include "graphics/vxCombinedStroke.h"
#include "graphics/vxLinearGradient.h"
#include "graphics/vxRadialGradient.h"
#include "graphics/vxShadowOLD.h"
#include "graphics/vxTexturePaintOLD.h"
#include "graphics/vxWaveStroke.h"
#include "output/vxSVGTestSupport.h"

namespace Velarix::test {
namespace {

const float kNoBounds[4] = {0, 0, 0, 0};

std::string goldenPath(const std::string& name) {
    return std::string(VELARIX_TEST_DATA_DIR) + "/output/golden/" + name;
}

std::vector<std::string> lines(const std::string& text) {
    std::vector<std::string> result;
    std::istringstream in(text);
    std::string line;
    while (std::getline(in, line)) result.push_back(line);
    return result;
}

void expectGolden(const std::string& name, const std::string& actual) {
    const std::string path = goldenPath(name);
    if (std::getenv("VELARIX_UPDATE_GOLDEN")) {
        std::ofstream(path + ".new", std::ios::binary) << actual;
    }
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        ADD_FAILURE() << "missing golden file " << path
                      << "; run with VELARIX_UPDATE_GOLDEN=1 and review " << name << ".new";
        return;
    }
    std::ostringstream text;
    text << in.rdbuf();
    const std::string expected = text.str();
    if (actual == expected) return;
    const std::vector<std::string> want = lines(expected), got = lines(actual);
    size_t i = 0;
    while (i < want.size() && i < got.size() && want[i] == got[i]) ++i;
    ADD_FAILURE() << name << " differs at line " << i + 1
                  << "\n  expected: " << (i < want.size() ? want[i] : "(end)")
                  << "\n  actual:   " << (i < got.size() ? got[i] : "(end)");
}

std::string finished(vxDeviceSVG& device) {
    device.close();
    EXPECT_FALSE(device.isError());
    return vxToUtf8(device.getDocument());
}

std::unique_ptr<vxLinearGradient> redToBlue() {
    auto gradient = std::make_unique<vxLinearGradient>();
    gradient->addColor(255, 0, 0, 0.0f);
    gradient->addColor(0, 0, 255, 1.0f);
    return gradient;
}

// The y of each text line, taken out of the document in order and
// replaced by "*".
std::vector<std::string> takeBaselines(std::string& document) {
    static const std::string yAttribute = "\" y=\"";
    std::vector<std::string> values;
    std::string masked;
    size_t done = 0;
    for (size_t at = document.find("<text x=\""); at != std::string::npos;
         at = document.find("<text x=\"", at + 1)) {
        const size_t start = document.find(yAttribute, at) + yAttribute.size();
        const size_t end = document.find('"', start);
        values.push_back(document.substr(start, end - start));
        masked.append(document, done, start - done).append("*");
        done = end;
    }
    document = masked.append(document, done, std::string::npos);
    return values;
}

TEST(vxDeviceSVGGolden, Shapes) {
    auto device = openDevice(200, 100);
    vxBasicStroke stroke(2.0f);
    const auto black = rgba(0, 0, 0);
    const auto blue = rgba(0, 0, 255);
    const auto thin = plainStroke(0.5f);

    device->drawLine2D(stroke, *blue, 10, 20.5f, 190, 20.5f);
    device->drawLine2D(*thin, *black, 0.333333f, -0.0f, 1234567.0f, 1e-5f);
    // Pairs 0-1 and 2-3; the fifth point has no partner.
    device->drawLineArray2D(*thin, *black, {0, 10, 20, 30, 40}, {0, 10, 20, 30, 40, 50});
    device->drawPolygon2D(stroke, *black, {10, 50, 30}, {60, 60, 90}, kNoBounds, true);
    device->drawPolygon2D(stroke, *black, {60, 80, 100}, {90, 60, 90}, kNoBounds, false);
    // Four x and three y: three points.
    device->fillPolygon2D(*blue, {110, 150, 130, 999}, {60, 60, 90}, kNoBounds, 1);
    device->fillPolygon2D(*blue, {160, 190, 175}, {60, 60, 90}, kNoBounds, 0);
    const vxVerbs verbs = {2, 3, 3, 4, 5, 1};
    const vxPoints x = {10, 40, 40, 50, 60, 70, 80, 90};
    const vxPoints y = {30, 30, 45, 50, 40, 30, 50, 35};
    device->drawPath2D(*thin, *black, verbs, x, y, kNoBounds);
    device->fillPath2D(*blue, verbs, x, y, kNoBounds, 1);
    // A move and a vertical line; the cubic lacks its third point.
    device->fillPath2D(*blue, {2, 3, 5}, {100, 100, 1, 2}, {10, 20, 3, 4}, kNoBounds, 0);
    // Diagonal lines, then a line without a move: it starts from 0, 0.
    const vxVerbs zigzag = {2, 3, 3, 3};
    const vxPoints zigzagX = {120, 150, 180, 180}, zigzagY = {10, 40, 10, 10};
    device->drawPath2D(*thin, *black, zigzag, zigzagX, zigzagY, kNoBounds);
    device->fillPath2D(*blue, {3, 3}, {0, 20}, {10, 30}, kNoBounds, 0);

    vxShadowOLD shadow;
    shadow.setOffsets(4, -2.5f);
    device->drawLine2D(stroke, shadow, 10, 20.5f, 190, 20.5f);
    device->drawLineArray2D(*thin, shadow, {0, 10}, {0, 10});
    device->drawPolygon2D(stroke, shadow, {10, 50, 30}, {60, 60, 90}, kNoBounds, true);
    device->fillPolygon2D(shadow, {110, 150, 130}, {60, 60, 90}, kNoBounds, 1);
    device->drawPath2D(*thin, shadow, verbs, x, y, kNoBounds);
    device->fillPath2D(shadow, verbs, x, y, kNoBounds, 0);
    // The choice of H, V or L follows the plain points, not the shifted.
    device->drawPath2D(*thin, shadow, zigzag, zigzagX, zigzagY, kNoBounds);
    device->fillPath2D(shadow, {3, 3}, {0, 20}, {10, 30}, kNoBounds, 1);
    expectGolden("svg-shapes.svg", finished(*device));
}

TEST(vxDeviceSVGGolden, Styles) {
    auto device = openDevice(100, 100);
    const auto green = rgba(0, 128, 0);
    const vxPoints x = {10, 90}, y = {10, 10};

    vxBasicStroke stroke(0.25f);
    stroke.setLineCap(vxStrokeOLD::kSquareCap);
    stroke.setLineJoin(vxStrokeOLD::kMiterJoin);
    stroke.setMiterLimit(4.5f);
    device->drawPolygon2D(stroke, *green, x, y, kNoBounds, false);
    stroke.setLineWidth(20000.0f);  // stored as 10000
    stroke.setLineJoin(vxStrokeOLD::kBevelJoin);
    device->drawPolygon2D(stroke, *green, x, y, kNoBounds, false);
    const float lengths[] = {3.5f, 1, 0.25f, 1};
    stroke.setDashStyle(4, lengths, 2.0f);  // the offset has no place
    stroke.setLineCap(vxStrokeOLD::kRoundCap);
    device->drawPolygon2D(stroke, *green, x, y, kNoBounds, false);
    device->drawPolygon2D(vxWaveStroke(), *green, x, y, kNoBounds, false);

    // Alpha, hatch, both, a texture index, a texture paint.
    for (const auto& paint :
         {rgba(255, 255, 0, 1), rgba(255, 255, 0, 254), rgba(255, 255, 0, 255, 3),
          rgba(255, 255, 0, 51, 64), rgba(255, 255, 0, 255, 128)}) {
        device->fillPolygon2D(*paint, {0, 5, 5}, {0, 0, 5}, kNoBounds, 1);
    }
    device->fillPolygon2D(vxTexturePaintOLD(), {0, 5, 5}, {0, 0, 5}, kNoBounds, 3);
    device->drawLine2D(*plainStroke(), vxTexturePaintOLD(), 0, 0, 5, 5);
    expectGolden("svg-styles.svg", finished(*device));
}

TEST(vxDeviceSVGGolden, Gradients) {
    auto device = openDevice(100, 100);
    const auto gradient = redToBlue();
    const vxPoints x = {0, 50, 50}, y = {0, 0, 50};

    // Every use writes its own definition under a new id.
    device->fillPolygon2D(*gradient, x, y, kNoBounds, 1);
    device->fillPolygon2D(*gradient, x, y, kNoBounds, 1);
    gradient->setP1(0.25f, 1);
    gradient->setP2(0.75f, 0);
    gradient->setSpread(vxGradientPaint::kRepeat);
    gradient->clearColors();
    gradient->addColor(255, 0, 0, 0.0f);
    gradient->addColor(0, 255, 0, 128, 0.5f);  // stop alpha is dropped
    gradient->addColor(0, 0, 255, 1.0f);
    device->drawLine2D(*plainStroke(), *gradient, 0, 0, 10, 10);

    vxRadialGradient radial;
    radial.setCenter(0.5f, 0.4f);
    radial.setRadius(0.75f);
    radial.setFocus(0.3f, 0.2f);
    radial.setSpread(vxGradientPaint::kReflect);
    radial.addColor(255, 255, 255, 0.0f);
    radial.addColor(0, 0, 0, 1.0f);
    device->fillPath2D(radial, {2, 3, 3, 1}, x, y, kNoBounds, 0);
    device->drawLineArray2D(*plainStroke(), radial, x, y);

    // A shadow painted with a gradient, a symbol filled and outlined with
    // gradients, and text in a gradient.
    vxShadowOLD shadow;
    shadow.setPaint(gradient.get());
    device->fillPolygon2D(shadow, x, y, kNoBounds, 1);
    device->drawSymbol(*plainStroke(), radial, *gradient, 4, 10, 50, 50);
    vxFontOLD font(L"Arial", 10, vxFontOLD::kPlain);
    const float bounds[4] = {0, 40, 100, 100};
    device->drawString2D(L"G", font, *gradient, bounds, 1, 1, 0.0f);
    std::string document = finished(*device);
    EXPECT_EQ(takeBaselines(document), std::vector<std::string>{streamed(baselineOf(font, 40))});
    expectGolden("svg-gradients.svg", document);
}

TEST(vxDeviceSVGGolden, Clips) {
    auto device = openDevice(100, 100);
    const auto black = rgba(0, 0, 0);
    const auto stroke = plainStroke();
    auto mark = [&] { device->drawLine2D(*stroke, *black, 0, 0, 10, 10); };

    device->setClipRegion(5, 5, 90, 90, vxDevice::kIntersect);
    mark();
    device->setClipRegion(0, 0, 32000.5f, 10, 0);  // ignored: the clip stays
    mark();
    const float rect[4] = {10, 20, 30, 40};
    device->setClipRegion(rect);  // does nothing on SVG
    device->setClipRegion(rect, vxDevice::kUnion);
    mark();
    device->setClipRegion({2, 3, 3, 3, 1}, {0, 100, 100, 0}, {0, 0, 100, 100}, kNoBounds,
                          vxDevice::kExclude);
    device->fillPolygon2D(*black, {0, 5, 5}, {0, 0, 5}, kNoBounds, 1);
    device->resetClipRegion();
    mark();
    expectGolden("svg-clips.svg", finished(*device));
}

TEST(vxDeviceSVGGolden, Text) {
    auto device = openDevice(300, 200);
    const auto black = rgba(0, 0, 0);
    vxFontOLD arial(L"Arial", 12, vxFontOLD::kPlain);
    vxFontOLD verdana(L"Verdana", 9.5f,
                      vxFontOLD::kBold | vxFontOLD::kItalic | vxFontOLD::kUnderline);
    const float box[4] = {20, 30, 120, 90};
    const float low[4] = {0, 150, 300, 200};
    std::vector<std::string> expected;
    auto expect = [&](const vxFontOLD& font, float top, int numOfLines) {
        for (int i = 0; i < numOfLines; ++i) expected.push_back(streamed(baselineOf(font, top, i)));
    };

    device->drawString2D(L"Left", arial, *black, box, 1, 1, 0.0f);
    expect(arial, 30, 1);
    device->drawString2D(L"Centre\rtwo\r\rlast", verdana, *black, box, 2, 1, 0.0f);
    expect(verdana, 30, 4);
    device->drawString2D(L"Right", arial, *rgba(0, 0, 255, 128), low, 3, 2, 0.0001f);
    expect(arial, 150, 1);
    // A rotated block turns as a whole about the centre of its bounds.
    device->drawString2D(L"Turned\rtoo", arial, *black, box, 2, 1, 1.5707964f);
    expect(arial, 30, 2);
    device->drawString2D(L"-30\u00b0 \u00fc\u00df\u20ac", verdana, *rgba(9, 9, 9, 255, 7), low, 0,
                         1, -0.5235988f);
    expect(verdana, 150, 1);
    device->drawString2D(L"T", arial, vxTexturePaintOLD(), low, 1, 1, 0.0f);
    expect(arial, 150, 1);

    std::string document = finished(*device);
    EXPECT_EQ(takeBaselines(document), expected);
    expectGolden("svg-text.svg", document);
}

TEST(vxDeviceSVGGolden, Symbols) {
    auto device = openDevice(200, 100);
    const auto black = rgba(0, 0, 0);
    const auto yellow = rgba(255, 255, 0);
    const auto none = rgba(0, 0, 0, 255, vxBasicPaint::kNonePattern);
    const auto stroke = plainStroke();

    // All shapes in a row of ten: 8 wide, centred 10 apart.
    for (short type = 1; type <= 18; ++type) {
        const float x = 10.0f + 10.0f * ((type - 1) % 10), y = 10.0f + 20.0f * ((type - 1) / 10);
        device->drawSymbol(*stroke, *black, *yellow, type, 8, x, y);
    }
    // Fill without outline, outline without fill.
    device->drawSymbol(*stroke, *none, *yellow, 2, 6, 10, 70);
    device->drawSymbol(*stroke, *black, *none, 3, 6, 20, 70);
    // Shadows: the fill in the shadow's paint, the outline in the paint given.
    vxShadowOLD shadow;
    device->drawSymbol(*stroke, *rgba(136, 136, 136), shadow, 6, 6, 30, 70);
    device->drawSymbol(*stroke, *rgba(136, 136, 136), shadow, 1, 6, 40, 70);
    expectGolden("svg-symbols.svg", finished(*device));
}

}  // namespace
}  // namespace Velarix::test
