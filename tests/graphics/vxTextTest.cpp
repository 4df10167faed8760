// A text's boxes, its drawing and its geometry. Expected boxes are worked
// out from the font's own metrics.
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <string>
#include <vector>

#include "../output/vxSVGTestSupport.h"
#include "graphics/vxBasicPaint.h"
#include "graphics/vxFontOLD.h"
#include "graphics/vxGObjectAppearanceOLD.h"
#include "graphics/vxText.h"
#include "support/vxRecordingDevice.h"

namespace Velarix {
namespace {

constexpr float kRightAngle = 1.5707964f;
using Box = std::array<float, 4>;

// Keeps the text and the box of every text drawn.
class TextDevice : public test::vxRecordingDevice {
public:
    void drawString2D(const std::wstring& text, const vxFontOLD&, const vxPaintOLD&,
                      const float bounds[4], short, short, float) override {
        calls.push_back("text");
        texts.push_back(text);
        boxes.push_back({bounds[0], bounds[1], bounds[2], bounds[3]});
    }
    std::vector<std::wstring> texts;
    std::vector<Box> boxes;
};

std::unique_ptr<vxText> textIn(const wchar_t* font, float size, const std::wstring& s) {
    auto text = std::make_unique<vxText>(nullptr, s);
    text->setFontName(font);
    text->setFontSize(size);
    return text;
}

Box stringBoxOf(const vxText& text) {
    Box box;
    text.getStringBounds(box.data());
    return box;
}

Box boundsOf(vxText& text) {
    Box box;
    text.getBounds(box.data());
    return box;
}

void expectBox(const Box& box, const Box& expected) {
    for (int i = 0; i < 4; ++i) EXPECT_FLOAT_EQ(box[i], expected[i]) << "side " << i;
}

TEST(vxText, AlignsTheStringBoxAboutTheAnchor) {
    const vxFontOLD font(L"DejaVu Sans", 12.0f, vxFontOLD::kPlain);
    const float w = font.getWidth(L"Hg");
    const float h = font.getStringHeight();
    auto text = textIn(L"DejaVu Sans", 12.0f, L"Hg");
    text->setAnchor(100.0f, 50.0f);
    const struct {
        short h, v;
        float left, top;
    } cases[] = {{1, 1, 100.0f, 50.0f},
                 {2, 2, 100.0f - w / 2.0f, 50.0f - h / 2.0f},
                 {3, 3, 100.0f - w, 50.0f - h},
                 {1, 4, 100.0f, 50.0f - font.getAscent()}};
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << "alignment " << c.h << ", " << c.v);
        text->setHAlignment(c.h);
        text->setVAlignment(c.v);
        expectBox(stringBoxOf(*text), {c.left, c.top, c.left + w, c.top + h});
    }
    // With a maxWidth the box is as wide as that, centred about the anchor.
    text->setHAlignment(vxText::kCenter);
    text->setMaxWidth(80.0f);
    EXPECT_FLOAT_EQ(text->getLeft(), 60.0f);
    EXPECT_FLOAT_EQ(text->getWidth(), 80.0f);
}

TEST(vxText, AnAngleTurnsTheBoundsAboutTheBoxCentre) {
    auto text = textIn(L"DejaVu Sans", 10.0f, L"Wide label");
    text->setAnchor(200.0f, 100.0f);
    const Box flat = stringBoxOf(*text);
    const float w = flat[2] - flat[0];
    const float h = flat[3] - flat[1];
    for (const float angle : {kRightAngle, 0.5235988f}) {
        SCOPED_TRACE(testing::Message() << "angle " << angle);
        text->setOrientation(angle);
        const float c = std::cos(angle);
        const float s = std::sin(angle);
        const Box turned = boundsOf(*text);
        EXPECT_NEAR(turned[2] - turned[0], w * c + h * s, 1e-3f);
        EXPECT_NEAR(turned[3] - turned[1], w * s + h * c, 1e-3f);
        EXPECT_NEAR(turned[0] + turned[2], flat[0] + flat[2], 1e-3f);
        EXPECT_NEAR(turned[1] + turned[3], flat[1] + flat[3], 1e-3f);
        expectBox(stringBoxOf(*text), flat);
    }
    // An angle of 0.0001 counts as none.
    text->setOrientation(0.0001f);
    expectBox(boundsOf(*text), flat);
}

