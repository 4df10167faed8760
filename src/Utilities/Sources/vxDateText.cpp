#include "Utilities/Sources/vxDateText.h"

namespace Velarix {

namespace {

bool isDateSeparator(wchar_t c) {
    return c == L'/' || c == L'-' || c == L'.';
}
bool isTimeSeparator(wchar_t c) {
    return c == L':' || c == L'\'';
}

struct Shape {
    int dateSeparators = 0;
    int timeSeparators = 0;
    wchar_t dateSeparator = 0;
    wchar_t timeSeparator = 0;
    int digitsInRow = 0;
    bool timeBegun = false;
    bool dateClosed = false;
    bool inMilliseconds = false;
    bool halfSeen = false;
    bool halfPending = false;
};

bool acceptDateSeparator(Shape& s, wchar_t c) {
    if (s.timeBegun) {
        // "." after the seconds begins the milliseconds.
        if (c != L'.' || s.timeSeparators != 2 || s.inMilliseconds) return false;
        s.inMilliseconds = true;
        return true;
    }
    if (s.dateClosed || s.dateSeparators == 2) return false;
    if (s.dateSeparators == 1 && c != s.dateSeparator) return false;
    s.dateSeparator = c;
    ++s.dateSeparators;
    return true;
}

bool acceptTimeSeparator(Shape& s, wchar_t c) {
    if (s.timeSeparators == 2 || s.inMilliseconds) return false;
    if (s.dateSeparators == 1) return false;
    if (s.timeSeparators == 1 && c != s.timeSeparator) return false;
    if (s.dateSeparators == 2) s.dateClosed = true;
    s.timeSeparator = c;
    s.timeBegun = true;
    ++s.timeSeparators;
    return true;
}

bool acceptJoin(Shape& s) {
    if (s.dateSeparators == 2 && !s.timeBegun) {
        s.dateClosed = true;
        return true;
    }
    return s.timeBegun && (s.dateSeparators == 0 || s.dateSeparators == 2);
}

bool acceptLetter(Shape& s, wchar_t c) {
    wchar_t lower = static_cast<wchar_t>(c | 0x20);
    if (lower == L'a' || lower == L'p') {
        if (!s.timeBegun || s.halfSeen) return false;
        s.halfSeen = s.halfPending = true;
        return true;
    }
    if (lower == L'm' && s.halfPending) {
        s.halfPending = false;
        return true;
    }
    return false;
}

}  // namespace

bool vxIsDateText(const std::wstring& text) {
    Shape s;
    for (wchar_t c : text) {
        bool ok = true;
        if (c >= L'0' && c <= L'9') {
            if (s.halfSeen) return false;
            if (++s.digitsInRow > 4 && !s.inMilliseconds) return false;
            continue;
        }
        s.digitsInRow = 0;
        if (isDateSeparator(c)) {
            ok = acceptDateSeparator(s, c);
        } else if (isTimeSeparator(c)) {
            ok = acceptTimeSeparator(s, c);
        } else if (c == L'&' || c == L' ') {
            ok = s.halfSeen || acceptJoin(s);
        } else {
            ok = acceptLetter(s, c);
        }
        if (!ok) return false;
    }
    if (s.halfPending) return false;
    return s.dateSeparators == 2 || (s.dateSeparators == 0 && s.timeSeparators >= 1);
}

}  // namespace Velarix
