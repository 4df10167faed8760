#include "overlays/vxCurveFittingPolynomial.h"

namespace Velarix {

vxCurveFittingPolynomial::vxCurveFittingPolynomial(vxUserSettings* owner, short degree)
    : vxCurveFittingItem(L"vxCurveFittingPolynomial", owner, degree) {}

bool vxCurveFittingPolynomial::calculateCoefficients(const std::vector<double>& x,
                                                     const std::vector<double>& y) {
    const long count = getType() + (doForceThruZero() ? 0 : 1);
    if (!setUpNumOfCoefficients(x.size(), count)) return false;
    if (!solveEquationSystem(x, y, getType(), doForceThruZero())) return false;
    takeRawCoefficients(count);
    return true;
}

}  // namespace Velarix
