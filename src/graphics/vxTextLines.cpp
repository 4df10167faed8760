#include "graphics/vxTextLines.h"

namespace Velarix {

namespace {

constexpr wchar_t kLineBreak = 13;

bool isHighSurrogate(wchar_t c) {
    return c >= 0xD800 && c <= 0xDBFF;
}

bool isLowSurrogate(wchar_t c) {
    return c >= 0xDC00 && c <= 0xDFFF;
}

}  // namespace

std::vector<std::wstring> vxTextLines::split(std::wstring_view text) {
    std::vector<std::wstring> lines;
    std::size_t start = 0;
    while (true) {
        const std::size_t end = text.find(kLineBreak, start);
        if (end == std::wstring_view::npos) {
            lines.emplace_back(text.substr(start));
            return lines;
        }
        lines.emplace_back(text.substr(start, end - start));
        start = end + 1;
    }
}

std::wstring vxTextLines::join(const std::vector<std::wstring>& lines, std::size_t from,
                               std::size_t to, wchar_t separator) {
    std::wstring result;
    for (std::size_t i = from; i < to && i < lines.size(); ++i) {
        if (i > from) result += separator;
        result += lines[i];
    }
    return result;
}

std::wstring_view vxTextLines::trimmedStart(std::wstring_view text) {
    const std::size_t first = text.find_first_not_of(L' ');
    return first == std::wstring_view::npos ? std::wstring_view() : text.substr(first);
}

std::wstring_view vxTextLines::trimmedEnd(std::wstring_view text) {
    const std::size_t last = text.find_last_not_of(L' ');
    return last == std::wstring_view::npos ? std::wstring_view() : text.substr(0, last + 1);
}

std::wstring vxTextLines::reversed(std::wstring_view text) {
    std::wstring result;
    result.reserve(text.size());
    for (std::size_t end = text.size(); end > 0;) {
        const bool isPair =
            end >= 2 && isLowSurrogate(text[end - 1]) && isHighSurrogate(text[end - 2]);
        const std::size_t units = isPair ? 2 : 1;
        result.append(text.substr(end - units, units));
        end -= units;
    }
    return result;
}

std::size_t vxTextLines::unitsAt(std::wstring_view text, std::size_t index) {
    return isHighSurrogate(text[index]) && index + 1 < text.size() &&
                   isLowSurrogate(text[index + 1])
               ? 2
               : 1;
}

}  // namespace Velarix
