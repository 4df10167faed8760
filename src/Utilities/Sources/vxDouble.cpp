#include "Utilities/Sources/vxDouble.h"

#include <locale.h>
#include <stdlib.h>
#include <charconv>
#include <cmath>
#include <limits>

#include <cwctype>

#include "settings/vxErrorCodes.h"

namespace Velarix {

namespace {

// The state of the one pass of the number test.
struct NumberScan {
    long mantissaDigits = 0;
    long exponentDigits = 0;
    bool mantissaSign = false;
    bool exponentSign = false;
    bool point = false;
    bool exponent = false;

    bool accept(wchar_t c) {
        if (c >= L'0' && c <= L'9') {
            ++(exponent ? exponentDigits : mantissaDigits);
            return true;
        }
        if (c == L'+' || c == L'-') return exponent ? acceptExponentSign() : acceptMantissaSign();
        if (c == L'.') return acceptPoint();
        if (c == L'e' || c == L'E') return acceptExponent();
        return false;
    }

    bool acceptMantissaSign() {
        if (mantissaSign || point || mantissaDigits > 0) return false;
        mantissaSign = true;
        return true;
    }

    bool acceptExponentSign() {
        if (exponentSign || exponentDigits > 0) return false;
        exponentSign = true;
        return true;
    }

    bool acceptPoint() {
        if (point || exponent) return false;
        point = true;
        return true;
    }

    bool acceptExponent() {
        if (exponent || mantissaDigits == 0) return false;
        exponent = true;
        return true;
    }

    bool complete() const { return mantissaDigits > 0 && (!exponent || exponentDigits > 0); }
};

}  // namespace

vxDouble::vxDouble(double v) : vxScalar(L"vxDouble", "double value: ", v) {}

std::unique_ptr<vxPrimitive> vxDouble::clone() const {
    return std::make_unique<vxDouble>(value);
}

short vxDouble::testNumber(const std::wstring& token) {
    NumberScan scan;
    for (wchar_t c : token) {
        if (!scan.accept(c)) return vxErrScript::kValue;
    }
    return scan.complete() ? kNoError : vxErrScript::kValue;
}

double vxDouble::toDouble(const std::wstring& token) {
    // The longest prefix that reads as a number, as a stream reads it: blanks
    // first, a sign, digits with one point, then an exponent after a digit.
    // A prefix that doesn't convert whole (like "1e") reads as 0.
    constexpr size_t kMaxChars = 400;
    char chars[kMaxChars + 1];
    size_t n = 0;
    size_t i = 0;
    while (i < token.size() && std::iswspace(static_cast<wint_t>(token[i]))) ++i;
    if (i < token.size() && (token[i] == L'+' || token[i] == L'-')) chars[n++] = char(token[i++]);
    bool mantissa = false, point = false, exponent = false;
    for (; i < token.size() && n < kMaxChars; ++i) {
        const wchar_t c = token[i];
        if (c >= L'0' && c <= L'9') {
            mantissa = mantissa || !exponent;
        } else if (c == L'.' && !point && !exponent) {
            point = true;
        } else if ((c == L'e' || c == L'E') && mantissa && !exponent) {
            exponent = true;
            chars[n++] = 'e';
            if (i + 1 < token.size() && (token[i + 1] == L'+' || token[i + 1] == L'-')) {
                chars[n++] = char(token[++i]);
            }
            continue;
        } else {
            break;
        }
        chars[n++] = char(c);
    }
    chars[n] = '\0';
    static const locale_t cLocale = newlocale(LC_ALL_MASK, "C", locale_t(0));
    char* end = nullptr;
    double v = strtod_l(chars, &end, cLocale);
    if (n == 0 || end != chars + n) return 0.0;
    // Some libraries answer an overflow with an infinity, others with the
    // largest finite value; both come out as the latter.
    if (std::isinf(v)) v = std::copysign(std::numeric_limits<double>::max(), v);
    return v;
}

bool vxDouble::readNumber(std::wstring_view token, double& value) {
    // Longer tokens, and values beyond the range of a double, go the way of
    // testNumber and toDouble.
    constexpr size_t kMaxChars = 64;
    char chars[kMaxChars];
    if (token.empty() || token.size() > kMaxChars) {
        std::wstring text(token);
        const size_t comma = text.find(L',');
        if (comma != std::wstring::npos) text[comma] = L'.';
        if (testNumber(text) != kNoError) return false;
        value = toDouble(text);
        return true;
    }
    NumberScan scan;
    bool comma = false;
    size_t n = 0;
    for (wchar_t c : token) {
        if (c == L',' && !comma) {
            comma = true;
            c = L'.';
        }
        if (!scan.accept(c)) return false;
        chars[n++] = static_cast<char>(c);
    }
    if (!scan.complete()) return false;
    const char* first = chars[0] == '+' ? chars + 1 : chars;
    const auto [end, code] = std::from_chars(first, chars + n, value);
    if (code != std::errc() || end != chars + n) value = toDouble(std::wstring(chars, chars + n));
    return true;
}

}  // namespace Velarix
