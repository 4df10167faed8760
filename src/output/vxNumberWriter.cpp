#include "output/vxNumberWriter.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace Velarix {

namespace vxNumberWriter {

namespace {

// Enough for any double in either form with the precisions the devices use.
using Buffer = std::array<char, 400>;

// A text made of a minus sign, zeros and a point stands for zero and loses
// its sign.
bool isSignedZero(const char* first, const char* last) {
    if (first == last || *first != '-') return false;
    return std::all_of(first + 1, last, [](char c) { return c == '0' || c == '.'; });
}

std::string finish(const char* first, const char* last) {
    if (isSignedZero(first, last)) ++first;
    return std::string(first, last);
}

std::wstring widen(const std::string& text) {
    return std::wstring(text.begin(), text.end());
}

// The general form into the buffer; the text runs from `first` to the
// returned end.
const char* writeGeneral(Buffer& buffer, const char*& first, double value, int precision) {
    first = buffer.data();
    if (!std::isfinite(value)) {
        buffer[0] = '0';
        return first + 1;
    }
    precision = std::clamp(precision, 1, 17);
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                      std::chars_format::general, precision);
    if (result.ec != std::errc()) {
        buffer[0] = '0';
        return first + 1;
    }
    if (isSignedZero(first, result.ptr)) ++first;
    return result.ptr;
}

}  // namespace

std::string general(double value, int precision) {
    Buffer buffer;
    const char* first = nullptr;
    const char* last = writeGeneral(buffer, first, value, precision);
    return std::string(first, last);
}

std::string fixed(double value, int decimals) {
    if (!std::isfinite(value)) return "0";
    decimals = std::clamp(decimals, 0, 17);
    Buffer buffer;
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                      std::chars_format::fixed, decimals);
    if (result.ec != std::errc()) return "0";
    return finish(buffer.data(), result.ptr);
}

std::wstring generalW(double value, int precision) {
    std::wstring text;
    append(text, value, precision);
    return text;
}

std::wstring fixedW(double value, int decimals) {
    return widen(fixed(value, decimals));
}

std::string pdf(double value) {
    if (!(std::fabs(value) >= 1e-6)) return "0";
    std::string text = general(value);
    if (text.find('e') != std::string::npos) text = fixed(value, 6);
    return text;
}

void append(std::wstring& out, double value, int precision) {
    Buffer buffer;
    const char* first = nullptr;
    const char* last = writeGeneral(buffer, first, value, precision);
    // Widened in place: appending the narrow range would make a wide text
    // of its own first.
    std::array<wchar_t, std::tuple_size_v<Buffer>> wide;
    std::copy(first, last, wide.begin());
    out.append(wide.data(), size_t(last - first));
}

void append(std::string& out, double value, int precision) {
    Buffer buffer;
    const char* first = nullptr;
    const char* last = writeGeneral(buffer, first, value, precision);
    out.append(first, last);
}

}  // namespace vxNumberWriter

}  // namespace Velarix
