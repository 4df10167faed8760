// Wrapping, shortening and measuring of texts. Most cases use a monospaced
// font, in which every character, the ellipsis too, has the same advance,
// so that limits are counted in characters and the expected lines can be
// written down by hand.
#include <gtest/gtest.h>

#include <string>

#include "graphics/vxFontOLD.h"
#include "graphics/vxText.h"

namespace Velarix {
namespace {

const std::wstring E = L"\u2026";

class TextLayout : public ::testing::Test {
protected:
    void SetUp() override {
        text.setFontName(L"DejaVu Sans Mono");
        text.setFontSize(10.0f);
        ASSERT_GT(advance, 1.0f);
        ASSERT_FLOAT_EQ(mono.getWidth(L'i'), advance) << "needs a monospaced font";
        ASSERT_FLOAT_EQ(mono.getWidth(L'\u2026'), advance) << "needs a monospaced ellipsis";
    }

    // A limit between n and n + 1 characters.
    float chars(float n) const { return (n + 0.5f) * advance; }

    // A height with room for n lines and half a line more.
    float lines(int n) const {
        return static_cast<float>(n) * mono.getStringHeight() +
               static_cast<float>(n - 1) * mono.getLeading() + 0.5f * mono.getStringHeight();
    }

    std::wstring wrapped(const std::wstring& input, float width, short ellipsis = 3) {
        text.setText(input);
        text.setEllipsisPosition(ellipsis);
        text.setMaxSize(width, vxText::kNoLimit);
        return text.getOutputString();
    }

    std::wstring shortened(const std::wstring& input, float width, float height, short ellipsis) {
        text.setText(input);
        text.setEllipsisPosition(ellipsis);
        text.setMaxSize(width, height);
        return text.getOutputString();
    }

