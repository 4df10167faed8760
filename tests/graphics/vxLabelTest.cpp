// The box of a label, its placing about a point and at a bar, its drawing
// order and its copies. Sizes come from a font measured on its own, not
// from the label.
#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "graphics/vxAuxiliaryLine2D.h"
#include "graphics/vxBasicPaint.h"
#include "graphics/vxBasicStroke.h"
#include "graphics/vxFontOLD.h"
#include "graphics/vxGObjectAppearanceOLD.h"
#include "graphics/vxLabel.h"
#include "graphics/vxPath2DOLD.h"
#include "graphics/vxText.h"
#include "support/vxRecordingDevice.h"

namespace Velarix {
namespace {

using Floats = std::vector<float>;
using Calls = std::vector<std::string>;

class LabelTest : public ::testing::Test {
protected:
    void SetUp() override {
        label.getText()->setFontName(L"DejaVu Sans");
        label.getText()->setFontSize(20.0f);
        label.getText()->setText(L"Label");
        ASSERT_GT(sh, 10.0f);
    }

    // A background with a black border `width` wide and a yellow fill.
    void showBackground(float width) {
        ASSERT_TRUE(label.createBackground());
        vxGObjectAppearanceOLD* look = label.getBackground()->getAppearance();
        look->setBorderStroke(vxBasicStroke(width));
        look->setBorderPaint(vxBasicPaint(0, 0, 0));
        look->setFillPaint(vxBasicPaint(255, 255, 0));
        label.setUpBackground();
    }

    Floats box() {
        Floats b(4);
        label.getLabelBounds(b.data());
        return b;
    }

    vxFontOLD font{L"DejaVu Sans", 20.0f, vxFontOLD::kPlain};
    const float sh = font.getStringHeight();
    const float tw = font.getWidth(L"Label");
    vxLabel label;
};

TEST_F(LabelTest, SizeFromRoundedMarginsBorderAndText) {
    // Relative margins are percent of the string height, each rounded.
    label.setMargins(33.0f, 7.0f, 11.0f, 50.0f);
    showBackground(3.0f);
    const Floats m{std::round(0.33f * sh), std::round(0.07f * sh), std::round(0.11f * sh),
                   std::round(0.5f * sh)};
    float size[2];
    label.getLabelSize(size);
    EXPECT_FLOAT_EQ(size[0], m[0] + m[2] + 3.0f + tw);
    EXPECT_FLOAT_EQ(size[1], m[1] + m[3] + 3.0f + sh);

    // Plain margins are points: 4.4, 2.5, 6, 10.6 round to 4, 3, 6, 11.
    // With the border of 3 the box is 13 wider and 17 higher than the
    // text, whatever sides the margins are on.
    label.setUseRelativeMargins(false);
    label.setMargins(4.4f, 2.5f, 6.0f, 10.6f);
    label.getLabelSize(size);
    EXPECT_FLOAT_EQ(size[0], 13.0f + tw);
    EXPECT_FLOAT_EQ(size[1], 17.0f + sh);
}

TEST_F(LabelTest, BoxIsCentredOnTheText) {
    // Margins 4, 3, 6, 11 and a border of 3: 6.5 more on the left and on
    // the right of the text, 8.5 above and below it.
    label.setUseRelativeMargins(false);
    label.setMargins(4.0f, 3.0f, 6.0f, 11.0f);
    showBackground(3.0f);
    Floats t(4), painted(4);
    label.getText()->getBounds(t.data());
    const Floats b = box();
    EXPECT_FLOAT_EQ(b[0], t[0] - 6.5f);
    EXPECT_FLOAT_EQ(b[1], t[1] - 8.5f);
    EXPECT_FLOAT_EQ(b[2], t[2] + 6.5f);
    EXPECT_FLOAT_EQ(b[3], t[3] + 8.5f);
    // The background covers the box.
    label.getBackground()->getBounds(painted.data());
    for (int i = 0; i < 4; ++i) EXPECT_NEAR(painted[i], b[i], 1e-4) << i;

    // Placing the box's corner moves the text to the middle of the box.
    label.setLocation(100.0f, 50.0f);
    label.getText()->getBounds(t.data());
    EXPECT_NEAR(t[0], 106.5f, 1e-4);
    EXPECT_NEAR(t[1], 58.5f, 1e-4);
}

TEST_F(LabelTest, BorderWidthCountsWhetherOrNotItShows) {
    label.setUseRelativeMargins(false);
    label.setMargins(0.0f, 0.0f, 0.0f, 0.0f);
    float size[2];
    label.getLabelSize(size);
    EXPECT_FLOAT_EQ(size[0], tw);  // no background, no border

    // The default background draws no border but has a stroke of 1.
    ASSERT_TRUE(label.createBackground());
    EXPECT_FALSE(label.getBackground()->hasBorder());
    label.getLabelSize(size);
    EXPECT_FLOAT_EQ(size[0], 1.0f + tw);
    EXPECT_FLOAT_EQ(size[1], 1.0f + sh);

    showBackground(5.0f);
    label.getBackground()->getAppearance()->setBorderPaint(vxBasicPaint(0, 0, 0, 0));
    label.getLabelSize(size);
    EXPECT_FLOAT_EQ(size[0], 5.0f + tw);
}

TEST_F(LabelTest, NinePositionsAboutAnAnchor) {
    const float anchor[2] = {300.0f, 200.0f}, offset[2] = {5.0f, 7.0f};
    float size[2];
    label.getLabelSize(size);
    const float w = size[0], h = size[1], hg = 0.3f * sh, vg = 0.15f * sh;
    const float ax = 300.0f, ay = 200.0f, ox = 5.0f, oy = 7.0f;
    const Floats left{ax - hg - w - ox, ax - w / 2 + ox, ax + hg + ox};
    const Floats top{ay - vg - h - oy, ay - h / 2 + oy, ay + vg + oy};
    for (short code = 1; code <= 9; ++code) {
        ASSERT_TRUE(label.setPosition(code, anchor, offset));
        const Floats b = box();
        EXPECT_NEAR(b[0], left[(code - 1) % 3], 1e-3) << "code " << code;
        EXPECT_NEAR(b[1], top[(code - 1) / 3], 1e-3) << "code " << code;
        EXPECT_NEAR(b[2] - b[0], w, 1e-3) << "code " << code;
    }
    const Floats before = box();
    EXPECT_FALSE(label.setPosition(10, anchor, offset));
    EXPECT_EQ(box(), before);
}

// A label "8" in 10 points with margins of 2: the gaps to a bar are 3 in x
// and 1.5 in y, from the font size.
class BarLabelTest : public LabelTest {
protected:
    void SetUp() override {
        LabelTest::SetUp();
        label.getText()->setText(L"8");
        label.getText()->setFontSize(10.0f);
        label.setUseRelativeMargins(false);
        label.setMargins(2.0f, 2.0f, 2.0f, 2.0f);
        float size[2];
        label.getLabelSize(size);
        w = size[0];
        h = size[1];
        x = std::round(120.0f - w / 2.0f);
    }

