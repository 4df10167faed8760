#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "fmhost/vxHostObjects.h"

namespace Velarix::fmhost {

HostRecord& hostRecord() {
    static HostRecord record;
    return record;
}

int32_t faultFor(const char* operation) {
    HostRecord& record = hostRecord();
    const int call = ++record.callCounts[operation];
    for (const Fault& fault : record.faults) {
        if (fault.operation != operation) continue;
        if (fault.nth == 0 || fault.nth == call) return fault.code == 0 ? -1 : fault.code;
    }
    return 0;
}

std::u16string fromUtf8(const std::string& text) {
    std::u16string out;
    for (size_t i = 0; i < text.size();) {
        const auto byte = static_cast<unsigned char>(text[i]);
        const int extra = byte >= 0xF0 ? 3 : byte >= 0xE0 ? 2 : byte >= 0xC0 ? 1 : 0;
        char32_t code = extra == 0 ? byte : byte & (0x3F >> extra);
        for (int k = 1; k <= extra && i + k < text.size(); ++k) {
            code = (code << 6) | (static_cast<unsigned char>(text[i + k]) & 0x3F);
        }
        i += extra + 1;
        if (code >= 0x10000) {
            code -= 0x10000;
            out += static_cast<char16_t>(0xD800 + (code >> 10));
            out += static_cast<char16_t>(0xDC00 + (code & 0x3FF));
        } else {
            out += static_cast<char16_t>(code);
        }
    }
    return out;
}

std::string toUtf8(const std::u16string& text) {
    std::string out;
    for (size_t i = 0; i < text.size(); ++i) {
        char32_t code = text[i];
        if (code >= 0xD800 && code < 0xDC00 && i + 1 < text.size()) {
            code = 0x10000 + ((code - 0xD800) << 10) + (text[++i] - 0xDC00);
        }
        if (code < 0x80) {
            out += static_cast<char>(code);
        } else if (code < 0x800) {
            out += static_cast<char>(0xC0 | (code >> 6));
            out += static_cast<char>(0x80 | (code & 0x3F));
        } else if (code < 0x10000) {
            out += static_cast<char>(0xE0 | (code >> 12));
            out += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
            out += static_cast<char>(0x80 | (code & 0x3F));
        } else {
            out += static_cast<char>(0xF0 | (code >> 18));
            out += static_cast<char>(0x80 | ((code >> 12) & 0x3F));
            out += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
            out += static_cast<char>(0x80 | (code & 0x3F));
        }
    }
    return out;
}

std::u16string numberText(double value) {
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, "%.15g", value);
    return fromUtf8(buffer);
}

double textNumber(const std::u16string& text) {
    std::string digits;
    bool negative = false;
    bool point = false;
    for (char16_t c : text) {
        if (c == u'-' && digits.empty()) negative = true;
        if (c == u'.' && !point) {
            point = true;
            digits += '.';
        }
        if (c >= u'0' && c <= u'9') digits += static_cast<char>(c);
    }
    if (digits.find_first_of("0123456789") == std::string::npos) return 0.0;
    const double value = std::strtod(digits.c_str(), nullptr);
    return negative ? -value : value;
}

}  // namespace Velarix::fmhost
