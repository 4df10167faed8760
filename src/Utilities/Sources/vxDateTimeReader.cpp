// The date test: one pass over the characters of a date or time text, then
// the checks of the fields it found. The pass allocates nothing, because the
// data input runs it once for every token of a date series.
#include <string>

#include "Utilities/Sources/vxDateFormatIDs.h"
#include "Utilities/Sources/vxDateTime.h"
#include "settings/vxErrorCodes.h"

namespace Velarix {

namespace {

using Components = vxDateTime::Components;

constexpr long kSaturated = 100000;

bool isDigit(wchar_t c) {
    return c >= L'0' && c <= L'9';
}
bool isDateSeparator(wchar_t c) {
    return c == L'/' || c == L'-' || c == L'.';
}
bool isTimeSeparator(wchar_t c) {
    return c == L':' || c == L'\'';
}
bool isJoin(wchar_t c) {
    return c == L'&' || c == L' ' || c == L'+';
}
wchar_t lower(wchar_t c) {
    return (c >= L'A' && c <= L'Z') ? wchar_t(c + (L'a' - L'A')) : c;
}

short dateSeparatorID(wchar_t c) {
    return c == L'-' ? 0 : c == L'/' ? 1 : 2;
}
short timeSeparatorID(wchar_t c) {
    return c == L':' ? 0 : 1;
}

struct Field {
    long value = 0;
    short digits = 0;
};

// The state of the one pass. A field is read into `current` and stored
// where the character that ends it says: a date separator makes it a date
// field, a time separator a time field; a join, a half-day mark or the end
// of the text closes whichever part is open.
struct Scan {
    Field date[3];
    Field time[3];  // hour, minute, second
    long millisecond = 0;
    Field current;
    short dateFields = 0;
    short timeFields = 0;
    wchar_t dateSeparator = 0;
    wchar_t timeSeparator = 0;
    bool dateClosed = false;
    bool dateJoined = false;  // a join after the date, which a time must follow
    bool timeClosed = false;
    bool inMilliseconds = false;
    wchar_t halfPending = 0;  // 'a' or 'p' waiting for its 'm'
    wchar_t half = 0;         // 'a' or 'p' once complete

    bool hasDate() const { return dateClosed; }
    bool hasTime() const { return timeFields > 0; }
    bool halfSeen() const { return halfPending != 0 || half != 0; }

    bool accept(wchar_t c) {
        if (isDateSeparator(c)) return acceptDateSeparator(c);
        if (isTimeSeparator(c)) return acceptTimeSeparator(c);
        if (isJoin(c)) return acceptJoin();
        return acceptLetter(lower(c));
    }

    // A run of digits, all of one field.
    bool acceptDigits(const wchar_t* begin, const wchar_t* end) {
        if (timeClosed || halfSeen()) return false;
        current.digits = short(current.digits + (end - begin));
        if (inMilliseconds) {
            // Only the first three digits count.
            if (end - begin > 3) end = begin + 3;
        } else if (current.digits > 4 && timeFields < 2) {
            // The date fields, the hour and the minute have at most four digits.
            return false;
        }
        for (; begin < end && current.value < kSaturated; ++begin) {
            current.value = current.value * 10 + (*begin - L'0');
        }
        return true;
    }

    bool acceptDateSeparator(wchar_t c) {
        if (inMilliseconds || halfSeen() || timeClosed) return false;
        if (timeFields > 0) {
            // Only "." after the seconds, which begins the milliseconds.
            if (c != L'.' || timeFields != 2) return false;
            if (!closeTimeField()) return false;
            inMilliseconds = true;
            return true;
        }
        if (dateClosed || dateFields == 2) return false;
        if (dateFields == 1 && c != dateSeparator) return false;
        dateSeparator = c;
        return closeDateField();
    }

    bool acceptTimeSeparator(wchar_t c) {
        if (inMilliseconds || halfSeen() || timeClosed) return false;
        // A date before the time must be closed by a join.
        if (dateFields > 0 && !dateClosed) return false;
        if (timeFields == 2) return false;
        if (timeFields == 1 && c != timeSeparator) return false;
        timeSeparator = c;
        return closeTimeField();
    }

    bool acceptJoin() {
        if (halfSeen() || timeClosed) return false;
        if (dateFields == 2 && !dateClosed) {
            dateJoined = true;
            return closeDate();
        }
        if (timeFields > 0) return closeTime();
        return false;
    }

    bool acceptLetter(wchar_t c) {
        if (c == L'a' || c == L'p') {
            if (halfSeen() || timeFields == 0) return false;
            if (!timeClosed && !closeTime()) return false;
            halfPending = c;
            return true;
        }
        if (c != L'm' || halfPending == 0) return false;
        half = halfPending;
        halfPending = 0;
        return true;
    }