    // The box's left and top after placing.
    Floats place(short location, short direction, Floats rect, Floats limits = {0, 0, 400, 300},
                 Floats depth = {0, 0}, Floats offset = {0, 0}) {
        EXPECT_TRUE(label.placeBarLabel(location, direction, rect.data(), limits.data(), gap,
                                        depth.data(), offset.data()));
        const Floats b = box();
        return {b[0], b[1]};
    }

    const float gx = 3.0f, gy = 1.5f, gap = 2.0f;
    const Floats tall{100, 50, 140, 250}, flat{100, 240, 140, 250};
    float w = 0, h = 0, x = 0;
};

TEST_F(BarLabelTest, PlacesAlongARisingBarAndSwitchesSides) {
    EXPECT_EQ(place(vxLabel::kSmartEnd, vxLabel::kUp, tall), (Floats{x, std::round(50 + gy)}));
    EXPECT_EQ(place(vxLabel::kSmartBegin, vxLabel::kUp, tall),
              (Floats{x, std::round(250 - gy - h)}));
    EXPECT_EQ(place(vxLabel::kSmartCenter, vxLabel::kUp, tall),
              (Floats{x, std::round(150 - h / 2)}));
    EXPECT_EQ(place(vxLabel::kEdge, vxLabel::kUp, tall), (Floats{x, std::round(49 - h / 2)}));
    EXPECT_EQ(place(vxLabel::kEnd, vxLabel::kUp, flat), (Floats{x, std::round(240 + gy)}));

    // Too short inside with room above: out; no room above: inside.
    const float above = std::round(240 - gap - gy - h);
    EXPECT_EQ(place(vxLabel::kSmartEnd, vxLabel::kUp, flat), (Floats{x, above}));
    EXPECT_EQ(place(vxLabel::kSmartEnd, vxLabel::kUp, flat, {0, 236, 400, 300}),
              (Floats{x, std::round(240 + gy)}));
    // Outside unless there is no room there but room inside.
    EXPECT_EQ(place(vxLabel::kSmartOut, vxLabel::kUp, tall),
              (Floats{x, std::round(50 - gap - gy - h)}));
    EXPECT_EQ(place(vxLabel::kSmartOut, vxLabel::kUp, tall, {0, 45, 400, 300}),
              (Floats{x, std::round(50 + gy)}));
    EXPECT_EQ(place(vxLabel::kSmartOut, vxLabel::kUp, flat, {0, 236, 400, 300}),
              (Floats{x, above}));
}

TEST_F(BarLabelTest, OtherDirectionsDepthAndOffset) {
    const Floats wide{100, 50, 300, 80};
    const float y = std::round(65 - h / 2);
    EXPECT_EQ(place(vxLabel::kSmartBegin, vxLabel::kToRight, wide), (Floats{100 + gx, y}));
    EXPECT_EQ(place(vxLabel::kOut, vxLabel::kToLeft, wide),
              (Floats{std::round(100 - gap - gx - w), y}));

    // Inside, and beyond the far end of a bar growing down, the label goes
    // to the front face; beyond the top it stays.
    const Floats limits{0, 0, 400, 300}, depth{4, 3};
    EXPECT_EQ(place(vxLabel::kEnd, vxLabel::kUp, tall, limits, depth),
              (Floats{x - 4, std::round(50 + gy + 3)}));
    EXPECT_EQ(place(vxLabel::kOut, vxLabel::kDown, tall, limits, depth),
              (Floats{x - 4, std::round(250 + gap + gy + 3)}));
    EXPECT_EQ(place(vxLabel::kOut, vxLabel::kUp, tall, limits, depth),
              (Floats{x, std::round(50 - gap - gy - h)}));

    // The offset runs along the growth of the bar, across it as given.
    EXPECT_EQ(place(vxLabel::kOut, vxLabel::kUp, tall, limits, {0, 0}, {5, 6}),
              (Floats{x + 5, std::round(50 - gap - gy - h - 6)}));
    EXPECT_EQ(place(vxLabel::kOut, vxLabel::kToLeft, {100, 50, 300, 80}, limits, {0, 0}, {5, 6}),
              (Floats{std::round(100 - gap - gx - w - 5), std::round(71 - h / 2)}));
}

TEST_F(LabelTest, DrawsLineBackgroundTextAndStopsAtAnError) {
    showBackground(1.0f);
    ASSERT_TRUE(label.createAuxiliaryLine());
    label.getAuxiliaryLine()->set(0, 0, 50, 50);
    // The line without a shadow of its own takes the background's.
    label.getBackground()->getAppearance()->shadowPart();
    test::vxRecordingDevice device;
    label.draw(device);
    EXPECT_EQ(device.calls, (Calls{"fill path shadow", "path shadow", "outline shadow", "outline",
                                   "fill path", "path", "text"}));

    device.calls.clear();
    label.getBackground()->setError(vxErrRuntime::kOutOfMemory, L"vxPath2DOLD/test/1");
    label.drawBody(device);
    EXPECT_EQ(device.calls, (Calls{"outline", "fill path", "path"}));
    ASSERT_TRUE(label.isError());
    EXPECT_EQ(label.getError()->getLocation(), L"vxPath2DOLD/test/1");
}

TEST_F(LabelTest, CopiesEveryPart) {
    showBackground(2.0f);
    ASSERT_TRUE(label.setBackgroundShape(vxLabel::kRoundRect, {30.0f, 10.0f}));
    ASSERT_TRUE(label.createAuxiliaryLine());
    label.getAuxiliaryLine()->set(1, 2, 3, 4);
    label.setUseRelativeMargins(false);
    label.setMargins(1, 2, 3, 4);

    vxLabel copy;
    ASSERT_TRUE(copy.set(&label));
    EXPECT_EQ(copy.getText()->getText(), L"Label");
    EXPECT_EQ(copy.getBackgroundOptions(), (Floats{30.0f, 10.0f}));
    EXPECT_EQ(copy.getBackground()->getX(), label.getBackground()->getX());
    EXPECT_FLOAT_EQ(copy.getAuxiliaryLine()->getX2(), 3.0f);
    float m[4];
    copy.getMargins(m);
    EXPECT_EQ(Floats(m, m + 4), (Floats{1, 2, 3, 4}));
    EXPECT_FALSE(copy.getUseRelativeMargins());

    copy.getText()->setText(L"Other");
    EXPECT_EQ(label.getText()->getText(), L"Label");
    ASSERT_TRUE(copy.set(nullptr));
    EXPECT_FALSE(copy.hasBackground() || copy.hasAuxiliaryLine());
    EXPECT_TRUE(copy.getText()->getText().empty());
}

TEST_F(LabelTest, BoundsAndMovesTakeAllParts) {
    showBackground(1.0f);
    ASSERT_TRUE(label.createAuxiliaryLine());
    label.getAuxiliaryLine()->set(-40, 10, -10, 10);
    Floats bounds(4), moved(4);
    label.getBounds(bounds.data());
    EXPECT_FLOAT_EQ(bounds[0], -40.0f);
    EXPECT_NEAR(bounds[2], box()[2], 1e-4);
    label.shift(10.0f, 20.0f);
    label.getBounds(moved.data());
    for (int i = 0; i < 4; ++i) EXPECT_NEAR(moved[i], bounds[i] + (i % 2 ? 20 : 10), 1e-3);
    // A turn about a point turns the text as well as its place.
    label.rotate(1.5707964f, 0.0f, 0.0f);
    EXPECT_NEAR(label.getText()->getOrientation(), 1.5707964f, 1e-6);
    EXPECT_NEAR(label.getAuxiliaryLine()->getY1(), -30.0f, 1e-3);
}

}  // namespace
}  // namespace Velarix
