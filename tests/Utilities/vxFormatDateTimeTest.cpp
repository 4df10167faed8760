#include "Utilities/Sources/vxFormatDateTime.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include "Utilities/Sources/vxDateFormatIDs.h"
#include "Utilities/Sources/vxDateTime.h"
#include "settings/vxErrorCodes.h"
#include "settings/vxFormatSettings.h"
#include "settings/vxMessageTable.h"

namespace Velarix {
namespace {

// Stored values, worked out by hand: the whole part is the day number
// (1 January 2000 is 2451545), the fraction the milliseconds times 1e-8.
constexpr double kNewYear2004 = 2453006;      // a Thursday
constexpr double kMonday5Jan2004 = 2453010;   // 09:05:03.250 below
constexpr double kMorning = 0.3270325;        // 09:05:03.250
constexpr double kSunday22Feb2004 = 2453058;  // day 53 of a leap year
constexpr double kMonday29Dec2003 = 2453003;  // in the first week of 2004 from Monday
constexpr double kWednesday31Dec2003 = 2453005;
constexpr double kNoon = 0.432;

using Pairs = std::vector<std::pair<const wchar_t*, const wchar_t*>>;

void expectTokens(vxFormatDateTime& format, double value, const Pairs& cases) {
    for (const auto& [specifier, expected] : cases) {
        EXPECT_EQ(format.toString(value, specifier), expected) << "\"" << specifier << "\"";
    }
    EXPECT_FALSE(format.isError());
}

vxFormatSettings withWeekStart(short weekStart) {
    vxFormatSettings settings;
    settings.setWeekStartIndex(weekStart);
    return settings;
}

TEST(vxFormatDateTimeTest, EveryTokenOnAMondayMorning) {
    vxFormatSettings settings;
    vxFormatDateTime format(&settings);
    expectTokens(format, kMonday5Jan2004 + kMorning,
                 {{L"WEEKDAY", L"MONDAY"},
                  {L"Weekday", L"Monday"},
                  {L"MONTH", L"JANUARY"},
                  {L"Month", L"January"},
                  {L"AMPM", L"AM"},
                  {L"ampm", L"am"},
                  {L"YYYY", L"2004"},
                  {L"hh12", L"09"},
                  {L"DDY", L"005"},
                  {L"MON", L"JAN"},
                  {L"Mon", L"Jan"},
                  {L"WD1", L"M"},
                  {L"WD2", L"MO"},
                  {L"WD3", L"MON"},
                  {L"WWY", L"01"},
                  {L"Wd2", L"Mo"},
                  {L"Wd3", L"Mon"},
                  {L"h12", L"9"},
                  {L"DD", L"05"},
                  {L"DX", L"5TH"},
                  {L"Dx", L"5th"},
                  {L"DY", L"5"},
                  {L"MM", L"01"},
                  {L"Mo", L"J"},
                  {L"QX", L"1ST"},
                  {L"Qx", L"1st"},
                  {L"WY", L"1"},
                  {L"YY", L"04"},
                  {L"hh", L"09"},
                  {L"mm", L"05"},
                  {L"ss", L"03"},
                  {L"z1", L"3"},
                  {L"z2", L"25"},
                  {L"z3", L"250"},
                  {L"D", L"5"},
                  {L"M", L"1"},
                  {L"Q", L"1"},
                  {L"W", L"2"},
                  {L"h", L"9"},
                  {L"m", L"5"},
                  {L"s", L"3"}});
}

TEST(vxFormatDateTimeTest, FreeTextAroundTheTokens) {
    vxFormatDateTime format(nullptr);
    const double value = kMonday5Jan2004 + kMorning;
    expectTokens(format, value,
                 {{L"D.M.YYYY hh:mm:ss.z3", L"5.1.2004 09:05:03.250"},
                  {L"Weekday, Month DX", L"Monday, January 5TH"},
                  {L"WD3/Mon/YY", L"MON/Jan/04"},
                  {L"(Q) #", L"(1) #"},
                  {L"Date: |DD-MM-YYYY| ok", L"Date: 05-01-2004 ok"},
                  {L"MMMM", L"0101"},  // "MM" twice: no longer token fits
                  {L"Monday", L"Janday"}});
}

TEST(vxFormatDateTimeTest, NamesInEnglishAndGerman) {
    vxFormatSettings english;
    vxFormatSettings german;
    german.setDefaults(kLanguageGerman, nullptr);
    vxFormatDateTime inEnglish(&english);
    vxFormatDateTime inGerman(&german);
    const Pairs sundayInEnglish = {
        {L"Weekday", L"Sunday"}, {L"WD3", L"SUN"}, {L"Wd2", L"Su"}, {L"WD1", L"S"},
        {L"Month", L"February"}, {L"MON", L"FEB"}, {L"Mo", L"F"}};
    const Pairs sundayInGerman = {{L"Weekday", L"Sonntag"}, {L"WEEKDAY", L"SONNTAG"},
                                  {L"WD3", L"SON"},         {L"Wd2", L"So"},
                                  {L"Month", L"Februar"},   {L"MON", L"FEB"}};
    expectTokens(inEnglish, kSunday22Feb2004, sundayInEnglish);
    expectTokens(inGerman, kSunday22Feb2004, sundayInGerman);
    expectTokens(inGerman, kSunday22Feb2004 + 39,  // 1 April 2004, a Thursday
                 {{L"Weekday", L"Donnerstag"}, {L"MONTH", L"APRIL"}});
    expectTokens(inGerman, kSunday22Feb2004 + 8,
                 {// 1 March
                  {L"MONTH", L"MAERZ"},
                  {L"Mon", L"Mae"}});
    // Names the settings don't have print nothing.
    english.setMonthNames({L"One"});
    expectTokens(inEnglish, kSunday22Feb2004, {{L"[Month]", L"[]"}});
}

TEST(vxFormatDateTimeTest, DaySuffixesAndQuarters) {
    vxFormatDateTime format(nullptr);
    const std::pair<int, const wchar_t*> days[] = {
        {1, L"1ST"},   {2, L"2ND"},   {3, L"3RD"},   {4, L"4TH"},   {11, L"11TH"}, {12, L"12TH"},
        {13, L"13TH"}, {21, L"21ST"}, {22, L"22ND"}, {23, L"23RD"}, {30, L"30TH"}, {31, L"31ST"},
    };
    for (const auto& [day, expected] : days) {
        EXPECT_EQ(format.toString(kNewYear2004 + day - 1, L"DX"), expected);
    }
    EXPECT_EQ(format.toString(kSunday22Feb2004, L"Dx"), L"22nd");
    // 1 May, 1 August and 31 December 2004.
    expectTokens(format, kNewYear2004 + 121, {{L"Q", L"2"}, {L"QX", L"2ND"}});
    expectTokens(format, kNewYear2004 + 213, {{L"Qx", L"3rd"}});
    expectTokens(format, kNewYear2004 + 365, {{L"QX", L"4TH"}, {L"DDY", L"366"}, {L"DY", L"366"}});
    expectTokens(format, kWednesday31Dec2003, {{L"DDY", L"365"}, {L"Q", L"4"}});
}

TEST(vxFormatDateTimeTest, WeeksFromSundayAndFromMonday) {
    vxFormatSettings sunday = withWeekStart(0);
    vxFormatSettings monday = withWeekStart(1);
    vxFormatDateTime fromSunday(&sunday);
    vxFormatDateTime fromMonday(&monday);
    // 1 January 2004, a Thursday: three days of that week lie in 2004 when
    // it starts on Sunday, four when it starts on Monday.
    expectTokens(fromSunday, kNewYear2004, {{L"WY", L"53"}, {L"W", L"5"}});
    expectTokens(fromMonday, kNewYear2004, {{L"WY", L"1"}, {L"W", L"4"}});
    expectTokens(fromSunday, kMonday5Jan2004, {{L"WWY", L"01"}, {L"W", L"2"}});
    expectTokens(fromMonday, kMonday5Jan2004, {{L"WWY", L"02"}, {L"W", L"1"}});
    expectTokens(fromSunday, kMonday5Jan2004 - 1, {{L"WY", L"1"}, {L"W", L"1"}});
    expectTokens(fromMonday, kMonday5Jan2004 - 1, {{L"WY", L"1"}, {L"W", L"7"}});
    expectTokens(fromMonday, kMonday29Dec2003, {{L"WY", L"1"}, {L"YYYY", L"2003"}});
    expectTokens(fromMonday, kMonday29Dec2003 - 1, {{L"WY", L"52"}, {L"W", L"7"}});
}

TEST(vxFormatDateTimeTest, TwelveHourClock) {
    vxFormatDateTime format(nullptr);
    const std::pair<double, const wchar_t*> times[] = {
        {0.0, L"12:00 AM"},   {0.018, L"12:30 AM"},   {kNoon, L"12:00 PM"},     {0.45, L"12:30 PM"},
        {0.471, L"01:05 PM"}, {0.86399, L"11:59 PM"}, {0.3270325, L"09:05 AM"},
    };
    for (const auto& [value, expected] : times) {
        EXPECT_EQ(format.toString(value, L"hh12:mm AMPM"), expected) << value;
    }
    EXPECT_EQ(format.toString(0.471, L"h12 ampm"), L"1 pm");
    EXPECT_EQ(format.toString(0.0, L"h12"), L"12");
}

TEST(vxFormatDateTimeTest, ValuesWithoutADateAndTheMark) {
    vxFormatDateTime format(nullptr);
    // Date tokens print nothing without a date; with no time token either,
    // nothing prints at all, not even the prefix.
    EXPECT_EQ(format.toString(kNoon, L"D.M.YYYY h:mm"), L".. 12:00");
    EXPECT_EQ(format.toString(kNoon, L"D.M.YYYY"), L"");
    EXPECT_EQ(format.toString(kNoon, L"at |Weekday| !"), L"");
    EXPECT_EQ(format.toString(kNoon, L"at |Weekday h| !"), L"at  12 !");
    // The mark of a date written with a time does not show.
    EXPECT_EQ(format.toString(-(kMonday5Jan2004 + kMorning), L"D.M.YYYY hh:mm"), L"5.1.2004 09:05");
    // A date without a time prints midnight.
    EXPECT_EQ(format.toString(kMonday5Jan2004, L"D.M. h:mm:ss"), L"5.1. 0:00:00");
    // Milliseconds round to tenths and hundredths without reaching a second.
    EXPECT_EQ(format.toString(0.0000096, L"s.z1 s.z2"), L"0.9 0.96");
    EXPECT_EQ(format.toString(0.0000099, L"s.z1 s.z2 s.z3"), L"0.9 0.99 0.990");
    EXPECT_EQ(format.toString(0.0000005, L"s.z1 s.z2 s.z3"), L"0.1 0.05 0.050");
    EXPECT_EQ(format.toString(0.00000005, L"z3 z2"), L"005 01");
}

TEST(vxFormatDateTimeTest, BadFormatsAreRaised) {
    vxFormatDateTime format(nullptr);
    EXPECT_EQ(format.setFormat(L"xyz"), vxErrFormat::kDateTimeFormat);
    EXPECT_EQ(format.getError()->getLocation(), L"vxFormatDateTime/setFormat/2");
    EXPECT_EQ(format.getError()->getAddlInfo(), L"xyz");
    EXPECT_EQ(format.toString(kMonday5Jan2004), L"");
    EXPECT_EQ(format.setFormat(L"on |D.M."), vxErrFormat::kDateTimeFormat);
    EXPECT_EQ(format.getError()->getLocation(), L"vxFormatDateTime/setFormat/1");
    EXPECT_EQ(format.toString(kMonday5Jan2004, L"D"), L"5");
    EXPECT_FALSE(format.isError());
    EXPECT_FALSE(format.isValid(L"xyz"));
    EXPECT_EQ(format.toString(kMonday5Jan2004), L"5");
}

TEST(vxFormatDateTimeTest, TimeFormatsAreToldByTheirTokens) {
    for (const wchar_t* time : {L"h:mm", L"hh12", L"h12", L"z3", L"mm", L"s", L"YYYY z1"}) {
        EXPECT_TRUE(vxFormatDateTime::isTimeFormat(time)) << time;
    }
    for (const wchar_t* date : {L"D.M.YYYY", L"AMPM", L"Month", L"Weekday", L"MONTH", L"xyz"}) {
        EXPECT_FALSE(vxFormatDateTime::isTimeFormat(date)) << date;
    }
}

struct OrderCase {
    short orderID;
    short separatorID;
    const wchar_t* order;
    const wchar_t* expected;
};

TEST(vxFormatDateTimeTest, DefaultFormatsFollowTheSettingsAndReadBack) {
    const OrderCase cases[] = {
        {2, 1, L"MDY", L"M/D/YYYY"},
        {3, 2, L"DMY", L"D.M.YYYY"},
        {1, 0, L"YMD", L"YYYY-M-D"},
        {-1, 1, L"YMD", L"YYYY/M/D"},
    };
    const double values[] = {kMonday5Jan2004, kSunday22Feb2004 + 0.4323, -kWednesday31Dec2003};
    for (const OrderCase& c : cases) {
        vxFormatSettings settings;
        settings.setDateOrderID(c.orderID);
        settings.setDateSeparatorID(c.separatorID);
        vxFormatDateTime format(&settings);
        EXPECT_EQ(format.getDefaultFormat(kMonday5Jan2004), c.expected);
        for (double value : values) {
            const std::wstring text = format.toString(value, format.getDefaultFormat(value));
            std::wstring order = c.order;
            vxDateTimeSpecs specs;
            double back = 0;
            ASSERT_EQ(vxDateTime::parseValue(text, order, specs, back), kNoError) << text;
            EXPECT_NEAR(back, std::fabs(value), 1e-9) << text;
        }
    }
}

TEST(vxFormatDateTimeTest, DefaultFormatsOfItemsAndTimes) {
    vxFormatSettings settings;
    settings.setDateOrderID(2);
    settings.setYearFormatID(vxDateFormatID::kYY);
    settings.setMonthFormatID(vxDateFormatID::kMM);
    settings.setDayFormatID(vxDateFormatID::kDD);
    vxFormatDateTime format(&settings);
    EXPECT_EQ(format.getDefaultFormat(kMonday5Jan2004), L"MM/DD/YY");
    settings.setYearFormatID(vxDateFormatID::kYYYY);
    settings.setHourFormatID(vxDateFormatID::khh);
    settings.setTimeSeparatorID(1);
    EXPECT_EQ(format.getDefaultFormat(kMonday5Jan2004 + kNoon), L"MM/DD/YYYY hh'mm");
    EXPECT_EQ(format.getDefaultFormat(kNoon), L"hh'mm");
    vxFormatDateTime plain(nullptr);
    const std::pair<std::vector<double>, const wchar_t*> cases[] = {
        {{kNoon}, L"h:mm"},
        {{0.0}, L"h:mm"},
        {{0.4323}, L"h:mm:ss"},
        {{0.432005}, L"h:mm:ss.z1"},
        {{0.432005, 0.4320025}, L"h:mm:ss.z2"},
        {{0.43200125, kNoon}, L"h:mm:ss.z3"},
        {{kMonday5Jan2004, kSunday22Feb2004}, L"YYYY/M/D"},
        {{kMonday5Jan2004, kNoon}, L"YYYY/M/D h:mm"},
        {{kMonday5Jan2004, -kSunday22Feb2004}, L"YYYY/M/D h:mm"},
        {{kMonday5Jan2004 + kMorning}, L"YYYY/M/D h:mm:ss.z2"},
    };
    for (const auto& [values, expected] : cases) {
        EXPECT_EQ(plain.getDefaultFormat(values), expected) << expected;
    }
}

// Major labels name the unit of their interval or fall back to the values'
// format; minor labels exist only for the listed pairs.
TEST(vxFormatDateTimeTest, TickFormatsByInterval) {
    using F = vxFormatDateTime;
    vxFormatDateTime format(nullptr);
    const std::vector<double> days = {kMonday5Jan2004, kSunday22Feb2004};
    EXPECT_EQ(format.getDefaultFormat(days, F::kYearInterval, 1, 1), L"YYYY");
    EXPECT_EQ(format.getDefaultFormat(days, F::kWeekInterval, F::kDayInterval, 1), L"WY/YYYY");
    EXPECT_EQ(format.getDefaultFormat(days, F::kDayInterval, 1, 1), L"YYYY/M/D");
    EXPECT_EQ(format.getDefaultFormat({kNoon}, F::kHourInterval, 1, 1), L"h:mm");
    EXPECT_EQ(format.getDefaultFormat(days, F::kYearInterval, F::kMonthInterval, 2), L"Mo");
    EXPECT_EQ(format.getDefaultFormat(days, F::kDayInterval, F::kHourInterval, 2), L"h:mm");
    EXPECT_EQ(format.getDefaultFormat(days, F::kYearInterval, F::kDayInterval, 2), L"");
    EXPECT_EQ(format.getDefaultFormat(days, F::kYearInterval, 1, 3), L"");
}

TEST(vxFormatDateTimeTest, Durations) {
    vxFormatDateTime format(nullptr);
    EXPECT_EQ(format.getDurationString(kMonday5Jan2004, kMonday5Jan2004 + 3), L"3");
    EXPECT_EQ(format.getDurationString(kMonday5Jan2004 + 3, kMonday5Jan2004), L"3");
    EXPECT_EQ(format.getDurationString(kNoon, 0.45), L"0:30");
    EXPECT_EQ(format.getDurationString(0.36, 0.43205), L"2:00:05");
    EXPECT_EQ(format.getDurationString(0.36, 0.3600005), L"0:00:00.050");
    // From 09:05:03.250 to noon of the next day.
    const double from = kMonday5Jan2004 + kMorning;
    const double to = -(kMonday5Jan2004 + 1 + kNoon);
    EXPECT_EQ(format.getDurationString(from, to), L"26:54:56.750");
    EXPECT_EQ(format.getDurationString(from, to, L"D/hh:mm:ss.z3"), L"1/02:54:56.750");
    EXPECT_EQ(format.getDurationString(kMonday5Jan2004, kMonday5Jan2004 + 40, L"YYYY-MM-DD"),
              L"0000-00-40");
    EXPECT_EQ(format.getDurationString(kMonday5Jan2004, kMonday5Jan2004 + 3, L"[Month WY DX]"),
              L"[  3RD]");
    EXPECT_EQ(format.getDurationString(kNoon, 0.45, L"a|D"), L"");
    EXPECT_TRUE(format.isError());
}

}  // namespace
}  // namespace Velarix
