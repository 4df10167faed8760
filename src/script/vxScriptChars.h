// Character classes of the chart language, on UTF-16 code units.
#pragma once

namespace Velarix::vxScriptChars {

constexpr wchar_t kLineEnd = 0x000D;

inline bool isLineEnd(wchar_t c) {
    return c == kLineEnd;
}
inline bool isBlank(wchar_t c) {
    return c == 0x0020 || c == 0x0009 || c == 0x000B;
}
inline bool isLetter(wchar_t c) {
    return (c >= L'A' && c <= L'Z') || (c >= L'a' && c <= L'z');
}
inline bool isDigit(wchar_t c) {
    return c >= L'0' && c <= L'9';
}
inline bool isNameChar(wchar_t c) {
    return isLetter(c) || isDigit(c);
}
inline bool isHexDigit(wchar_t c) {
    return isDigit(c) || (c >= L'a' && c <= L'f') || (c >= L'A' && c <= L'F');
}
inline int hexValue(wchar_t c) {
    if (isDigit(c)) return c - L'0';
    if (c >= L'a' && c <= L'f') return c - L'a' + 10;
    return c - L'A' + 10;
}

// Characters that open a string.
inline bool isOpeningQuote(wchar_t c) {
    return c == 0x0022 || c == 0x2018 || c == 0x201C || c == 0x201D || c == 0x201E;
}

// Characters that count as quotes when doubled inside a string.
inline bool isQuote(wchar_t c) {
    return isOpeningQuote(c) || c == 0x2019;
}

// Whether `c` closes a string opened by `opening`.
inline bool closesString(wchar_t opening, wchar_t c) {
    switch (opening) {
        case 0x0022:
            return c == 0x0022;
        case 0x2018:
            return c == 0x2019;
        case 0x201C:
            return c == 0x201D || c == 0x201C;
        case 0x201D:
            return c == 0x201D;
        case 0x201E:
            return c == 0x201C;
        default:
            return false;
    }
}

}  // namespace Velarix::vxScriptChars
