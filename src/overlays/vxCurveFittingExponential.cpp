#include "overlays/vxCurveFittingExponential.h"

#include <cmath>

namespace Velarix {

vxCurveFittingExponential::vxCurveFittingExponential(vxUserSettings* owner)
    : vxCurveFittingItem(L"vxCurveFittingExponential", owner, kExponential) {}

bool vxCurveFittingExponential::calculateCoefficients(const std::vector<double>& x,
                                                      const std::vector<double>& y) {
    if (!setUpNumOfCoefficients(x.size(), 2)) return false;
    std::vector<double> v(y.size());
    for (size_t i = 0; i < y.size(); ++i) {
        if (y[i] < 1e-10) {
            setError(vxErrRuntime::kLogarithm, where(L"calculateCoefficients"));
            return false;
        }
        v[i] = std::log(y[i]);
    }
    if (!solveEquationSystem(x, v, 1, false)) return false;
    takeRawCoefficients(2);
    c[0] = std::exp(c[0]);
    return true;
}

double vxCurveFittingExponential::valueAt(double x) const {
    return std::exp(solver.evaluate(x));
}

}  // namespace Velarix
