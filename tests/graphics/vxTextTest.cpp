// A text's boxes, its drawing and its geometry. Expected boxes are worked
// out from the font's own metrics.
#include <gtest/gtest.h>

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

// Keeps the arguments of every text drawn.
class TextDevice : public test::vxRecordingDevice {
public:
    struct Call {
        std::wstring text;
        std::vector<float> bounds;
        short hAlignment;
        short vAlignment;
        float orientation;
    };

    void drawString2D(const std::wstring& text, const vxFontOLD&, const vxPaintOLD&,
                      const float bounds[4], short h, short v, float orientation) override {
        calls.push_back("text");
        texts.push_back({text, {bounds[0], bounds[1], bounds[2], bounds[3]}, h, v, orientation});
    }

    std::vector<Call> texts;
};

std::unique_ptr<vxText> textIn(const wchar_t* font, float size, const std::wstring& s) {
    auto text = std::make_unique<vxText>(nullptr, s);
    text->setFontName(font);
    text->setFontSize(size);
    return text;
}

void expectBox(const float box[4], float left, float top, float right, float bottom) {
    EXPECT_FLOAT_EQ(box[0], left);
    EXPECT_FLOAT_EQ(box[1], top);
    EXPECT_FLOAT_EQ(box[2], right);
    EXPECT_FLOAT_EQ(box[3], bottom);
}

TEST(vxText, AlignsTheStringBoxAboutTheAnchor) {
    const vxFontOLD font(L"DejaVu Sans", 12.0f, vxFontOLD::kPlain);
    const float w = font.getWidth(L"Hg");
    const float h = font.getStringHeight();
    auto text = textIn(L"DejaVu Sans", 12.0f, L"Hg");
    text->setAnchor(100.0f, 50.0f);
    struct Case {
        short h, v;
        float left, top;
    };
    const Case cases[] = {{1, 1, 100.0f, 50.0f},
                          {2, 2, 100.0f - w / 2.0f, 50.0f - h / 2.0f},
                          {3, 3, 100.0f - w, 50.0f - h},
                          {1, 4, 100.0f, 50.0f - font.getAscent()}};
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << "alignment " << c.h << ", " << c.v);
        text->setHAlignment(c.h);
        text->setVAlignment(c.v);
        float box[4];
        text->getStringBounds(box);
        expectBox(box, c.left, c.top, c.left + w, c.top + h);
        text->getBounds(box);
        expectBox(box, c.left, c.top, c.left + w, c.top + h);
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
    float box[4];
    text->getStringBounds(box);
    const float w = box[2] - box[0];
    const float h = box[3] - box[1];
    const float cx = (box[0] + box[2]) / 2.0f;
    const float cy = (box[1] + box[3]) / 2.0f;

    for (const float angle : {kRightAngle, -kRightAngle, 0.5235988f}) {
        SCOPED_TRACE(testing::Message() << "angle " << angle);
        text->setOrientation(angle);
        const float c = std::fabs(std::cos(angle));
        const float s = std::fabs(std::sin(angle));
        float turned[4];
        text->getBounds(turned);
        EXPECT_NEAR(turned[2] - turned[0], w * c + h * s, 1e-3f);
        EXPECT_NEAR(turned[3] - turned[1], w * s + h * c, 1e-3f);
        EXPECT_NEAR((turned[0] + turned[2]) / 2.0f, cx, 1e-3f);
        EXPECT_NEAR((turned[1] + turned[3]) / 2.0f, cy, 1e-3f);
        // The string box itself doesn't turn.
        float same[4];
        text->getStringBounds(same);
        expectBox(same, box[0], box[1], box[2], box[3]);
    }
    // A negative angle is kept as a positive one.
    text->setOrientation(-kRightAngle);
    EXPECT_FLOAT_EQ(text->getOrientation(), 6.2831855f - kRightAngle);
    // An angle of 0.0001 counts as none.
    text->setOrientation(0.0001f);
    float flat[4];
    text->getBounds(flat);
    expectBox(flat, box[0], box[1], box[2], box[3]);
}

TEST(vxText, DrawsTheOutputStringInItsBoxWithOneCall) {
    auto text = textIn(L"DejaVu Sans", 10.0f, L"Quarterly revenue");
    text->setAnchor(20.0f, 40.0f);
    text->setHAlignment(vxText::kRight);
    text->setVAlignment(vxText::kBottom);
    text->setOrientation(0.25f);
    text->setMaxWidth(text->getStringWidth() * 0.75f);
    // A text has no shadow, even with one set.
    text->getAppearance()->shadowPart();

    TextDevice device;
    text->draw(device);
    ASSERT_EQ(device.calls, std::vector<std::string>{"text"});
    const TextDevice::Call& call = device.texts.front();
    EXPECT_EQ(call.text, L"Quarterly\rrevenue");
    float box[4];
    text->getStringBounds(box);
    EXPECT_EQ(call.bounds, std::vector<float>(box, box + 4));
    EXPECT_FLOAT_EQ(box[2], 20.0f);
    EXPECT_FLOAT_EQ(box[3], 40.0f);
    EXPECT_EQ(call.hAlignment, vxText::kRight);
    EXPECT_EQ(call.vAlignment, vxText::kBottom);
    EXPECT_FLOAT_EQ(call.orientation, 0.25f);
}

