#include <gtest/gtest.h>

#include <cwchar>
#include <cwctype>
#include <set>
#include <string>
#include <vector>

#include "script/vxConstants.h"

using namespace Velarix;

namespace {

struct Lookup {
    short table;
    const wchar_t* word;
    short index;
    const wchar_t* value;
};

}  // namespace

TEST(vxConstants, FindsWordsAndTheirValues) {
    const std::vector<Lookup> cases = {
        {1000, L"on", 1, L"1"},
        {1003, L"E", 0, L"2.7182818284590452"},
        {1003, L"pi", 1, L"3.1415926535897932"},
        {1103, L"LightGray", 4, L"8"},
        {1104, L"BottomBar", 18, L"18"},
        {1105, L"underline", 3, L"4"},
        {1204, L"centercenter", 5, L"5"},
        {1204, L"center", 14, L"5"},
        {1204, L"RunningTotalsEdge", 22, L"4"},
        {1300, L"none", 0, L"-1.0"},
        {1401, L"min", 3, L"-3"},
        {1700, L"stacked", 0, L"-1"},
        {1803, L"1/x", 5, L"6"},
        {1804, L"second", 17, L"-18"},
        {2000, L"diamond", 5, L"16"},
        {2500, L"LOG", 0, L"-4"},
        {2600, L"union", 2, L"3"},
        {1102, L"aliceblue", 0, L"240 248 255"},
        {1102, L"Blue", 9, L"  0   0 221"},
        {1102, L"AQUA", 2, L"  0 255 255"},
        {1102, L"yellowgreen", 143, L"154 205  50"},
    };
    for (const Lookup& c : cases) {
        SCOPED_TRACE(testing::Message() << c.table << " " << std::wstring(c.word).size());
        const short index = vxConstants::find(c.table, c.word);
        EXPECT_EQ(index, c.index);
        const wchar_t* value = vxConstants::getValue(c.table, index);
        ASSERT_NE(value, nullptr);
        EXPECT_STREQ(value, c.value);
    }
}

TEST(vxConstants, WordsThatAreNotFound) {
    // Words are cut to 39 characters before the comparison; no table word
    // is that long, so a longer word never matches.
    const std::wstring longTotals = L"runningtotalsedge" + std::wstring(30, L'x');
    const std::wstring paddedColor = L"aliceblue" + std::wstring(40, L' ');
    const std::vector<std::pair<short, const wchar_t*>> cases = {
        {1200, L"top"},  // a word of another table
        {1200, L"cent"},
        {1200, L"centers"},
        {1200, L"center "},
        {1200, L""},
        {1102, L"bluee"},
        {1102, L"a"},
        {1102, L"zzz"},
        {1108, L"none"},  // no such table
        {0, L"on"},
        {1204, longTotals.c_str()},
        {1102, paddedColor.c_str()},
    };
    for (const auto& [table, word] : cases) {
        EXPECT_EQ(vxConstants::find(table, word), -1) << table << " " << std::wcslen(word);
    }
    EXPECT_EQ(vxConstants::find(1000, nullptr), -1);
}

TEST(vxConstants, CountsAndOutOfRangeValues) {
    const std::vector<std::pair<short, short>> counts = {
        {1000, 2},  {1003, 2}, {1102, 144}, {1104, 19}, {1204, 23},
        {1804, 18}, {2600, 3}, {1108, 0},   {0, 0},     {-1, 0},
    };
    for (const auto& [table, count] : counts)
        EXPECT_EQ(vxConstants::getCount(table), count) << table;

    EXPECT_EQ(vxConstants::getValue(1000, 2), nullptr);
    EXPECT_EQ(vxConstants::getValue(1000, -1), nullptr);
    EXPECT_EQ(vxConstants::getValue(1102, 144), nullptr);
    EXPECT_EQ(vxConstants::getValue(9999, 0), nullptr);
}

TEST(vxConstants, EveryWordIsFoundAtItsOwnRowInAnyCase) {
    for (const vxConstantTable& table : vxKeywordTables()) {
        std::set<std::wstring> seen;
        for (std::size_t i = 0; i < table.words.size(); ++i) {
            std::wstring upper = table.words[i].word;
            for (wchar_t& c : upper) c = static_cast<wchar_t>(std::towupper(c));
            EXPECT_TRUE(seen.insert(table.words[i].word).second) << table.constantType;
            EXPECT_EQ(vxConstants::find(table.constantType, upper.c_str()), static_cast<short>(i))
                << table.constantType;
            // Every value text is a plain number.
            const wchar_t* value = table.words[i].value;
            wchar_t* end = nullptr;
            std::wcstod(value, &end);
            EXPECT_EQ(*end, L'\0') << table.constantType;
        }
    }
}

TEST(vxConstants, ColorNamesAreSortedWithThreeDigitFields) {
    const auto colors = vxColorNames();
    ASSERT_EQ(colors.size(), 144u);
    for (std::size_t i = 0; i < colors.size(); ++i) {
        if (i > 0) {
            EXPECT_LT(std::wcscmp(colors[i - 1].word, colors[i].word), 0) << i;
        }
        EXPECT_EQ(vxConstants::find(1102, colors[i].word), static_cast<short>(i));

        const std::wstring value = colors[i].value;
        ASSERT_EQ(value.size(), 11u) << i;
        EXPECT_EQ(value[3], L' ');
        EXPECT_EQ(value[7], L' ');
        for (std::size_t field = 0; field < 3; ++field) {
            const int component = std::stoi(value.substr(field * 4, 3));
            EXPECT_GE(component, 0);
            EXPECT_LE(component, 255);
        }
    }
}

TEST(vxConstants, CombinableTables) {
    const std::vector<short> combinable = {1105, 1107, 1500, 1501, 1510, 1520, 1521, 1530,
                                           1531, 1540, 1541, 1550, 1560, 1570, 1580, 1581,
                                           1590, 1591, 1600, 1601, 1610, 1620, 1701, 2000};
    for (short table : combinable) EXPECT_TRUE(vxConstants::isCombinable(table)) << table;

    const std::vector<short> single = {0,    1000, 1003, 1102, 1104, 1106, 1204,
                                       1499, 1621, 1700, 1702, 1999, 2001, 2600};
    for (short table : single) EXPECT_FALSE(vxConstants::isCombinable(table)) << table;
}
