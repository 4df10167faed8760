// Reading paints, strokes and shadows from the arguments of a script call.
#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "graphics/vxBasicPaint.h"
#include "graphics/vxBasicStroke.h"
#include "graphics/vxLinearGradient.h"
#include "graphics/vxRadialGradient.h"
#include "graphics/vxShadowOLD.h"
#include "script/vxAssign.h"
#include "script/vxFunctionIds.h"
#include "settings/vxUserSettings.h"

namespace Velarix {
namespace {

using Floats = std::vector<float>;

class vxPaintScriptTest : public ::testing::Test {
protected:
    void SetUp() override {
        settings = std::make_unique<vxUserSettings>(L"/data/Charts.fp7", L"", 1, 4);
        assign.setFunction(kFillStyle);
    }

    vxColorOLD colorOf(const Floats& numbers) {
        assign.setFunction(kFillStyle);
        assign.addFloatArray(numbers);
        vxColorOLD color(9, 9, 9, 9);
        EXPECT_TRUE(vxBasicPaint::readColor(assign, 0, settings.get(), color));
        return color;
    }

    std::unique_ptr<vxUserSettings> settings;
    vxAssign assign;
};

TEST_F(vxPaintScriptTest, ColourFormsAndPaletteIndexes) {
    EXPECT_TRUE(colorOf({1}).isEqual(vxColorOLD(255, 255, 255)));
    EXPECT_TRUE(colorOf({12}).isEqual(vxColorOLD(0x88, 0x88, 0x88)));
    EXPECT_TRUE(colorOf({0}).isEqual(vxColorOLD(0, 0, 0)));
    EXPECT_TRUE(colorOf({10, 20, 30}).isEqual(vxColorOLD(10, 20, 30, 255)));
    EXPECT_TRUE(colorOf({10, 20, 30, 40}).isEqual(vxColorOLD(10, 20, 30, 40)));
    settings->getStyleSettings()->setColorPaletteID(2);
    EXPECT_TRUE(colorOf({2}).isEqual(vxColorOLD(0, 0, 0x33)));
    settings->getStyleSettings()->setColorPaletteID(-1);
    settings->getStyleSettings()->setUserDefinedColors({1, 2, 3, 40, 50, 60});
    EXPECT_TRUE(colorOf({2}).isEqual(vxColorOLD(40, 50, 60)));
}

TEST_F(vxPaintScriptTest, OtherColourArgumentsLeaveTheColour) {
    assign.addVoid();
    assign.addFloatArray(Floats{1, 2});
    assign.addString(L"#abc");
    vxColorOLD color(9, 9, 9, 9);
    EXPECT_FALSE(vxBasicPaint::readColor(assign, 0, nullptr, color));
    EXPECT_FALSE(vxBasicPaint::readColor(assign, 1, nullptr, color));
    EXPECT_TRUE(color.isEqual(vxColorOLD(9, 9, 9, 9)));
    EXPECT_TRUE(vxBasicPaint::readColor(assign, 2, nullptr, color));
    EXPECT_TRUE(color.isEqual(vxColorOLD(0xaa, 0xbb, 0xcc)));
}

TEST_F(vxPaintScriptTest, BasicPaintReadsColourAndPattern) {
    assign.addFloatArray(Floats{10, 20, 30});
    assign.addShort(5);
    assign.addVoid();
    assign.addShort(1);
    vxBasicPaint paint(assign, settings.get());
    EXPECT_EQ(assign.getArgumentOffset(), 2);
    EXPECT_TRUE(paint.getColor()->isEqual(vxColorOLD(10, 20, 30)));
    EXPECT_EQ(paint.getPatternIndex(), 5);
    paint.assign(assign, settings.get());  // a void colour stays
    EXPECT_EQ(assign.getArgumentOffset(), 4);
    EXPECT_TRUE(paint.getColor()->isEqual(vxColorOLD(10, 20, 30)));
    EXPECT_TRUE(paint.isNone());
}

TEST_F(vxPaintScriptTest, PlainFormFunctionsReadNoPattern) {
    for (long fn : {kAddText, kTitleStyle, kMajorGridLineColors}) {
        assign.setFunction(fn);
        assign.addFloatArray(Floats{10, 20, 30});
        assign.addShort(5);
        vxBasicPaint paint(assign, nullptr);
        EXPECT_EQ(assign.getArgumentOffset(), 1) << fn;
        EXPECT_EQ(paint.getPatternIndex(), 0) << fn;
    }
}

TEST_F(vxPaintScriptTest, KindFollowsTheCountOfNumbers) {
    const std::vector<std::pair<Floats, short>> cases = {{{1}, 1},
                                                         {{1, 2, 3, 4}, 1},
                                                         {Floats(5, 0.0f), 2},
                                                         {Floats(10, 0.0f), 2},
                                                         {Floats(6, 0.0f), 3},
                                                         {Floats(11, 0.0f), 3},
                                                         {Floats(7, 0.0f), 0}};
    for (const auto& [numbers, kind] : cases) {
        assign.setFunction(kFillStyle);
        assign.addFloatArray(numbers);
        EXPECT_EQ(vxPaintOLD::getKindOfArgument(assign, 0), kind) << numbers.size();
    }
    assign.addVoid();
    EXPECT_EQ(vxPaintOLD::getKindOfArgument(assign, 1), 0);
}

TEST_F(vxPaintScriptTest, LinearGradientWithOneStopIsPaddedToBothEnds) {
    assign.addFloatArray(Floats{0, 0, 0, 1, 2, 10, 20, 30, 40, 0.5f});
    assign.addShort(7);
    std::unique_ptr<vxPaintOLD> paint;
    vxShadowOLD owner;
    ASSERT_TRUE(vxPaintOLD::assignByKind(paint, assign, nullptr, owner, L"createPaint"));
    EXPECT_EQ(assign.getArgumentOffset(), 2);
    const auto* gradient = dynamic_cast<const vxLinearGradient*>(paint.get());
    ASSERT_NE(gradient, nullptr);
    EXPECT_FLOAT_EQ(gradient->getX2(), 0.0f);
    EXPECT_FLOAT_EQ(gradient->getY2(), 1.0f);
    EXPECT_EQ(gradient->getSpread(), 2);
    ASSERT_EQ(gradient->getNumOfColors(), 3);
    const float offsets[3] = {0.0f, 0.5f, 1.0f};
    for (long i = 0; i < 3; ++i) {
        EXPECT_TRUE(gradient->getColor(i)->isEqual(vxColorOLD(10, 20, 30, 40)));
        EXPECT_FLOAT_EQ(gradient->getOffset(i), offsets[i]);
    }
}

TEST_F(vxPaintScriptTest, RadialGradientKeepsEndStopsAndBasicNumbersReplaceIt) {
    assign.addFloatArray(Floats{0.4f, 0.6f, 0.3f, 0.2f, 0.1f, 9,  // spread 9 is pad
                                255, 0, 0, 255, 0, 0, 0, 255, 128, 1});
    assign.addVoid();
    assign.addFloatArray(Floats{1, 2, 3});
    assign.addShort(4);
    std::unique_ptr<vxPaintOLD> paint = std::make_unique<vxBasicPaint>();
    vxShadowOLD owner;
    vxPaintOLD::assignByKind(paint, assign, nullptr, owner, L"createPaint");
    const auto* gradient = dynamic_cast<const vxRadialGradient*>(paint.get());
    ASSERT_NE(gradient, nullptr);
    EXPECT_FLOAT_EQ(gradient->getCX(), 0.4f);
    EXPECT_FLOAT_EQ(gradient->getRadius(), 0.3f);
    EXPECT_FLOAT_EQ(gradient->getFY(), 0.1f);
    EXPECT_EQ(gradient->getSpread(), 1);
    EXPECT_EQ(gradient->getNumOfColors(), 2);
    vxPaintOLD::assignByKind(paint, assign, nullptr, owner, L"createPaint");
    const auto* basic = dynamic_cast<const vxBasicPaint*>(paint.get());
    ASSERT_NE(basic, nullptr);
    EXPECT_EQ(basic->getPatternIndex(), 4);
    EXPECT_EQ(assign.getArgumentOffset(), 4);
}

TEST_F(vxPaintScriptTest, LineWidthForms) {
    assign.addFloatArray(Floats{2.5f});
    assign.addFloatArray(Floats{3, 4});
    assign.addFloatArray(Floats{1, 0.5f, 6, 1, 2});
    assign.addVoid();
    assign.addFloatArray(Floats{0, 99});
    vxBasicStroke stroke;
    stroke.setDashStyle(1);
    stroke.assign(assign);
    EXPECT_FLOAT_EQ(stroke.getLineWidth(), 2.5f);
    EXPECT_FALSE(stroke.hasDashStyle());
    stroke.assign(assign);
    EXPECT_FLOAT_EQ(stroke.getLineWidth(), 3.0f);
    EXPECT_EQ(stroke.getDashStyle()->getPattern(), (Floats{2, 2}));
    stroke.assign(assign);
    EXPECT_EQ(stroke.getDashStyle()->getPattern(), (Floats{6, 1, 2}));
    EXPECT_FLOAT_EQ(stroke.getDashStyle()->getOffset(), 0.5f);
    stroke.assign(assign);  // void: unchanged
    EXPECT_FLOAT_EQ(stroke.getLineWidth(), 1.0f);
    EXPECT_TRUE(stroke.hasDashStyle());
    stroke.assign(assign);
    EXPECT_TRUE(stroke.isZeroWidth());
    EXPECT_FALSE(stroke.hasDashStyle());
    EXPECT_EQ(assign.getArgumentOffset(), 5);
}

TEST_F(vxPaintScriptTest, ShadowOffsetsStandForBothOrGiveTheBlur) {
    const std::vector<std::pair<Floats, Floats>> cases = {
        {{4}, {4, 4, 0}}, {{-2, 5}, {-2, 5, 0}}, {{1, 2, 3}, {1, 2, 3}}};
    for (const auto& [numbers, expected] : cases) {
        assign.setFunction(kShadowStyle);
        assign.addFloatArray(numbers);
        vxShadowOLD shadow;
        ASSERT_TRUE(shadow.assign(assign, nullptr));
        EXPECT_EQ(assign.getArgumentOffset(), 3);
        EXPECT_EQ((Floats{shadow.getXOffset(), shadow.getYOffset(), shadow.getBlurRadius()}),
                  expected);
        EXPECT_TRUE(shadow.getPaint()->getColor()->isEqual(vxColorOLD(136, 136, 136)));
    }
}

// Background: fill colour; fill pattern; border widths; border colour;
// border pattern; shadow offsets; shadow colour; shadow pattern.
TEST_F(vxPaintScriptTest, BackgroundFormReadsEachPartInTurn) {
    assign.setFunction(kBackground);
    assign.addFloatArray(Floats{100, 110, 120});
    assign.addShort(8);
    assign.addFloatArray(Floats{2, 1});
    assign.addFloatArray(Floats{2});
    assign.addVoid();
    assign.addVoid();
    assign.addFloatArray(Floats{0, 0, 0, 64});
    assign.addShort(1);
    vxBasicPaint fill;
    vxBasicStroke border;
    vxBasicPaint borderPaint;
    vxShadowOLD shadow;
    ASSERT_TRUE(fill.assign(assign, settings.get()));
    ASSERT_TRUE(border.assign(assign));
    ASSERT_TRUE(borderPaint.assign(assign, settings.get()));
    EXPECT_TRUE(vxShadowOLD::isGiven(assign));
    ASSERT_TRUE(shadow.assign(assign, settings.get()));
    EXPECT_EQ(assign.getArgumentOffset(), 8);
    EXPECT_TRUE(fill.getColor()->isEqual(vxColorOLD(100, 110, 120)));
    EXPECT_EQ(fill.getPatternIndex(), 8);
    EXPECT_FLOAT_EQ(border.getLineWidth(), 2.0f);
    EXPECT_EQ(border.getDashStyle()->getPattern(), (Floats{5, 2}));
    EXPECT_TRUE(borderPaint.getColor()->isEqual(vxColorOLD(0, 0, 0)));
    EXPECT_FLOAT_EQ(shadow.getXOffset(), 3.0f);
    EXPECT_TRUE(shadow.getPaint()->getColor()->isEqual(vxColorOLD(0, 0, 0, 64)));
    EXPECT_TRUE(shadow.getPaint()->isNone());
    EXPECT_FALSE(vxShadowOLD::isGiven(assign));
}

}  // namespace
}  // namespace Velarix
