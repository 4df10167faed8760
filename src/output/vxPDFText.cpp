#include "output/vxPDFText.h"

#include "output/vxPDFTextTables.h"

namespace Velarix {

namespace vxPDFText {

namespace {

// The code of a character that the code page keeps at 128 to 159, or -1.
int highCodeOf(char16_t c) {
    for (int i = 0; i < 32; ++i) {
        if (kWinAnsiHighCharacters[i] == c) return 128 + i;
    }
    return -1;
}

}  // namespace

std::vector<uint8_t> codesOf(std::wstring_view text) {
    std::vector<uint8_t> codes;
    codes.reserve(text.size());
    for (wchar_t w : text) {
        const auto c = static_cast<char16_t>(w);
        const int high = c >= 0x100 ? highCodeOf(c) : -1;
        if (high >= 0) {
            codes.push_back(static_cast<uint8_t>(high));
        } else if (c >= 0x100) {
            codes.push_back(static_cast<uint8_t>(c >> 8));
            codes.push_back(static_cast<uint8_t>(c & 0xFF));
        } else {
            codes.push_back(static_cast<uint8_t>(c));
        }
    }
    return codes;
}

bool isWinAnsi(std::wstring_view text) {
    for (wchar_t w : text) {
        const auto c = static_cast<char16_t>(w);
        if (c >= 0x100 && highCodeOf(c) < 0) return false;
    }
    return true;
}

std::string hexOf(const std::vector<uint8_t>& codes) {
    static const char kDigits[] = "0123456789ABCDEF";
    std::string hex;
    hex.reserve(codes.size() * 2);
    for (uint8_t code : codes) {
        hex += kDigits[code >> 4];
        hex += kDigits[code & 0x0F];
    }
    return hex;
}

std::string hexOf(std::wstring_view text) {
    return hexOf(codesOf(text));
}

}  // namespace vxPDFText

}  // namespace Velarix
