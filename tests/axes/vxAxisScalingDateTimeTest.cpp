#include <gtest/gtest.h>

#include <cstdio>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "Utilities/Sources/vxDateTime.h"
#include "axes/vxAxisScaling.h"
#include "axes/vxAxisScalingTestSupport.h"

namespace Velarix {
namespace {

// "2004-03-31", "2004-03-31T12:30" or "12:30" in plain days.
double dayOf(const std::string& text) {
    int y = 0, mo = 0, d = 0, h = 0, mi = 0;
    if (text.find('-') == std::string::npos) {
        std::sscanf(text.c_str(), "%d:%d", &h, &mi);
    } else {
        std::sscanf(text.c_str(), "%d-%d-%dT%d:%d", &y, &mo, &d, &h, &mi);
    }
    const double day = y == 0 ? 0.0 : double(vxDateTime::julianDay(y, short(mo), short(d)));
    return day + (h * 60 + mi) / 1440.0;
}

std::vector<double> daysOf(const char* text) {
    std::istringstream in(text);
    std::vector<double> days;
    for (std::string word; in >> word;) days.push_back(dayOf(word));
    return days;
}

// What a date axis gets: the data's first and last value, the largest
// count, Scaling's counts (keywords negative) and flags, given limits.
struct DateRow {
    const char* name;
    const char* data;
    long maxN;
    long count, minor;
    int flags;  // kTime, kBar
    const char* given;
    short kinds[2];  // the major and minor kind made
    long numOfMinors;
    const char* major;  // the ticks, or null
};
constexpr int kTime = 1, kBar = 2;

std::unique_ptr<vxAxisScaling> dateScale(const DateRow& row) {
    const std::vector<double> data = daysOf(row.data), given = daysOf(row.given);
    auto scale = std::make_unique<vxAxisScaling>();
    scale->setMinDataUC(data[0]);
    scale->setMaxDataUC(data[1]);
    scale->setMaxNumOfMajorIntervals(row.maxN);
    scale->setHasDateComponents(data[1] > 1.0);
    scale->setHasTimeComponents((row.flags & kTime) != 0);
    scale->setIsBarOrAreaDateTimeChart((row.flags & kBar) != 0);
    scale->setOrigNumOfMajorIntervals(row.count);
    scale->setOrigNumOfMinorIntervals(row.minor);
    scale->setOrigMajorScalingBase(short(row.count < 0 ? row.count - 1 : 1));
    scale->setOrigMinorScalingBase(short(row.minor < 0 ? row.minor - 1 : 1));
    scale->setOrigHasPredefinedMinUC(!given.empty());
    scale->setOrigHasPredefinedMaxUC(!given.empty());
    if (!given.empty()) {
        scale->setOrigMinUC(vxDateTime::toStoredForm(given[0]));
        scale->setOrigMaxUC(vxDateTime::toStoredForm(given[1]));
    }
    scale->setMinDC(0.0f);
    scale->setMaxDC(600.0f);
    scale->setUp(1, vxAxisScaling::kDateTimeAxis);
    return scale;
}

// Worked by hand. A line chart's data without time end one day later (the
// last day whole), and one more for kinds of a week or longer (the last
// unit whole); ticks run up to the first that reaches that end. On a day
// axis the limit then steps back to the last day.
// clang-format off
const DateRow kDateRows[] = {
    // 1095 days: 34.8 months are under 40, not under 25; 3 years are.
    {"three years, 25", "2001-01-01 2003-12-31", 25, 0, 0, 0, "", {-2, 1}, 0,
     "2001-01-01 2002-01-01 2003-01-01 2004-01-01 2005-01-01"},
    {"three years, 40", "2001-01-01 2003-12-30", 40, 0, 0, 0, "", {-4, 1}, 0, nullptr},
    // 31 days: 30.5 is under 40, not under 25.
    {"a month, 40", "2004-03-01 2004-03-31", 40, 0, 0, 0, "", {-6, 1}, 0, nullptr},
    {"a month, 25", "2004-03-01 2004-03-31", 25, 0, 0, 0, "", {-4, 1}, 0,
     "2004-03-01 2004-04-01 2004-05-01"},
    {"month ending mid", "2004-01-05 2004-03-15", 25, -3, 0, 0, "", {-4, 1}, 0,
     "2004-01-01 2004-02-01 2004-03-01 2004-04-01"},
    {"month ending last day", "2004-01-05 2004-03-31", 25, -3, 0, 0, "", {-4, 1}, 0,
     "2004-01-01 2004-02-01 2004-03-01 2004-04-01 2004-05-01"},
    {"days of a line", "2004-01-01 2004-01-05", 25, 0, 0, 0, "", {-6, 1}, 0,
     "2004-01-01 2004-01-02 2004-01-03 2004-01-04 2004-01-05"},
    {"days of bars", "2004-01-01 2004-01-04", 25, 0, 0, kBar, "", {-6, 1}, 0,
     "2004-01-01 2004-01-02 2004-01-03 2004-01-04 2004-01-05"},
    // All equal: a day on each side; with a time an hour, 7200 s: 24 - 0.5
    // five minutes are not under 12, 8 - 0.5 quarter hours are.
    {"one date", "2004-01-01 2004-01-01", 25, 0, 0, 0, "", {-6, 1}, 0,
     "2003-12-31 2004-01-01 2004-01-02"},
    {"one time", "2004-01-01T12:00 2004-01-01T12:00", 12, 0, 0, kTime, "", {-10, 1}, 0,
     "2004-01-01T11:00 2004-01-01T11:15 2004-01-01T11:30 2004-01-01T11:45 2004-01-01T12:00 "
     "2004-01-01T12:15 2004-01-01T12:30 2004-01-01T12:45 2004-01-01T13:00"},
    // 11 h 40 min: 46.2 quarter hours, 11.2 hours.
    {"times", "6:10 17:50", 25, 0, 0, kTime, "", {-7, 1}, 0,
     "6:00 7:00 8:00 9:00 10:00 11:00 12:00 13:00 14:00 15:00 16:00 17:00 18:00"},
    // 116 years, no kind under 25: years, by 1, 2, 5: 116 / 5 + 1 = 24.2.
    {"decades", "1903-06-01 2019-06-01", 25, 0, 0, 0, "", {-2, 1}, 0, nullptr},
    {"year and month", "2004-02-01 2004-11-30", 1000, -1, -3, 0, "", {-2, -4}, 11,
     "2004-01-01 2005-01-01"},
    {"quarter and month", "2004-02-01 2004-05-15", 1000, -2, -3, 0, "", {-3, -4}, 4,
     "2004-01-01 2004-04-01 2004-07-01"},
    // 1 January 2004 is a Thursday; weeks start on Sunday.
    {"week and day", "2004-01-01 2004-01-09", 1000, -4, -5, 0, "", {-5, -6}, 12,
     "2003-12-28 2004-01-04 2004-01-11"},
    {"day and hour", "2004-01-01 2004-01-02T12:00", 1000, -5, -6, kTime, "", {-6, -7}, 46,
     "2004-01-01 2004-01-02 2004-01-03"},
    // An automatic major finer than its minor takes the minor's kind; the
    // year keyword makes years without minors.
    {"minor month over days", "2004-01-01 2004-01-20", 25, 0, -3, 0, "", {-4, 1}, 0,
     "2004-01-01 2004-02-01"},
    {"minor year", "2004-01-01 2006-05-01", 25, 0, -1, 0, "", {-2, -1}, 0,
     "2004-01-01 2005-01-01 2006-01-01 2007-01-01"},
    // Given limits stay; the ticks beyond them go.
    {"given limits", "2004-01-20 2004-03-20", 25, -3, 0, 0, "2004-01-15 2004-03-15", {-4, 1}, 0,
     "2004-02-01 2004-03-01"},
    // More intervals than seconds: even parts.
    {"plain", "2004-01-01T12:00 2004-01-01T12:01", 25, 100, 0, kTime,
     "2004-01-01T12:00 2004-01-01T12:01", {-1, 1}, 0, nullptr},
};
// clang-format on

TEST(vxAxisScalingDateTimeTest, KindsTicksAndLimits) {
    for (const DateRow& row : kDateRows) {
        SCOPED_TRACE(row.name);
        auto scale = dateScale(row);
        ASSERT_EQ(vxErrorAt(*scale), L"");
        EXPECT_EQ(scale->getMajorScalingBase(), row.kinds[0]);
        EXPECT_EQ(scale->getMinorScalingBase(), row.kinds[1]);
        EXPECT_EQ(scale->getNumOfMinorValues(), row.numOfMinors);
        long minors = 0;
        for (long n : scale->getNumOfMinorDateTimeIntervals()) minors += n;
        EXPECT_EQ(minors, row.numOfMinors);
        if (!row.major) continue;
        const std::vector<double> major = daysOf(row.major);
        const std::vector<double> limits = *row.given ? daysOf(row.given) : major;
        ASSERT_EQ(scale->getNumOfMajorValues(), long(major.size()));
        for (size_t i = 0; i < major.size(); ++i) {
            EXPECT_NEAR(scale->getMajorValue(long(i)), major[i], 1e-9) << i;
        }
        EXPECT_EQ(scale->getNumOfMajorIntervals(), long(major.size()) - 1);
        EXPECT_NEAR(scale->getMinUC(), limits.front(), 1e-9);
        EXPECT_NEAR(scale->getMaxUC(), limits.back(), 1e-9);
    }
}

TEST(vxAxisScalingDateTimeTest, LongRunsAndYearIncrements) {
    auto scale = dateScale(kDateRows[1]);
    EXPECT_EQ(scale->getNumOfMajorValues(), 37);  // January 2001 to January 2004
    EXPECT_NEAR(scale->getMaxUC(), dayOf("2004-01-01"), 1e-9);
    scale = dateScale(kDateRows[2]);
    EXPECT_EQ(scale->getNumOfMajorValues(), 31);  // 1 to 31 March
    scale = dateScale(kDateRows[std::size(kDateRows) - 1]);
    EXPECT_EQ(scale->getNumOfMajorValues(), 101);
    EXPECT_NEAR(scale->getMajorValue(50), dayOf("2004-01-01T12:00") + 30 / 86400.0, 1e-9);
    scale = dateScale(kDateRows[11]);
    EXPECT_EQ(scale->getYearIncrement(), 5);
    EXPECT_NEAR(scale->getMinUC(), dayOf("1900-01-01"), 1e-9);
    EXPECT_NEAR(scale->getMaxUC(), dayOf("2020-01-01"), 1e-9);
}

TEST(vxAxisScalingDateTimeTest, KindsThatDoNotFitRaiseError2100) {
    const DateRow rows[] = {
        {"date step on times", "6:00 18:00", 25, -5, 0, kTime, "", {}, 0, nullptr},
        {"count with a minor kind", "2004-01-01 2004-03-01", 25, 4, -5, 0, "", {}, 0, nullptr},
        {"second over a day", "2004-01-01 2004-01-02", 25, -18, 0, kTime, "", {}, 0, nullptr},
        {"minutes of a month", "2004-01-01 2004-01-31", 25, -5, -12, kTime, "", {}, 0, nullptr},
    };
    const wchar_t* locations[] = {L"verifyDateTimeScales/1", L"verifyDateTimeScales/2",
                                  L"setUpMajorDateTimeScalingValues/18",
                                  L"setUpMinorDateTimeScalingValues/1"};
    for (size_t i = 0; i < std::size(rows); ++i) {
        auto scale = dateScale(rows[i]);
        EXPECT_EQ(vxErrorAt(*scale), std::wstring(L"2100 vxAxisScaling/") + locations[i]);
        EXPECT_LE(scale->getNumOfMajorValues(), 5000);
        EXPECT_LE(scale->getNumOfMinorValues(), vxAxisScaling::kMaxNumOfMinorValues);
    }
}

}  // namespace
}  // namespace Velarix
