// The background shapes of a label, fitted to its box, and their script
// forms: the options (margins, shape and its options) and the look.
#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "graphics/vxGObjectAppearanceOLD.h"
#include "graphics/vxLabel.h"
#include "graphics/vxPath2DOLD.h"
#include "graphics/vxText.h"
#include "output/vxSVGTestSupport.h"
#include "script/vxAssign.h"
#include "script/vxFunctionIds.h"
#include "support/vxRecordingDevice.h"

namespace Velarix::test {
namespace {

using Floats = std::vector<float>;

class LabelBackgroundTest : public ::testing::Test {
protected:
    void SetUp() override {
        label.getText()->setFontName(L"DejaVu Sans");
        label.getText()->setFontSize(10.0f);
        label.getText()->setText(L"Wide label");
        label.getText()->setAnchor(40.0f, 30.0f);
        label.setUseRelativeMargins(false);
    }

    Floats box() {
        Floats b(4);
        label.getLabelBounds(b.data());
        return b;
    }

    // The background's bounds as fractions of the box.
    Floats shapeInBox() {
        Floats s(4);
        label.getBackground()->getBounds(s.data());
        const Floats b = box();
        const float w = b[2] - b[0], h = b[3] - b[1];
        return {(s[0] - b[0]) / w, (s[1] - b[1]) / h, (s[2] - b[0]) / w, (s[3] - b[1]) / h};
    }

    Floats margins() {
        Floats m(4);
        label.getMargins(m.data());
        return m;
    }

    vxLabel label;
    vxAssign assign;
};

void expectNear(const Floats& actual, const Floats& expected, const std::string& what) {
    for (size_t i = 0; i < 4; ++i) EXPECT_NEAR(actual[i], expected[i], 1e-4) << what << " " << i;
}

TEST_F(LabelBackgroundTest, SevenShapesOnTheFrameScaledToTheBox) {
    const float c30 = std::cos(3.14159265f / 6), c22 = std::cos(3.14159265f / 8);
    const float s60 = std::sin(3.14159265f / 3);
    struct Shape {
        short code;
        long points;
        Floats inBox;
    };
    const Shape shapes[] = {
        {1, 4, {0, 0, 1, 1}},
        {2, 13, {0, 0, 1, 1}},
        {3, 17, {0, 0, 1, 1}},
        {4, 4, {0, 0, 1, 1}},
        {5, 6, {0, 0.5f - c30 / 2, 1, 0.5f + c30 / 2}},
        {6, 8, {0.5f - c22 / 2, 0.5f - c22 / 2, 0.5f + c22 / 2, 0.5f + c22 / 2}},
        {7, 3, {0.5f - s60 / 2, 0, 0.5f + s60 / 2, 0.75f}},
    };
    for (const Shape& shape : shapes) {
        const std::string what = "shape " + std::to_string(shape.code);
        ASSERT_TRUE(label.setBackgroundShape(shape.code)) << what;
        label.getBackground()->getAppearance()->setFillPaint(*rgba(0, 0, 255));
        EXPECT_EQ(label.getBackground()->getNumOfPoints(), shape.points) << what;
        expectNear(shapeInBox(), shape.inBox, what);

        auto device = openDevice(200, 100);
        label.drawBody(*device);
        const std::string svg = bodyOf(*device);
        EXPECT_EQ(svg.find("<path\n\td=\"M "), 0u) << what;
        EXPECT_NE(svg.find("Z\" \n\tstyle=\"fill: #0000ff;"), std::string::npos) << what;
    }
    EXPECT_FALSE(label.setBackgroundShape(8));
    EXPECT_EQ(label.getBackgroundShape(), vxLabel::kPolygon);

    // The shape is rebuilt for a new text, even after a box of no width.
    label.getText()->setText(L"");
    label.setMargins(0, 0, 0, 0);
    label.setUpBackground();
    label.getText()->setText(L"A much wider label");
    label.setMargins(3, 3, 3, 3);
    label.setUpBackground();
    expectNear(shapeInBox(), shapes[6].inBox, "after an empty text");
}

TEST_F(LabelBackgroundTest, OptionsWithTwoThreeAndFourMargins) {
    assign.setFunction(kLabelBackgroundOptions);
    const Floats lists[] = {{0, 4, 6}, {1, 10, 20, 30}, {0, 1, 2, 3, 4}, {0, 5}};
    for (const Floats& list : lists) {
        assign.addFloatArray(list);
        assign.addVoid();
        assign.addVoid();
    }
    const Floats expected[] = {{4, 6, 4, 6}, {10, 20, 10, 30}, {1, 2, 3, 4}, {5, 5, 5, 5}};
    for (int i = 0; i < 4; ++i) {
        ASSERT_TRUE(label.assignBackgroundOptions(assign));
        EXPECT_EQ(assign.getArgumentOffset(), 3 * (i + 1));
        EXPECT_EQ(margins(), expected[i]) << "list " << i;
        EXPECT_EQ(label.getUseRelativeMargins(), i == 1);
    }
    EXPECT_FALSE(label.hasBackground());

    // Options alone change the current shape: five corners, the first at
    // 90 degrees, in the middle of the right side.
    ASSERT_TRUE(label.setBackgroundShape(vxLabel::kPolygon));
    assign.setFunction(kLabelBackgroundOptions);
    assign.addVoid();
    assign.addVoid();
    assign.addFloatArray(Floats{5, 90});
    const Floats b = box();
    ASSERT_TRUE(label.assignBackgroundOptions(assign));
    EXPECT_EQ(label.getBackground()->getNumOfPoints(), 5);
    EXPECT_NEAR(label.getBackground()->getX()[0], b[2], 1e-3);
    EXPECT_NEAR(label.getBackground()->getY()[0], (b[1] + b[3]) / 2, 1e-3);
}

TEST_F(LabelBackgroundTest, DefaultLookShowsNothingUntilAColourIsGiven) {
    ASSERT_TRUE(label.createBackground());
    const vxPath2DOLD& path = *label.getBackground();
    EXPECT_FLOAT_EQ(path.getBorderStroke()->getLineWidth(), 1.0f);
    EXPECT_FALSE(path.hasBorder() || path.hasFill());
    vxRecordingDevice recorder;
    label.draw(recorder);
    EXPECT_EQ(recorder.calls, (std::vector<std::string>{"text"}));

    // Fill colour and pattern, border widths, colour and pattern, shadow.
    assign.setFunction(kLabelBackground);
    assign.addFloatArray(Floats{255, 255, 0});
    assign.addVoid();
    assign.addFloatArray(Floats{4});
    assign.addFloatArray(Floats{0, 0, 128});
    for (int i = 0; i < 4; ++i) assign.addVoid();
    float before[2], after[2];
    label.getLabelSize(before);
    ASSERT_TRUE(label.assignBackground(assign));
    EXPECT_EQ(assign.getArgumentOffset(), 8);
    label.getLabelSize(after);
    // The default border of 1 counted already.
    EXPECT_FLOAT_EQ(before[0], 40.0f + 1.0f + label.getText()->getStringWidth());
    EXPECT_FLOAT_EQ(after[0], before[0] + 3.0f);
    expectNear(shapeInBox(), {0, 0, 1, 1}, "border of 4");
    recorder.calls.clear();
    label.draw(recorder);
    EXPECT_EQ(recorder.calls, (std::vector<std::string>{"fill path", "path", "text"}));
}

}  // namespace
}  // namespace Velarix::test
