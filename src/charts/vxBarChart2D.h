// Bars that stand at their own values on a numeric or date interval axis:
// each series holds interval values and bar values. A whole-number step of
// the interval axis is one category's room: a bar of value x stands in the
// step that ends at x (the axis begins one step before the smallest value),
// and a bar of a date in that date's day.
#pragma once

#include "charts/vxBarChart1D.h"

namespace Velarix {

class vxBarChart2D : public vxBarChart1D {
public:
    vxBarChart2D();

    void setUp() override;
    bool isDrawable(long series, long item) const override;
    void dump(short depth, std::ostream& out) const override;

    float getIntervalWidthDC() const { return mIntervalWidthDC; }
    double getMinIntervalValueUC() const { return mMinIntervalValueUC; }

protected:
    double categoriesInSpan() const override;
    float barStart(long series, long item, float zero, float sign) const override;

private:
    bool isDateAxis() const;

    float mIntervalWidthDC = 0.0f;
    double mMinIntervalValueUC = 0.0;
};

}  // namespace Velarix
