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
    const std::vector<double>& getStackedValues() const { return mStackedValues; }
    const std::vector<double>& getProportionalValues() const { return mProportionalValues; }

    long getNumOfPositiveValues() const { return mNumOfPositiveValues; }        // values > 0
    long getNumOfNegativeValues() const { return mNumOfNegativeValues; }        // values < 0
    long getMaxPositiveSeriesIndex() const { return mMaxPositiveSeriesIndex; }  // -1: none
    long getMaxNegativeSeriesIndex() const { return mMaxNegativeSeriesIndex; }
    bool doSplitStackedValues() const { return mDoSplitStackedValues; }
    double getReferenceValue() const { return mReferenceValue; }
    double getPositiveStackedSum() const { return mPositiveStackedSum; }
    double getNegativeStackedSum() const { return mNegativeStackedSum; }
    double getPositiveProportionalSum() const { return mPositiveProportionalSum; }
    double getNegativeProportionalSum() const { return mNegativeProportionalSum; }

private:
    bool isIndex(long index) const { return index >= 0 && index < getNumOfChartSeries(); }
    double splitBase(long index, double value) const;
    // The last element from 1 on that passes the test, 0 when none does.
    template <class Test>
    long lastElementWhere(Test test) const;

    long mNumOfPositiveValues = 0;
    long mNumOfNegativeValues = 0;
    long mMaxPositiveSeriesIndex = -1;
    long mMaxNegativeSeriesIndex = -1;
    bool mDoSplitStackedValues = true;
    double mReferenceValue = 0.0;
    double mPositiveStackedSum = 0.0;
    double mNegativeStackedSum = 0.0;
    double mPositiveProportionalSum = 0.0;
    double mNegativeProportionalSum = 0.0;
    std::vector<double> mStackedValues;
    std::vector<double> mProportionalValues;
};

}  // namespace Velarix
