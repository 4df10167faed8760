#include "Utilities/Sources/vxDouble.h"

#include <cmath>
#include <limits>
#include <locale>
#include <sstream>

#include "settings/vxErrorCodes.h"

namespace Velarix {

namespace {

// The state of the one pass of the number test.
struct NumberScan {
    long mantissaDigits = 0;
    long exponentDigits = 0;
    bool mantissaSign = false;
    bool exponentSign = false;
    bool point = false;
    bool exponent = false;

    bool accept(wchar_t c) {
        if (c >= L'0' && c <= L'9') {
            ++(exponent ? exponentDigits : mantissaDigits);
            return true;
        }
        if (c == L'+' || c == L'-') return exponent ? acceptExponentSign() : acceptMantissaSign();
        if (c == L'.') return acceptPoint();
        if (c == L'e' || c == L'E') return acceptExponent();
        return false;
    }

    bool acceptMantissaSign() {
        if (mantissaSign || point || mantissaDigits > 0) return false;
        mantissaSign = true;
        return true;
    }

    bool acceptExponentSign() {
        if (exponentSign || exponentDigits > 0) return false;
        exponentSign = true;
        return true;
    }

    bool acceptPoint() {
        if (point || exponent) return false;
        point = true;
        return true;
    }

    bool acceptExponent() {
        if (exponent || mantissaDigits == 0) return false;
        exponent = true;
        return true;
    }

    bool complete() const { return mantissaDigits > 0 && (!exponent || exponentDigits > 0); }
};

}  // namespace

vxDouble::vxDouble(double v) : vxScalar(L"vxDouble", "double value: ", v) {}

std::unique_ptr<vxPrimitive> vxDouble::clone() const {
    return std::make_unique<vxDouble>(value);
}

short vxDouble::testNumber(const std::wstring& token) {
    NumberScan scan;
    for (wchar_t c : token) {
        if (!scan.accept(c)) return vxErrScript::kValue;
    }
    return scan.complete() ? kNoError : vxErrScript::kValue;
}

double vxDouble::toDouble(const std::wstring& token) {
    std::wistringstream in(token);
    in.imbue(std::locale::classic());
    double v = 0.0;
    in >> v;
    // Some libraries answer an overflow with an infinity, others with the
    // largest finite value; both come out as the latter.
    if (std::isinf(v)) v = std::copysign(std::numeric_limits<double>::max(), v);
    return v;
}

}  // namespace Velarix
