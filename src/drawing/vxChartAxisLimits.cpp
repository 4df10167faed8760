// The span each axis of a chart has to show, by chart type.
#include <algorithm>
#include <limits>

#include "axes/vxAxisItem.h"
#include "axes/vxAxisManager.h"
#include "axes/vxAxisScaling.h"
#include "charts/vxBaseChartParameters.h"
#include "data/vxDataChartSeries.h"
#include "data/vxDataManager.h"
#include "data/vxDataValueSeries.h"
#include "drawing/vxChart.h"
#include "furniture/vxBackgroundManager.h"
#include "furniture/vxGridManager.h"
#include "furniture/vxLegend.h"
#include "furniture/vxTitle.h"
#include "overlays/vxCurveFittingManager.h"

namespace Velarix {

namespace {

constexpr double kLargest = std::numeric_limits<double>::max();
constexpr short kIntervalType = 1;
constexpr short kBarChart2D = 10;

}  // namespace

bool vxChart::createAuxScalingVectors(long count) {
    try {
        const size_t n = static_cast<size_t>(std::max(0L, count));
        axisMinValues.assign(n, kLargest);
        axisMaxValues.assign(n, -kLargest);
        axisDataTypes.assign(n, 2);
        axisHasDate.assign(n, 0);
        axisHasTime.assign(n, 0);
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, L"vxChart/createAuxScalingVectors/1");
        return false;
    }
    return true;
}

// A Cartesian chart has an axis for each dimension and each interval axis.
void vxChart::setUpAxisItems() {
    if (!axisManager && !create(axisManager, L"createAxisManager", getOwnerSettings())) return;
    axisManager->setUpAxes(parameters->getNumOfDimensions() + parameters->getNumOfIntervalAxes());
    if (axisManager->isError()) copyError(axisManager->getError());
}

void vxChart::setUpAxisLimits() {
    if (!createAuxScalingVectors(axisManager->getNumOfAxes())) return;
    setUpDateTimeFlags();
    setUpDefaultLimits();
    setUpCurveFittingLimits();
    if (isError()) return;
    const size_t n = axisMinValues.size();
    // An axis without a valid value shows 0 to 1.
    for (size_t k = 0; k < n; ++k) {
        if (axisMinValues[k] <= axisMaxValues[k]) continue;
        axisMinValues[k] = 0.0;
        axisMaxValues[k] = 1.0;
    }
    if (parameters->getChartType() == kBarChart2D && n > 0 && axisHasDate[0] == 0) {
        axisMinValues[0] -= 1.0;
        axisDataTypes[0] = kIntervalType;
    }
    setUpCategoryPositions();
    if (parameters->isHorizontal() && n > 1) {
        std::swap(axisMinValues[0], axisMinValues[1]);
        std::swap(axisMaxValues[0], axisMaxValues[1]);
        std::swap(axisDataTypes[0], axisDataTypes[1]);
        std::swap(axisHasDate[0], axisHasDate[1]);
        std::swap(axisHasTime[0], axisHasTime[1]);
    }
}

// Curves that run past the data widen the axis of their values; the fits
// are made here when the chart has any.
void vxChart::setUpCurveFittingLimits() {
    if (!curveFittingManager || parameters->getCoordinateSystem() != 1) return;
    curveFittingManager->setUp(*dataManager);
    if (curveFittingManager->isError()) return copyError(curveFittingManager->getError());
    curveFittingManager->getYLimits(axisMinValues, axisMaxValues);
}

// Items that stand between the marks of an interval axis take their labels
// at their own places: the positions of the first value series.
void vxChart::setUpCategoryPositions() {
    categoryPositions.clear();
    categoryAxis = -1;
    if (axisDataTypes.empty() || axisDataTypes[0] != kIntervalType) return;
    if (!parameters->doShiftIntervalValues()) return;
    for (long i = 0; i < dataManager->getNumOfChartSeries(); ++i) {
        for (long item = 0; item < dataManager->getNumOfItems(i); ++item) {
            if (!dataManager->isValidValue(i, 0, item)) continue;
            categoryPositions.push_back(dataManager->getValue(i, 0, item));
        }
    }
    std::sort(categoryPositions.begin(), categoryPositions.end());
    categoryPositions.erase(std::unique(categoryPositions.begin(), categoryPositions.end()),
                            categoryPositions.end());
    categoryAxis = parameters->isHorizontal() ? 1 : 0;
}

