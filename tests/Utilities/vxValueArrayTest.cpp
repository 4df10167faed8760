#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "Utilities/Sources/vxDoubleArray.h"
#include "Utilities/Sources/vxLongArray.h"
#include "Utilities/Sources/vxRect.h"
#include "Utilities/Sources/vxShort.h"
#include "Utilities/Sources/vxStringArray.h"

namespace Velarix {
namespace {

TEST(vxValueArrayTest, SetReplacesAndAddAppends) {
    vxLongArray array({9});
    EXPECT_TRUE(array.set({1, 2}));
    EXPECT_TRUE(array.addValue(3));
    EXPECT_TRUE(array.addValues({4, 5}));
    EXPECT_TRUE(array.addValues({}));
    EXPECT_EQ(array.values, (std::vector<long>{1, 2, 3, 4, 5}));
    EXPECT_EQ(array.getSize(), 5u);
    EXPECT_FALSE(array.isError());
}

TEST(vxValueArrayTest, AddingAnArrayToItselfDoublesIt) {
    vxStringArray array({L"a", L"b"});
    EXPECT_TRUE(array.addValues(array.values));
    EXPECT_EQ(array.values, (std::vector<std::wstring>{L"a", L"b", L"a", L"b"}));
}

TEST(vxValueArrayTest, CloneIsIndependentAndKeepsKindAndName) {
    vxDoubleArray array({1.5, -2.0});
    std::unique_ptr<vxPrimitive> copy = array.clone();
    array.addValue(3.0);
    ASSERT_EQ(copy->getKind(), vxPrimitive::Kind::DoubleArray);
    EXPECT_EQ(copy->getClassName(), L"vxDoubleArray");
    EXPECT_EQ(static_cast<vxDoubleArray&>(*copy).values, (std::vector<double>{1.5, -2.0}));

    vxRect rect(1, 2, 3, 4);
    std::unique_ptr<vxPrimitive> rectCopy = rect.clone();
    const auto& r = static_cast<const vxRect&>(*rectCopy);
    EXPECT_EQ(r.getKind(), vxPrimitive::Kind::Rect);
    EXPECT_EQ(r.getRight(), 4.0f);
    EXPECT_EQ(r.getBottom(), 6.0f);
    EXPECT_EQ(vxShort(7).clone()->getClassName(), L"vxShort");
}

TEST(vxValueArrayTest, DumpNamesTheVectorAndItsValues) {
    std::ostringstream longs, doubles;
    vxLongArray({1, 2}).dump(1, longs);
    vxDoubleArray({0.5, 2}).dump(1, doubles);
    EXPECT_NE(longs.str().find("vector<long> values 1 2"), std::string::npos) << longs.str();
    EXPECT_NE(doubles.str().find("vector<double> values 0.5 2"), std::string::npos)
        << doubles.str();
}

}  // namespace
}  // namespace Velarix
