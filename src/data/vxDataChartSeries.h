// One series of a chart: the value series that together make one drawn
// series (X and Y, or high, low, close and open), interval series first,
// and the number of items the chart draws of them.
//
// The forwards take the index of a value series and return 0 (false, a
// null pointer) when it is out of range. An error of a statistic is copied
// from the value series to the chart series.
#pragma once

#include <memory>
#include <ostream>
#include <vector>

#include "data/vxDataValueSeries.h"
#include "settings/vxErrorHolder.h"

namespace Velarix {

class vxDataChartSeries : public vxErrorHolder {
public:
    vxDataChartSeries();
    ~vxDataChartSeries() override;

    // No value series and no items.
    void init();
    // Clears, then copies the count and every value series; null clears.
    void copy(const vxDataChartSeries* from);
    void dump(short depth, std::ostream& out) const;

    // Appends an empty value series; null on error 5000.
    vxDataValueSeries* addValueSeries();
    long getNumOfValueSeries() const { return static_cast<long>(mValueSeries.size()); }
    vxDataValueSeries* getValueSeries(long series);
    const vxDataValueSeries* getValueSeries(long series) const;

    // The shortest value series, cut down to whole records.
    // The length of the shortest value series from `first` on; 0 for none.
    long getShortestLength(long first) const;
    long getNumOfItems() const { return mNumOfItems; }
    void setNumOfItems(long n) { mNumOfItems = n; }

    long getNumOfValues(long series) const;
    double getValue(long series, long i) const;
    bool isValidValue(long series, long i) const;
    short getDataType(long series) const;
    double getLowerLimit(long series) const;
    double getUpperLimit(long series) const;
    long getNumOfInvalidValues(long series);
    long getNumOfValidValues(long series);
    long getNumOfDateComponents(long series) const;
    long getNumOfTimeComponents(long series) const;

    double getSum(long s) { return statistic(s, &vxDataValueSeries::getSum); }
    double getAbsoluteSum(long s) { return statistic(s, &vxDataValueSeries::getAbsoluteSum); }
    double getPositiveSum(long s) { return statistic(s, &vxDataValueSeries::getPositiveSum); }
    double getNegativeSum(long s) { return statistic(s, &vxDataValueSeries::getNegativeSum); }
    double getMinValue(long s) { return statistic(s, &vxDataValueSeries::getMinValue); }
    double getMaxValue(long s) { return statistic(s, &vxDataValueSeries::getMaxValue); }
    double getAbsoluteMinValue(long s) {
        return statistic(s, &vxDataValueSeries::getAbsoluteMinValue);
    }
    double getAbsoluteMaxValue(long s) {
        return statistic(s, &vxDataValueSeries::getAbsoluteMaxValue);
    }
    double getPositiveMinValue(long s) {
        return statistic(s, &vxDataValueSeries::getPositiveMinValue);
    }
    double getPositiveMaxValue(long s) {
        return statistic(s, &vxDataValueSeries::getPositiveMaxValue);
    }
    double getNegativeMinValue(long s) {
        return statistic(s, &vxDataValueSeries::getNegativeMinValue);
    }
    double getNegativeMaxValue(long s) {
        return statistic(s, &vxDataValueSeries::getNegativeMaxValue);
    }
    double getMinDifference(long s) { return statistic(s, &vxDataValueSeries::getMinDifference); }
    double getMean(long s) { return statistic(s, &vxDataValueSeries::getMean); }
    double getGeometricMean(long s) { return statistic(s, &vxDataValueSeries::getGeometricMean); }
    double getHarmonicMean(long s) { return statistic(s, &vxDataValueSeries::getHarmonicMean); }
    double getRootMeanSquare(long s) { return statistic(s, &vxDataValueSeries::getRootMeanSquare); }
    double getMedian(long s) { return statistic(s, &vxDataValueSeries::getMedian); }
    double getMeanDeviation(long s) { return statistic(s, &vxDataValueSeries::getMeanDeviation); }
    double getMedianDeviation(long s) {
        return statistic(s, &vxDataValueSeries::getMedianDeviation);
    }
    double getStandardDeviation(long s) {
        return statistic(s, &vxDataValueSeries::getStandardDeviation);
    }
    double getStandardError(long s) { return statistic(s, &vxDataValueSeries::getStandardError); }
    double getVariance(long s) { return statistic(s, &vxDataValueSeries::getVariance); }
    double getMoment(long series, short k);
    double getMomentMean(long series, short k);
    double getMomentOrigin(long series, short k, double origin);
    double percentile(long series, double p);

private:
    void takeError(const vxDataValueSeries& series);
    double statistic(long series, double (vxDataValueSeries::*getter)());

    long mNumOfItems = 0;
    std::vector<std::unique_ptr<vxDataValueSeries>> mValueSeries;
};

}  // namespace Velarix