// Axis 0 shows value series 0 of every chart series, axis 1 the value
// series of the value axis, or the stacks.
void vxChart::setUpDefaultLimits() {
    const long n = dataManager->getNumOfChartSeries();
    const long lastValueSeries =
        parameters->getNumOfIntervalAxes() + parameters->getMinNumOfDataSeries() - 1;
    const auto take = [&](size_t axis, long series, long valueSeries) {
        vxDataChartSeries* chartSeries = dataManager->getChartSeries(series);
        if (!chartSeries || valueSeries >= chartSeries->getNumOfValueSeries()) return;
        const double min = chartSeries->getMinValue(valueSeries);
        const double max = chartSeries->getMaxValue(valueSeries);
        if (min > max) return;
        axisMinValues[axis] = std::min(axisMinValues[axis], min);
        axisMaxValues[axis] = std::max(axisMaxValues[axis], max);
        axisDataTypes[axis] = dataManager->getDataType(series, valueSeries);
    };
    for (long i = 0; i < n; ++i) take(0, i, 0);
    if (axisMinValues.size() < 2) return;
    if (parameters->isStacked()) {
        // Proportional stacks show shares of their totals.
        const bool shares = parameters->isProportional();
        axisMinValues[1] = shares ? dataManager->getMinNegativeProportionalSum()
                                  : dataManager->getMinNegativeStackedSum();
        axisMaxValues[1] = shares ? dataManager->getMaxPositiveProportionalSum()
                                  : dataManager->getMaxPositiveStackedSum();
        if (n > 0) axisDataTypes[1] = dataManager->getDataType(0, 1);
        return;
    }
    for (long i = 0; i < n; ++i) {
        for (long j = 1; j <= std::max(1L, lastValueSeries); ++j) take(1, i, j);
    }
    if (takesReferenceValue()) {
        axisMinValues[1] = std::min(axisMinValues[1], parameters->getReferenceValue());
        axisMaxValues[1] = std::max(axisMaxValues[1], parameters->getReferenceValue());
    }
}

// A reference value that a logarithmic value axis can't show (bars start
// from 0 by default) is moved onto the axis when the chart is drawn; it
// doesn't widen the axis.
bool vxChart::takesReferenceValue() const {
    if (!parameters->isReferenceValueSet()) return false;
    const vxAxisItem* valueAxis = axisManager->getAxis(parameters->isHorizontal() ? 0 : 1);
    const bool logarithmic = valueAxis && valueAxis->getScaling()->isLogarithmic();
    return !logarithmic || parameters->getReferenceValue() >= 1e-10;
}

void vxChart::setUpDateTimeFlags() {
    const long n = dataManager->getNumOfChartSeries();
    for (size_t axis = 0; axis < axisHasDate.size() && axis < 2; ++axis) {
        for (long i = 0; i < n; ++i) {
            vxDataChartSeries* series = dataManager->getChartSeries(i);
            const long first = axis == 0 ? 0 : 1;
            const long last = axis == 0 ? 1 : (series ? series->getNumOfValueSeries() : 0);
            for (long j = first; j < last; ++j) {
                vxDataValueSeries* values = dataManager->getValueSeries(i, j);
                if (!values || values->getDataType() != vxDataValueSeries::kDateTimeType) continue;
                if (values->getNumOfDateComponents() > 0) axisHasDate[axis] = 1;
                if (values->getNumOfTimeComponents() > 0) axisHasTime[axis] = 1;
            }
        }
    }
}

}  // namespace Velarix
