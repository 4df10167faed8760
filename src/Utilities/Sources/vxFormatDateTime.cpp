#include "Utilities/Sources/vxFormatDateTime.h"

#include <algorithm>
#include <cmath>

#include "Utilities/Sources/vxDateFormatTokens.h"
#include "Utilities/Sources/vxDateTime.h"
#include "host/vxLog.h"
#include "settings/vxFormatSettings.h"

namespace Velarix {

namespace {

using T = vxDateToken;

bool isAmPm(short token) {
    return token == short(T::kAmPmCapitals) || token == short(T::kAmPm);
}

// Names are stored with capitals where they belong; the capital forms of
// the tokens raise the rest (ASCII and Latin-1 letters).
wchar_t capital(wchar_t c) {
    if ((c >= L'a' && c <= L'z') || (c >= 0xE0 && c <= 0xFE && c != 0xF7)) return wchar_t(c - 32);
    return c == 0xFF ? wchar_t(0x178) : c;
}

// The first `count` characters of name `index`, nothing for an index that
// the table does not hold.
void appendName(const std::vector<std::wstring>& names, long index, size_t count, bool capitals,
                std::wstring& out) {
    if (index < 0 || index >= long(names.size())) return;
    const std::wstring& name = names[size_t(index)];
    const size_t n = std::min(count, name.size());
    for (size_t i = 0; i < n; ++i) out += capitals ? capital(name[i]) : name[i];
}

void appendSuffix(long n, bool capitals, std::wstring& out) {
    const wchar_t* suffix = L"th";
    if (n == 1 || n == 21 || n == 31) suffix = L"st";
    if (n == 2 || n == 22) suffix = L"nd";
    if (n == 3 || n == 23) suffix = L"rd";
    for (const wchar_t* c = suffix; *c; ++c) out += capitals ? capital(*c) : *c;
}

}  // namespace

vxFormatDateTime::vxFormatDateTime(const vxFormatSettings* formatSettings)
    : vxFormat(L"vxFormatDateTime", vxErrFormat::kDateTimeFormat, L""), settings(formatSettings) {
    if (!settings && create(ownSettings, L"vxFormatDateTime")) settings = ownSettings.get();
}

vxFormatDateTime::~vxFormatDateTime() = default;

void vxFormatDateTime::appendNumber(long n, int width, std::wstring& out) {
    wchar_t digits[24];
    int count = 0;
    unsigned long rest =
        n < 0 ? 0UL - static_cast<unsigned long>(n) : static_cast<unsigned long>(n);
    do {
        digits[count++] = wchar_t(L'0' + rest % 10);
        rest /= 10;
    } while (rest);
    if (n < 0) out += L'-';
    if (count < width) out.append(size_t(width - count), L'0');
    while (count) out += digits[--count];
}

bool vxFormatDateTime::isTimeFormat(const std::wstring& specifier) {
    for (size_t at = 0; at < specifier.size(); ++at) {
        const short token = vxMatchDateToken(specifier, at);
        if (token < 0) continue;
        if (vxIsTimeToken(token)) return true;
        at += vxDateTokenTable()[size_t(token)].length - 1;
    }
    return false;
}

short vxFormatDateTime::checkSpecifier(const std::wstring& specifier) const {
    for (size_t at = 0; at < specifier.size(); ++at) {
        if (vxMatchDateToken(specifier, at) >= 0) return 0;
    }
    return specifier.empty() ? 0 : 2;
}

void vxFormatDateTime::keepSpecifier() {
    pieces.clear();
    keptTimeFormat = false;
    for (size_t at = 0; at < formatSpecifier.size();) {
        const short token = vxMatchDateToken(formatSpecifier, at);
        if (token >= 0) {
            const size_t length = vxDateTokenTable()[size_t(token)].length;
            pieces.push_back({token, at, length});
            keptTimeFormat = keptTimeFormat || vxIsTimeToken(token);
            at += length;
        } else if (!pieces.empty() && pieces.back().token < 0) {
            ++pieces.back().length;
            ++at;
        } else {
            pieces.push_back({-1, at++, 1});
        }
    }
}

vxFormatDateTime::Items vxFormatDateTime::itemsOf(double value) {
    Items items;
    const double magnitude = std::fabs(value);
    if (!(magnitude < kBeyondTheCalendar)) return items;
    vxDateTime::Components c;
    vxDateTime::toComponents(magnitude, c);
    items.year = c[vxDateTime::kYear];
    items.month = c[vxDateTime::kMonth];
    items.day = c[vxDateTime::kDay];
    items.hour = c[vxDateTime::kHour];
    items.minute = c[vxDateTime::kMinute];
    items.second = c[vxDateTime::kSecond];
    items.millisecond = c[vxDateTime::kMillisecond];
    items.showsDate = vxDateTime::hasDate(magnitude) &&
                      vxDateTime::isValidDate(items.year, items.month, short(items.day));
    items.showsCalendar = items.showsDate;
    return items;
}

bool vxFormatDateTime::printsValue(double value) const {
    const double magnitude = std::fabs(value);
    if (!(magnitude < kBeyondTheCalendar)) return false;
    return keptTimeFormat || vxDateTime::hasDate(magnitude);
}

void vxFormatDateTime::appendValue(double value, std::wstring& out) {
    appendPieces(itemsOf(value), out);
}

void vxFormatDateTime::appendPieces(const Items& date, std::wstring& out) const {
    for (const Piece& piece : pieces) {
        if (piece.token < 0) {
            out.append(formatSpecifier, piece.start, piece.length);
        } else {
            appendToken(date, piece.token, out);
        }
    }
}

void vxFormatDateTime::appendToken(const Items& date, short token, std::wstring& out) const {
    if (vxIsTimeToken(token) || isAmPm(token)) {
        appendTimeToken(date, token, out);
        return;
    }
    if (!date.showsDate) return;
    switch (T(token)) {
        case T::kYear4:
        case T::kYear2:
        case T::kMonthTwo:
        case T::kMonth:
        case T::kDayTwo:
        case T::kDay:
        case T::kDaySuffixCapitals:
        case T::kDaySuffix:
            appendDateNumber(date, token, out);
            return;
        default:
            if (date.showsCalendar) appendCalendarToken(date, token, out);
    }
}

void vxFormatDateTime::appendTimeToken(const Items& date, short token, std::wstring& out) const {
    const short hour12 = vxDateTime::toHour12(date.hour);
    switch (T(token)) {
        case T::kAmPmCapitals:
            out += date.hour % 24 < 12 ? L"AM" : L"PM";
            return;
        case T::kAmPm:
            out += date.hour % 24 < 12 ? L"am" : L"pm";
            return;
        case T::kHour12Two:
            return appendNumber(hour12, 2, out);
        case T::kHour12:
            return appendNumber(hour12, 1, out);
        case T::kHourTwo:
            return appendNumber(date.hour, 2, out);
        case T::kHour:
            return appendNumber(date.hour, 1, out);
        case T::kMinuteTwo:
            return appendNumber(date.minute, 2, out);
        case T::kMinute:
            return appendNumber(date.minute, 1, out);
        case T::kSecondTwo:
            return appendNumber(date.second, 2, out);
        case T::kSecond:
            return appendNumber(date.second, 1, out);
        // Tenths and hundredths are rounded, but never up into the second.
        case T::kMillisecond1:
            return appendNumber(std::min(std::lround(date.millisecond / 100.0), 9L), 1, out);
        case T::kMillisecond2:
            return appendNumber(std::min(std::lround(date.millisecond / 10.0), 99L), 2, out);
        default:
            return appendNumber(date.millisecond, 3, out);
    }
}

void vxFormatDateTime::appendDateNumber(const Items& date, short token, std::wstring& out) const {
    switch (T(token)) {
        case T::kYear4:
            return appendNumber(date.year, 4, out);
        case T::kYear2:
            return appendNumber(std::labs(date.year) % 100, 2, out);
        case T::kMonthTwo:
            return appendNumber(date.month, 2, out);
        case T::kMonth:
            return appendNumber(date.month, 1, out);
        case T::kDayTwo:
            return appendNumber(date.day, 2, out);
        case T::kDay:
            return appendNumber(date.day, 1, out);
        default:
            appendNumber(date.day, 1, out);
            appendSuffix(date.day, token == short(T::kDaySuffixCapitals), out);
    }
}

void vxFormatDateTime::appendCalendarToken(const Items& date, short token,
                                           std::wstring& out) const {
    const short day = short(date.day);
    const short quarter = short((date.month - 1) / 3 + 1);
    switch (T(token)) {
        case T::kDayOfYearThree:
            return appendNumber(vxDateTime::dayOfYear(date.year, date.month, day), 3, out);
        case T::kDayOfYear:
            return appendNumber(vxDateTime::dayOfYear(date.year, date.month, day), 1, out);
        case T::kWeekTwo:
        case T::kWeek:
            return appendNumber(vxDateTime::weekOfYear(date.year, date.month, day,
                                                       getSettings().getWeekStartIndex()),
                                token == short(T::kWeekTwo) ? 2 : 1, out);
        case T::kQuarter:
            return appendNumber(quarter, 1, out);
        case T::kQuarterSuffixCapitals:
        case T::kQuarterSuffix:
            appendNumber(quarter, 1, out);
            return appendSuffix(quarter, token == short(T::kQuarterSuffixCapitals), out);
        case T::kMonthCapitals:
        case T::kMonthName:
        case T::kShortMonthCapitals:
        case T::kShortMonthName:
        case T::kMonthLetter:
            return appendMonthToken(date, token, out);
        default:
            return appendWeekdayToken(date, token, out);
    }
}

void vxFormatDateTime::appendMonthToken(const Items& date, short token, std::wstring& out) const {
    const vxFormatSettings& s = getSettings();
    const long index = date.month - 1;
    switch (T(token)) {
        case T::kMonthCapitals:
        case T::kMonthName:
            return appendName(s.getMonthNames(), index, std::wstring::npos,
                              token == short(T::kMonthCapitals), out);
        case T::kMonthLetter:
            return appendName(s.getShortMonthNames(), index, 1, false, out);
        default:
            return appendName(s.getShortMonthNames(), index, std::wstring::npos,
                              token == short(T::kShortMonthCapitals), out);
    }
}

// The weekday's index counts from Sunday, as the week start and the name
// tables of the settings do.
void vxFormatDateTime::appendWeekdayToken(const Items& date, short token, std::wstring& out) const {
    const vxFormatSettings& s = getSettings();
    const long fromSunday = (vxDateTime::weekday(date.year, date.month, short(date.day)) + 6) % 7;
    const long name = fromSunday;
    const size_t all = std::wstring::npos;
    switch (T(token)) {
        case T::kWeekdayCapitals:
        case T::kWeekdayName:
            return appendName(s.getWeekdayNames(), name, all, token == short(T::kWeekdayCapitals),
                              out);
        case T::kWeekdayLetter:
            return appendName(s.getShortWeekdayNames(), name, 1, true, out);
        case T::kShortWeekday2Capitals:
        case T::kShortWeekday2:
            return appendName(s.getShortWeekdayNames(), name, 2,
                              token == short(T::kShortWeekday2Capitals), out);
        case T::kShortWeekdayCapitals:
        case T::kShortWeekday:
            return appendName(s.getShortWeekdayNames(), name, all,
                              token == short(T::kShortWeekdayCapitals), out);
        default:
            return appendNumber(((fromSunday - s.getWeekStartIndex()) % 7 + 7) % 7 + 1, 1, out);
    }
}

void vxFormatDateTime::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxFormat::dump(depth, out);
    vxDumpHeader(out, "vxFormatDateTime");
    vxDumpLine(out, "bool isTimeFormat: ", keptTimeFormat);
    vxDumpEnd(out);
}

}  // namespace Velarix
