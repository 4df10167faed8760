// A polynomial of degree 1 ("linear") to 10: y = c0 + c1 x + ... + cn x^n,
// or, through zero, y = c1 x + ... + cn x^n with c starting at the x term.
#pragma once

#include "overlays/vxCurveFittingItem.h"

namespace Velarix {

class vxCurveFittingPolynomial : public vxCurveFittingItem {
public:
    vxCurveFittingPolynomial(vxUserSettings* owner, short degree);

protected:
    bool calculateCoefficients(const std::vector<double>& x, const std::vector<double>& y) override;
    double valueAt(double x) const override { return solver.evaluate(x); }
};

}  // namespace Velarix
