// Helpers on the lines of a text: lines are separated by carriage returns,
// and a surrogate pair is one character that is never split.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace Velarix {

class vxTextLines {
public:
    static std::vector<std::wstring> split(std::wstring_view text);
    // The lines [from, to) joined by `separator`.
    static std::wstring join(const std::vector<std::wstring>& lines, std::size_t from,
                             std::size_t to, wchar_t separator);
    static std::wstring_view trimmedStart(std::wstring_view text);
    static std::wstring_view trimmedEnd(std::wstring_view text);
    // Character by character; a surrogate pair keeps its order.
    static std::wstring reversed(std::wstring_view text);
    // 2 where a surrogate pair starts at `index`, else 1.
    static std::size_t unitsAt(std::wstring_view text, std::size_t index);
};

}  // namespace Velarix
