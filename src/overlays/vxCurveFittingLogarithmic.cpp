#include "overlays/vxCurveFittingLogarithmic.h"

#include <cmath>

namespace Velarix {

namespace {

constexpr double kSmallest = 1e-10;

}  // namespace

vxCurveFittingLogarithmic::vxCurveFittingLogarithmic(vxUserSettings* owner)
    : vxCurveFittingItem(L"vxCurveFittingLogarithmic", owner, kLogarithmic) {}

bool vxCurveFittingLogarithmic::calculateCoefficients(const std::vector<double>& x,
                                                      const std::vector<double>& y) {
    const long count = doForceThruZero() ? 1 : 2;
    if (!setUpNumOfCoefficients(x.size(), count)) return false;
    std::vector<double> u(x.size());
    for (size_t i = 0; i < x.size(); ++i) {
        if (x[i] < kSmallest) {
            setError(vxErrRuntime::kLogarithm, where(L"calculateFunctionVectors"));
            return false;
        }
        u[i] = std::log(x[i]);
    }
    if (!solveEquationSystem(u, y, 1, doForceThruZero())) return false;
    takeRawCoefficients(count);
    return true;
}

double vxCurveFittingLogarithmic::valueAt(double x) const {
    return solver.evaluate(std::log(x));
}

bool vxCurveFittingLogarithmic::isInDomain(double x) const {
    return x >= kSmallest;
}

}  // namespace Velarix
