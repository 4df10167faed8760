#include "axes/vxDecimalGrid.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace Velarix {

namespace {

// The powers of ten that a double holds exactly.
constexpr double kExactPowers[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                   1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                   1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
constexpr int kLastExactPower = 22;
// Whole numbers up to this size are exact in a double.
constexpr double kExactWholeLimit = 9007199254740992.0;

// The same rounding through a text, for exponents beyond the exact powers:
// printf rounds to the digits and strtod reads the nearest double.
double roundThroughText(double value, int q) {
    char text[64];
    std::snprintf(text, sizeof text, "%.16e", value);
    const int e = std::atoi(std::strchr(text, 'e') + 1);
    if (e < q) {
        // Under one step of the grid: 0 or one step.
        std::snprintf(text, sizeof text, "5e%d", q - 1);
        if (std::fabs(value) < std::strtod(text, nullptr)) return 0.0;
        std::snprintf(text, sizeof text, "%se%d", value < 0 ? "-1" : "1", q);
        return std::strtod(text, nullptr);
    }
    std::snprintf(text, sizeof text, "%.*e", e - q, value);
    return std::strtod(text, nullptr);
}

}  // namespace

double vxDecimalGrid::powerOfTen(int n) {
    if (n >= 0 && n <= kLastExactPower) return kExactPowers[n];
    if (n < 0 && n >= -kLastExactPower) return 1.0 / kExactPowers[-n];
    return std::pow(10.0, double(n));
}

double vxDecimalGrid::scaled(double f, int j) {
    if (j >= 0 && j <= kLastExactPower) return f * kExactPowers[j];
    if (j < 0 && j >= -kLastExactPower) return f / kExactPowers[-j];
    return f * std::pow(10.0, double(j));
}

double vxDecimalGrid::niceAbove(double raw, double f) {
    return niceAbove(std::log10(raw), f, std::log10(f));
}

double vxDecimalGrid::niceAbove(double log10Raw, double f, double log10F) {
    const double j = std::ceil(log10Raw - log10F);
    if (!std::isfinite(j) || std::fabs(j) > 400.0) return f * std::pow(10.0, j);
    return scaled(f, int(j));
}

int vxDecimalGrid::lastDigitExponent(double x) {
    if (x == 0.0 || !std::isfinite(x)) return kNoDigit;
    char text[64];
    const auto result = std::to_chars(text, text + sizeof text, x, std::chars_format::scientific);
    const char* begin = text;
    const char* e = std::find(begin, static_cast<const char*>(result.ptr), 'e');
    const char* point = std::find(begin, e, '.');
    const int decimals = point == e ? 0 : int(e - point - 1);
    int exponent = 0;
    for (const char* c = e + 2; c < result.ptr; ++c) exponent = exponent * 10 + (*c - '0');
    return (e[1] == '-' ? -exponent : exponent) - decimals;
}

double vxDecimalGrid::roundToPowerOfTen(double value, int q) {
    if (!std::isfinite(value) || value == 0.0) return value + 0.0;
    if (q >= 0 && q <= kLastExactPower) {
        const double g = kExactPowers[q];
        const double m = std::round(value / g);
        if (std::fabs(m) < kExactWholeLimit) return m * g + 0.0;
    } else if (q < 0 && q >= -kLastExactPower) {
        const double p = kExactPowers[-q];
        const double m = std::round(value * p);
        if (std::fabs(m) < kExactWholeLimit) return m / p + 0.0;
    }
    return roundThroughText(value, q) + 0.0;
}

int vxDecimalGrid::gridExponent(std::initializer_list<double> grid) {
    int q = kNoDigit;
    for (double g : grid) q = std::min(q, lastDigitExponent(g));
    return q;
}

// The decimal exponent of the largest magnitude is estimated from the
// binary one, at most one too high: the grid then keeps 14 or 15 digits.
void vxDecimalGrid::snapTo(std::vector<double>& values, std::size_t first, std::size_t end, int q,
                           double maxShift) {
    end = std::min(end, values.size());
    double largest = 0.0;
    for (std::size_t i = first; i < end; ++i) {
        if (std::isfinite(values[i])) largest = std::max(largest, std::fabs(values[i]));
    }
    if (largest == 0.0) return;
    int binaryExponent = 0;
    std::frexp(largest, &binaryExponent);
    const int decimalExponent = int(std::floor(binaryExponent * 0.30102999566398120));
    q = std::max(q == kNoDigit ? -kNoDigit : q, decimalExponent - (kSignificantDigits - 1));
    for (std::size_t i = first; i < end; ++i) {
        const double snapped = roundToPowerOfTen(values[i], q);
        if (std::fabs(snapped - values[i]) <= maxShift) values[i] = snapped;
    }
}

void vxDecimalGrid::snap(std::vector<double>& values, std::size_t first, std::size_t end,
                         std::initializer_list<double> grid, double maxShift) {
    if (first < std::min(end, values.size())) {
        snapTo(values, first, end, gridExponent(grid), maxShift);
    }
}

}  // namespace Velarix
