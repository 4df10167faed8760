// The shape of a date or time text as the chart language writes it:
// "12/5/2004", "2004-01-05", "5.12.2004", "12:30", "1:2:3.5", "12:00 pm",
// a date and a time joined by "&" or a blank. Only the shape is checked;
// the fields are read and tested by the date-time values.
#pragma once

#include <string>

namespace Velarix {

bool vxIsDateText(const std::wstring& text);

}  // namespace Velarix
