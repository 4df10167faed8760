#include <gtest/gtest.h>

#include "graphics/vxBasicPaint.h"
#include "graphics/vxRadialGradient.h"
#include "graphics/vxShadowOLD.h"

namespace Velarix {
namespace {

void expectDefaults(const vxShadowOLD& shadow) {
    EXPECT_TRUE(shadow.isShown());
    EXPECT_FLOAT_EQ(shadow.getXOffset(), 3.0f);
    EXPECT_FLOAT_EQ(shadow.getYOffset(), 3.0f);
    EXPECT_FLOAT_EQ(shadow.getBlurRadius(), 0.0f);
    const auto* paint = dynamic_cast<const vxBasicPaint*>(shadow.getPaint());
    ASSERT_NE(paint, nullptr);
    EXPECT_TRUE(paint->getColor()->isEqual(vxColorOLD(136, 136, 136, 255)));
    EXPECT_EQ(paint->getPatternIndex(), 0);
}

TEST(vxShadowOLD, DefaultsAreAGreyPaintThreeUnitsOff) {
    vxShadowOLD shadow;
    expectDefaults(shadow);
    shadow.setOffsets(-1.0f, 2.0f);
    shadow.setBlurRadius(-5.0f);
    EXPECT_FLOAT_EQ(shadow.getBlurRadius(), 0.0f);
    shadow.setShow(false);
    ASSERT_TRUE(shadow.createPaint(vxPaintOLD::kLinearGradient));
    shadow.setDefaults();
    expectDefaults(shadow);
}

TEST(vxShadowOLD, CopyKeepsThePaintKindAndIsIndependent) {
    vxShadowOLD original;
    vxRadialGradient gradient;
    gradient.addColor(1, 2, 3, 0.0f);
    ASSERT_TRUE(original.setPaint(&gradient));
    original.setOffsets(5.0f, 6.0f);
    original.setBlurRadius(2.0f);
    original.setShow(false);
    vxShadowOLD copy;
    EXPECT_TRUE(copy.copy(&original));
    original.createPaint(vxPaintOLD::kBasic);
    original.setOffsets(0.0f, 0.0f);
    ASSERT_NE(copy.getPaint(), nullptr);
    EXPECT_EQ(copy.getPaint()->getType(), vxPaintOLD::kRadialGradient);
    EXPECT_EQ(static_cast<const vxRadialGradient*>(copy.getPaint())->getNumOfColors(), 1);
    EXPECT_FLOAT_EQ(copy.getXOffset(), 5.0f);
    EXPECT_FLOAT_EQ(copy.getYOffset(), 6.0f);
    EXPECT_FLOAT_EQ(copy.getBlurRadius(), 2.0f);
    EXPECT_FALSE(copy.isShown());
    EXPECT_TRUE(copy.setPaint(nullptr));
    EXPECT_EQ(copy.getPaint()->getType(), vxPaintOLD::kBasic);
}

}  // namespace
}  // namespace Velarix
