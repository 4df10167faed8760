// y = c0 x^c1, fitted as a line through (ln x, ln y): x and y must be at
// least 1e-10. Through zero has no meaning here and is passed over.
#pragma once

#include "overlays/vxCurveFittingItem.h"

namespace Velarix {

class vxCurveFittingPower : public vxCurveFittingItem {
public:
    explicit vxCurveFittingPower(vxUserSettings* owner);

protected:
    bool calculateCoefficients(const std::vector<double>& x, const std::vector<double>& y) override;
    double valueAt(double x) const override;
    bool isInDomain(double x) const override { return x >= 1e-10; }
    bool isExponentialForm() const override { return true; }
    long getNumOfCurvePoints(float) const override { return 100; }
};

}  // namespace Velarix
