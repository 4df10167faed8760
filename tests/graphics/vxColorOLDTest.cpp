#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "graphics/vxColorOLD.h"
#include "platform/vxTextCodec.h"

namespace Velarix {
namespace {

void expectComponents(const vxColorOLD& c, short r, short g, short b, short a) {
    EXPECT_EQ(c.getRed(), r);
    EXPECT_EQ(c.getGreen(), g);
    EXPECT_EQ(c.getBlue(), b);
    EXPECT_EQ(c.getAlpha(), a);
}

std::vector<short> parsed(const std::wstring& text) {
    short rgba[4] = {-1, -1, -1, -1};
    EXPECT_EQ(vxColorOLD::parseHashText(text, rgba), 0) << vxToUtf8(text);
    return std::vector<short>(rgba, rgba + 4);
}

TEST(vxColorOLDHashText, AllFourFormsAndBothCases) {
    EXPECT_EQ(parsed(L"#abc"), parsed(L"#aabbcc"));
    EXPECT_EQ(parsed(L"#abc"), (std::vector<short>{170, 187, 204, 255}));
    EXPECT_EQ(parsed(L"#abcd"), (std::vector<short>{170, 187, 204, 221}));
    EXPECT_EQ(parsed(L"#0A1B2C80"), (std::vector<short>{10, 27, 44, 128}));
}

TEST(vxColorOLDHashText, WrongLengthOrDigitIsError1140AndLeavesResultAlone) {
    const std::vector<std::wstring> bad = {L"",         L"#",          L"#ab",     L"#abcde",
                                           L"#abcdef0", L"#abcdef012", L"abcd",    L"aabbcc0",
                                           L"#abg",     L"#12345z",    L"# abcde", L"#ab\u0660"};
    for (const std::wstring& text : bad) {
        short rgba[4] = {1, 2, 3, 4};
        EXPECT_EQ(vxColorOLD::parseHashText(text, rgba), 1140) << vxToUtf8(text);
        EXPECT_EQ(std::vector<short>(rgba, rgba + 4), (std::vector<short>{1, 2, 3, 4}));
        EXPECT_FALSE(vxColorOLD::isHashText(text));
    }
    EXPECT_TRUE(vxColorOLD::isHashText(L"#000"));
}

TEST(vxColorOLD, TextFormsAreLowerCaseWithLeadingZeros) {
    vxColorOLD c(10, 171, 255, 7);
    EXPECT_EQ(c.toHashText(), L"#0aabff");
    EXPECT_EQ(c.toDecimalText(), L"10 171 255");
    EXPECT_EQ(parsed(c.toHashText()), (std::vector<short>{10, 171, 255, 255}));
}

TEST(vxColorOLD, DefaultIsOpaqueBlackAndSettersClamp) {
    vxColorOLD c;
    expectComponents(c, 0, 0, 0, 255);
    c.set(-5, 300, 128, 999);
    expectComponents(c, 0, 255, 128, 255);
    c.setAlpha(-1);
    c.setRed(256);
    expectComponents(c, 255, 255, 128, 0);
    vxColorOLD built(-1, 1000, 3, -40);
    expectComponents(built, 0, 255, 3, 0);
}

TEST(vxColorOLD, ComponentCountSelectsTheForm) {
    const short values[4] = {1, 2, 3, 4};
    vxColorOLD c(9, 9, 9, 9);
    c.set(3, values);
    expectComponents(c, 1, 2, 3, 255);
    c.set(4, values);
    expectComponents(c, 1, 2, 3, 4);
    c.set(2, values);
    expectComponents(c, 0, 0, 0, 255);
    c.set(1, 2, 3);
    expectComponents(c, 1, 2, 3, 255);
}

TEST(vxColorOLD, BrightenAndDarkenKeepAlpha) {
    vxColorOLD c(10, 100, 200, 77);
    c.brighten(1.0f);
    expectComponents(c, 255, 255, 255, 77);
    c.darken(1.0f);
    expectComponents(c, 0, 0, 0, 77);

    vxColorOLD half(100, 0, 255, 255);
    half.brighten(0.5f);  // 155 * 0.5 = 77.5 is cut to 77
    expectComponents(half, 177, 127, 255, 255);
    half.darken(0.5f);
    expectComponents(half, 88, 63, 127, 255);
}

TEST(vxColorOLD, AlphaAndGreyTests) {
    vxColorOLD c(5, 5, 5, 0);
    EXPECT_TRUE(c.isGray());
    EXPECT_TRUE(c.isTransparent());
    EXPECT_FALSE(c.isTranslucent());
    EXPECT_FALSE(c.isOpaque());
    c.setAlpha(254);
    EXPECT_TRUE(c.isTranslucent());
    c.setAlpha(255);
    EXPECT_TRUE(c.isOpaque());
    EXPECT_FALSE(c.isTranslucent());
    c.setBlue(6);
    EXPECT_FALSE(c.isGray());
}

TEST(vxColorOLD, PaletteIsMadeOnFirstUseAndGivesOpaqueColours) {
    vxColorOLD c(1, 2, 3, 40);
    EXPECT_EQ(c.getColorPalette(), nullptr);
    c.setFromPalette(0, 1);
    ASSERT_NE(c.getColorPalette(), nullptr);
    expectComponents(c, 255, 255, 255, 255);
    c.setFromPalette(5, 2);
    EXPECT_EQ(c.toHashText(), L"#0000ff");
    c.setFromPalette(40, 9);  // an unknown code is the default palette
    EXPECT_EQ(c.toHashText(), L"#0099ff");
    c.setFromPalette(-1, 1);  // index 0 in a script
    expectComponents(c, 0, 0, 0, 255);
}

TEST(vxColorOLD, CopyCarriesComponentsAndPalette) {
    vxColorOLD from;
    from.setFromPalette(0, -1);
    from.getColorPalette()->setColors(std::vector<short>{7, 8, 9, 10, 11, 12});
    from.set(1, 2, 3, 4);

    vxColorOLD to(from);
    expectComponents(to, 1, 2, 3, 4);
    ASSERT_NE(to.getColorPalette(), nullptr);
    ASSERT_NE(to.getColorPalette(), from.getColorPalette());
    to.setFromPalette(1, to.getColorPalette());
    EXPECT_EQ(to.toDecimalText(), L"10 11 12");

    to = vxColorOLD(5, 6, 7);
    EXPECT_EQ(to.getColorPalette(), nullptr);
    EXPECT_TRUE(to.isEqual(vxColorOLD(5, 6, 7, 255)));
    to.set(nullptr);
    expectComponents(to, 0, 0, 0, 255);
}

}  // namespace
}  // namespace Velarix
