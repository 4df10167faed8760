// The default number format and the aligned columns of vxFormatNumber.
#include "Utilities/Sources/vxFormatNumber.h"

#include <algorithm>
#include <charconv>
#include <climits>
#include <cmath>
#include <string>
#include <string_view>

namespace Velarix {

namespace {

constexpr double kEpsilon = 2.220446049250313e-16;
// The default limits of a series; the invalid value lies outside them.
constexpr double kDefaultLimit = 1.7797162035136925e+308;
constexpr int kMaxDecimals = 9;

// What the values of a default format need, gathered one value at a time.
class DefaultFormatScan {
public:
    void add(double value) {
        int x = int(std::floor(std::log10(std::fabs(value))));
        char chars[32];
        const auto result =
            std::to_chars(chars, chars + sizeof chars, std::fabs(value) / std::pow(10.0, x),
                          std::chars_format::general, 9);
        int digits = int(std::count_if(chars, result.ptr, [](char c) { return c != '.'; }));
        if (std::string_view(chars, result.ptr) == "10") {  // rounded up to the next power
            ++x;
            digits = 1;
        }
        take(x, digits);
    }

    std::wstring result() const {
        switch (mode) {
            case Mode::Fixed:
                return L"f" + std::to_wstring(std::min({largestF, limit, kMaxDecimals}));
            case Mode::Exponent:
                return L"e" + std::to_wstring(std::min(largestD - 1, kMaxDecimals));
            default:
                return L"u";
        }
    }

private:
    enum class Mode { Plain, Fixed, Exponent };

    void take(int x, int d) {
        const int i = x + 1;
        const int f = d - i;
        largestD = std::max(largestD, d);
        if (mode == Mode::Exponent) return;
        largestI = std::max(largestI, i);
        largestF = std::max(largestF, f);
        if (i >= 10 || (x < -4 && f > 5)) {
            mode = Mode::Exponent;
        } else if (f > 0) {
            mode = Mode::Fixed;
            if (largestI + largestF > kMaxDecimals) limit = kMaxDecimals - largestI;
        }
    }

    Mode mode = Mode::Plain;
    int largestD = 0;
    int largestI = INT_MIN / 2;
    int largestF = INT_MIN / 2;
    int limit = INT_MAX;
};

bool withinDefaultLimits(double value) {
    return value >= -kDefaultLimit && value <= kDefaultLimit;
}

std::string printed(double value) {
    char chars[32];
    const auto result =
        std::to_chars(chars, chars + sizeof chars, value + 0.0, std::chars_format::general, 15);
    return std::string(chars, result.ptr);
}

std::string printed(float value) {
    char chars[32];
    const auto result = std::to_chars(chars, chars + sizeof chars, value + 0.0f);
    return std::string(chars, result.ptr);
}

std::string printed(long value) {
    return std::to_string(value);
}

// Where the whole part of a printed number ends: at the point, the
// exponent or the end.
size_t wholePartEnd(const std::string& text) {
    return std::min(text.find_first_of(".eE"), text.size());
}

size_t fractionDigits(const std::string& text) {
    const size_t point = text.find('.');
    if (point == std::string::npos) return 0;
    return std::min(text.find_first_of("eE"), text.size()) - point - 1;
}

// Rounds to the width when the text has more decimals, then pads with zeros
// (and a point) up to it.
void padFraction(std::string& text, double value, short width) {
    if (fractionDigits(text) > size_t(width)) {
        char chars[400];
        const auto result = std::to_chars(chars, chars + sizeof chars, value + 0.0,
                                          std::chars_format::fixed, width);
        text.assign(chars, result.ptr);
    }
    size_t end = std::min(text.find_first_of("eE"), text.size());
    if (text.find('.') == std::string::npos) text.insert(end++, 1, '.');
    text.insert(end, size_t(width) - fractionDigits(text), '0');
}

}  // namespace

std::wstring vxFormatNumber::getDefaultFormat(const std::vector<double>& values) {
    double largest = 0.0;
    for (double v : values) {
        if (withinDefaultLimits(v)) largest = std::max(largest, std::fabs(v));
    }
    const double t = largest * kEpsilon + kEpsilon;
    DefaultFormatScan scan;
    for (double v : values) {
        if (withinDefaultLimits(v) && std::fabs(v) >= t) scan.add(v);
    }
    return scan.result();
}

void vxFormatNumber::widthsOf(const std::string& text) {
    integerWidth = std::max(integerWidth, short(wholePartEnd(text)));
    if (text.find('.') != std::string::npos) {
        fractionWidth = std::max(fractionWidth, short(fractionDigits(text)));
    }
}

void vxFormatNumber::setUpWidths(const std::vector<short>& values) {
    integerWidth = fractionWidth = -1;
    for (short v : values) widthsOf(printed(long(v)));
}

void vxFormatNumber::setUpWidths(const std::vector<long>& values) {
    integerWidth = fractionWidth = -1;
    for (long v : values) widthsOf(printed(v));
}

void vxFormatNumber::setUpWidths(const std::vector<float>& values) {
    integerWidth = fractionWidth = -1;
    for (float v : values) widthsOf(printed(v));
}

void vxFormatNumber::setUpWidths(const std::vector<double>& values) {
    integerWidth = fractionWidth = -1;
    for (double v : values) widthsOf(printed(v));
}

std::wstring vxFormatNumber::alignedText(std::string text, double value) const {
    if (fractionWidth > 0 && std::isfinite(value)) padFraction(text, value, fractionWidth);
    size_t fill = 0;
    if (integerWidth >= 0) {
        const size_t whole = wholePartEnd(text);
        if (whole > size_t(integerWidth)) return L"?";
        fill = size_t(integerWidth) - whole;
    }
    std::wstring aligned(fill, fillChar);
    for (char c : text) aligned += c == '.' ? decimalPoint : wchar_t(c);
    return aligned;
}

std::wstring vxFormatNumber::toAlignedString(double value) const {
    return alignedText(printed(value), value);
}

std::wstring vxFormatNumber::toAlignedString(long value) const {
    return alignedText(printed(value), double(value));
}

}  // namespace Velarix
