// Month and weekday names, long and short, in English and German.
#pragma once

#include <string>
#include <vector>

namespace Velarix {

struct vxCalendarNames {
    std::vector<std::wstring> months;  // January first
    std::vector<std::wstring> shortMonths;
    std::vector<std::wstring> weekdays;  // Sunday first, as the date formats count
    std::vector<std::wstring> shortWeekdays;
};

// The names in the language: 2 German, anything else English.
const vxCalendarNames& vxCalendarNamesOf(short languageID);

}  // namespace Velarix
