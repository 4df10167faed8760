// The running sums of one item across the chart series of a stacked or a
// proportional chart. Element 0 is the reference value r; element i + 1 is
// the top of chart series i.
//
// Split, positive values stack on the positive ones and negative values on
// the negative ones: a value is added to the nearest element before it that
// lies strictly on its side of r (above r for a value >= 0, below r for one
// < 0), or to r when there is none, and a chart series without a value
// stands at r. Without split the sum runs on through every chart series.
#pragma once

#include <ostream>
#include <vector>

#include "settings/vxErrorHolder.h"

namespace Velarix {

class vxDataStackedSeries : public vxErrorHolder {
public:
    vxDataStackedSeries();
    ~vxDataStackedSeries() override;

    // Every element at r, no value counted; error 5000 when the elements
    // can't be made.
    void init(long numOfChartSeries, double referenceValue, bool doSplit);
    // Clears, then copies every field; null clears.
    void copy(const vxDataStackedSeries* from);
    void dump(short depth, std::ostream& out) const;

    // Chart series `index` has a valid value at this item. Error 5012 for
    // an index out of range.
    void add(long index, double value);
    // Chart series `index` has none.
    void skip(long index);
    // The largest element becomes the positive stacked sum and the smallest
    // the negative one, so that they hold every running total. Split, the
    // max series indices are those of the last chart series above and below
    // r; without split those of the last element at each extreme.
    void setUpExtremes();
    // Divides the elements and the stacked sums by the larger of the
    // positive sum and the negated negative sum; all 0 when that is 0.
    void setUpProportionalValues();

    long getNumOfChartSeries() const;
    // The top of chart series `index`; 0 out of range.
    double getStackedValue(long index) const;
    double getProportionalValue(long index) const;
    const std::vector<double>& getStackedValues() const { return stackedValues; }
    const std::vector<double>& getProportionalValues() const { return proportionalValues; }

    long getNumOfPositiveValues() const { return numOfPositiveValues; }        // values > 0
    long getNumOfNegativeValues() const { return numOfNegativeValues; }        // values < 0
    long getMaxPositiveSeriesIndex() const { return maxPositiveSeriesIndex; }  // -1: none
    long getMaxNegativeSeriesIndex() const { return maxNegativeSeriesIndex; }
    bool doSplitStackedValues() const { return doSplit; }
    double getReferenceValue() const { return referenceValue; }
    double getPositiveStackedSum() const { return positiveStackedSum; }
    double getNegativeStackedSum() const { return negativeStackedSum; }
    double getPositiveProportionalSum() const { return positiveProportionalSum; }
    double getNegativeProportionalSum() const { return negativeProportionalSum; }

private:
    bool isIndex(long index) const { return index >= 0 && index < getNumOfChartSeries(); }
    double splitBase(long index, double value) const;
    // The last element from 1 on that passes the test, 0 when none does.
    template <class Test>
    long lastElementWhere(Test test) const;

    long numOfPositiveValues = 0;
    long numOfNegativeValues = 0;
    long maxPositiveSeriesIndex = -1;
    long maxNegativeSeriesIndex = -1;
    bool doSplit = true;
    double referenceValue = 0.0;
    double positiveStackedSum = 0.0;
    double negativeStackedSum = 0.0;
    double positiveProportionalSum = 0.0;
    double negativeProportionalSum = 0.0;
    std::vector<double> stackedValues;
    std::vector<double> proportionalValues;
};

}  // namespace Velarix
