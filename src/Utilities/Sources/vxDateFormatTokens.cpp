#include "Utilities/Sources/vxDateFormatTokens.h"

#include <algorithm>
#include <cwchar>

namespace Velarix {

namespace {

using T = vxDateToken;

constexpr std::array<vxDateTokenEntry, kNumOfDateTokens> kTable{{
    {L"WEEKDAY", 7, T::kWeekdayCapitals},
    {L"Weekday", 7, T::kWeekdayName},
    {L"MONTH", 5, T::kMonthCapitals},
    {L"Month", 5, T::kMonthName},
    {L"AMPM", 4, T::kAmPmCapitals},
    {L"ampm", 4, T::kAmPm},
    {L"YYYY", 4, T::kYear4},
    {L"hh12", 4, T::kHour12Two},
    {L"DDY", 3, T::kDayOfYearThree},
    {L"MON", 3, T::kShortMonthCapitals},
    {L"Mon", 3, T::kShortMonthName},
    {L"WD1", 3, T::kWeekdayLetter},
    {L"WD2", 3, T::kShortWeekday2Capitals},
    {L"WD3", 3, T::kShortWeekdayCapitals},
    {L"WWY", 3, T::kWeekTwo},
    {L"Wd2", 3, T::kShortWeekday2},
    {L"Wd3", 3, T::kShortWeekday},
    {L"h12", 3, T::kHour12},
    {L"DD", 2, T::kDayTwo},
    {L"DX", 2, T::kDaySuffixCapitals},
    {L"Dx", 2, T::kDaySuffix},
    {L"DY", 2, T::kDayOfYear},
    {L"MM", 2, T::kMonthTwo},
    {L"Mo", 2, T::kMonthLetter},
    {L"QX", 2, T::kQuarterSuffixCapitals},
    {L"Qx", 2, T::kQuarterSuffix},
    {L"WY", 2, T::kWeek},
    {L"YY", 2, T::kYear2},
    {L"hh", 2, T::kHourTwo},
    {L"mm", 2, T::kMinuteTwo},
    {L"ss", 2, T::kSecondTwo},
    {L"z1", 2, T::kMillisecond1},
    {L"z2", 2, T::kMillisecond2},
    {L"z3", 2, T::kMillisecond3},
    {L"D", 1, T::kDay},
    {L"M", 1, T::kMonth},
    {L"Q", 1, T::kQuarter},
    {L"W", 1, T::kWeekday},
    {L"h", 1, T::kHour},
    {L"m", 1, T::kMinute},
    {L"s", 1, T::kSecond},
}};

constexpr std::array<short, 11> kTimePositions{7, 17, 28, 29, 30, 31, 32, 33, 38, 39, 40};

constexpr bool inTokenOrder() {
    for (std::size_t i = 0; i < kTable.size(); ++i) {
        if (short(kTable[i].token) != short(i)) return false;
    }
    return true;
}
static_assert(inTokenOrder(), "the table's positions are the tokens' values");

}  // namespace

const std::array<vxDateTokenEntry, kNumOfDateTokens>& vxDateTokenTable() {
    return kTable;
}

const std::array<short, 11>& vxTimeTokenPositions() {
    return kTimePositions;
}

short vxMatchDateToken(const std::wstring& text, std::size_t at) {
    const std::size_t left = text.size() - at;
    for (const vxDateTokenEntry& entry : kTable) {
        if (entry.length <= left && std::wmemcmp(text.data() + at, entry.text, entry.length) == 0) {
            return short(entry.token);
        }
    }
    return -1;
}

bool vxIsTimeToken(short position) {
    return std::find(kTimePositions.begin(), kTimePositions.end(), position) !=
           kTimePositions.end();
}

}  // namespace Velarix
