// A date, a time or both, kept in the engine's stored form: one double whose
// whole part is the Julian Day Number (2451545 is 1 January 2000) and whose
// fraction is the milliseconds since midnight times 1e-8, so that a full day
// is 0.864 and the fraction never reaches 1. A whole part of 0 is a time
// without a date; 1.0 exactly is the end of a day ("24:00"). A negative
// value marks a date written with a time: its magnitude is the value.
//
// The object holds the value and its components (year, month, day, hour,
// minute, second, millisecond and a spare that is always 0) as a lazy pair:
// each form is computed from the other when it is asked for.
#pragma once

#include <array>
#include <ostream>
#include <string>
#include <vector>

#include "Utilities/Sources/vxPrimitive.h"

namespace Velarix {

// What the date reader learns of a text the first time it sees each item;
// -1 until then. Date separators: "-" 0, "/" 1, "." 2. Time separators:
// ":" 0, "'" 1. Year format: vxDateFormatID::kYYYY for a year of three digits
// or more, vxDateFormatID::kYY for one of one or two digits.
struct vxDateTimeSpecs {
    short dateSeparatorID = -1;
    short timeSeparatorID = -1;
    short yearFormatID = -1;
};

class vxDateTime : public vxPrimitive {
public:
    enum Component : int {
        kYear = 0,
        kMonth,
        kDay,
        kHour,
        kMinute,
        kSecond,
        kMillisecond,
        kSpare,
        kNumOfComponents
    };
    using Components = std::array<short, kNumOfComponents>;

    static constexpr double kMillisecondsPerDay = 86400000.0;
    // The stored fraction of a full day: 86400000 ms times 1e-8.
    static constexpr double kStoredDay = 0.864;
    static constexpr long kJulianDayOf2000 = 2451545;

    vxDateTime();
    explicit vxDateTime(double value);

    Kind getKind() const override { return Kind::DateTime; }
    std::unique_ptr<vxPrimitive> clone() const override;
    void dump(short depth, std::ostream& out) const override;

    // Everything 0, neither form current.
    void init();

    double getValue();
    long getWholeDays();
    void getComponents(Components& out);
    void getComponents(std::vector<short>& out);  // size 8
    short getYear();
    short getMonth();
    short getDay();
    short getHour();
    short getMinute();
    short getSecond();
    short getMillisecond();
    bool hasDate();
    bool hasTime();

    void setValue(double value);
    void setComponents(const Components& components);
    void setComponents(const std::vector<short>& components);  // missing ones are 0
    // The date alone: the time becomes 0.
    void setDate(short year, short month, short day);

    void addDays(long days);
    // Adds a time span; a total below 0 or beyond a day moves the date.
    void addTime(long hours, long minutes, long seconds, long milliseconds);

    // On stored values.
    static bool hasDate(double value);  // value > 1 + machine epsilon
    static bool hasTime(double value);  // the fraction is not 0
    // Plain days: whole + fraction / 0.864; the stored form back from them.
    static double toPlainDays(double stored);
    static double toStoredForm(double plainDays);
    static double toValue(const Components& components);
    static void toComponents(double value, Components& out);

    // Calendar helpers on plain numbers. Years before the Gregorian reform
    // are treated as Gregorian.
    static bool isLeapYear(long year);
    static short daysInMonth(long year, short month);  // 0 for a month out of 1..12
    static bool isValidDate(long year, short month, short day);
    static short dayOfYear(long year, short month, short day);  // 1 for 1 January
    // 0 Saturday, 1 Sunday, ... 6 Friday. The name index of the settings'
    // tables, whose first name is Sunday's, is (weekday + 6) % 7.
    static short weekday(long year, short month, short day);
    // The week that holds at least four days of its year; weekStart is the
    // name index of the first day of a week (0 Sunday, 1 Monday).
    static short weekOfYear(long year, short month, short day, short weekStart);
    static long julianDay(long year, short month, short day);
    static short toHour12(short hour);  // 0 and 12 give 12
    // The year of the clock, or the one fixed by setCurrentYear.
    static long currentYear();
    // Fixes the year that two-digit years are expanded against; 0 returns
    // to the clock. For tests.
    static void setCurrentYear(long year);
    // A year written with one or two digits, expanded by the current year c:
    // above c % 100 + 30 it lies in the century before c's, else in c's.
    static long expandTwoDigitYear(long year);

    // True when the first separator in the text is a date separator
    // ("-", "/", "."), before any time separator (":", "'").
    static bool isDateBeforeTime(const std::wstring& text);

    // The date test. Reads a date, a time, or a date and a time joined by
    // "&" or a blank ("12/5/2004", "2004-5-12&13:30", "1:2:3.5", "12:00 pm",
    // "24:00"). `order` is "YMD", "MDY", "DMY" or a pattern holding "?"
    // ("???", "??Y"), which is refined by what the fields show. `specs` gets
    // the separators and year format the first time each is seen; a failing
    // text leaves it as it was. Returns 0 or 2002 (vxErrFormat::kDateTimeFormat).
    static short verify(const std::wstring& text, std::wstring& order, vxDateTimeSpecs& specs);
    // As verify, and delivers the components. An order left open after the
    // fields are read ("??Y") reads them as month, day, year.
    static short parse(const std::wstring& text, std::wstring& order, Components& out);
    // As parse, and delivers the stored value (positive; the caller puts the
    // mark of a date with a time).
    static short parseValue(const std::wstring& text, std::wstring& order, vxDateTimeSpecs& specs,
                            double& value);

private:
    void updateValue();
    void updateComponents();
    short getComponent(Component index);

    Components components{};
    double value = 0.0;
    bool hasComponents = false;
    bool hasValue = false;
};

}  // namespace Velarix
