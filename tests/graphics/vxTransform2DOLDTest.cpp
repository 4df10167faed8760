#include <gtest/gtest.h>

#include <cmath>

#include "graphics/vxTransform2DOLD.h"

namespace Velarix {
namespace {

TEST(Transform2D, TypeFollowsTheMatrix) {
    vxTransform2DOLD t;
    EXPECT_EQ(t.getType(), vxTransform2DOLD::kIdentity);
    t.translate(3, 4);
    EXPECT_EQ(t.getType(), vxTransform2DOLD::kTranslation);
    t.scale(2, 2);
    EXPECT_EQ(t.getType(), vxTransform2DOLD::kGeneral);
    t.setIdentity();
    t.rotate(1e-11f);
    EXPECT_EQ(t.getType(), vxTransform2DOLD::kIdentity);
}

// Operations apply in the order they are called: translate, then scale.
TEST(Transform2D, ComposesInCallOrder) {
    vxTransform2DOLD t;
    t.translate(1, 2);
    t.scale(2, 3);
    float x = 1, y = 1;
    t.transform(x, y);
    EXPECT_FLOAT_EQ(x, 4.0f);
    EXPECT_FLOAT_EQ(y, 9.0f);
}

TEST(Transform2D, RotatesAboutAPoint) {
    vxTransform2DOLD t;
    t.rotate(static_cast<float>(M_PI / 2), 10, 10);
    std::vector<float> x{20, 10}, y{10, 10};
    t.transform(x, y);
    EXPECT_NEAR(x[0], 10.0f, 1e-4f);
    EXPECT_NEAR(y[0], 20.0f, 1e-4f);
    EXPECT_NEAR(x[1], 10.0f, 1e-4f);
    EXPECT_NEAR(y[1], 10.0f, 1e-4f);
}

}  // namespace
}  // namespace Velarix