TEST(vxText, DrawsTheOutputStringInItsBoxWithOneCall) {
    auto text = textIn(L"DejaVu Sans", 10.0f, L"Quarterly revenue");
    text->setAnchor(20.0f, 40.0f);
    text->setHAlignment(vxText::kRight);
    text->setVAlignment(vxText::kBottom);
    text->setMaxWidth(text->getStringWidth() * 0.75f);
    // A text has no shadow, even with one set.
    text->getAppearance()->shadowPart();
    TextDevice device;
    text->draw(device);
    ASSERT_EQ(device.calls, std::vector<std::string>{"text"});
    EXPECT_EQ(device.texts[0], L"Quarterly\rrevenue");
    expectBox(device.boxes[0], stringBoxOf(*text));
    EXPECT_FLOAT_EQ(device.boxes[0][2], 20.0f);
    EXPECT_FLOAT_EQ(device.boxes[0][3], 40.0f);

    // Nothing when hidden, empty, or without colour.
    text->setVisible(false);
    auto tooNarrow = textIn(L"DejaVu Sans", 10.0f, L"x");
    tooNarrow->setMaxWidth(0.4f);
    auto transparent = textIn(L"DejaVu Sans", 10.0f, L"x");
    transparent->setPaint(vxBasicPaint(0, 0, 0, 0));
    for (vxText* t : {text.get(), tooNarrow.get(), transparent.get()}) {
        TextDevice none;
        t->draw(none);
        EXPECT_TRUE(none.calls.empty());
    }
}

TEST(vxText, SvgOfACentredTurnedTwoLineText) {
    auto text = textIn(L"Arial", 12.0f, L"Hi\rA");
    text->setAnchor(50.0f, 30.0f);
    text->setHAlignment(vxText::kCenter);
    text->setOrientation(kRightAngle);
    text->setPaint(vxBasicPaint(255, 0, 0));
    auto device = test::openDevice(100.0f, 50.0f);
    text->draw(*device);

    const vxFontOLD arial(L"Arial", 12.0f, vxFontOLD::kPlain);
    const float height = 2.0f * arial.getStringHeight() + arial.getLeading();
    // Baseline alignment: the top lies the ascent above the anchor.
    const float top = 30.0f - arial.getAscent();
    const std::string rotate = "transform=\"rotate(" + test::streamed(kRightAngle * 57.29578) +
                               ",50," + test::streamed(top + height / 2.0f) + ")\" ";
    const std::string style =
        "style=\"font-family: 'Arial'; font-size: 12px; text-anchor: middle; fill: #ff0000; "
        "stroke: none;\" >\n";
    EXPECT_EQ(test::bodyOf(*device),
              "<text x=\"50\" y=\"" + test::streamed(test::baselineOf(arial, top)) + "\" " +
                  rotate + "\n" + style + "&#x0048;&#x0069;\n</text>\n" + "<text x=\"50\" y=\"" +
                  test::streamed(test::baselineOf(arial, top, 1)) + "\" " + rotate + "\n" + style +
                  "&#x0041;\n</text>\n\n");
}

TEST(vxText, GeometryMovesTheAnchorAndTurnsTheOrientation) {
    auto text = textIn(L"DejaVu Sans", 10.0f, L"Label");
    text->setAnchor(10.0f, 20.0f);
    const float left = text->getLeft();
    text->shift(5.0f, -3.0f);
    EXPECT_FLOAT_EQ(text->getYAnchor(), 17.0f);
    EXPECT_FLOAT_EQ(text->getLeft(), left + 5.0f);
    text->flip(1, 50.0f, 0.0f);
    EXPECT_FLOAT_EQ(text->getXAnchor(), 85.0f);

    text->setAnchor(10.0f, 0.0f);
    text->rotate(kRightAngle, 0.0f, 0.0f);
    EXPECT_NEAR(text->getXAnchor(), 0.0f, 1e-5f);
    EXPECT_NEAR(text->getYAnchor(), 10.0f, 1e-5f);
    EXPECT_FLOAT_EQ(text->getOrientation(), kRightAngle);
    // A negative orientation is kept as a positive one.
    text->rotate(-2.0f * kRightAngle, 0.0f, 0.0f);
    EXPECT_FLOAT_EQ(text->getOrientation(), 6.2831855f - kRightAngle);
}

TEST(vxText, FitsATurnedTextIntoABoxWithAMargin) {
    auto text = textIn(L"DejaVu Sans", 10.0f, L"Axis title");
    const float h = vxFontOLD(L"DejaVu Sans", 10.0f, 0).getStringHeight();
    text->fitToBox(200.0f, 40.0f);
    EXPECT_FLOAT_EQ(text->getMaxWidth(), 200.0f - 0.65f * h);
    EXPECT_FLOAT_EQ(text->getMaxHeight(), 40.0f - 0.35f * h);
    text->setOrientation(kRightAngle);
    text->fitToBox(200.0f, 40.0f);
    EXPECT_FLOAT_EQ(text->getMaxWidth(), 40.0f - 0.65f * h);
    EXPECT_FLOAT_EQ(text->getMaxHeight(), 200.0f - 0.35f * h);
    text->fitToBox(2.0f, 2.0f);
    EXPECT_FLOAT_EQ(text->getMaxHeight(), 1.0f);
}

}  // namespace
}  // namespace Velarix
