#include "Utilities/Sources/vxTokenizer.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace Velarix {
namespace {

using Tokens = std::vector<std::pair<std::wstring, std::size_t>>;

// Every token with the index where it starts.
Tokens split(const std::wstring& text, const std::wstring& delimiters, bool quotes = false) {
    vxTokenizer tokenizer(text, delimiters, quotes);
    Tokens tokens;
    std::wstring token;
    while (tokenizer.next(token)) tokens.emplace_back(token, tokenizer.position());
    return tokens;
}

TEST(vxTokenizerTest, RunsOfDelimitersGiveNoEmptyTokens) {
    EXPECT_EQ(split(L"  1 \t2\r\n\n3  ", L" \t\r\n"), (Tokens{{L"1", 2}, {L"2", 5}, {L"3", 9}}));
    EXPECT_EQ(split(L"a;b,c", L";,"), (Tokens{{L"a", 0}, {L"b", 2}, {L"c", 4}}));
    EXPECT_EQ(split(L"abc", L" "), (Tokens{{L"abc", 0}}));
    EXPECT_TRUE(split(L"", L" ").empty());
    EXPECT_TRUE(split(L"   ", L" ").empty());
}

TEST(vxTokenizerTest, NextStaysFalseAtTheEnd) {
    vxTokenizer tokenizer(L"x ", L" ");
    std::wstring token;
    ASSERT_TRUE(tokenizer.next(token));
    EXPECT_FALSE(tokenizer.next(token));
    EXPECT_FALSE(tokenizer.next(token));
    EXPECT_EQ(token, L"x");
}

TEST(vxTokenizerTest, QuotesProtectDelimitersOnlyWhenAsked) {
    const std::wstring text = L"1 \"2004-1-5 10:00\" 3";
    EXPECT_EQ(split(text, L" ", true), (Tokens{{L"1", 0}, {L"\"2004-1-5 10:00\"", 2}, {L"3", 19}}));
    EXPECT_EQ(split(text, L" ", false).size(), 4u);
}

TEST(vxTokenizerTest, AnyQuoteCharacterClosesTheRun) {
    // Typographic quotes open and close in any pairing, even mismatched.
    EXPECT_EQ(split(L"\u201Ea b\u201C c", L" ", true),
              (Tokens{{L"\u201Ea b\u201C", 0}, {L"c", 6}}));
    EXPECT_EQ(split(L"\u2018a b\" c", L" ", true), (Tokens{{L"\u2018a b\"", 0}, {L"c", 6}}));
    // Quotes inside a token toggle too: the blank between them stays.
    EXPECT_EQ(split(L"x\"a b\"y z", L" ", true), (Tokens{{L"x\"a b\"y", 0}, {L"z", 8}}));
}

TEST(vxTokenizerTest, AnOpenQuoteRunsToTheEnd) {
    EXPECT_EQ(split(L"1 \"a b c", L" ", true), (Tokens{{L"1", 0}, {L"\"a b c", 2}}));
}

}  // namespace
}  // namespace Velarix