TEST(vxText, DrawsNothingWhenHiddenEmptyOrWithoutColour) {
    auto hidden = textIn(L"DejaVu Sans", 10.0f, L"x");
    hidden->setVisible(false);
    auto empty = textIn(L"DejaVu Sans", 10.0f, L"");
    auto tooNarrow = textIn(L"DejaVu Sans", 10.0f, L"x");
    tooNarrow->setMaxWidth(0.4f);
    auto transparent = textIn(L"DejaVu Sans", 10.0f, L"x");
    transparent->setPaint(vxBasicPaint(0, 0, 0, 0));
    for (vxText* text : {hidden.get(), empty.get(), tooNarrow.get(), transparent.get()}) {
        TextDevice device;
        text->draw(device);
        EXPECT_TRUE(device.calls.empty());
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
    const float width = arial.getWidth(L"Hi");
    const float height = 2.0f * arial.getStringHeight() + arial.getLeading();
    // Baseline alignment: the top lies the ascent above the anchor.
    const float top = 30.0f - arial.getAscent();
    const std::string rotate = "transform=\"rotate(" + test::streamed(kRightAngle * 57.29578) +
                               ",50," + test::streamed(top + height / 2.0f) + ")\" ";
    const std::string style =
        "style=\"font-family: 'Arial'; font-size: 12pt; text-anchor: middle; fill: #ff0000; "
        "stroke: none;\" >\n";
    EXPECT_GT(width, 0.0f);
    EXPECT_EQ(test::bodyOf(*device),
              "<text x=\"50\" y=\"" + test::streamed(test::baselineOf(arial, top)) + "\" " +
                  rotate + "\n" + style + "&#x0048;&#x0069;\n</text>\n" + "<text x=\"50\" y=\"" +
                  test::streamed(test::baselineOf(arial, top, 1)) + "\" " + rotate + "\n" +
                  style + "&#x0041;\n</text>\n\n");
}

TEST(vxText, GeometryMovesTheAnchorAndTurnsTheOrientation) {
    auto text = textIn(L"DejaVu Sans", 10.0f, L"Label");
    text->setAnchor(10.0f, 20.0f);
    const float left = text->getLeft();

    text->shift(5.0f, -3.0f);
    EXPECT_FLOAT_EQ(text->getXAnchor(), 15.0f);
    EXPECT_FLOAT_EQ(text->getYAnchor(), 17.0f);
    EXPECT_FLOAT_EQ(text->getLeft(), left + 5.0f);
    text->shift(2.0f, false);
    EXPECT_FLOAT_EQ(text->getYAnchor(), 19.0f);

    text->flip(1, 50.0f, 0.0f);
    EXPECT_FLOAT_EQ(text->getXAnchor(), 85.0f);
    text->flip(2, 0.0f, 10.0f);
    EXPECT_FLOAT_EQ(text->getYAnchor(), 1.0f);

    text->setAnchor(10.0f, 0.0f);
    text->rotate(kRightAngle, 0.0f, 0.0f);
    EXPECT_NEAR(text->getXAnchor(), 0.0f, 1e-5f);
    EXPECT_NEAR(text->getYAnchor(), 10.0f, 1e-5f);
    EXPECT_FLOAT_EQ(text->getOrientation(), kRightAngle);
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
    EXPECT_FLOAT_EQ(text->getMaxWidth(), 1.0f);
    EXPECT_FLOAT_EQ(text->getMaxHeight(), 1.0f);
}

TEST(vxText, CopyTakesEveryFieldAndDefaultsComeBack) {
    auto original = textIn(L"Liberation Serif", 14.0f, L"Copied text");
    original->setAnchor(3.0f, 4.0f);
    original->setHAlignment(vxText::kRight);
    original->setVAlignment(vxText::kTop);
    original->setOrientation(0.5f);
    original->setMaxSize(60.0f, 30.0f);
    original->setEllipsisPosition(vxText::kEllipsisInMiddle);
    original->setPaint(vxBasicPaint(0, 0, 255));

    vxText copy(nullptr);
    ASSERT_TRUE(copy.copy(original.get()));
    EXPECT_EQ(copy.getText(), L"Copied text");
    EXPECT_EQ(copy.getFont()->getName(), L"Liberation Serif");
    EXPECT_FLOAT_EQ(copy.getPaint()->getBlue(), 1.0f);
    EXPECT_EQ(copy.getOutputString(), original->getOutputString());
    float a[4], b[4];
    copy.getBounds(a);
    original->getBounds(b);
    expectBox(a, b[0], b[1], b[2], b[3]);

    copy.copy(nullptr);
    EXPECT_EQ(copy.getText(), L"");
    EXPECT_EQ(copy.getHAlignment(), vxText::kLeft);
    EXPECT_EQ(copy.getVAlignment(), vxText::kBaseline);
    EXPECT_FLOAT_EQ(copy.getMaxWidth(), vxText::kNoLimit);
    EXPECT_EQ(copy.getEllipsisPosition(), vxText::kEllipsisAtEnd);
    EXPECT_FLOAT_EQ(copy.getPaint()->getBlue(), 0.0f);
    EXPECT_EQ(copy.getType(), kTypeText);
}

}  // namespace
}  // namespace Velarix
