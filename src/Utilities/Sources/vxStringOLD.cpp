#include "Utilities/Sources/vxStringOLD.h"

#include <algorithm>
#include <utility>

namespace Velarix {

vxStringOLD::vxStringOLD(std::wstring v)
    : vxScalar(L"vxStringOLD", "wstring value: ", std::move(v)) {}

std::unique_ptr<vxPrimitive> vxStringOLD::clone() const {
    return std::make_unique<vxStringOLD>(value);
}

long vxStringOLD::countChar(const std::wstring& text, wchar_t c) {
    return static_cast<long>(std::count(text.begin(), text.end(), c));
}

std::wstring vxStringOLD::toLower(const std::wstring& text) {
    std::wstring lower(text);
    for (wchar_t& c : lower) {
        if (c >= L'A' && c <= L'Z') c = static_cast<wchar_t>(c - L'A' + L'a');
    }
    return lower;
}

void vxStringOLD::replaceFirstComma(std::wstring& text) {
    std::size_t comma = text.find(L',');
    if (comma != std::wstring::npos) text[comma] = L'.';
}

bool vxStringOLD::isNullText(std::wstring_view text) {
    return text.size() == 4 && (text[0] | 0x20) == L'n' && (text[1] | 0x20) == L'u' &&
           (text[2] | 0x20) == L'l' && (text[3] | 0x20) == L'l';
}

}  // namespace Velarix
