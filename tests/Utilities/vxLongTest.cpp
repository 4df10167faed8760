#include "Utilities/Sources/vxLong.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "settings/vxErrorCodes.h"

namespace Velarix {
namespace {

TEST(vxLongTest, IntegerTestWantsSignAndDigitsOnly) {
    for (const wchar_t* good : {L"0", L"42", L"-7", L"+7", L"0010"}) {
        EXPECT_EQ(vxLong::testInteger(good), kNoError) << good;
    }
    for (const wchar_t* bad : {L"", L"+", L"-", L"1.0", L"1e3", L"--1", L"1-", L" 1", L"1,5"}) {
        EXPECT_EQ(vxLong::testInteger(bad), vxErrScript::kValue) << bad;
    }
}

TEST(vxLongTest, ConversionStopsAtTheRangeOfLong) {
    const long max = std::numeric_limits<long>::max();
    const long min = std::numeric_limits<long>::min();
    long out = 0;
    EXPECT_TRUE(vxLong::toLong(L"+12", out));
    EXPECT_EQ(out, 12);
    EXPECT_TRUE(vxLong::toLong(std::to_wstring(max), out));
    EXPECT_EQ(out, max);
    EXPECT_TRUE(vxLong::toLong(std::to_wstring(min), out));
    EXPECT_EQ(out, min);

    out = 5;
    EXPECT_FALSE(vxLong::toLong(std::to_wstring(max) + L"0", out));
    EXPECT_FALSE(vxLong::toLong(std::to_wstring(min) + L"0", out));
    EXPECT_FALSE(vxLong::toLong(L"12a", out));
    EXPECT_FALSE(vxLong::toLong(L"", out));
    EXPECT_EQ(out, 5);
}

}  // namespace
}  // namespace Velarix
