// Shared pieces of the data tests: script calls built by hand, and the
// values a raw input or a manager makes of them.
#pragma once

#include <string>
#include <vector>

#include "script/vxAssign.h"
#include "script/vxFunctionIds.h"

namespace Velarix::test {

constexpr double kInvalid = -1.7976931348623157e+308;

// A call of a data function with text arguments (an empty text is left
// void, as a script's empty argument is).
inline void setTexts(vxAssign& a, long function, const std::vector<std::wstring>& texts) {
    a.setFunction(function);
    for (const std::wstring& text : texts) {
        if (text.empty()) {
            a.addVoid();
        } else {
            a.addString(text);
        }
    }
}

inline void setShorts(vxAssign& a, long function, const std::vector<short>& values) {
    a.setFunction(function);
    for (short v : values) a.addShort(v);
}

inline void setDoubles(vxAssign& a, long function, const std::vector<double>& values) {
    a.setFunction(function);
    for (double v : values) a.addDouble(v);
}

}  // namespace Velarix::test
