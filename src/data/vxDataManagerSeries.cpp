// Values the manager derives from its chart series: stacks, interval
// positions and angles, frequencies and the sort order of items.
#include <algorithm>
#include <cmath>
#include <numeric>

#include "charts/vxBaseChartParameters.h"
#include "data/vxDataChartSeries.h"
#include "data/vxDataManager.h"
#include "data/vxDataRawInput.h"
#include "data/vxDataStackedSeries.h"
#include "data/vxDataValueSeries.h"

namespace Velarix {

namespace {

constexpr double kDegreesToRadians = 0.017453292519943295;
// The value series whose values are stacked: the first after the interval
// series of a 1D chart, the y series of a 2D chart.
constexpr long kStackedPosition = 1;

}  // namespace

void vxDataManager::setUpStackedValues(const vxBaseChartParameters& chart) {
    stackedSeries.clear();
    maxPositiveStackedSum = minNegativeStackedSum = 0.0;
    maxPositiveProportionalSum = minNegativeProportionalSum = 0.0;
    totalPositiveStackedSum = totalNegativeStackedSum = 0.0;
    if (!chart.isStacked()) return;
    const long c = getNumOfChartSeries();
    for (long i = 0; i < maxNumOfItems; ++i) {
        std::unique_ptr<vxDataStackedSeries> stack;
        if (!create(stack, L"setUpStackedValues")) return;
        stack->init(c, chart.getReferenceValue(), chart.doSplitStackedValues());
        for (long j = 0; j < c; ++j) {
            if (i < getNumOfItems(j) && isValidValue(j, kStackedPosition, i)) {
                stack->add(j, getValue(j, kStackedPosition, i));
            } else {
                stack->skip(j);
            }
        }
        stack->setUpExtremes();
        if (chart.isProportional()) stack->setUpProportionalValues();
        maxPositiveStackedSum = std::max(maxPositiveStackedSum, stack->getPositiveStackedSum());
        minNegativeStackedSum = std::min(minNegativeStackedSum, stack->getNegativeStackedSum());
        maxPositiveProportionalSum =
            std::max(maxPositiveProportionalSum, stack->getPositiveProportionalSum());
        minNegativeProportionalSum =
            std::min(minNegativeProportionalSum, stack->getNegativeProportionalSum());
        totalPositiveStackedSum += stack->getPositiveStackedSum();
        totalNegativeStackedSum += stack->getNegativeStackedSum();
        try {
            stackedSeries.push_back(std::move(stack));
        } catch (const std::bad_alloc&) {
            return setError(vxErrRuntime::kOutOfMemory, where(L"setUpStackedValues", 2));
        }
    }
}

void vxDataManager::insertIntervalValues(const vxBaseChartParameters& chart) {
    if (chart.getNumOfIntervalSeries() == 0) return;
    if (chart.getCoordinateSystem() == 2) return insertIntervalAngles(chart);
    insertIntervalIndices(chart);
}

// Items stand at 1, 2, 3 ..., or between the ticks at 0.5, 1.5 ...; a chart
// that gives each series an interval of its own puts all items of series j
// at the start plus j.
void vxDataManager::insertIntervalIndices(const vxBaseChartParameters& chart) {
    const bool shifted = minNumOfItems == 1 || chart.doShiftIntervalValues();
    const double start = shifted ? 0.5 : 1.0;
    const bool perSeries = chart.doShowOneSeriesPerInterval();
    for (long j = 0; j < getNumOfChartSeries() && !isError(); ++j) {
        const long count = chart.isStacked() ? getNumOfStackedSeries() : getNumOfItems(j);
        fillIntervalSeries(j, count, perSeries ? start + j : start, perSeries ? 0.0 : 1.0);
    }
}

void vxDataManager::insertIntervalAngles(const vxBaseChartParameters& chart) {
    const double start = chart.getStartAngle() * kDegreesToRadians;
    const double arc = chart.getArcAngle() * kDegreesToRadians;
    const long n = maxNumOfItems;
    double step = 0.0;
    if (n >= 2) {
        const bool fullCircle = std::fabs(arc) > 2.0 * M_PI - 1e-9;
        step = fullCircle ? arc / n : arc / (n - 1);
    }
    for (long j = 0; j < getNumOfChartSeries() && !isError(); ++j) {
        fillIntervalSeries(j, getNumOfItems(j), start, step);
    }
}

void vxDataManager::fillIntervalSeries(long series, long count, double start, double step) {
    vxDataValueSeries* interval = getValueSeries(series, 0);
    if (!interval) return;
    std::vector<double> values;
    try {
        values.resize(static_cast<size_t>(std::max(0L, count)));
    } catch (const std::bad_alloc&) {
        return setError(vxErrRuntime::kOutOfMemory, where(L"fillIntervalSeries"));
    }
    for (size_t i = 0; i < values.size(); ++i) values[i] = start + static_cast<double>(i) * step;
    interval->fill(std::move(values), vxDataRawInput::kTypeInterval,
                   vxDataValueSeries::kDefaultLowerLimit, vxDataValueSeries::kDefaultUpperLimit, 0);
}

void vxDataManager::setUpDataFrequencies() {
    std::vector<double> categories;
    for (long j = 0; j < getNumOfChartSeries(); ++j) {
        for (long v = numOfIntervalSeries; v < getNumOfValueSeries(j); ++v) {
            vxDataValueSeries* values = getValueSeries(j, v);
            values->setUpCategories();
            const std::vector<double>& own = values->getCategories();
            categories.insert(categories.end(), own.begin(), own.end());
        }
    }
    std::sort(categories.begin(), categories.end());
    categories.erase(std::unique(categories.begin(), categories.end()), categories.end());
    for (long j = 0; j < getNumOfChartSeries(); ++j) {
        for (long v = numOfIntervalSeries; v < getNumOfValueSeries(j); ++v) {
            vxDataValueSeries* values = getValueSeries(j, v);
            values->setUpDataFrequencies(categories);
            if (values->isError()) return copyError(values->getError());
        }
    }
    recountItems();
}

void vxDataManager::setUpRangeFrequencies(double min, double max, bool hasMin, bool hasMax,
                                          long intervals, bool openEnds, bool leftClosed) {
    const long positions = getNumOfChartSeries() > 0 ? getNumOfValueSeries(0) : 0;
    for (long v = numOfIntervalSeries; v < positions; ++v) {
        double low = min;
        double high = max;
        if (!hasMin || !hasMax) {
            double smallest = std::numeric_limits<double>::max();
            double largest = -smallest;
            for (long j = 0; j < getNumOfChartSeries(); ++j) {
                if (vxDataValueSeries* values = getValueSeries(j, v)) {
                    smallest = std::min(smallest, values->getMinValue());
                    largest = std::max(largest, values->getMaxValue());
                }
            }
            if (!hasMin) low = smallest;
            if (!hasMax) high = largest;
        }
        for (long j = 0; j < getNumOfChartSeries(); ++j) {
            vxDataValueSeries* values = getValueSeries(j, v);
            if (!values) continue;
            values->setUpRangeFrequencies(leftClosed, openEnds, low, high, intervals);
            if (values->isError()) return copyError(values->getError());
        }
    }
    recountItems();
}

void vxDataManager::recountItems() {
    minNumOfItems = maxNumOfItems = 0;
    for (auto& series : chartSeries) {
        const long items = series->getShortestLength(numOfIntervalSeries);
        series->setNumOfItems(items);
        minNumOfItems = std::min(minNumOfItems, items);
        maxNumOfItems = std::max(maxNumOfItems, items);
    }
}

double vxDataManager::stackedTotal(long item) const {
    double total = 0.0;
    for (long j = 0; j < getNumOfChartSeries(); ++j) {
        if (isValidValue(j, kStackedPosition, item)) total += getValue(j, kStackedPosition, item);
    }
    return total;
}

// Invalid values go last, whatever the direction.
void vxDataManager::sortChartSeries(long seriesIndex, short direction, bool stacked) {
    const long count = stacked ? maxNumOfItems : getNumOfItems(seriesIndex);
    sortIndices.resize(static_cast<size_t>(std::max(0L, count)));
    std::iota(sortIndices.begin(), sortIndices.end(), 0L);
    if (direction != 1 && direction != 2) return;
    const long position = numOfIntervalSeries;
    auto key = [&](long item, bool& valid) {
        valid = stacked || isValidValue(seriesIndex, position, item);
        return stacked ? stackedTotal(item) : getValue(seriesIndex, position, item);
    };
    std::stable_sort(sortIndices.begin(), sortIndices.end(), [&](long a, long b) {
        bool validA = false, validB = false;
        const double ka = key(a, validA);
        const double kb = key(b, validB);
        if (validA != validB) return validA;
        return direction == 1 ? ka < kb : ka > kb;
    });
}

}  // namespace Velarix
