#include "Utilities/Sources/vxStringOLD.h"

#include <gtest/gtest.h>

#include <string>

namespace Velarix {
namespace {

TEST(vxStringOLDTest, TextHelpers) {
    EXPECT_EQ(vxStringOLD::countChar(L" 1  2 3", L' '), 4);
    EXPECT_EQ(vxStringOLD::countChar(L"", L' '), 0);

    // Only ASCII letters change: the keyword tables are ASCII.
    EXPECT_EQ(vxStringOLD::toLower(L"NuLL Z@[\u00C4"), L"null z@[\u00C4");

    std::wstring text = L"1,5,7";
    vxStringOLD::replaceFirstComma(text);
    EXPECT_EQ(text, L"1.5,7");
    std::wstring none = L"15";
    vxStringOLD::replaceFirstComma(none);
    EXPECT_EQ(none, L"15");
}

}  // namespace
}  // namespace Velarix
