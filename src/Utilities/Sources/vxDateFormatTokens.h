// The tokens of a date format, in the order in which they are tried at each
// place of a format text: a longer token comes before every token that
// begins it ("MONTH" before "MON" before "M"). A token's position in the
// table is its value in vxDateToken.
#pragma once

#include <array>
#include <cstddef>
#include <string>

namespace Velarix {

enum class vxDateToken : short {
    kWeekdayCapitals,        // "WEEKDAY"
    kWeekdayName,            // "Weekday"
    kMonthCapitals,          // "MONTH"
    kMonthName,              // "Month"
    kAmPmCapitals,           // "AMPM": "AM", "PM"
    kAmPm,                   // "ampm": "am", "pm"
    kYear4,                  // "YYYY"
    kHour12Two,              // "hh12"
    kDayOfYearThree,         // "DDY"
    kShortMonthCapitals,     // "MON"
    kShortMonthName,         // "Mon"
    kWeekdayLetter,          // "WD1"
    kShortWeekday2Capitals,  // "WD2"
    kShortWeekdayCapitals,   // "WD3"
    kWeekTwo,                // "WWY"
    kShortWeekday2,          // "Wd2"
    kShortWeekday,           // "Wd3"
    kHour12,                 // "h12"
    kDayTwo,                 // "DD"
    kDaySuffixCapitals,      // "DX": "22ND"
    kDaySuffix,              // "Dx": "22nd"
    kDayOfYear,              // "DY"
    kMonthTwo,               // "MM"
    kMonthLetter,            // "Mo"
    kQuarterSuffixCapitals,  // "QX": "1ST"
    kQuarterSuffix,          // "Qx": "1st"
    kWeek,                   // "WY"
    kYear2,                  // "YY"
    kHourTwo,                // "hh"
    kMinuteTwo,              // "mm"
    kSecondTwo,              // "ss"
    kMillisecond1,           // "z1": tenths
    kMillisecond2,           // "z2": hundredths
    kMillisecond3,           // "z3"
    kDay,                    // "D"
    kMonth,                  // "M"
    kQuarter,                // "Q"
    kWeekday,                // "W": 1 for the first day of the week
    kHour,                   // "h"
    kMinute,                 // "m"
    kSecond,                 // "s"
};

struct vxDateTokenEntry {
    const wchar_t* text;
    std::size_t length;
    vxDateToken token;
};

constexpr std::size_t kNumOfDateTokens = 41;

// The table, in token order.
const std::array<vxDateTokenEntry, kNumOfDateTokens>& vxDateTokenTable();
// The positions of the tokens that make a format a time format: the hour,
// minute, second and millisecond tokens.
const std::array<short, 11>& vxTimeTokenPositions();

// The token that stands at `at` in the text, the first of the table that
// fits; -1 when none does.
short vxMatchDateToken(const std::wstring& text, std::size_t at);
bool vxIsTimeToken(short position);

}  // namespace Velarix
