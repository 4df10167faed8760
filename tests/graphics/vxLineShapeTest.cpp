// The script form of a series' line shape.
#include <gtest/gtest.h>

#include "graphics/vxLineShape.h"
#include "script/vxAssign.h"

namespace Velarix::test {
namespace {

vxLineShape assigned(const std::vector<float>& numbers) {
    vxAssign assign;
    assign.addFloatArray(numbers);
    vxLineShape shape;
    shape.assign(assign);
    EXPECT_EQ(assign.getArgumentOffset(), 1);
    return shape;
}

TEST(vxLineShape, EachTypeReadsItsOwnFactors) {
    const vxLineShape jump = assigned({1, 0.2f, 0.3f, 0.4f, 0.6f});
    EXPECT_EQ(jump.getType(), vxLineShape::kJump);
    EXPECT_FLOAT_EQ(jump.getStartOutdentFactor(), 0.2f);
    EXPECT_FLOAT_EQ(jump.getEndOutdentFactor(), 0.3f);
    EXPECT_FLOAT_EQ(jump.getShiftFactor(), 0.4f);
    EXPECT_FLOAT_EQ(jump.getLengthFactor(), 0.6f);
    EXPECT_TRUE(jump.isStartOutendUserDefined());
    EXPECT_TRUE(jump.isEndOutendUserDefined());

    // A step has no length; a fifth number is passed over.
    const vxLineShape step = assigned({2, 0.2f, 0.3f, 0.4f, 0.6f});
    EXPECT_FLOAT_EQ(step.getShiftFactor(), 0.4f);
    EXPECT_FLOAT_EQ(step.getLengthFactor(), 1.0f);

    const vxLineShape smooth = assigned({4, 0.7f});
    EXPECT_EQ(smooth.getType(), vxLineShape::kSmooth);
    EXPECT_FLOAT_EQ(smooth.getTensionFactor(), 0.7f);
    EXPECT_FLOAT_EQ(smooth.getStartOutdentFactor(), 0.0f);
    EXPECT_FALSE(smooth.isStartOutendUserDefined());
}

TEST(vxLineShape, OnlyOutdentsGivenCountAsUserDefined) {
    const vxLineShape step = assigned({2, 0.5f});
    EXPECT_TRUE(step.isStartOutendUserDefined());
    EXPECT_FALSE(step.isEndOutendUserDefined());
    EXPECT_EQ(assigned({}).getType(), vxLineShape::kStraight);
    EXPECT_TRUE(assigned({0}).isNone());
    EXPECT_EQ(assigned({9}).getType(), vxLineShape::kStraight);
}

}  // namespace
}  // namespace Velarix::test
