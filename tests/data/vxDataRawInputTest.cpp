// The data texts of a chart as its set-up reads them: numbers, dates and
// nulls, the two data orders, types, limits and options by series, and the
// error that names the series, the element and the token.
#include <gtest/gtest.h>

#include "Utilities/Sources/vxDateFormatIDs.h"
#include "data/vxDataRawInput.h"
#include "data/vxDataTestSupport.h"
#include "settings/vxError.h"
#include "settings/vxFormatSettings.h"
#include "settings/vxUserSettings.h"

namespace Velarix::test {
namespace {

struct Input {
    vxUserSettings settings{L"", L"", 1, 1};
    vxDataRawInput raw{&settings};

    explicit Input(const std::vector<std::wstring>& texts, short order = 1, long k = 1) {
        vxAssign a;
        setTexts(a, kChartData, texts);
        raw.assign(a);
        vxAssign options;
        setShorts(options, kChartDataOptions, {order});
        raw.assign(options);
        raw.setUp(k);
    }

    std::vector<double> series(long n) {
        std::vector<double> values;
        raw.extractNthSeries(values, n);
        return values;
    }

    std::wstring detail() const { return raw.getError()->getAddlInfo(); }
    std::wstring location() const { return raw.getError()->getLocation(); }
};

TEST(DataRawInput, NumberForms) {
    struct Case {
        const wchar_t* token;
        double value;  // kInvalid: the token is no number
    };
    const Case cases[] = {
        {L"12", 12},          {L"-12.5", -12.5},    {L"1e5", 1e5},      {L".5", 0.5},
        {L"-.5", -0.5},       {L"+3", 3},           {L"1,5", 1.5},      {L"2E-3", 0.002},
        {L"1e-400", 0.0},     {L"e5", kInvalid},    {L"1e", kInvalid},  {L"+-1", kInvalid},
        {L"1,5,7", kInvalid}, {L"1.2.3", kInvalid}, {L"12a", kInvalid}, {L"inf", kInvalid},
    };
    for (const Case& c : cases) {
        Input in({std::wstring(L"0 ") + c.token});
        const std::vector<double> values = in.series(0);
        if (c.value == kInvalid) {
            EXPECT_TRUE(in.raw.isError()) << c.token;
            EXPECT_EQ(in.detail(), std::wstring(L"Series 1, Element 2: ") + c.token);
        } else {
            ASSERT_FALSE(in.raw.isError()) << c.token;
            ASSERT_EQ(values.size(), 2u) << c.token;
            EXPECT_DOUBLE_EQ(values[1], c.value) << c.token;
        }
    }
}

TEST(DataRawInput, HugeNumbersStayFinite) {
    Input in({L"1e400 -1e400 1.7976931348623157e308"});
    const std::vector<double> values = in.series(0);
    ASSERT_EQ(values.size(), 3u);
    EXPECT_EQ(values[0], 1.7976931348623157e308);
    EXPECT_EQ(values[1], -1.7976931348623157e308);
    EXPECT_EQ(values[2], 1.7976931348623157e308);
}

TEST(DataRawInput, NullsAndBlanks) {
    Input in({L"  1  null   3 NULL Null  "});
    EXPECT_EQ(in.series(0), (std::vector<double>{1, kInvalid, 3, kInvalid, kInvalid}));
    EXPECT_EQ(in.raw.getNumOfTokens(0), 12);  // blanks plus one, runs counted

    for (const wchar_t* bad : {L"nul", L"None", L"n/a", L"nan"}) {
        Input wrong({std::wstring(L"1 ") + bad});
        wrong.series(0);
        EXPECT_EQ(wrong.raw.getError()->getErrorCode(), 2010) << bad;
        EXPECT_EQ(wrong.detail(), std::wstring(L"Series 1, Element 2: ") + bad);
        EXPECT_EQ(wrong.location(), L"vxDataRawInput/toValue/1");
    }
}

TEST(DataRawInput, SeriesWithoutReadableTokenHasNoType) {
    for (const wchar_t* text : {L"", L"null NULL"}) {
        Input in({L"1 2", text});
        in.series(1);
        EXPECT_EQ(in.raw.getError()->getErrorCode(), 2010) << text;
        EXPECT_EQ(in.detail(), L"Series 2");
        EXPECT_EQ(in.location(), L"vxDataRawInput/extractNthSeries/1");
    }
}

TEST(DataRawInput, FirstReadableTokenDecidesTheType) {
    Input numbers({L"null 3 4"});
    EXPECT_EQ(numbers.series(0), (std::vector<double>{kInvalid, 3, 4}));
    EXPECT_EQ(numbers.raw.getDataType(0), 2);

    Input dates({L"null 1/1/2000 12/5/2004"});
    const std::vector<double> values = dates.series(0);
    EXPECT_EQ(dates.raw.getDataType(0), 3);
    ASSERT_EQ(values.size(), 3u);
    EXPECT_EQ(values[1], 2451545.0);

    // A date in a series of numbers is one bad token.
    Input mixed({L"1 2 1/1/2000"});
    mixed.series(0);
    EXPECT_EQ(mixed.detail(), L"Series 1, Element 3: 1/1/2000");
}

TEST(DataRawInput, DateAndTimeCarryTheMark) {
    Input in({L"1/1/2000&12:00 1/1/2000 12:00 1/1/2000&00:00"});
    const std::vector<double> values = in.series(0);
    ASSERT_FALSE(in.raw.isError()) << in.detail();
    ASSERT_EQ(values.size(), 4u);
    EXPECT_DOUBLE_EQ(values[0], -2451545.432);
    EXPECT_EQ(values[1], 2451545.0);
    EXPECT_DOUBLE_EQ(values[2], 0.432);
    EXPECT_EQ(values[3], -2451545.0);
}

TEST(DataRawInput, DateOrderFromTheData) {
    Input dmy({L"13/5/2004 1/6/2004"});
    const std::vector<double> values = dmy.series(0);
    ASSERT_FALSE(dmy.raw.isError());
    EXPECT_EQ(values[1] - values[0], 19.0);  // 13 May to 1 June

    Input conflict({L"13/5/2004 5/13/2004"});
    conflict.series(0);
    EXPECT_EQ(conflict.detail(), L"Series 1, Element 2: 5/13/2004");
    EXPECT_EQ(conflict.location(), L"vxDataRawInput/determineDateOrder/2");

    Input impossible({L"1/1/2004 2/30/2004"});
    impossible.series(0);
    EXPECT_EQ(impossible.detail(), L"Series 1, Element 2: 2/30/2004");
}

TEST(DataRawInput, ScriptTypesDecideInOrderXXYY) {
    Input in({L"12/5/2004 1"});
    vxAssign types;
    setShorts(types, kChartDataTypes, {2});
    in.raw.assign(types);
    in.raw.setUp(1);
    in.series(0);
    EXPECT_EQ(in.detail(), L"Series 1, Element 1: 12/5/2004");
}

TEST(DataRawInput, RecordsInOrderXYXY) {
    Input in({L"1 10 100", L"2 20", L"3 30 300 3000"}, 2);
    EXPECT_EQ(in.raw.getNumOfDataSeries(), 4);
    EXPECT_EQ(in.series(0), (std::vector<double>{1, 2, 3}));
    EXPECT_EQ(in.series(2), (std::vector<double>{100, kInvalid, 300}));
    EXPECT_EQ(in.series(3), (std::vector<double>{kInvalid, kInvalid, 3000}));

    Input bad({L"1 2", L"3 x"}, 2);
    bad.series(1);
    EXPECT_EQ(bad.detail(), L"Series 2, Element 2: x");
}

TEST(DataRawInput, TypesLimitsAndOptionsBySeries) {
    Input in({L"1", L"2", L"3", L"4", L"5"}, 1, 2);
    vxAssign lower;
    setDoubles(lower, kChartDataLowerLimits, {-1, -2});
    in.raw.assign(lower);
    vxAssign upper;
    setTexts(upper, kChartDataUpperLimits, {L""});
    in.raw.assign(upper);
    vxAssign options;
    setShorts(options, kChartDataOptions, {1, 4, 2});
    in.raw.assign(options);
    vxAssign types;
    setShorts(types, kChartDataTypes, {3, 2, 2, 2});
    in.raw.assign(types);
    in.raw.setUp(2);

    EXPECT_EQ(in.raw.getNumOfChartSeries(), 2);  // five series, two a chart series
    EXPECT_EQ(in.raw.getLowerLimit(3), -2);
    EXPECT_EQ(in.raw.getLowerLimit(4), -1);
    EXPECT_EQ(in.raw.getUpperLimit(4), vxDataRawInput::kDefaultUpperLimit);
    EXPECT_EQ(in.raw.getOption(0), 4);
    EXPECT_EQ(in.raw.getOption(1), 2);
    EXPECT_EQ(in.raw.getOption(3), 0);  // options don't wrap around
    // Types beyond one per position in a chart series are cut off.
    EXPECT_EQ(in.raw.getDataType(0), 3);
    EXPECT_EQ(in.raw.getDataType(1), 2);
    EXPECT_EQ(in.raw.getDataType(2), 3);
}

TEST(DataRawInput, LongTokenIsCutInTheDetail) {
    const std::wstring token(200, L'x');
    Input in({L"1 " + token});
    in.series(0);
    EXPECT_EQ(in.detail(), L"Series 1, Element 2: " + token.substr(0, 80) + L"\u2026");
}

TEST(DataRawInput, DateOrderGoesToTheSettings) {
    Input in({L"1-2-2004"});
    in.raw.setDateOrderID(vxDataRawInput::kDateOrderDMY);
    vxFormatSettings* format = in.settings.getFormatSettings();
    format->setDateSeparatorID(0);
    in.raw.storeDateOrder();
    EXPECT_EQ(format->getDateOrderID(), 3);
    EXPECT_EQ(format->getMonthFormatID(), vxDateFormatID::kMM);
    EXPECT_EQ(format->getDayFormatID(), vxDateFormatID::kDD);
}

}  // namespace
}  // namespace Velarix::test
