#include <gtest/gtest.h>

#include <string>

#include "Utilities/Sources/vxDateFormatIDs.h"
#include "Utilities/Sources/vxDateTime.h"
#include "settings/vxErrorCodes.h"

namespace Velarix {
namespace {

using Components = vxDateTime::Components;
constexpr short kFailed = vxErrFormat::kDateTimeFormat;

// Two-digit years are read against 2024.
class vxDateTimeReaderTest : public ::testing::Test {
protected:
    void SetUp() override { vxDateTime::setCurrentYear(2024); }
    void TearDown() override { vxDateTime::setCurrentYear(0); }
};

Components dt(short y, short mo, short d, short h = 0, short mi = 0, short s = 0, short ms = 0) {
    return Components{y, mo, d, h, mi, s, ms, 0};
}
Components hms(short h, short mi, short s = 0, short ms = 0) {
    return dt(0, 0, 0, h, mi, s, ms);
}

struct ReadCase {
    const wchar_t* text;
    const wchar_t* order;
    Components expected;
    const wchar_t* orderAfter = nullptr;  // none: the order stays
};

// parse and verify agree; the order changes only as expected.
void expectReads(const ReadCase& c) {
    std::wstring order = c.order, verifyOrder = c.order;
    Components got{};
    vxDateTimeSpecs specs;
    EXPECT_EQ(vxDateTime::parse(c.text, order, got), kNoError) << c.text;
    EXPECT_EQ(vxDateTime::verify(c.text, verifyOrder, specs), kNoError) << c.text;
    EXPECT_EQ(got, c.expected) << c.text;
    EXPECT_EQ(order, c.orderAfter ? c.orderAfter : c.order) << c.text;
    EXPECT_EQ(verifyOrder, order) << c.text;
}

TEST_F(vxDateTimeReaderTest, DatesInEachOrderAndSeparator) {
    const ReadCase cases[] = {
        {L"2004-5-13", L"YMD", dt(2004, 5, 13)},
        {L"5/13/2004", L"MDY", dt(2004, 5, 13)},
        {L"13.5.2004", L"DMY", dt(2004, 5, 13)},
        {L"12/5/2004", L"DMY", dt(2004, 5, 12)},
        {L"2004/05/13", L"???", dt(2004, 5, 13), L"YMD"},
        {L"2004-5-13", L"???", dt(2004, 5, 13), L"YMD"},
        {L"12/5/2004", L"???", dt(2004, 12, 5), L"??Y"},
        {L"13/5/2004", L"???", dt(2004, 5, 13), L"DMY"},
        {L"5/13/2004", L"???", dt(2004, 5, 13), L"MDY"},
        {L"12/5/2004", L"??Y", dt(2004, 12, 5)},
        {L"13/5/2004", L"??Y", dt(2004, 5, 13), L"DMY"},
        {L"13/5/2004", L"", dt(2004, 5, 13), L"DMY"},
        {L"12/5/2004", L"?DY", dt(2004, 12, 5), L"MDY"},
        {L"12/5/2004", L"\x02", dt(2004, 12, 5), L"??Y"},  // no order at all
        // Two-digit years; three digits or more stand as written.
        {L"5/13/04", L"MDY", dt(2004, 5, 13)},
        {L"13.5.55", L"DMY", dt(1955, 5, 13)},
        {L"54-1-2", L"YMD", dt(2054, 1, 2)},
        {L"45/1/2", L"???", dt(2045, 1, 2), L"YMD"},
        {L"045/1/2", L"???", dt(45, 1, 2), L"YMD"},
        {L"1-2-3", L"???", dt(2003, 1, 2), L"??Y"},
    };
    for (const ReadCase& c : cases) expectReads(c);
}

TEST_F(vxDateTimeReaderTest, Times) {
    struct TimeCase {
        const wchar_t* text;
        short hour, minute, second, millisecond;
    };
    const TimeCase cases[] = {
        {L"13:30", 13, 30, 0, 0},        {L"0:00", 0, 0, 0, 0},
        {L"1:2:3.5", 1, 2, 3, 500},      {L"1:2:3.05", 1, 2, 3, 50},
        {L"1:2:3.123456", 1, 2, 3, 123}, {L"1:2:000003", 1, 2, 3, 0},
        {L"13'30'15", 13, 30, 15, 0},    {L"12:00 am", 0, 0, 0, 0},
        {L"12:00 pm", 12, 0, 0, 0},      {L"12:30AM", 0, 30, 0, 0},
        {L"1:15 Pm", 13, 15, 0, 0},      {L"11:59:59.999 pm", 23, 59, 59, 999},
        {L"24:00", 24, 0, 0, 0},         {L"24:00:00.000", 24, 0, 0, 0},
    };
    for (const TimeCase& c : cases) {
        expectReads({c.text, L"???", hms(c.hour, c.minute, c.second, c.millisecond)});
    }
}

TEST_F(vxDateTimeReaderTest, DatesWithTimes) {
    const ReadCase cases[] = {
        {L"2004-5-12&13:30", L"???", dt(2004, 5, 12, 13, 30), L"YMD"},
        {L"2004-5-12 13:30:01", L"YMD", dt(2004, 5, 12, 13, 30, 1)},
        {L"2004-5-12+13:30", L"YMD", dt(2004, 5, 12, 13, 30)},
        {L"12/5/2004 1:30 pm", L"???", dt(2004, 12, 5, 13, 30), L"??Y"},
        {L"2004-2-28&24:00", L"YMD", dt(2004, 2, 29)},
        {L"2004-12-31&24:00:00", L"YMD", dt(2005, 1, 1)},
    };
    for (const ReadCase& c : cases) expectReads(c);
}

TEST_F(vxDateTimeReaderTest, ImpossibleTextsFailAndLeaveTheOrder) {
    const wchar_t* texts[] = {
        // the calendar and the ranges
        L"2004-2-31", L"2004-2-30", L"2003-2-29", L"1900-2-29", L"2004-13-1", L"2004-0-1", L"25:00",
        L"24:01", L"24:00:01", L"24:00:00.001", L"12:60", L"12:30:60", L"13:00 pm", L"24:00 am",
        L"13/13/2004", L"0/5/2004",
        // separators
        L"1/2/3/4", L"12/5-2004", L"12:30'15", L"1:2:3:4", L"12/5", L"2004", L"12:", L"12:30:",
        L"12//2004", L"/5/2004", L"12:30.5", L"1:2:3.", L"1:2:3.5.6", L"20040-1-1", L"12345:00",
        // joins
        L"2004-5-1213:30", L"2004-5-12&", L"2004-5-12&&13:30", L"2004-5-12 &13:30",
        L"13:30&2004-5-12", L"12:30 5", L"2004-5-12&1330",
        // half days and letters
        L"pm", L"12 pm", L"12:30 p", L"12:30 pmm", L"12:30 ap", L"12:30 pm 5", L"2004-5-12 pm",
        L"12:30 m", L"12/5/2004x", L"1O:30", L"", L"12:30\t"};
    for (const wchar_t* text : texts) {
        for (const wchar_t* pattern : {L"YMD", L"???"}) {
            std::wstring order = pattern;
            Components got = dt(1, 2, 3);
            vxDateTimeSpecs specs;
            EXPECT_EQ(vxDateTime::parse(text, order, got), kFailed) << text;
            EXPECT_EQ(vxDateTime::verify(text, order, specs), kFailed) << text;
            EXPECT_EQ(order, pattern) << text;
            EXPECT_EQ(got, dt(1, 2, 3)) << text;
        }
    }
    // The fields contradict what the order says.
    std::wstring order = L"??Y";
    Components got;
    EXPECT_EQ(vxDateTime::parse(L"2004-5-13", order, got), kFailed);
    EXPECT_EQ(vxDateTime::parse(L"13/5/2004", order = L"MDY", got), kFailed);
}

TEST_F(vxDateTimeReaderTest, SpecsAreFilledOnceAndOnlyByPassingTexts) {
    std::wstring order = L"???";
    vxDateTimeSpecs specs;
    EXPECT_EQ(vxDateTime::verify(L"12:30", order, specs), kNoError);
    EXPECT_EQ(vxDateTime::verify(L"2004.13.5&1'30", order, specs), kFailed);
    EXPECT_EQ(specs.dateSeparatorID, -1);
    EXPECT_EQ(specs.timeSeparatorID, 0);
    EXPECT_EQ(specs.yearFormatID, -1);
    EXPECT_EQ(vxDateTime::verify(L"13.5.04&1'30", order, specs), kNoError);
    EXPECT_EQ(vxDateTime::verify(L"13/5/2004", order, specs), kNoError);
    EXPECT_EQ(specs.dateSeparatorID, 2);
    EXPECT_EQ(specs.timeSeparatorID, 0);
    EXPECT_EQ(specs.yearFormatID, vxDateFormatID::kYY);

    vxDateTimeSpecs other;
    EXPECT_EQ(vxDateTime::verify(L"2004-5-13&1'30", order = L"???", other), kNoError);
    EXPECT_EQ(vxDateTime::verify(L"5/13/04", order = L"???", other), kNoError);
    EXPECT_EQ(other.dateSeparatorID, 0);
    EXPECT_EQ(other.timeSeparatorID, 1);
    EXPECT_EQ(other.yearFormatID, vxDateFormatID::kYYYY);
}

TEST_F(vxDateTimeReaderTest, ParseValueGivesTheStoredForm) {
    struct Case {
        const wchar_t* text;
        double value;
    };
    const Case cases[] = {{L"2000-1-1&12:00", 2451545.432},
                          {L"1/1/2000", 2451545.0},
                          {L"12:00", 0.432},
                          {L"24:00:00", 1.0},
                          {L"2000-1-1&24:00", 2451546.0},
                          {L"1:2:3.5", 0.037235},
                          {L"1/1/99", 2451180.0}};
    for (const Case& c : cases) {
        std::wstring order = L"???";
        vxDateTimeSpecs specs;
        double value = -1.0;
        EXPECT_EQ(vxDateTime::parseValue(c.text, order, specs, value), kNoError) << c.text;
        EXPECT_DOUBLE_EQ(value, c.value) << c.text;
    }
    std::wstring order = L"YMD";
    vxDateTimeSpecs specs;
    double value = -1.0;
    EXPECT_EQ(vxDateTime::parseValue(L"2004-2-30", order, specs, value), kFailed);
    EXPECT_EQ(value, -1.0);
}

TEST(vxDateTimeReader, DateBeforeTime) {
    EXPECT_TRUE(vxDateTime::isDateBeforeTime(L"12/5/2004"));
    EXPECT_TRUE(vxDateTime::isDateBeforeTime(L"2004-5-12&13:30"));
    EXPECT_TRUE(vxDateTime::isDateBeforeTime(L"5.12.2004"));
    EXPECT_FALSE(vxDateTime::isDateBeforeTime(L"1:2:3.5"));
    EXPECT_FALSE(vxDateTime::isDateBeforeTime(L"13'30"));
    EXPECT_FALSE(vxDateTime::isDateBeforeTime(L"12"));
}

}  // namespace
}  // namespace Velarix
