#include "Utilities/Sources/vxDateTime.h"

#include <gtest/gtest.h>

#include <time.h>
#include <chrono>
#include <sstream>

namespace Velarix {
namespace {

namespace chr = std::chrono;
using Components = vxDateTime::Components;

// The Julian Day Number of a date, counted by the standard library's calendar.
long chronoJulianDay(const chr::year_month_day& date) {
    return long(chr::sys_days(date).time_since_epoch().count()) + 2440588;
}

Components dateTime(short y, short mo, short d, short h = 0, short mi = 0, short s = 0,
                    short ms = 0) {
    return Components{y, mo, d, h, mi, s, ms, 0};
}

Components componentsOf(double value) {
    Components c;
    vxDateTime::toComponents(value, c);
    return c;
}

TEST(vxDateTimeTest, StoredFormOfKnownValues) {
    EXPECT_DOUBLE_EQ(vxDateTime::toValue(dateTime(2000, 1, 1, 12)), 2451545.432);
    EXPECT_EQ(vxDateTime::julianDay(1970, 1, 1), 2440588);
    EXPECT_EQ(vxDateTime::julianDay(1582, 10, 15), 2299161);
    EXPECT_EQ(vxDateTime::julianDay(0, 1, 1), 1721060);
    EXPECT_DOUBLE_EQ(vxDateTime::toValue(dateTime(0, 0, 0, 12)), 0.432);
    EXPECT_EQ(vxDateTime::toValue(dateTime(0, 0, 0, 24)), 1.0);
    // Components out of range count on into the next month and day.
    EXPECT_EQ(vxDateTime::toValue(dateTime(2004, 2, 30)), vxDateTime::julianDay(2004, 3, 1));
    EXPECT_EQ(vxDateTime::toValue(dateTime(2004, 2, 29, 24)), vxDateTime::julianDay(2004, 3, 1));
    EXPECT_EQ(componentsOf(2451545.432), dateTime(2000, 1, 1, 12));
    EXPECT_EQ(componentsOf(-2451545.432), dateTime(2000, 1, 1, 12));
    EXPECT_EQ(componentsOf(0.86399999), dateTime(0, 0, 0, 23, 59, 59, 999));
    EXPECT_EQ(componentsOf(1.0), dateTime(0, 0, 0, 24));
    EXPECT_EQ(componentsOf(0.0), dateTime(0, 0, 0));
}

TEST(vxDateTimeTest, DayNumberRoundTripMatchesTheStandardCalendar) {
    auto check = [](chr::sys_days day, long ms) {
        const chr::year_month_day date(day);
        const short y = short(int(date.year())), m = short(unsigned(date.month()));
        const short d = short(unsigned(date.day()));
        ASSERT_EQ(vxDateTime::julianDay(y, m, d), chronoJulianDay(date))
            << y << "-" << m << "-" << d;
        const Components c = componentsOf(double(chronoJulianDay(date)) + ms * 1e-8);
        ASSERT_EQ(c, dateTime(y, m, d, short(ms / 3600000), short(ms / 60000 % 60),
                              short(ms / 1000 % 60), short(ms % 1000)));
        ASSERT_EQ(vxDateTime::weekday(y, m, d), (chr::weekday(day).c_encoding() + 1) % 7);
    };
    // Every day around the reform, the leap rules of centuries and today,
    // and a sample from year 0 to the last year a short holds.
    for (int year : {1582, 1600, 1700, 1900, 2000, 2024}) {
        const chr::sys_days first = chr::year(year - 1) / 1 / 1,
                            last = chr::year(year + 1) / 12 / 31;
        for (chr::sys_days day = first; day <= last; day += chr::days(1)) check(day, 43200000);
    }
    const chr::sys_days end = chr::year(32767) / 12 / 31;
    long ms = 0;
    for (chr::sys_days day = chr::year(0) / 1 / 1; day <= end; day += chr::days(97)) {
        check(day, ms);
        ms = (ms + 7654321) % 86400000;
    }
    check(end, 86399999);
}

TEST(vxDateTimeTest, LazyPairComputesEachFormFromTheOther) {
    vxDateTime dt;
    EXPECT_EQ(dt.getValue(), 0.0);
    dt.setValue(2451545.432);
    EXPECT_EQ(dt.getYear() * 100 + dt.getHour(), 200012);
    EXPECT_EQ(dt.getWholeDays(), 2451545);
    dt.setComponents(std::vector<short>{2004, 2, 29, 6});
    EXPECT_DOUBLE_EQ(dt.getValue(), 2453065.216);
    EXPECT_TRUE(dt.hasDate() && dt.hasTime());
    dt.setDate(2004, 3, 1);
    EXPECT_EQ(dt.getValue(), 2453066.0);
    EXPECT_FALSE(dt.hasTime());
    std::vector<short> all;
    dt.getComponents(all);
    EXPECT_EQ(all, (std::vector<short>{2004, 3, 1, 0, 0, 0, 0, 0}));

    std::unique_ptr<vxPrimitive> copy = dt.clone();
    EXPECT_EQ(static_cast<vxDateTime&>(*copy).getValue(), 2453066.0);
    std::ostringstream dump;
    copy->dump(1, dump);
    EXPECT_NE(dump.str().find("vector<short> components: "), std::string::npos);
    EXPECT_NE(dump.str().find("bool hasValue: true"), std::string::npos);
    dt.init();
    EXPECT_EQ(dt.getMonth(), 0);
}

TEST(vxDateTimeTest, DateAndTimeOfStoredValues) {
    EXPECT_TRUE(!vxDateTime::hasDate(0.432) && vxDateTime::hasTime(0.432));
    EXPECT_TRUE(!vxDateTime::hasDate(1.0) && vxDateTime::hasTime(1.0));  // the end of a day
    EXPECT_FALSE(vxDateTime::hasDate(1.0000000000000002));
    EXPECT_TRUE(vxDateTime::hasDate(2451545.0) && !vxDateTime::hasTime(2451545.0));
    EXPECT_TRUE(vxDateTime::hasDate(-2451545.0));
    EXPECT_DOUBLE_EQ(vxDateTime::toPlainDays(2451545.432), 2451545.5);
    EXPECT_DOUBLE_EQ(vxDateTime::toStoredForm(2451545.75), 2451545.648);
}

struct AddCase {
    Components start;
    long hours, minutes, seconds, milliseconds;
    Components expected;
};

TEST(vxDateTimeTest, AddTimeRollsOverBothWays) {
    const AddCase cases[] = {
        {dateTime(2000, 1, 1, 23, 30), 1, 0, 0, 0, dateTime(2000, 1, 2, 0, 30)},
        {dateTime(2000, 1, 1, 0, 30), -1, 0, 0, 0, dateTime(1999, 12, 31, 23, 30)},
        {dateTime(2000, 3, 1, 0, 0), 0, 0, 0, -1, dateTime(2000, 2, 29, 23, 59, 59, 999)},
        {dateTime(2000, 3, 1, 6, 0), -24, 0, 0, 0, dateTime(2000, 2, 29, 6)},
        {dateTime(2000, 3, 1, 6, 0), -54, 0, 0, 0, dateTime(2000, 2, 28, 0)},
        {dateTime(2000, 12, 31, 12), 36, 0, 0, 0, dateTime(2001, 1, 2, 0)},
        {dateTime(2000, 1, 1, 0), 0, 90, 90, 1500, dateTime(2000, 1, 1, 1, 31, 31, 500)},
        {dateTime(0, 0, 0, 23), 2, 0, 0, 0, dateTime(0, 0, 0, 1)},  // a time alone wraps
        {dateTime(0, 0, 0, 1), -2, 0, 0, 0, dateTime(0, 0, 0, 23)},
    };
    for (const AddCase& c : cases) {
        vxDateTime dt;
        dt.setComponents(c.start);
        dt.addTime(c.hours, c.minutes, c.seconds, c.milliseconds);
        Components got;
        dt.getComponents(got);
        EXPECT_EQ(got, c.expected) << c.hours << " h from " << c.start[0] << "-" << c.start[1];
    }
}

TEST(vxDateTimeTest, AddDaysKeepsTheTimeAndTheMark) {
    vxDateTime dt(-(2453065 + 0.216));  // 29 February 2004, 6:00, written with a time
    dt.addDays(366);
    EXPECT_DOUBLE_EQ(dt.getValue(), -(2453431 + 0.216));
    EXPECT_EQ(dt.getMonth(), 3);
    EXPECT_EQ(dt.getDay(), 1);
    vxDateTime time(0.432);
    time.addDays(3);
    EXPECT_EQ(time.getValue(), 0.432);
}

TEST(vxDateTimeTest, CalendarHelpers) {
    EXPECT_TRUE(vxDateTime::isLeapYear(2000) && vxDateTime::isLeapYear(2004));
    EXPECT_FALSE(vxDateTime::isLeapYear(1900) || vxDateTime::isLeapYear(2003));
    EXPECT_EQ(vxDateTime::daysInMonth(2004, 2), 29);
    EXPECT_EQ(vxDateTime::daysInMonth(2100, 2), 28);
    EXPECT_EQ(vxDateTime::daysInMonth(2004, 13), 0);
    EXPECT_FALSE(vxDateTime::isValidDate(2004, 4, 31) || vxDateTime::isValidDate(2004, 4, 0));
    EXPECT_EQ(vxDateTime::dayOfYear(2004, 3, 1), 61);
    EXPECT_EQ(vxDateTime::dayOfYear(2003, 3, 1), 60);
    EXPECT_EQ(vxDateTime::dayOfYear(2004, 12, 31), 366);
    EXPECT_EQ(vxDateTime::weekday(2000, 1, 1), 0);  // a Saturday
    EXPECT_EQ(vxDateTime::weekday(1776, 7, 4), 5);  // a Thursday
    const short hours[] = {0, 1, 11, 12, 13, 23}, hours12[] = {12, 1, 11, 12, 1, 11};
    for (int i = 0; i < 6; ++i) EXPECT_EQ(vxDateTime::toHour12(hours[i]), hours12[i]);
}

struct WeekCase {
    short year, month, day, mondayWeek, sundayWeek;
};

TEST(vxDateTimeTest, WeekOfYearHoldsFourDaysOfItsYear) {
    const WeekCase cases[] = {
        {2021, 1, 1, 53, 53}, {2020, 12, 31, 53, 53}, {2024, 12, 30, 1, 1}, {2024, 12, 31, 1, 1},
        {2016, 1, 3, 53, 1},  {2015, 12, 31, 53, 52}, {2026, 1, 1, 1, 53},  {2010, 1, 3, 53, 1},
        {2010, 1, 4, 1, 1},   {2008, 12, 29, 1, 53},  {2000, 1, 1, 52, 52},
    };
    for (const WeekCase& c : cases) {
        EXPECT_EQ(vxDateTime::weekOfYear(c.year, c.month, c.day, 1), c.mondayWeek)
            << c.year << "-" << c.month << "-" << c.day;
        EXPECT_EQ(vxDateTime::weekOfYear(c.year, c.month, c.day, 0), c.sundayWeek)
            << c.year << "-" << c.month << "-" << c.day;
    }
    // Over many years: the fourth day of a week tells its year and number.
    for (chr::sys_days day = chr::year(1995) / 1 / 1; day <= chr::year(2035) / 12 / 31;
         day += chr::days(1)) {
        for (short start : {0, 1}) {
            const int place = (int(chr::weekday(day).c_encoding()) - start + 7) % 7;
            const chr::sys_days fourth = day - chr::days(place) + chr::days(3);
            const chr::year_month_day f(fourth), d(day);
            const int week = (fourth - chr::sys_days(f.year() / 1 / 1)).count() / 7 + 1;
            ASSERT_EQ(vxDateTime::weekOfYear(int(d.year()), short(unsigned(d.month())),
                                             short(unsigned(d.day())), start),
                      week);
        }
    }
}

TEST(vxDateTimeTest, TwoDigitYearsFollowTheCurrentYear) {
    struct Case {
        long current, written, expanded;
    };
    const Case cases[] = {{2024, 54, 2054}, {2024, 55, 1955}, {2024, 0, 2000},  {2024, 99, 1999},
                          {2005, 35, 2035}, {2005, 36, 1936}, {2080, 10, 2010}, {2080, 99, 2099}};
    for (const Case& c : cases) {
        vxDateTime::setCurrentYear(c.current);
        EXPECT_EQ(vxDateTime::expandTwoDigitYear(c.written), c.expanded) << c.written;
    }
    vxDateTime::setCurrentYear(0);
    const time_t now = time(nullptr);
    struct tm local {};
    localtime_r(&now, &local);
    EXPECT_EQ(vxDateTime::currentYear(), local.tm_year + 1900);
}

}  // namespace
}  // namespace Velarix
