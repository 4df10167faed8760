// A double value, with the test and the conversion of a number text.
#pragma once

#include <memory>
#include <string>

#include "Utilities/Sources/vxScalar.h"

namespace Velarix {

class vxDouble : public vxScalar<double, vxPrimitive::Kind::Double> {
public:
    explicit vxDouble(double v = 0.0);
    std::unique_ptr<vxPrimitive> clone() const override;

    // 0 when the token has the number form (optional sign, digits with at
    // most one point, optional exponent with its own optional sign and
    // digits), otherwise error code 1140. The code is returned, not raised.
    static short testNumber(const std::wstring& token);
    // Reads the token as a stream does in the classic locale. An exponent
    // too large gives the largest finite double of the sign; one too small
    // gives 0.
    static double toDouble(const std::wstring& token);
};

}  // namespace Velarix
