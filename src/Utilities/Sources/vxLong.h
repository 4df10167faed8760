// A long integer value, with the test and the conversion of an integer text.
#pragma once

#include <memory>
#include <string>

#include "Utilities/Sources/vxScalar.h"

namespace Velarix {

class vxLong : public vxScalar<long, vxPrimitive::Kind::Long> {
public:
    explicit vxLong(long v = 0);
    std::unique_ptr<vxPrimitive> clone() const override;

    // 0 for an optional sign followed by at least one digit and nothing
    // else, otherwise error code 1140.
    static short testInteger(const std::wstring& token);
    // False, with `out` untouched, when the token fails the integer test or
    // its value doesn't fit a long.
    static bool toLong(const std::wstring& token, long& out);
};

}  // namespace Velarix
