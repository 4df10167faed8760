// The edges and directions of every bar: beside each other, or stacked
// from the reference value outward.
#include <algorithm>
#include <cmath>

#include "axes/vxAxisItem.h"
#include "axes/vxAxisScaling.h"
#include "charts/vxBarChart1D.h"

namespace Velarix {

bool vxBarChart1D::createBarVectors() {
    const size_t n = static_cast<size_t>(getNumOfChartSeries() * numOfCategories);
    try {
        for (auto* v : {&barLeftDC, &barTopDC, &barRightDC, &barBottomDC}) v->assign(n, 0.0f);
        barDirections.assign(n, 0);
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"createBarVectors"));
        return false;
    }
    return true;
}

// The bar runs along the interval axis from `along` for one bar width (the
// other way on a reversed axis), and across between two positions on the
// value axis; `upward` says that its value lies above the reference.
void vxBarChart1D::storeBar(long s, long c, float along, float valueFrom, float valueTo,
                            bool upward) {
    const vxAxisItem* interval = getIntervalAxis();
    const bool reversed = interval->getScaling()->getDoReverseScaling();
    const bool horizontal = getParameters().isHorizontal();
    // Upright bars go along x from left to right, horizontal ones along y
    // from the bottom up: a reversed axis runs the other way.
    const bool backward = horizontal != reversed;
    const float a = backward ? along - barWidthDC : along;
    const float b = backward ? along : along + barWidthDC;
    const size_t i = indexOf(s, c);
    const float low = std::min(valueFrom, valueTo);
    const float high = std::max(valueFrom, valueTo);
    if (!horizontal) {
        barLeftDC[i] = a;
        barRightDC[i] = b;
        barTopDC[i] = low;
        barBottomDC[i] = high;
        // On the screen y grows downward: a value over the reference rises.
        const bool rises = valueTo < valueFrom || (valueTo == valueFrom && upward);
        barDirections[i] = rises ? kUp : kDown;
    } else {
        barLeftDC[i] = low;
        barRightDC[i] = high;
        barTopDC[i] = std::min(a, b);
        barBottomDC[i] = std::max(a, b);
        const bool right = valueTo > valueFrom || (valueTo == valueFrom && upward);
        barDirections[i] = right ? kToRight : kToLeft;
    }
}

// Where bars start along the interval axis: the position of 0 there, and
// the way offsets run from it. False without axes or vectors.
bool vxBarChart1D::startBars(float& zero, float& sign) {
    const vxAxisItem* interval = getIntervalAxis();
    if (!interval || !getValueAxis() || !createBarVectors()) return false;
    zero = interval->toDC(0.0);
    const bool reversed = interval->getScaling()->getDoReverseScaling();
    sign = (getParameters().isHorizontal() != reversed) ? -1.0f : 1.0f;
    return true;
}

void vxBarChart1D::setUpNonStackedBars() {
    float zero = 0.0f, sign = 1.0f;
    if (!startBars(zero, sign)) return;
    const vxAxisItem* value = getValueAxis();
    const double r = getParameters().getReferenceValue();
    const float base = value->toDC(r);
    for (long s = 0; s < getNumOfChartSeries(); ++s) {
        for (long c = 0; c < getNumOfItems(s); ++c) {
            if (!isValidValue(s, 1, c)) continue;
            const double v = getValue(s, 1, c);
            storeBar(s, c, barStart(s, c, zero, sign), base, value->toDC(v), v >= r);
        }
    }
}

// Each category's stack grows from the reference value: the positive
// values upward, the negative ones downward, each bar from the end of the
// last one of its sign.
void vxBarChart1D::setUpStackedBars() {
    float zero = 0.0f, sign = 1.0f;
    if (!startBars(zero, sign)) return;
    const vxAxisItem* value = getValueAxis();
    const bool proportional = getParameters().isProportional();
    const double r = getParameters().getReferenceValue();
    for (long c = 0; c < numOfCategories; ++c) {
        float positiveEnd = value->toDC(r);
        float negativeEnd = positiveEnd;
        for (long s = 0; s < getNumOfChartSeries(); ++s) {
            if (c >= getNumOfItems(s) || !isValidValue(s, 1, c)) continue;
            const double stacked =
                proportional ? getProportionalValue(s, c) : getStackedValue(s, c);
            const bool upward = getValue(s, 1, c) >= 0.0;
            float& end = upward ? positiveEnd : negativeEnd;
            const float next = value->toDC(stacked);
            storeBar(s, c, barStart(s, c, zero, sign), end, next, upward);
            end = next;
        }
    }
}

}  // namespace Velarix