    vxFontOLD mono{L"DejaVu Sans Mono", 10.0f, vxFontOLD::kPlain};
    const float advance = mono.getWidth(L'M');
    vxText text{nullptr};
};

TEST_F(TextLayout, WrapsAtTheLastBlankAndDropsTheBlanks) {
    EXPECT_EQ(wrapped(L"alpha beta gamma", chars(11)), L"alpha beta\rgamma");
    EXPECT_EQ(wrapped(L"aa   bb", chars(4)), L"aa\rbb");
    // The character that overflows is a blank.
    EXPECT_EQ(wrapped(L"abcd efgh", chars(4)), L"abcd\refgh");
    // Trailing blanks of the last line go; a line that fits is left alone.
    EXPECT_EQ(wrapped(L"abc   ", chars(10)), L"abc");
    EXPECT_EQ(wrapped(L"short", chars(5)), L"short");
    EXPECT_EQ(text.getNumOfLines(), 1);
}

TEST_F(TextLayout, CutsWordsLongerThanTheLineWithOneCharacterAtLeast) {
    EXPECT_EQ(wrapped(L"abcdefghij", chars(4)), L"abcd\refgh\rij");
    EXPECT_EQ(wrapped(L"to abcdefghij", chars(4)), L"to\rabcd\refgh\rij");
    // Narrower than one character: still one a line.
    EXPECT_EQ(wrapped(L"abc", 0.6f * advance), L"a\rb\rc");
    EXPECT_EQ(text.getNumOfLines(), 3);
    // A surrogate pair is one character and stays whole.
    const std::wstring pair{wchar_t(0xD83D), wchar_t(0xDE00)};
    EXPECT_EQ(wrapped(pair + pair, 0.6f * advance), pair + L"\r" + pair);
}

TEST_F(TextLayout, WrittenLineBreaksStand) {
    EXPECT_EQ(wrapped(L"ab\rcdefg", chars(3)), L"ab\rcde\rfg");
    // A trailing line break gives an empty last line.
    EXPECT_EQ(wrapped(L"abc\r", chars(10)), L"abc\r");
    EXPECT_EQ(text.getNumOfLines(), 2);
    // A break that falls on a written one makes no empty line.
    EXPECT_EQ(wrapped(L"abcd  \rxy", chars(4)), L"abcd\rxy");
    EXPECT_EQ(wrapped(L"abcd  \r", chars(4)), L"abcd\r");
    // With the ellipsis at the start the lines fill from the end.
    EXPECT_EQ(wrapped(L"aa bb cc", chars(5), vxText::kEllipsisAtEnd), L"aa bb\rcc");
    EXPECT_EQ(wrapped(L"aa bb cc", chars(5), vxText::kEllipsisAtStart), L"aa\rbb cc");
}

TEST_F(TextLayout, NoWidthOrNoTextPassesAndATinyWidthLeavesNothing) {
    EXPECT_EQ(wrapped(L"alpha beta", vxText::kNoLimit), L"alpha beta");
    EXPECT_EQ(wrapped(L"", chars(3)), L"");
    EXPECT_EQ(wrapped(L"alpha beta", 0.4f), L"");
    EXPECT_EQ(text.getNumOfLines(), 0);
    EXPECT_FLOAT_EQ(text.getStringHeight(), 0.0f);
    EXPECT_EQ(shortened(L"alpha", vxText::kNoLimit, 0.4f, 3), L"");
}

TEST_F(TextLayout, EachEllipsisPositionKeepsTheAllowedLines) {
    const std::wstring four = L"aaaa\rbbbb\rcccc\rdddd";
    // In the middle: half the width for the start, with half the
    // ellipsis; the rest for the end.
    const struct {
        int lines;
        short position;
        std::wstring expected;
    } cases[] = {
        {1, 0, L"aaaa"},
        {1, 1, E + L"ddd"},
        {1, 2, L"a" + E + L"dd"},
        {1, 3, L"aaa" + E},
        {2, 0, L"aaaa\rbbbb"},
        {2, 1, E + L"ccc\rdddd"},
        {2, 2, L"aaa" + E + L"\r" + E + L"ddd"},
        {2, 3, L"aaaa\rbbb" + E},
        {3, 0, L"aaaa\rbbbb\rcccc"},
        {3, 1, E + L"bbb\rcccc\rdddd"},
        {3, 2, L"aaaa\rb" + E + L"cc\rdddd"},
        {3, 3, L"aaaa\rbbbb\rccc" + E},
        {3, 4, L"aaaa\rbbbb\rccc" + E},  // unknown positions end the text
    };
    for (const auto& c : cases) {
        EXPECT_EQ(shortened(four, chars(4), lines(c.lines), c.position), c.expected)
            << c.lines << " lines, position " << c.position;
        EXPECT_EQ(text.getNumOfLines(), c.lines);
    }
}

TEST_F(TextLayout, ShorteningJoinsLinesWithBlanksAndDropsBlanksAtTheEllipsis) {
    // Wrapped first to three lines, then shortened to one.
    EXPECT_EQ(shortened(L"ab cd ef", chars(4), lines(1), vxText::kEllipsisAtEnd), L"ab" + E);
    EXPECT_EQ(shortened(L"ab cd ef", chars(4), lines(1), vxText::kEllipsisAtStart), E + L"ef");
    // What fits into one line after joining needs no ellipsis.
    EXPECT_EQ(shortened(L"ab\rcd", chars(8), lines(1), vxText::kEllipsisAtEnd), L"ab cd");
    EXPECT_EQ(shortened(L"ab\rcd", chars(8), lines(1), vxText::kEllipsisInMiddle), L"ab cd");
}

TEST_F(TextLayout, ATextThatFitsIsNeverChanged) {
    const std::wstring texts[] = {L"Sales", L"two\rlines", L"a\rb\rc\r", L"two  blanks", L"x"};
    for (const std::wstring& input : texts) {
        for (short position = 0; position <= 3; ++position) {
            SCOPED_TRACE(testing::Message() << "position " << position);
            EXPECT_EQ(shortened(input, vxText::kNoLimit, lines(4), position), input);
            EXPECT_EQ(shortened(input, chars(12), lines(4), position), input);
        }
    }
    // Without a height, any number of lines stands.
    EXPECT_EQ(shortened(L"a\rb\rc\rd\re", chars(2), vxText::kNoLimit, 3), L"a\rb\rc\rd\re");
}

TEST_F(TextLayout, MeasuresTheOutputString) {
    text.setText(L"abc\rde");
    EXPECT_EQ(text.getNumOfLines(), 2);
    EXPECT_FLOAT_EQ(text.getStringWidth(), mono.getWidth(L"abc"));
    EXPECT_FLOAT_EQ(text.getStringHeight(), 2.0f * mono.getStringHeight() + mono.getLeading());
    // With a maxWidth the width is that of the box.
    text.setMaxWidth(chars(6));
    EXPECT_FLOAT_EQ(text.getStringWidth(), chars(6));
}

TEST(vxText, WidthGrowsWithTheTextAndInProportionToTheSize) {
    vxText narrow(nullptr, L"Revenue");
    vxText wide(nullptr, L"Revenue 2024");
    EXPECT_GT(wide.getStringWidth(), narrow.getStringWidth());
    const float width = wide.getStringWidth();
    const float height = wide.getStringHeight();
    wide.setFontSize(25.0f);
    EXPECT_FLOAT_EQ(wide.getStringWidth(), 2.5f * width);
    EXPECT_FLOAT_EQ(wide.getStringHeight(), 2.5f * height);
}

}  // namespace
}  // namespace Velarix
