#include <gtest/gtest.h>

#include <string>

#include "platform/vxTextCodec.h"

namespace Velarix {
namespace {

TEST(vxTextCodec, BasicPlaneCharactersRoundTrip) {
    const std::string bytes = "A\xc3\xa9\xe2\x82\xac";  // A, e acute, euro sign
    const std::wstring text = vxFromUtf8(bytes);
    EXPECT_EQ(text, L"A\u00e9\u20ac");
    EXPECT_EQ(vxToUtf8(text), bytes);
}

TEST(vxTextCodec, SupplementaryCharacterIsASurrogatePair) {
    const std::string bytes = "\xf0\x9f\x98\x80";  // U+1F600
    const std::wstring text = vxFromUtf8(bytes);
    ASSERT_EQ(text.size(), 2u);
    EXPECT_EQ(static_cast<unsigned>(text[0]), 0xD83Du);
    EXPECT_EQ(static_cast<unsigned>(text[1]), 0xDE00u);
    EXPECT_EQ(vxToUtf8(text), bytes);
}

TEST(vxTextCodec, MalformedBytesBecomeReplacementCharacters) {
    EXPECT_EQ(vxFromUtf8("a\xff"
                         "b"),
              L"a\uFFFDb");
    EXPECT_EQ(vxFromUtf8("\xe2\x82"
                         "A"),
              L"\uFFFDA");                                 // cut short before a letter
    EXPECT_EQ(vxFromUtf8("\xc0\xaf"), L"\uFFFD\uFFFD");    // overlong '/'
    EXPECT_EQ(vxFromUtf8("\xed\xa0\x80"), L"\uFFFD");      // an encoded surrogate
    EXPECT_EQ(vxFromUtf8("\xf4\x90\x80\x80"), L"\uFFFD");  // above U+10FFFF
    EXPECT_EQ(vxFromUtf8("\x80"), L"\uFFFD");
}

TEST(vxTextCodec, LoneSurrogatesAreWrittenAsReplacementCharacters) {
    const std::string replacement = "\xef\xbf\xbd";
    EXPECT_EQ(vxToUtf8(std::wstring(1, wchar_t(0xD800))), replacement);
    EXPECT_EQ(vxToUtf8(std::wstring(1, wchar_t(0xDC00)) + L"x"), replacement + "x");
    EXPECT_EQ(vxToUtf8(std::wstring{wchar_t(0xDE00), wchar_t(0xD83D)}), replacement + replacement);
}

}  // namespace
}  // namespace Velarix
