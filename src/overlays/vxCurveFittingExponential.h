// y = c0 e^(c1 x), fitted as a line through (x, ln y): y must be at least
// 1e-10. Through zero has no meaning here and is passed over.
#pragma once

#include "overlays/vxCurveFittingItem.h"

namespace Velarix {

class vxCurveFittingExponential : public vxCurveFittingItem {
public:
    explicit vxCurveFittingExponential(vxUserSettings* owner);

protected:
    bool calculateCoefficients(const std::vector<double>& x, const std::vector<double>& y) override;
    double valueAt(double x) const override;
    bool isExponentialForm() const override { return true; }
    long getNumOfCurvePoints(float) const override { return 100; }
};

}  // namespace Velarix
