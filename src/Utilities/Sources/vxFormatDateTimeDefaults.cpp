// The default formats and the durations of vxFormatDateTime.
#include "Utilities/Sources/vxFormatDateTime.h"

#include <algorithm>
#include <cmath>

#include "Utilities/Sources/vxDateFormatIDs.h"
#include "Utilities/Sources/vxDateTime.h"
#include "settings/vxFormatSettings.h"

namespace Velarix {

namespace {

namespace ID = vxDateFormatID;

constexpr long long kMillisecondsPerDay = 86400000;
// Date order IDs of the settings.
constexpr short kOrderMDY = 2;
constexpr short kOrderDMY = 3;

// What the values of one default format hold.
struct DateTimeNeeds {
    bool date = false;
    bool time = false;
    bool seconds = false;
    short millisecondDigits = 0;

    void add(double value) {
        const double magnitude = std::fabs(value);
        if (!(magnitude < vxFormatDateTime::kBeyondTheCalendar)) return;
        if (value < 0) date = time = true;  // the mark of a date written with a time
        date = date || vxDateTime::hasDate(magnitude);
        if (!vxDateTime::hasTime(magnitude)) return;
        time = true;
        vxDateTime::Components c;
        vxDateTime::toComponents(magnitude, c);
        const short ms = c[vxDateTime::kMillisecond];
        seconds = seconds || c[vxDateTime::kSecond] != 0 || ms != 0;
        const short digits = ms == 0 ? 0 : ms % 100 == 0 ? 1 : ms % 10 == 0 ? 2 : 3;
        millisecondDigits = std::max(millisecondDigits, digits);
    }
};

const wchar_t* dateSeparator(short id) {
    return id == 0 ? L"-" : id == 2 ? L"." : L"/";
}

}  // namespace

// A date format of the settings (SetDateFormat) replaces the derived one.
std::wstring vxFormatDateTime::datePart() const {
    const vxFormatSettings& s = getSettings();
    if (!s.getDateFormat().empty()) return s.getDateFormat();
    const std::wstring year = s.getYearFormatID() == ID::kYY ? L"YY" : L"YYYY";
    const std::wstring month = s.getMonthFormatID() == ID::kMM ? L"MM" : L"M";
    const std::wstring day = s.getDayFormatID() == ID::kDD ? L"DD" : L"D";
    const std::wstring sep = dateSeparator(s.getDateSeparatorID());
    switch (s.getDateOrderID()) {
        case kOrderMDY:
            return month + sep + day + sep + year;
        case kOrderDMY:
            return day + sep + month + sep + year;
        default:
            return year + sep + month + sep + day;
    }
}

// A time format of the settings (SetTimeFormat) replaces the derived one.
std::wstring vxFormatDateTime::timePart(bool seconds, short millisecondDigits) const {
    const vxFormatSettings& s = getSettings();
    if (!s.getTimeFormat().empty()) return s.getTimeFormat();
    const std::wstring sep = s.getTimeSeparatorID() == 1 ? L"'" : L":";
    std::wstring text = s.getHourFormatID() == ID::khh ? L"hh" : L"h";
    text += sep + (s.getMinuteFormatID() == ID::km ? L"m" : L"mm");
    if (seconds) text += sep + (s.getSecondFormatID() == ID::ks ? L"s" : L"ss");
    // The date reader takes milliseconds after a point, whatever the
    // decimal point of the numbers.
    if (millisecondDigits > 0) text += L".z" + std::to_wstring(millisecondDigits);
    return text;
}

std::wstring vxFormatDateTime::getDefaultFormat(double value) const {
    return defaultFormatOf(&value, 1);
}

std::wstring vxFormatDateTime::getDefaultFormat(const std::vector<double>& values) const {
    return defaultFormatOf(values.data(), values.size());
}

std::wstring vxFormatDateTime::defaultFormatOf(const double* values, size_t count) const {
    if (!settings) return std::wstring();
    DateTimeNeeds needs;
    for (size_t i = 0; i < count; ++i) needs.add(values[i]);
    std::wstring text;
    if (needs.date) text = datePart();
    if (needs.date && needs.time) text += L' ';
    if (needs.time || !needs.date) text += timePart(needs.seconds, needs.millisecondDigits);
    return text;
}

std::wstring vxFormatDateTime::getDefaultFormat(const std::vector<double>& values, short majorBase,
                                                short minorBase, short order) const {
    if (order == 1) {
        switch (majorBase) {
            case kYearInterval:
                return L"YYYY";
            case kQuarterInterval:
                return L"Q/YYYY";
            case kMonthInterval:
                return L"M/YYYY";
            case kWeekInterval:
                return L"WY/YYYY";
            default:
                return getDefaultFormat(values);
        }
    }
    if (order != 2) return std::wstring();
    if (majorBase == kYearInterval && minorBase == kQuarterInterval) return L"Q";
    if (majorBase == kYearInterval && minorBase == kMonthInterval) return L"Mo";
    if (majorBase == kMonthInterval && minorBase == kDayInterval) return L"D";
    if (majorBase == kWeekInterval && minorBase == kDayInterval) return L"WD1";
    if (majorBase == kDayInterval && minorBase == kHourInterval) return L"h:mm";
    return std::wstring();
}

// The difference is taken in plain days, where a day is 1, and counted in
// whole milliseconds.
vxFormatDateTime::Items vxFormatDateTime::durationOf(double first, double second) {
    const double days = std::fabs(vxDateTime::toPlainDays(std::fabs(second)) -
                                  vxDateTime::toPlainDays(std::fabs(first)));
    const long long total = std::llround(days * double(kMillisecondsPerDay));
    Items items;
    items.day = long(total / kMillisecondsPerDay);
    long long rest = total % kMillisecondsPerDay;
    items.millisecond = short(rest % 1000);
    items.second = short(rest / 1000 % 60);
    items.minute = short(rest / 60000 % 60);
    items.hour = short(rest / 3600000);
    items.showsDate = true;
    return items;
}

std::wstring vxFormatDateTime::getDurationString(double first, double second) const {
    const Items d = durationOf(first, second);
    if (!vxDateTime::hasTime(std::fabs(first)) && !vxDateTime::hasTime(std::fabs(second))) {
        return std::to_wstring(d.day);
    }
    std::wstring text;
    appendNumber(24 * d.day + d.hour, 1, text);
    text += L':';
    appendNumber(d.minute, 2, text);
    if (d.second != 0 || d.millisecond != 0) {
        text += L':';
        appendNumber(d.second, 2, text);
    }
    if (d.millisecond != 0) {
        text += L'.';
        appendNumber(d.millisecond, 3, text);
    }
    return text;
}

std::wstring vxFormatDateTime::getDurationString(double first, double second,
                                                 const std::wstring& format) {
    if (setFormat(format) != kNoError || !settings) return std::wstring();
    std::wstring text = prefixString;
    appendPieces(durationOf(first, second), text);
    return text + postfixString;
}

}  // namespace Velarix
