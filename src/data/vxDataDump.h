// The log text of a column of numbers or flags: each entry after a blank.
// A long column shows its first entries and its length.
#pragma once

#include <cstddef>
#include <iterator>
#include <locale>
#include <sstream>
#include <string>

namespace Velarix {

template <class Range>
std::string vxDataDumpText(const Range& values, std::size_t maxEntries = 20) {
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text.precision(10);
    text << std::boolalpha;
    std::size_t count = 0;
    for (const auto& v : values) {
        if (count++ == maxEntries) {
            text << " ... (" << std::size(values) << " entries)";
            break;
        }
        text << " " << v;
    }
    return text.str();
}

}  // namespace Velarix
