#include "charts/vxPointChart.h"

#include <algorithm>
#include <cmath>
#include <new>

#include "axes/vxAxisItem.h"
#include "host/vxLog.h"
#include "script/vxAssign.h"
#include "settings/vxErrorCodes.h"

namespace Velarix {

vxPointChart::vxPointChart(const wchar_t* className) : vxBaseChart(className) {}

vxPointChart::~vxPointChart() = default;

void vxPointChart::setDefaults() {
    vxBaseChart::setDefaults();
    doShiftIntervalValues = false;
    numOfCategories = 0;
    xDC.clear();
    yDC.clear();
    validDC.clear();
    intervalValuesDC.clear();
    positiveValuesDC.clear();
    negativeValuesDC.clear();
}

void vxPointChart::assign(vxAssign& a) {
    if (isOneDimensional()) doShiftIntervalValues = a.getBool(0, false);
}

double vxPointChart::getShownValue(long s, long c) const {
    if (!getParameters().isStacked()) return getValue(s, 1, c);
    return getParameters().isProportional() ? getProportionalValue(s, c) : getStackedValue(s, c);
}

bool vxPointChart::isPointValid(long s, long c) const {
    return c < getNumOfItems(s) && isValidValue(s, 1, c) && isValidValue(s, 0, c);
}

bool vxPointChart::createPolygonVectors() {
    numOfCategories = 0;
    for (long s = 0; s < getNumOfChartSeries(); ++s) {
        numOfCategories = std::max(numOfCategories, getNumOfItems(s));
    }
    const size_t cells = static_cast<size_t>((getNumOfChartSeries() + 1) * numOfCategories);
    try {
        intervalValuesDC.assign(static_cast<size_t>(numOfCategories), 0.0f);
        positiveValuesDC.assign(cells, 0.0f);
        negativeValuesDC.assign(cells, 0.0f);
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"createPolygonVectors"));
        return false;
    }
    return true;
}

bool vxPointChart::createSinglePolygonVectors(long count) {
    try {
        xDC.resize(static_cast<size_t>(count));
        yDC.resize(static_cast<size_t>(count));
        validDC.assign(static_cast<size_t>(count), 0);
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"createSinglePolygonVectors"));
        return false;
    }
    return true;
}

// Categories stand one unit apart from the first series' first interval
// value; the base line, row 0 of both sides, is the reference value's
// position. False when the chart lacks its axes or memory runs out.
bool vxPointChart::startLayout() {
    const vxAxisItem* interval = getIntervalAxis();
    const vxAxisItem* value = getValueAxis();
    if (!createPolygonVectors() || !interval || !value) return false;
    const double first = getNumOfChartSeries() > 0 ? getValue(0, 0, 0) : 0.0;
    for (long c = 0; c < numOfCategories; ++c) {
        intervalValuesDC[static_cast<size_t>(c)] = interval->toDC(first + double(c));
    }
    const float base = value->toDC(getParameters().getReferenceValue());
    std::fill(positiveValuesDC.begin(), positiveValuesDC.begin() + numOfCategories, base);
    std::fill(negativeValuesDC.begin(), negativeValuesDC.begin() + numOfCategories, base);
    return true;
}

// A gap, or an item past the end of a shorter series, lies on the base.
void vxPointChart::setUpNonStackedValues() {
    if (!startLayout()) return;
    const vxAxisItem& value = *getValueAxis();
    for (long s = 0; s < getNumOfChartSeries(); ++s) {
        for (long c = 0; c < numOfCategories; ++c) {
            positiveValuesDC[rowIndex(s + 1, c)] = isPointValid(s, c)
                                                       ? value.toDC(getValue(s, 1, c))
                                                       : positiveValuesDC[rowIndex(0, c)];
        }
    }
}

// Each series adds to the side of the reference on which its stacked value
// lies; the other side, and a gap, keep the level below.
void vxPointChart::setUpStackedValues() {
    if (!startLayout()) return;
    const vxAxisItem& value = *getValueAxis();
    const double reference = getParameters().getReferenceValue();
    for (long s = 0; s < getNumOfChartSeries(); ++s) {
        for (long c = 0; c < numOfCategories; ++c) {
            const size_t below = rowIndex(s, c);
            const size_t at = rowIndex(s + 1, c);
            positiveValuesDC[at] = positiveValuesDC[below];
            negativeValuesDC[at] = negativeValuesDC[below];
            if (!isPointValid(s, c)) continue;
            const double v = getShownValue(s, c);
            (v >= reference ? positiveValuesDC : negativeValuesDC)[at] = value.toDC(v);
        }
    }
}

const std::vector<float>& vxPointChart::topRowOf(long s, long c) const {
    if (!getParameters().isStacked()) return positiveValuesDC;
    return getShownValue(s, c) >= getParameters().getReferenceValue() ? positiveValuesDC
                                                                      : negativeValuesDC;
}

// The points of a 1D series come out of the layout, exchanged on a
// horizontal chart. A point whose position isn't a number (a value a
// logarithmic axis can't show) counts as a gap.
bool vxPointChart::setUpSeriesPolygon(long s) {
    const long n = std::min(getNumOfItems(s), numOfCategories);
    if (n <= 0 || !createSinglePolygonVectors(n)) return false;
    const bool horizontal = getParameters().isHorizontal();
    for (long c = 0; c < n; ++c) {
        const size_t i = static_cast<size_t>(c);
        const float along = intervalValuesDC[i];
        const float across = topRowOf(s, c)[rowIndex(s + 1, c)];
        xDC[i] = horizontal ? across : along;
        yDC[i] = horizontal ? along : across;
        validDC[i] = isPointValid(s, c) && std::isfinite(along) && std::isfinite(across);
    }
    return true;
}

// The points of a 2D series from its (x, y) pairs.
bool vxPointChart::setUpPairPolygon(long s) {
    const vxAxisItem* x = getXAxis();
    const vxAxisItem* y = getYAxis();
    const long n = getNumOfItems(s);
    if (!x || !y || n <= 0 || !createSinglePolygonVectors(n)) return false;
    for (long c = 0; c < n; ++c) {
        const size_t i = static_cast<size_t>(c);
        xDC[i] = x->toDC(getValue(s, 0, c));
        yDC[i] = y->toDC(getValue(s, 1, c));
        validDC[i] = isPointValid(s, c) && std::isfinite(xDC[i]) && std::isfinite(yDC[i]);
    }
    return true;
}

void vxPointChart::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxBaseChart::dump(depth, out);
    vxDumpHeader(out, "vxPointChart");
    vxDumpLine(out, "bool doShiftIntervalValues: ", doShiftIntervalValues);
    vxDumpLine(out, "long numOfCategories: ", numOfCategories);
    vxDumpEnd(out);
}

}  // namespace Velarix
