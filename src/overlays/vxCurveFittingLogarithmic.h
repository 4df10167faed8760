// y = c0 + c1 ln x, or y = c1 ln x through zero (then c starts at c1). Takes
// x from 1e-10 on.
#pragma once

#include "overlays/vxCurveFittingItem.h"

namespace Velarix {

class vxCurveFittingLogarithmic : public vxCurveFittingItem {
public:
    explicit vxCurveFittingLogarithmic(vxUserSettings* owner);

protected:
    bool calculateCoefficients(const std::vector<double>& x, const std::vector<double>& y) override;
    double valueAt(double x) const override;
    bool isInDomain(double x) const override;
};

}  // namespace Velarix
