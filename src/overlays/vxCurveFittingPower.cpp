#include "overlays/vxCurveFittingPower.h"

#include <cmath>

namespace Velarix {

vxCurveFittingPower::vxCurveFittingPower(vxUserSettings* owner)
    : vxCurveFittingItem(L"vxCurveFittingPower", owner, kPower) {}

bool vxCurveFittingPower::calculateCoefficients(const std::vector<double>& x,
                                                const std::vector<double>& y) {
    if (!setUpNumOfCoefficients(x.size(), 2)) return false;
    std::vector<double> u(x.size());
    std::vector<double> v(y.size());
    for (size_t i = 0; i < x.size(); ++i) {
        if (x[i] < 1e-10 || y[i] < 1e-10) {
            setError(vxErrRuntime::kLogarithm, where(L"calculateCoefficients"));
            return false;
        }
        u[i] = std::log(x[i]);
        v[i] = std::log(y[i]);
    }
    if (!solveEquationSystem(u, v, 1, false)) return false;
    takeRawCoefficients(2);
    c[0] = std::exp(c[0]);
    return true;
}

double vxCurveFittingPower::valueAt(double x) const {
    return std::exp(solver.evaluate(std::log(x)));
}

}  // namespace Velarix
