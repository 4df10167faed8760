// The chart's reading of its data, of its axes and of its label formats.
#include <cmath>

#include "Utilities/Sources/vxDateTime.h"
#include "Utilities/Sources/vxFormat.h"
#include "Utilities/Sources/vxFormatDateTime.h"
#include "Utilities/Sources/vxFormatNumber.h"
#include "axes/vxAxisItem.h"
#include "axes/vxAxisManager.h"
#include "axes/vxAxisScaling.h"
#include "charts/vxBaseChart.h"
#include "data/vxDataManager.h"

namespace Velarix {

long vxBaseChart::getNumOfChartSeries() const {
    return dataManager ? dataManager->getNumOfChartSeries() : 0;
}

long vxBaseChart::getNumOfItems(long series) const {
    return dataManager ? dataManager->getNumOfItems(series) : 0;
}

double vxBaseChart::getValue(long series, long subValue, long item) const {
    return dataManager ? dataManager->getValue(series, subValue, item) : 0.0;
}

bool vxBaseChart::isValidValue(long series, long subValue, long item) const {
    return dataManager && dataManager->isValidValue(series, subValue, item);
}

double vxBaseChart::getStackedValue(long series, long item) const {
    return dataManager ? dataManager->getStackedValue(series, item) : 0.0;
}

double vxBaseChart::getProportionalValue(long series, long item) const {
    return dataManager ? dataManager->getProportionalValue(series, item) : 0.0;
}

void vxBaseChart::getStackTotals(long c, double& positive, double& negative) const {
    positive = negative = 0.0;
    for (long s = 0; s < getNumOfChartSeries(); ++s) {
        if (c >= getNumOfItems(s) || !isValidValue(s, 1, c)) continue;
        const double v = getValue(s, 1, c);
        (v >= 0.0 ? positive : negative) += v;
    }
}

long vxBaseChart::getNumOfValidValues(long series, long firstItem) const {
    long count = 0;
    for (long item = firstItem; item < getNumOfItems(series); ++item, ++count) {
        if (!isValidValue(series, 0, item)) break;
    }
    return count;
}

bool vxBaseChart::getPointDC(long series, long subValue, long item, float out[2]) const {
    out[0] = out[1] = 0.0f;
    const vxAxisItem* x = getXAxis();
    const vxAxisItem* y = getYAxis();
    if (parameters.getCoordinateSystem() != 1 || !x || !y) return false;
    double u = getValue(series, 0, item);
    double v = getValue(series, subValue, item);
    if (parameters.isHorizontal()) std::swap(u, v);
    out[0] = x->toDC(u);
    out[1] = y->toDC(v);
    return true;
}

vxAxisItem* vxBaseChart::getXAxis() const {
    return axisManager ? axisManager->getAxis(0) : nullptr;
}

vxAxisItem* vxBaseChart::getYAxis() const {
    return axisManager ? axisManager->getAxis(1) : nullptr;
}

vxAxisItem* vxBaseChart::getIntervalAxis() const {
    return parameters.isHorizontal() ? getYAxis() : getXAxis();
}

vxAxisItem* vxBaseChart::getValueAxis() const {
    return parameters.isHorizontal() ? getXAxis() : getYAxis();
}

bool vxBaseChart::isXReversed() const {
    const vxAxisItem* x = getXAxis();
    return x && x->getScaling()->getDoReverseScaling();
}

bool vxBaseChart::isYReversed() const {
    const vxAxisItem* y = getYAxis();
    return y && y->getScaling()->getDoReverseScaling();
}

float vxBaseChart::getIntervalAxisLengthDC() const {
    const vxAxisItem* axis = getIntervalAxis();
    if (!axis) return 0.0f;
    const vxAxisScaling& s = *axis->getScaling();
    return std::fabs(s.getMaxDC() - s.getMinDC());
}

float vxBaseChart::getIntervalWidthDC() const {
    const vxAxisItem* axis = getIntervalAxis();
    if (!axis) return 0.0f;
    double first = 0.0;
    double second = 0.0;
    if (parameters.doShowOneSeriesPerInterval()) {
        if (getNumOfChartSeries() < 2) return getIntervalAxisLengthDC();
        first = getValue(0, 0, 0);
        second = getValue(1, 0, 0);
    } else {
        long longest = 0;
        for (long s = 1; s < getNumOfChartSeries(); ++s) {
            if (getNumOfItems(s) > getNumOfItems(longest)) longest = s;
        }
        if (getNumOfItems(longest) < 2) return getIntervalAxisLengthDC();
        first = getValue(longest, 0, 0);
        second = getValue(longest, 0, 1);
    }
    return std::fabs(axis->toDC(second) - axis->toDC(first));
}

bool vxBaseChart::isInAxisRange(double value) const {
    const vxAxisItem* axis = getValueAxis();
    return axis && axis->getScaling()->isInScale(value);
}

void vxBaseChart::setUpReferenceValue() {
    const vxAxisItem* axis = getValueAxis();
    if (!parameters.hasReferenceValue() || !axis) return;
    const vxAxisScaling& s = *axis->getScaling();
    if (s.getType() <= vxAxisScaling::kPercent || parameters.getReferenceValue() >= 1e-10) return;
    double value = s.getMinUC();
    if (value < 1e-10) value = s.getMaxUC() >= 1.0 ? 1.0 : s.getMaxUC() / s.getBase();
    parameters.setReferenceValue(value);
}

std::wstring vxBaseChart::formatLabelString(short valueType, double value,
                                            const std::wstring& format) {
    if (format.empty()) return std::wstring();
    const bool isDefault = format == vxFormat::kNoFormatMarker;
    if (valueType == kNumber || valueType == kCount) {
        vxFormatNumber number(formatSettings);
        const std::wstring text = isDefault ? std::wstring(vxFormat::kFallbackFormat) : format;
        if (number.setFormat(text) != 0) {
            setError(number.getError()->getErrorCode(),
                     where(L"formatLabelString", valueType == kNumber ? 1 : 2), format);
            return std::wstring();
        }
        return number.toString(value);
    }
    if (valueType == kDateTime) {
        vxFormatDateTime date(formatSettings);
        const std::wstring text = isDefault ? L"|" + date.getDefaultFormat(value) + L"|" : format;
        if (date.setFormat(text) != 0) {
            setError(date.getError()->getErrorCode(), where(L"formatLabelString", 3), format);
            return std::wstring();
        }
        return date.toString(value);
    }
    return format;
}

}  // namespace Velarix
