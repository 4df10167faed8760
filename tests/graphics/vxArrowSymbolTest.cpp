// Arrow heads: the forms of the head, worked out by hand for a tip at
// (100, 50), the limits of the sizes, how a head turns with its owner, and
// the arrow form of the script.
#include <gtest/gtest.h>

#include <algorithm>
#include <numbers>
#include <utility>

#include "graphics/vxArrowSymbol.h"
#include "graphics/vxBasicPaint.h"
#include "graphics/vxGObjectAppearanceOLD.h"
#include "graphics/vxShadowOLD.h"
#include "graphics/vxStrokeOLD.h"
#include "graphics/vxSymbolTestSupport.h"
#include "graphics/vxTransform2DOLD.h"
#include "script/vxFunctionIds.h"

namespace Velarix::test {
namespace {

using Calls = std::vector<std::string>;

// A head at (100, 50) pointing right, with a black border and a red fill.
std::unique_ptr<vxArrowSymbol> arrow(float length, float width, float inset, bool hollow) {
    auto head = std::make_unique<vxArrowSymbol>();
    head->setCenter(100.0f, 50.0f);
    head->setHeadLength(length);
    head->setHeadWidth(width);
    head->setHeadInset(inset);
    head->setHeadIsHollow(hollow);
    head->getAppearance()->setBorderPaint(vxBasicPaint(0, 0, 0));
    head->getAppearance()->setFillPaint(vxBasicPaint(255, 0, 0));
    return head;
}

TEST(ArrowSymbol, FormsOfTheHead) {
    // Base at x 84, wings 4 above and below it.
    EXPECT_EQ(drawn(*arrow(16, 8, 0, false)), (Calls{"fill 100 50 84 46 84 50 84 54"}));
    EXPECT_EQ(drawn(*arrow(16, 8, 4, false)), (Calls{"fill 100 50 84 46 88 50 84 54"}));
    EXPECT_EQ(drawn(*arrow(16, 8, -4, true)), (Calls{"outline 100 50 84 46 80 50 84 54"}));
    // Length and inset alike: an open head of two lines.
    EXPECT_EQ(drawn(*arrow(16, 8, 16, false)), (Calls{"line 84 46 100 50", "line 100 50 84 54"}));
    // No length: a flat bar across the tip. No width: nothing.
    EXPECT_EQ(drawn(*arrow(0, 8, 0, false)), (Calls{"line 100 46 100 54"}));
    EXPECT_TRUE(drawn(*arrow(16, 0, 0, false)).empty());

    auto up = arrow(16, 8, 0, false);
    up->setOrientation(std::numbers::pi_v<float> / 2.0f);
    EXPECT_EQ(drawn(*up), (Calls{"fill 100 50 96 66 100 66 104 66"}));
    EXPECT_EQ(boundsOf(*up), (std::vector<float>{96, 50, 104, 66}));
}

TEST(ArrowSymbol, ShadowsAndMissingParts) {
    auto head = arrow(16, 8, 0, false);
    head->getAppearance()->shadowPart();
    // The device moves the shadow's points.
    EXPECT_EQ(drawn(*head),
              (Calls{"fill shadow 100 50 84 46 84 50 84 54", "fill 100 50 84 46 84 50 84 54"}));
    head->setHeadInset(16.0f);
    EXPECT_EQ(drawn(*head), (Calls{"line shadow 84 46 100 50", "line shadow 100 50 84 54",
                                   "line 84 46 100 50", "line 100 50 84 54"}));
    // An open head without a border, or a hidden head, draws nothing.
    head->getAppearance()->setBorderPaint(vxBasicPaint(0, 0, 0, 0));
    EXPECT_TRUE(drawn(*head).empty());
    head->setHeadInset(0.0f);
    head->setVisible(false);
    EXPECT_TRUE(drawn(*head).empty());
}

TEST(ArrowSymbol, SizesAreClampedAndMakeTheExtent) {
    vxArrowSymbol head;
    EXPECT_EQ(head.getType(), 152);
    head.setHeadInset(-4.0f);
    EXPECT_FLOAT_EQ(head.getSymbolHeight(), 20.0f);
    EXPECT_FLOAT_EQ(head.getSymbolWidth(), 8.0f);
    head.setHeadLength(20000.0f);
    head.setHeadWidth(-5.0f);
    head.setHeadInset(-20000.0f);
    EXPECT_FLOAT_EQ(head.getHeadWidth(), 0.0f);
    EXPECT_FLOAT_EQ(head.getSymbolHeight(), 20000.0f);
    EXPECT_FLOAT_EQ(head.getSymbolSize(), 10000.0f);
}

// Drawing a moved head gives the moved points of the head before: the head
// turns and mirrors with the line it ends. A mirror swaps the wings, so the
// points are compared as a set.
TEST(ArrowSymbol, TurnsAndMirrorsWithItsOwner) {
    using Points = std::vector<std::pair<float, float>>;
    auto pointsOf = [](vxArrowSymbol& head) {
        std::istringstream in(drawn(head).at(0).substr(5));
        Points points;
        for (float x, y; in >> x >> y;) points.emplace_back(x, y);
        std::sort(points.begin(), points.end());
        return points;
    };
    vxTransform2DOLD turn, mirror, both;
    turn.rotate(1.1f, 20.0f, 30.0f);
    mirror.translate(-40.0f, 0.0f);
    mirror.scale(-1.0f, 1.0f);
    both.scale(-1.0f, -1.0f);
    both.translate(7.0f, -3.0f);
    for (const vxTransform2DOLD* t : {&turn, &mirror, &both}) {
        auto head = arrow(16, 8, 4, false);
        head->setOrientation(0.3f);
        Points expected = pointsOf(*head);
        for (auto& [x, y] : expected) t->transform(x, y);
        std::sort(expected.begin(), expected.end());
        head->transform(*t);
        const Points actual = pointsOf(*head);
        ASSERT_EQ(actual.size(), 4u);
        for (size_t i = 0; i < actual.size(); ++i) {
            EXPECT_NEAR(actual[i].first, expected[i].first, 1e-3);
            EXPECT_NEAR(actual[i].second, expected[i].second, 1e-3);
        }
    }
}

using ArrowScript = vxScriptReader;

TEST_F(ArrowScript, HollowHeadsTakeTheColourForTheBorderOnly) {
    vxArrowSymbol head;
    vxAssign& assign = read(L"ArrowStyle(1; 2; 255 0 0; ; 3; 20; 10; 5; 1)", 1);
    ASSERT_TRUE(head.assign(assign, &settings));
    EXPECT_EQ(assign.getArgumentOffset(), 9);
    EXPECT_EQ(drawn(head), (Calls{"outline 0 0 -20 -5 -15 0 -20 5"}));
    EXPECT_FLOAT_EQ(head.getBorderStroke()->getLineWidth(), 2.0f);
    EXPECT_EQ(colorOf(head.getBorderPaint()), L"#ff0000");
    EXPECT_EQ(head.getFillPaint(), nullptr);
}

TEST_F(ArrowScript, AddArrowFillsItsHeadAndGoesOnWithAShadow) {
    // AddArrow(0; 0; 100; 0; 1; 0 0 255; ; 2; 12; ; ; 0; 2 5; 9 9 9), as the
    // reader would give it were it to pass the shadow's arguments.
    vxAssign assign;
    assign.setFunction(kAddArrow);
    for (float v : {0.0f, 0.0f, 100.0f, 0.0f}) assign.addFloat(v);
    assign.addFloatArray(std::vector<float>{1.0f});
    assign.addFloatArray(std::vector<float>{0, 0, 255});
    assign.addVoid();
    assign.addShort(2);
    assign.addFloat(12.0f);
    assign.addVoid();
    assign.addVoid();
    assign.addShort(0);
    assign.addFloatArray(std::vector<float>{2.0f, 5.0f});
    assign.addFloatArray(std::vector<float>{9, 9, 9});
    assign.addToArgumentOffset(4);
    vxArrowSymbol head;
    ASSERT_TRUE(head.assign(assign, nullptr));
    EXPECT_EQ(drawn(head),
              (Calls{"fill shadow 0 0 -12 -4 -12 0 -12 4", "fill 0 0 -12 -4 -12 0 -12 4"}));
    EXPECT_EQ(colorOf(head.getBorderPaint()), L"#0000ff");
    EXPECT_EQ(colorOf(head.getFillPaint()), L"#0000ff");
    EXPECT_FLOAT_EQ(head.getShadow()->getYOffset(), 5.0f);
    EXPECT_EQ(colorOf(head.getShadow()->getPaint()), L"#090909");
}

}  // namespace
}  // namespace Velarix::test
