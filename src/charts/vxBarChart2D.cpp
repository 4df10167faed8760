#include "charts/vxBarChart2D.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "axes/vxAxisItem.h"
#include "axes/vxAxisScaling.h"
#include "host/vxLog.h"

namespace Velarix {

vxBarChart2D::vxBarChart2D() : vxBarChart1D(L"vxBarChart2D") {}

void vxBarChart2D::setUp() {
    mIntervalWidthDC = vxBaseChart::getIntervalWidthDC();
    mMinIntervalValueUC = std::numeric_limits<double>::max();
    for (long s = 0; s < getNumOfChartSeries(); ++s) {
        for (long c = 0; c < getNumOfItems(s); ++c) {
            if (isValidValue(s, 0, c)) {
                mMinIntervalValueUC = std::min(mMinIntervalValueUC, getValue(s, 0, c));
            }
        }
    }
    if (mMinIntervalValueUC == std::numeric_limits<double>::max()) mMinIntervalValueUC = 0.0;
    vxBarChart1D::setUp();
}

bool vxBarChart2D::isDateAxis() const {
    const vxAxisItem* axis = getIntervalAxis();
    return axis && axis->getAxisType() == vxAxisScaling::kDateTimeAxis;
}

// A date axis gives each day one category's room.
double vxBarChart2D::categoriesInSpan() const {
    const vxAxisItem* axis = getIntervalAxis();
    if (!axis || !isDateAxis()) return double(getNumOfCategories());
    const double span = axis->getScaling()->getMaxUC() - axis->getScaling()->getMinUC();
    return std::round(std::fabs(span));
}

float vxBarChart2D::barStart(long s, long c, float zero, float sign) const {
    (void)zero;
    const vxAxisItem* axis = getIntervalAxis();
    if (!axis || !isValidValue(s, 0, c)) return 0.0f;
    const double x = getValue(s, 0, c);
    const double stepStart = isDateAxis() ? std::floor(x) : x - 1.0;
    return axis->toDC(stepStart) + sign * offsetOf(s, 0);
}

bool vxBarChart2D::isDrawable(long series, long item) const {
    if (!vxBarChart1D::isDrawable(series, item) || !isValidValue(series, 0, item)) return false;
    const vxAxisItem* axis = getIntervalAxis();
    return axis && axis->getScaling()->isInScale(getValue(series, 0, item));
}

void vxBarChart2D::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxBarChart1D::dump(depth, out);
    vxDumpHeader(out, "vxBarChart2D");
    vxDumpLine(out, "float mIntervalWidthDC:      ", mIntervalWidthDC);
    vxDumpLine(out, "double mMinIntervalValueUC:  ", mMinIntervalValueUC);
    vxDumpEnd(out);
}

}  // namespace Velarix
