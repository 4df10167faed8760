// The IDs by which the format settings name the form of each date and time
// item in a default date format. 0 is the default form of the item; the
// others are the positions of the items' tokens in the date format table.
#pragma once

namespace Velarix::vxDateFormatID {

constexpr short kDefault = 0;
constexpr short kYYYY = 5;  // four-digit year
constexpr short kYY = 27;   // last two digits of the year
constexpr short kMM = 22;   // month, two digits
constexpr short kDD = 18;   // day, two digits
constexpr short kM = 35;    // month
constexpr short kD = 34;    // day
constexpr short khh = 28;   // hour, two digits
constexpr short kh = 38;    // hour
constexpr short kmm = 29;   // minute, two digits
constexpr short km = 39;    // minute
constexpr short kss = 30;   // second, two digits
constexpr short ks = 40;    // second

}  // namespace Velarix::vxDateFormatID
