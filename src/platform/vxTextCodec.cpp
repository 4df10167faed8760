#include "platform/vxTextCodec.h"

#include <cstdint>

namespace Velarix {

namespace {

constexpr wchar_t kReplacement = 0xFFFD;

void appendCodePoint(std::wstring& out, uint32_t cp) {
    if (cp >= 0x10000) {
        cp -= 0x10000;
        out.push_back(static_cast<wchar_t>(0xD800 + (cp >> 10)));
        out.push_back(static_cast<wchar_t>(0xDC00 + (cp & 0x3FF)));
    } else {
        out.push_back(static_cast<wchar_t>(cp));
    }
}

// Length of the sequence a lead byte starts, and the bits it contributes;
// 0 for a byte that can't start one.
int sequenceLength(unsigned char lead, uint32_t& bits) {
    if (lead < 0x80) {
        bits = lead;
        return 1;
    }
    if (lead >= 0xC2 && lead < 0xE0) {
        bits = lead & 0x1F;
        return 2;
    }
    if (lead >= 0xE0 && lead < 0xF0) {
        bits = lead & 0x0F;
        return 3;
    }
    if (lead >= 0xF0 && lead < 0xF5) {
        bits = lead & 0x07;
        return 4;
    }
    return 0;
}

// Decodes UTF-8; a malformed sequence becomes U+FFFD, or ends the decoding
// with false when `strict`.
bool decodeUtf8(std::string_view bytes, std::wstring& out, bool strict) {
    static constexpr uint32_t kMinimum[5] = {0, 0, 0x80, 0x800, 0x10000};
    out.reserve(out.size() + bytes.size());
    size_t i = 0;
    while (i < bytes.size()) {
        uint32_t cp = 0;
        int len = sequenceLength(static_cast<unsigned char>(bytes[i]), cp);
        if (len == 0) {
            if (strict) return false;
            out.push_back(kReplacement);
            ++i;
            continue;
        }
        int k = 1;
        for (; k < len && i + k < bytes.size(); ++k) {
            unsigned char c = static_cast<unsigned char>(bytes[i + k]);
            if ((c & 0xC0) != 0x80) break;
            cp = (cp << 6) | (c & 0x3F);
        }
        if (k < len || cp < kMinimum[len] || cp > 0x10FFFF || (cp >= 0xD800 && cp < 0xE000)) {
            if (strict) return false;
            out.push_back(kReplacement);
            i += (k < len) ? k : len;
            continue;
        }
        appendCodePoint(out, cp);
        i += len;
    }
    return true;
}

std::wstring fromUtf16(std::string_view bytes, bool bigEndian) {
    std::wstring out;
    out.reserve(bytes.size() / 2);
    for (size_t i = 0; i + 1 < bytes.size(); i += 2) {
        const unsigned a = static_cast<unsigned char>(bytes[i]);
        const unsigned b = static_cast<unsigned char>(bytes[i + 1]);
        out.push_back(static_cast<wchar_t>(bigEndian ? (a << 8) | b : (b << 8) | a));
    }
    return out;
}

bool startsWith(std::string_view bytes, std::string_view mark) {
    return bytes.substr(0, mark.size()) == mark;
}

}  // namespace

std::wstring vxFromUtf8(std::string_view bytes) {
    std::wstring out;
    decodeUtf8(bytes, out, false);
    return out;
}

std::wstring vxDecodeText(std::string_view bytes) {
    if (startsWith(bytes, "\xEF\xBB\xBF")) return vxFromUtf8(bytes.substr(3));
    if (startsWith(bytes, "\xFF\xFE")) return fromUtf16(bytes.substr(2), false);
    if (startsWith(bytes, "\xFE\xFF")) return fromUtf16(bytes.substr(2), true);
    std::wstring out;
    if (decodeUtf8(bytes, out, true)) return out;
    out.assign(bytes.size(), L'\0');
    for (size_t i = 0; i < bytes.size(); ++i) out[i] = static_cast<unsigned char>(bytes[i]);
    return out;
}

std::string vxToUtf8(const std::wstring& text) {
    std::string out;
    out.reserve(text.size());
    for (size_t i = 0; i < text.size(); ++i) {
        uint32_t cp = static_cast<uint32_t>(text[i]) & 0xFFFF;
        if (cp >= 0xD800 && cp < 0xDC00 && i + 1 < text.size()) {
            uint32_t low = static_cast<uint32_t>(text[i + 1]) & 0xFFFF;
            if (low >= 0xDC00 && low < 0xE000) {
                cp = 0x10000 + ((cp - 0xD800) << 10) + (low - 0xDC00);
                ++i;
            }
        }
        if (cp >= 0xD800 && cp < 0xE000) cp = kReplacement;
        if (cp < 0x80) {
            out.push_back(static_cast<char>(cp));
        } else if (cp < 0x800) {
            out.push_back(static_cast<char>(0xC0 | (cp >> 6)));
            out.push_back(static_cast<char>(0x80 | (cp & 0x3F)));
        } else if (cp < 0x10000) {
            out.push_back(static_cast<char>(0xE0 | (cp >> 12)));
            out.push_back(static_cast<char>(0x80 | ((cp >> 6) & 0x3F)));
            out.push_back(static_cast<char>(0x80 | (cp & 0x3F)));
        } else {
            out.push_back(static_cast<char>(0xF0 | (cp >> 18)));
            out.push_back(static_cast<char>(0x80 | ((cp >> 12) & 0x3F)));
            out.push_back(static_cast<char>(0x80 | ((cp >> 6) & 0x3F)));
            out.push_back(static_cast<char>(0x80 | (cp & 0x3F)));
        }
    }
    return out;
}

}  // namespace Velarix
