#include "Utilities/Sources/vxFormatNumber.h"

#include <charconv>
#include <cmath>
#include <string_view>

#include "host/vxLog.h"
#include "settings/vxFormatSettings.h"

namespace Velarix {

namespace {

constexpr double kEpsilon = 2.220446049250313e-16;
constexpr double kPowersOfTen[] = {1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9};
// Room for the widest fixed text: 309 digits, a sign, a point, 9 decimals.
constexpr size_t kMaxChars = 352;

bool isDigit(wchar_t c) {
    return c >= L'0' && c <= L'9';
}

bool isTypeLetter(wchar_t c) {
    return std::wstring_view(L"uifeEgGhH").find(c) != std::wstring_view::npos;
}

// The characters before the type letter: sign and scale.
short parseLead(std::wstring_view lead, vxNumberSpecifier& out) {
    switch (lead.size()) {
        case 0:
            return 0;
        case 1:
            if (lead[0] == L'+') {
                out.showSign = true;
            } else if (isDigit(lead[0])) {
                out.scale = short(lead[0] - L'0');
            } else {
                return 3;
            }
            return 0;
        case 2:
            if (lead[0] != L'+' && lead[0] != L'-') return 4;
            if (!isDigit(lead[1])) return 5;
            out.showSign = lead[0] == L'+';
            out.scale = short(out.showSign ? lead[1] - L'0' : L'0' - lead[1]);
            return 0;
        case 3:
            if (lead[0] != L'+' || lead[1] != L'-') return 6;
            if (!isDigit(lead[2])) return 7;
            out.showSign = true;
            out.scale = short(L'0' - lead[2]);
            return 0;
        default:
            return 8;
    }
}

// The sign step of the "u", "i" and "f" routes. A text without a minus is
// that of a positive value or of one that prints as zero: both get a "+".
void showSign(std::wstring& out, size_t start) {
    if (start == out.size() || out[start] == L'-' || out[start] == L'n') return;
    out.insert(start, 1, L'+');
}

void appendExponentText(int exponent, bool capital, std::wstring& out) {
    out += capital ? L'E' : L'e';
    out += exponent < 0 ? L'-' : L'+';
    const int magnitude = std::abs(exponent);
    if (magnitude >= 100) out += wchar_t(L'0' + magnitude / 100);
    out += wchar_t(L'0' + magnitude / 10 % 10);
    out += wchar_t(L'0' + magnitude % 10);
}

// For "h": how far the exponent falls to a multiple of 3.
int engineeringShift(int exponent) {
    const int r = std::abs(exponent) % 3;
    return exponent < 0 && r != 0 ? 3 - r : r;
}

}  // namespace

vxFormatNumber::vxFormatNumber() : vxFormat(L"vxFormatNumber", vxErrFormat::kNumberFormat, L"u") {
    keepSpecifier();
}

vxFormatNumber::vxFormatNumber(const vxFormatSettings* settings) : vxFormatNumber() {
    if (!settings) return;
    fillChar = settings->getFillChar();
    decimalPoint = settings->getDecimalPoint();
    thousandsSep = settings->getThousandsSep();
    thousandsGroupSize = settings->getThousandsGroupSize();
    if (!settings->getDefaultNumberFormat().empty()) {
        (void)setFormat(settings->getDefaultNumberFormat());
    }
}

vxFormatNumber::~vxFormatNumber() = default;

short vxFormatNumber::parseSpecifier(const std::wstring& specifier, vxNumberSpecifier& out) {
    out = vxNumberSpecifier();
    if (specifier.empty()) {
        out.type = 0;
        return 0;
    }
    size_t typeAt = specifier.size() - 1;
    if (isDigit(specifier.back())) {
        if (typeAt == 0 || specifier[typeAt - 1] == L'u') return 2;
        out.precision = short(specifier.back() - L'0');
        --typeAt;
    } else if (specifier.back() != L'u') {
        return 1;
    }
    out.type = specifier[typeAt];
    if (const short failed = parseLead(std::wstring_view(specifier).substr(0, typeAt), out)) {
        return failed;
    }
    return isTypeLetter(out.type) ? 0 : 9;
}

short vxFormatNumber::checkSpecifier(const std::wstring& specifier) const {
    vxNumberSpecifier parsed;
    return parseSpecifier(specifier, parsed);
}

void vxFormatNumber::keepSpecifier() {
    (void)parseSpecifier(formatSpecifier, kept);
}

void vxFormatNumber::appendValue(double value, std::wstring& out) {
    appendBySpecifier(value, kept, out);
}

std::wstring vxFormatNumber::format(double value, const std::wstring& specifier) {
    vxNumberSpecifier parsed;
    if (const short failed = parseSpecifier(specifier, parsed)) {
        setError(vxErrFormat::kNumberFormat, where(L"format", failed), specifier);
        return std::wstring();
    }
    std::wstring text;
    appendBySpecifier(value, parsed, text);
    return text;
}

void vxFormatNumber::appendBySpecifier(double value, const vxNumberSpecifier& spec,
                                       std::wstring& out) const {
    if (spec.type == 0) return;
    value += 0.0;  // -0 prints as 0
    if (spec.scale > 0) value *= kPowersOfTen[spec.scale];
    if (spec.scale < 0) value /= kPowersOfTen[-spec.scale];
    switch (spec.type) {
        case L'u':
        case L'i':
        case L'f':
            appendPlainRoute(value, spec, out);
            break;
        default:
            appendExponent(value, spec, out);
    }
}

// "u", "i" and "f": print, then the decimal point, thousands and sign steps.
void vxFormatNumber::appendPlainRoute(double value, const vxNumberSpecifier& spec,
                                      std::wstring& out) const {
    const size_t start = out.size();
    if (spec.type == L'u') {
        appendPlain(value, out);
    } else if (spec.type == L'i') {
        appendWhole(value, spec.precision, out);
    } else {
        appendFixed(value, spec.precision, out);
    }
    setDecimalPointIn(out, start);
    insertThousandsSeps(out, start);
    if (spec.showSign) showSign(out, start);
}

// Rounded half away from zero to a multiple of 10^precision.
void vxFormatNumber::appendWhole(double value, short precision, std::wstring& out) const {
    const double unit = kPowersOfTen[precision];
    const double rounded = std::trunc(value / unit + std::copysign(0.5, value)) * unit + 0.0;
    char chars[kMaxChars];
    const auto result =
        std::to_chars(chars, chars + kMaxChars, rounded, std::chars_format::fixed, 0);
    appendChars(chars, result.ptr, out);
}

void vxFormatNumber::appendFixed(double value, short precision, std::wstring& out) const {
    char chars[kMaxChars];
    const auto result =
        std::to_chars(chars, chars + kMaxChars, value, std::chars_format::fixed, precision);
    const char* first = chars;
    // A negative value that prints as zero loses its minus.
    if (*first == '-' && std::string_view(chars, result.ptr).find_first_of("123456789ni") ==
                             std::string_view::npos) {
        ++first;
    }
    appendChars(first, result.ptr, out);
    if (precision == 0 && std::isfinite(value)) out += L'.';
}

// "e", "g" and "h" with their capitals. Below the fixed tolerance around 0
// a value has the exponent 0 and prints as a zero mantissa.
void vxFormatNumber::appendExponent(double value, const vxNumberSpecifier& spec,
                                    std::wstring& out) const {
    const wchar_t type = spec.type;
    const bool engineering = type == L'h' || type == L'H';
    const double t = std::fabs(value) * kEpsilon + kEpsilon;
    int x = 0;
    double m = value;
    short p = spec.precision;
    if (std::fabs(value) > t && std::isfinite(value)) {
        x = int(std::floor(std::log10(std::fabs(value))));
        m = value / std::pow(10.0, x);
    }
    if ((type == L'g' || type == L'G') && -5 < x && x <= p) {
        appendPlainRoute(value, {L'f', p, 0, spec.showSign}, out);
        return;
    }
    if (std::fabs(value) > t && std::isfinite(value)) {
        if (std::fabs(m) < 1 - t) {
            --x;
            m *= 10;
        }
        if (engineering) {
            const int r = engineeringShift(x);
            p = short(p - r);
            m *= kPowersOfTen[r];
            x -= r;
        }
    }
    const size_t start = out.size();
    // A mantissa that rounds up to 10 (1000 for "h") moves into the exponent.
    const short step = engineering ? 3 : 1;
    if (appendMantissa(m, p, out) > step) {
        out.resize(start);
        x += step;
        appendMantissa(m / kPowersOfTen[step], engineering ? spec.precision : p, out);
    }
    appendExponentText(x, type == L'E' || type == L'G' || type == L'H', out);
    if (spec.showSign && isDigit(out[start])) out.insert(start, 1, L'+');
}

// Returns the number of digits before the point.
short vxFormatNumber::appendMantissa(double mantissa, short precision, std::wstring& out) const {
    const size_t start = out.size();
    if (precision < 1) {
        appendWhole(mantissa, short(-precision), out);
    } else {
        appendFixed(mantissa, precision, out);
    }
    setDecimalPointIn(out, start);
    size_t i = start < out.size() && out[start] == L'-' ? start + 1 : start;
    short digits = 0;
    for (; i < out.size() && isDigit(out[i]); ++i) ++digits;
    return digits;
}

void vxFormatNumber::setDecimalPointIn(std::wstring& out, size_t start) const {
    const size_t point = out.find(L'.', start);
    if (point != std::wstring::npos) out[point] = decimalPoint;
}

// Groups from the last decimal point leftwards; never between a leading
// minus and the first digit. Numbers in exponent form are left alone.
void vxFormatNumber::insertThousandsSeps(std::wstring& out, size_t start) const {
    if (!thousandsSep || thousandsGroupSize < 1) return;
    if (out.find_first_of(L"eEgGhH", start) != std::wstring::npos) return;
    size_t end = out.size();
    for (size_t i = out.size(); i > start; --i) {
        if (out[i - 1] == decimalPoint) {
            end = i - 1;
            break;
        }
    }
    const bool minus = out[start] == L'-';
    for (size_t at = end; at > start + size_t(thousandsGroupSize);) {
        at -= size_t(thousandsGroupSize);
        if (minus && at == start + 1) break;
        out.insert(at, 1, thousandsSep);
    }
}

void vxFormatNumber::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxFormat::dump(depth, out);
    vxDumpHeader(out, "vxFormatNumber");
    vxDumpLine(out, "short integerWidth:       ", integerWidth);
    vxDumpLine(out, "short fractionWidth:      ", fractionWidth);
    vxDumpLine(out, "wchar_t fillChar:         ", std::wstring(1, fillChar));
    vxDumpLine(out, "wchar_t decimalPoint:     ", std::wstring(1, decimalPoint));
    vxDumpLine(out, "wchar_t thousandsSep:     ",
               thousandsSep ? std::wstring(1, thousandsSep) : std::wstring());
    vxDumpLine(out, "short thousandsGroupSize: ", thousandsGroupSize);
    vxDumpEnd(out);
}

}  // namespace Velarix
