// A double value, with the test and the conversion of a number text.
#pragma once

#include <memory>
#include <string>
#include <string_view>

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
    // The test and the conversion in one pass, with the first "," of the
    // token read as a point: false for a token that is no number. For the
    // long runs of chart data.
    static bool readNumber(std::wstring_view token, double& value);
};

}  // namespace Velarix
