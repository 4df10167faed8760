#include <gtest/gtest.h>

#include "platform/vxResources.h"

namespace Velarix {
namespace {

TEST(vxResources, HatchAndTextureNumbersExist) {
    EXPECT_TRUE(vxResourceExists(23300));
    EXPECT_TRUE(vxResourceExists(23436 + 1));
    EXPECT_TRUE(vxResourceExists(23436 + 65));
    EXPECT_TRUE(vxResourceExists(23436 + 128));
    EXPECT_FALSE(vxResourceExists(23436));
    EXPECT_FALSE(vxResourceExists(23436 + 129));
    EXPECT_FALSE(vxResourceExists(23299));
    EXPECT_FALSE(vxResourceExists(0));
    EXPECT_FALSE(vxResourceExists(-23300));
}

}  // namespace
}  // namespace Velarix