    bool closeDateField() {
        if (current.digits == 0) return false;
        date[dateFields++] = current;
        current = Field{};
        return true;
    }

    bool closeDate() {
        dateClosed = true;
        return closeDateField();
    }

    bool closeTimeField() {
        if (current.digits == 0) return false;
        time[timeFields++] = current;
        current = Field{};
        return true;
    }

    // Ends the last field of the time: the minutes, the seconds or the
    // milliseconds, which are read as a fraction of a second.
    bool closeTime() {
        timeClosed = true;
        if (!inMilliseconds) return closeTimeField();
        if (current.digits == 0) return false;
        const short read = current.digits < 3 ? current.digits : short(3);
        millisecond = current.value * (read == 1 ? 100 : read == 2 ? 10 : 1);
        current = Field{};
        return true;
    }

    // The end of the text: a date needs three fields and a time two.
    bool finish() {
        if (halfPending != 0) return false;
        if (!timeClosed && timeFields > 0 && !closeTime()) return false;
        if (dateFields == 2 && !dateClosed && !closeDate()) return false;
        if (current.digits > 0) return false;
        if ((dateFields > 0 && !dateClosed) || (dateJoined && !hasTime())) return false;
        return hasDate() || hasTime();
    }
};

// Hour, minute, second and millisecond with their ranges; 24:00 is the end
// of the day. 12 am is hour 0, 12 pm hour 12.
bool resolveTime(const Scan& scan, Components& out, bool& endOfDay) {
    long hour = scan.time[0].value;
    const long minute = scan.timeFields > 1 ? scan.time[1].value : 0;
    const long second = scan.timeFields > 2 ? scan.time[2].value : 0;
    if (scan.half != 0) {
        if (hour > 12) return false;
        hour = hour % 12 + (scan.half == L'p' ? 12 : 0);
    }
    endOfDay = hour == 24 && minute == 0 && second == 0 && scan.millisecond == 0;
    if ((hour > 23 && !endOfDay) || minute > 59 || second > 59) return false;
    out[vxDateTime::kHour] = short(hour);
    out[vxDateTime::kMinute] = short(minute);
    out[vxDateTime::kSecond] = short(second);
    out[vxDateTime::kMillisecond] = short(scan.millisecond);
    return true;
}

wchar_t orderLetter(const std::wstring& order, size_t i) {
    return i < order.size() ? order[i] : L'?';
}

bool isOrderLetter(wchar_t c) {
    return c == L'Y' || c == L'M' || c == L'D';
}

bool isFixedOrder(const std::wstring& order) {
    return isOrderLetter(orderLetter(order, 0));
}

// The order that the fields a, b, c show by themselves.
bool deduceOrder(const Field (&f)[3], wchar_t (&found)[3]) {
    const wchar_t* text = nullptr;
    if (f[0].digits >= 3 || f[0].value > 31) {
        text = L"YMD";
    } else if (f[0].value > 12 && f[1].value <= 12) {
        text = L"DMY";
    } else if (f[1].value > 12 && f[0].value <= 12) {
        text = L"MDY";
    } else if (f[0].value >= 1 && f[1].value >= 1) {
        text = L"??Y";
    } else {
        return false;
    }
    for (int i = 0; i < 3; ++i) found[i] = text[i];
    return true;
}

// What the fields show, joined with what the pattern already knew; a
// letter of the pattern that the fields contradict fails the text. Other
// characters of the pattern know nothing.
bool mergeOrder(const std::wstring& pattern, wchar_t (&found)[3]) {
    int open = 0, openCount = 0;
    for (size_t i = 0; i < 3; ++i) {
        const wchar_t known = orderLetter(pattern, i);
        if (isOrderLetter(known)) {
            if (found[i] != L'?' && found[i] != known) return false;
            found[i] = known;
        }
        if (found[i] == L'?') {
            open = int(i);
            ++openCount;
        }
    }
    if (openCount != 1) return true;
    // Two letters known name the third.
    for (wchar_t letter : {L'Y', L'M', L'D'}) {
        if (letter != found[(open + 1) % 3] && letter != found[(open + 2) % 3])
            found[open] = letter;
    }
    return true;
}

bool findOrder(const Scan& scan, const std::wstring& order, wchar_t (&found)[3]) {
    if (isFixedOrder(order)) {
        const wchar_t* text = order[0] == L'Y' ? L"YMD" : order[0] == L'M' ? L"MDY" : L"DMY";
        for (int i = 0; i < 3; ++i) found[i] = text[i];
        return true;
    }
    return deduceOrder(scan.date, found) && mergeOrder(order, found);
}

void nextDay(Components& c) {
    using DT = vxDateTime;
    if (++c[DT::kDay] <= DT::daysInMonth(c[DT::kYear], c[DT::kMonth])) return;
    c[DT::kDay] = 1;
    if (++c[DT::kMonth] <= 12) return;
    c[DT::kMonth] = 1;
    ++c[DT::kYear];
}

// Year, month and day in the order found; an order still open reads the
// fields as month, day, year.
bool resolveDate(const Scan& scan, const wchar_t (&found)[3], Components& out, short& yearFormat) {
    // The places of year, month and day among the fields.
    static constexpr int kYMD[3] = {0, 1, 2}, kMDY[3] = {2, 0, 1}, kDMY[3] = {2, 1, 0};
    const int* at = found[0] == L'Y' ? kYMD : found[0] == L'D' ? kDMY : kMDY;
    const Field& yearField = scan.date[at[0]];
    long year = yearField.value;
    if (yearField.digits <= 2) {
        year = vxDateTime::expandTwoDigitYear(year);
        yearFormat = vxDateFormatID::kYY;
    } else {
        yearFormat = vxDateFormatID::kYYYY;
    }
    const short month = short(scan.date[at[1]].value);
    const short day = short(scan.date[at[2]].value);
    if (!vxDateTime::isValidDate(year, month, day)) return false;
    out[vxDateTime::kYear] = short(year);
    out[vxDateTime::kMonth] = month;
    out[vxDateTime::kDay] = day;
    return true;
}

void writeOrder(std::wstring& order, const wchar_t (&found)[3]) {
    if (order.size() != 3) order.resize(3);
    for (size_t i = 0; i < 3; ++i) order[i] = found[i];
}

void fillSpecs(const Scan& scan, short yearFormat, vxDateTimeSpecs& specs) {
    if (scan.hasDate()) {
        if (specs.dateSeparatorID == -1)
            specs.dateSeparatorID = dateSeparatorID(scan.dateSeparator);
        if (specs.yearFormatID == -1) specs.yearFormatID = yearFormat;
    }
    if (scan.hasTime() && specs.timeSeparatorID == -1) {
        specs.timeSeparatorID = timeSeparatorID(scan.timeSeparator);
    }
}

bool scanText(const std::wstring& text, Scan& scan) {
    const wchar_t* p = text.data();
    const wchar_t* const end = p + text.size();
    while (p < end) {
        if (isDigit(*p)) {
            const wchar_t* run = p;
            while (p < end && isDigit(*p)) ++p;
            if (!scan.acceptDigits(run, p)) return false;
        } else if (!scan.accept(*p++)) {
            return false;
        }
    }
    return scan.finish();
}

// The routine behind verify, parse and parseValue. `order` and `specs` are
// changed only when the text passes.
short readDateTime(const std::wstring& text, std::wstring& order, vxDateTimeSpecs& specs,
                   Components& out) {
    constexpr short kFailed = vxErrFormat::kDateTimeFormat;
    Scan scan;
    if (!scanText(text, scan)) return kFailed;
    out.fill(0);
    bool endOfDay = false;
    if (scan.hasTime() && !resolveTime(scan, out, endOfDay)) return kFailed;
    wchar_t found[3] = {L'?', L'?', L'?'};
    short yearFormat = -1;
    if (scan.hasDate()) {
        if (!findOrder(scan, order, found)) return kFailed;
        if (!resolveDate(scan, found, out, yearFormat)) return kFailed;
        if (endOfDay) {
            out[vxDateTime::kHour] = 0;
            nextDay(out);
        }
        if (!isFixedOrder(order)) writeOrder(order, found);
    }
    fillSpecs(scan, yearFormat, specs);
    return kNoError;
}

}  // namespace

bool vxDateTime::isDateBeforeTime(const std::wstring& text) {
    for (wchar_t c : text) {
        if (isDateSeparator(c)) return true;
        if (isTimeSeparator(c)) return false;
    }
    return false;
}

short vxDateTime::verify(const std::wstring& text, std::wstring& order, vxDateTimeSpecs& specs) {
    Components components;
    return readDateTime(text, order, specs, components);
}

short vxDateTime::parse(const std::wstring& text, std::wstring& order, Components& out) {
    vxDateTimeSpecs specs;
    Components components;
    const short code = readDateTime(text, order, specs, components);
    if (code == kNoError) out = components;
    return code;
}

short vxDateTime::parseValue(const std::wstring& text, std::wstring& order, vxDateTimeSpecs& specs,
                             double& value) {
    Components components;
    const short code = readDateTime(text, order, specs, components);
    if (code == kNoError) value = toValue(components);
    return code;
}

}  // namespace Velarix
