#include <gtest/gtest.h>

#include <memory>

#include "graphics/vxBasicPaint.h"
#include "graphics/vxLinearGradient.h"
#include "graphics/vxRadialGradient.h"
#include "graphics/vxTexturePaintOLD.h"

namespace Velarix {
namespace {

struct Looks {
    bool none;
    bool translucent;
    bool opaque;
};

void expectLooks(const vxPaintOLD& paint, Looks looks) {
    EXPECT_EQ(paint.isNone(), looks.none);
    EXPECT_EQ(paint.isTranslucent(), looks.translucent);
    EXPECT_EQ(paint.isOpaque(), looks.opaque);
}

TEST(vxPaintKinds, EachClassAnswersItsKind) {
    EXPECT_EQ(vxBasicPaint().getType(), 1);
    EXPECT_EQ(vxLinearGradient().getType(), 2);
    EXPECT_EQ(vxRadialGradient().getType(), 3);
    EXPECT_EQ(vxTexturePaintOLD().getType(), 4);
    for (short kind = 1; kind <= 4; ++kind) EXPECT_EQ(vxPaintOLD::make(kind)->getType(), kind);
    EXPECT_EQ(vxPaintOLD::make(5), nullptr);
}

TEST(vxPaintState, OnlyOneTwoOrThreeAreKept) {
    vxBasicPaint paint;
    EXPECT_EQ(paint.getState(), 1);
    paint.setState(2);
    EXPECT_TRUE(paint.isState2());
    paint.setState(3);
    EXPECT_TRUE(paint.isState3());
    paint.setState(4);
    EXPECT_EQ(paint.getState(), 0);
    EXPECT_FALSE(paint.isState2() || paint.isState3());
}

TEST(vxBasicPaint, NoneTranslucentAndOpaqueFollowAlphaAndPatternOne) {
    expectLooks(vxBasicPaint(10, 20, 30), {false, false, true});
    expectLooks(vxBasicPaint(10, 20, 30, 128), {false, true, false});
    expectLooks(vxBasicPaint(10, 20, 30, 0), {true, false, false});
    for (short alpha : {255, 128}) {
        vxBasicPaint patterned(10, 20, 30, alpha);
        patterned.setPatternIndex(1);
        expectLooks(patterned, {true, false, false});
        patterned.setPatternIndex(2);
        EXPECT_FALSE(patterned.isNone());
    }
}

TEST(vxBasicPaint, PatternRanges) {
    vxBasicPaint paint;
    struct Case {
        short index;
        bool pattern, hatch, texture;
    };
    for (Case c :
         {Case{0, false, false, false}, Case{2, false, false, false}, Case{3, true, true, false},
          Case{64, true, true, false}, Case{65, true, false, true}, Case{128, true, false, true},
          Case{129, false, false, false}}) {
        paint.setPatternIndex(c.index);
        EXPECT_EQ(paint.hasPattern(), c.pattern) << c.index;
        EXPECT_EQ(paint.hasHatch(), c.hatch) << c.index;
        EXPECT_EQ(paint.hasTexture(), c.texture) << c.index;
    }
}

TEST(vxBasicPaint, ConstructorsAndComponentsAsFractions) {
    const short rgba[4] = {255, 0, 51, 102};
    vxBasicPaint paint(4, rgba);
    EXPECT_FLOAT_EQ(paint.getRed(), 1.0f);
    EXPECT_FLOAT_EQ(paint.getGreen(), 0.0f);
    EXPECT_FLOAT_EQ(paint.getBlue(), 0.2f);
    EXPECT_FLOAT_EQ(paint.getAlpha(), 0.4f);
    vxBasicPaint fromColor(vxColorOLD(1, 2, 3, 4));
    EXPECT_TRUE(fromColor.getColor()->isEqual(vxColorOLD(1, 2, 3, 4)));
    EXPECT_TRUE(vxBasicPaint().getColor()->isEqual(vxColorOLD(0, 0, 0, 255)));
    vxBasicPaint bright(100, 100, 100, 9);
    bright.brighten(1.0f);
    EXPECT_TRUE(bright.getColor()->isEqual(vxColorOLD(255, 255, 255, 9)));
}

TEST(vxBasicPaint, CopyAndCloneAreIndependent) {
    vxBasicPaint original(10, 20, 30, 40);
    original.setPatternIndex(7);
    original.setState(3);
    std::unique_ptr<vxPaintOLD> clone = original.clone();
    vxBasicPaint copy;
    EXPECT_TRUE(copy.copy(&original));
    original.setColor(1, 1, 1);
    original.setPatternIndex(0);
    const vxPaintOLD* copies[] = {clone.get(), &copy};
    for (const vxPaintOLD* paint : copies) {
        const auto* basic = dynamic_cast<const vxBasicPaint*>(paint);
        ASSERT_NE(basic, nullptr);
        EXPECT_TRUE(basic->getColor()->isEqual(vxColorOLD(10, 20, 30, 40)));
        EXPECT_EQ(basic->getPatternIndex(), 7);
        EXPECT_EQ(basic->getState(), 3);
    }
}

TEST(vxBasicPaint, CopyFromAnotherKindOrNullLeavesDefaults) {
    vxBasicPaint paint(10, 20, 30);
    paint.setPatternIndex(5);
    vxLinearGradient gradient;
    EXPECT_FALSE(paint.copy(&gradient));
    EXPECT_TRUE(paint.getColor()->isEqual(vxColorOLD()));
    EXPECT_EQ(paint.getPatternIndex(), 0);
    paint.setPatternIndex(5);
    EXPECT_TRUE(paint.copy(nullptr));
    EXPECT_EQ(paint.getPatternIndex(), 0);
}

TEST(vxGradientPaint, StopQueries) {
    vxLinearGradient gradient;
    EXPECT_EQ(gradient.getFirstColor(), nullptr);
    EXPECT_FLOAT_EQ(gradient.getAverageAlpha(), 0.0f);
    EXPECT_TRUE(gradient.addColor(255, 0, 0, 0.2f));
    EXPECT_TRUE(gradient.addColor(0, 255, 0, 51, 0.5f));
    EXPECT_TRUE(gradient.addColor(vxColorOLD(0, 0, 255, 102), 1.5f));
    EXPECT_EQ(gradient.getNumOfColors(), 3);
    EXPECT_TRUE(gradient.getFirstColor()->isEqual(vxColorOLD(255, 0, 0)));
    EXPECT_TRUE(gradient.getLastColor()->isEqual(vxColorOLD(0, 0, 255, 102)));
    EXPECT_TRUE(gradient.getColor(1)->isEqual(vxColorOLD(0, 255, 0, 51)));
    EXPECT_EQ(gradient.getColor(3), nullptr);
    EXPECT_FLOAT_EQ(gradient.getFirstOffset(), 0.2f);
    EXPECT_FLOAT_EQ(gradient.getOffset(1), 0.5f);
    EXPECT_FLOAT_EQ(gradient.getLastOffset(), 1.0f);  // clamped
    EXPECT_FLOAT_EQ(gradient.getAverageAlpha(), (1.0f + 0.2f + 0.4f) / 3.0f);
    EXPECT_FLOAT_EQ(gradient.getRed(), 1.0f);  // the first colour stands for it
}

TEST(vxGradientPaint, LooksNeedAllColours) {
    vxRadialGradient gradient;
    expectLooks(gradient, {true, false, false});
    gradient.addColor(1, 2, 3, 0, 0.0f);
    gradient.addColor(1, 2, 3, 0, 1.0f);
    expectLooks(gradient, {true, false, false});
    gradient.addColor(1, 2, 3, 100, 1.0f);
    expectLooks(gradient, {false, false, false});
    gradient.clearColors();
    gradient.addColor(1, 2, 3, 100, 0.0f);
    gradient.addColor(1, 2, 3, 200, 1.0f);
    expectLooks(gradient, {false, true, false});
    gradient.brighten(1.0f);
    EXPECT_TRUE(gradient.getLastColor()->isEqual(vxColorOLD(255, 255, 255, 200)));
}

TEST(vxGradientPaint, SpreadOutsideTheCodesIsPad) {
    vxLinearGradient gradient;
    EXPECT_EQ(gradient.getSpread(), 1);
    EXPECT_TRUE(gradient.getUseGammaCorrection());
    for (short code : {1, 2, 3}) {
        gradient.setSpread(code);
        EXPECT_EQ(gradient.getSpread(), code);
    }
    for (short code : {0, 4, -1}) {
        gradient.setSpread(code);
        EXPECT_EQ(gradient.getSpread(), 1);
    }
}

TEST(vxGradientPaint, PaddingAddsEndStopsOnlyWhereOpen) {
    vxLinearGradient gradient;
    gradient.addColor(10, 20, 30, 0.5f);
    gradient.padStops();
    ASSERT_EQ(gradient.getNumOfColors(), 3);
    EXPECT_FLOAT_EQ(gradient.getFirstOffset(), 0.0f);
    EXPECT_FLOAT_EQ(gradient.getLastOffset(), 1.0f);
    for (long i = 0; i < 3; ++i) EXPECT_TRUE(gradient.getColor(i)->isEqual(vxColorOLD(10, 20, 30)));
    gradient.clearColors();
    gradient.addColor(1, 1, 1, 0.00005f);
    gradient.addColor(2, 2, 2, 0.99995f);
    gradient.padStops();
    EXPECT_EQ(gradient.getNumOfColors(), 2);
}

TEST(vxGradientPaint, LinearCornersTellWhetherPadsAreNeeded) {
    vxLinearGradient gradient;
    float x = -1.0f;
    float y = -1.0f;
    EXPECT_FALSE(gradient.needsStartPad() || gradient.needsEndPad());  // (0,0) to (1,0)
    gradient.setP1(0.9f, 1.0f);
    gradient.setP2(0.0f, 0.5f);
    gradient.getStartCorner(x, y);
    EXPECT_FLOAT_EQ(x, 1.0f);
    EXPECT_FLOAT_EQ(y, 1.0f);
    gradient.getEndCorner(x, y);
    EXPECT_FLOAT_EQ(x, 0.0f);
    EXPECT_FLOAT_EQ(y, 0.0f);
    EXPECT_TRUE(gradient.needsStartPad());
    EXPECT_TRUE(gradient.needsEndPad());
    gradient.setP1(0.995f, 1.0f);
    EXPECT_FALSE(gradient.needsStartPad());
}

TEST(vxGradientPaint, CloneKeepsKindGeometryAndStops) {
    vxRadialGradient radial;
    radial.setCenter(0.25f, 0.75f);
    radial.setRadius(-2.0f);
    radial.setFocus(0.1f, 0.2f);
    radial.addColor(1, 2, 3, 0.3f);
    radial.setSpread(3);
    std::unique_ptr<vxPaintOLD> clone = radial.clone();
    radial.clearColors();
    radial.setCenter(0.5f, 0.5f);
    const auto* copy = dynamic_cast<const vxRadialGradient*>(clone.get());
    ASSERT_NE(copy, nullptr);
    EXPECT_FLOAT_EQ(copy->getCX(), 0.25f);
    EXPECT_FLOAT_EQ(copy->getCY(), 0.75f);
    EXPECT_FLOAT_EQ(copy->getRadius(), 0.0f);
    EXPECT_FLOAT_EQ(copy->getFX(), 0.1f);
    EXPECT_EQ(copy->getNumOfColors(), 1);
    EXPECT_EQ(copy->getSpread(), 3);
    radial.setDefaults();
    EXPECT_FLOAT_EQ(radial.getCX(), 0.5f);
    EXPECT_FLOAT_EQ(radial.getFY(), 0.5f);
    EXPECT_FLOAT_EQ(radial.getRadius(), 0.5f);
    const vxLinearGradient linear;
    EXPECT_FALSE(radial.copy(&linear));  // another kind
}

TEST(vxTexturePaintOLD, NeverNoneAndNoImageYet) {
    vxTexturePaintOLD texture;
    expectLooks(texture, {false, false, true});
    EXPECT_EQ(texture.getAlignment(), -1);
    EXPECT_FALSE(texture.hasStackValue());
    texture.setStackValueUC(2e-10);
    EXPECT_TRUE(texture.hasStackValue());
    const float bounds[4] = {0, 0, 10, 10};
    texture.setAnchorBounds(bounds);
    EXPECT_FALSE(texture.hasImage());
    texture.setAlignment(5);
    std::unique_ptr<vxPaintOLD> clone = texture.clone();
    const auto* copy = dynamic_cast<const vxTexturePaintOLD*>(clone.get());
    ASSERT_NE(copy, nullptr);
    float copied[4];
    copy->getAnchorBounds(copied);
    EXPECT_FLOAT_EQ(copied[2], 10.0f);
    EXPECT_EQ(copy->getAlignment(), 5);
    EXPECT_DOUBLE_EQ(copy->getStackValueUC(), 2e-10);
}

}  // namespace
}  // namespace Velarix
