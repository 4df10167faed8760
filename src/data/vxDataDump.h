// The log text of a column of numbers or flags: each entry after a blank.
#pragma once

#include <locale>
#include <sstream>
#include <string>

namespace Velarix {

template <class Range>
std::string vxDataDumpText(const Range& values) {
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text.precision(10);
    text << std::boolalpha;
    for (const auto& v : values) text << " " << v;
    return text.str();
}

}  // namespace Velarix
