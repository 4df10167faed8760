// One column of a chart's numbers: the values, the limits that say which of
// them are valid, and every statistic of the valid ones.
//
// A value is valid when lowerLimit <= value <= upperLimit. A missing value
// is kInvalidValue, the most negative double, which lies below the default
// lower limit; nothing tests for it as such. Every statistic runs over the
// valid values only, n being their count.
//
// Each statistic is computed on its first request and kept behind its flag
// until fill, a change of the values or a change of a limit clears them all.
// A statistic of a series without a valid value is not computed: the field
// keeps its initial value and the flag stays false. Related statistics come
// from one pass over the values and are kept together; those that need the
// values in order share one sorted copy of the valid values.
#pragma once

#include <limits>
#include <ostream>
#include <vector>

#include "settings/vxErrorHolder.h"

namespace Velarix {

class vxDataValueSeries : public vxErrorHolder {
public:
    static constexpr double kInvalidValue = -1.7976931348623157e+308;
    static constexpr double kDefaultLowerLimit = -1.7797162035136925e+308;
    static constexpr double kDefaultUpperLimit = 1.7797162035136925e+308;

    // Data types: 1 interval series, 2 numbers, 3 date-time values.
    static constexpr short kIntervalType = 1;
    static constexpr short kNumberType = 2;
    static constexpr short kDateTimeType = 3;

    // Options, added as bits: 1 reverse, 2 sort ascending, 4 remove
    // duplicates. Sorting comes first, reversing last.
    static constexpr short kReverse = 1;
    static constexpr short kSort = 2;
    static constexpr short kUnique = 4;

    vxDataValueSeries();
    ~vxDataValueSeries() override;

    // An empty number series with the default limits.
    void init();
    // Clears, then copies every field; null leaves the defaults.
    void copy(const vxDataValueSeries* from);
    void dump(short depth, std::ostream& out) const;

    // Takes the values over and applies the option. In a date-time series
    // each value <= 0 but the missing value, the mark of a value written
    // with a date and a time, becomes positive; the valid values are then
    // counted: those with
    // a date or the mark as date components, those with a time or the mark
    // as time components. Other series leave both counts at -1.
    void fill(std::vector<double> values, short dataType, double lowerLimit, double upperLimit,
              short option);
    // Options outside 1 to 7 do nothing. The component counts are kept.
    void applyOption(short option);
    // Each valid value becomes its whole part.
    void dropFractions();
    // Cuts the series, or lengthens it with invalid values.
    void resize(long n);

    long size() const { return static_cast<long>(mValues.size()); }
    // kInvalidValue out of range.
    double value(long i) const;
    bool isValid(long i) const;
    bool isValidValue(double v) const { return v >= mLowerLimit && v <= mUpperLimit; }
    const std::vector<double>& getValues() const { return mValues; }

    short getDataType() const { return mDataType; }
    double getLowerLimit() const { return mLowerLimit; }
    double getUpperLimit() const { return mUpperLimit; }
    void setLowerLimit(double limit);
    void setUpperLimit(double limit);

    long getNumOfInvalidValues();
    long getNumOfValidValues();
    long getNumOfDateComponents() const { return mNumOfDateComponents; }
    long getNumOfTimeComponents() const { return mNumOfTimeComponents; }
    bool isAscendingSorted() const { return mIsAscendingSorted; }
    bool isDescendingSorted() const { return mIsDescendingSorted; }
    bool isUnique() const { return mIsUnique; }

    // The distinct valid values in ascending order.
    void setUpCategories();
    const std::vector<double>& getCategories() const { return mCategories; }
    void attachCategories(const vxDataValueSeries& other);
    // The values become the number of valid values equal to each category,
    // the categories those given; the limits return to their defaults.
    void setUpDataFrequencies(const std::vector<double>& categories);
    // The values become the counts of `intervals` classes of equal width
    // between min and max, with one class more at each end when openEnds.
    // Left-closed classes take a value on an inner edge into the higher
    // class, the others into the lower one. The categories become the lower
    // edges min, min + width, ..., one per class.
    void setUpRangeFrequencies(bool leftClosed, bool openEnds, double min, double max,
                               long intervals);

    double getSum();
    double getAbsoluteSum();
    double getPositiveSum();  // of the values > 0
    double getNegativeSum();  // of the values < 0
    double getMinValue();     // the largest double when there is no valid value
    double getMaxValue();     // its negative when there is none
    double getAbsoluteMinValue();
    double getAbsoluteMaxValue();
    double getPositiveMinValue();  // the smallest value > 0, or 0
    double getPositiveMaxValue();  // the largest value > 0, or 0
    double getNegativeMinValue();  // the most negative value, or 0
    double getNegativeMaxValue();  // the least negative value, or 0
    // The smallest gap between neighbours in order that is not within the
    // relative tolerance of the range; -1 with fewer than two values or
    // without two distinct ones.
    double getMinDifference();
    double getMean();
    double getGeometricMean();  // error 5011 for a value below 1e-10
    double getHarmonicMean();   // error 5010 for a value or a sum of inverses near 0
    double getRootMeanSquare();
    double getMedian();
    double getMeanDeviation();
    double getMedianDeviation();
    double getStandardDeviation();  // divided by n
    double getStandardError();
    double getVariance();
    // The moments of order k, 1 to 4, about 0 and about the mean; 0 for
    // any other k.
    double getMoment(short k);
    double getMomentMean(short k);
    // The moment of order k about the origin, computed on every call.
    double getMomentOrigin(short k, double origin);
    // The value below which p percent of the valid values lie, interpolated
    // between neighbours in order. With x = p * n / 100: the last value for
    // x >= n, the first one for -1 < x < 1, and 0 for x <= -1 or without a
    // valid value.
    double percentile(double p);

private:
    // The statistics, then one flag for each, in the order of the getters.
    struct Statistics {
        double sum = 0.0;
        double absoluteSum = 0.0;
        double positiveSum = 0.0;
        double negativeSum = 0.0;
        double minValue = std::numeric_limits<double>::max();
        double maxValue = -std::numeric_limits<double>::max();
        double absoluteMinValue = 0.0;
        double absoluteMaxValue = 0.0;
        double positiveMinValue = 0.0;
        double positiveMaxValue = 0.0;
        double negativeMinValue = 0.0;
        double negativeMaxValue = 0.0;
        double minDifference = -1.0;
        double mean = 0.0;
        double geometricMean = 0.0;
        double harmonicMean = 0.0;
        double rootMeanSquare = 0.0;
        double median = 0.0;
        double meanDeviation = 0.0;
        double medianDeviation = 0.0;
        double standardDeviation = 0.0;
        double standardError = 0.0;
        double variance = 0.0;
        double moment[4] = {0.0, 0.0, 0.0, 0.0};
        double momentMean[4] = {0.0, 0.0, 0.0, 0.0};
        double momentOrigin = 0.0;  // the last one computed

        bool hasSum = false;
        bool hasAbsoluteSum = false;
        bool hasPositiveSum = false;
        bool hasNegativeSum = false;
        bool hasMinValue = false;
        bool hasMaxValue = false;
        bool hasAbsoluteMinValue = false;
        bool hasAbsoluteMaxValue = false;
        bool hasPositiveMinValue = false;
        bool hasPositiveMaxValue = false;
        bool hasNegativeMinValue = false;
        bool hasNegativeMaxValue = false;
        bool hasMinDifference = false;
        bool hasMean = false;
        bool hasGeometricMean = false;
        bool hasHarmonicMean = false;
        bool hasRootMeanSquare = false;
        bool hasMedian = false;
        bool hasMeanDeviation = false;
        bool hasMedianDeviation = false;
        bool hasStandardDeviation = false;
        bool hasStandardError = false;
        bool hasVariance = false;
        bool hasMoment[4] = {false, false, false, false};
        bool hasMomentMean[4] = {false, false, false, false};
        bool hasMomentOrigin = false;
    };

    void resetStatistics();
    void countDateTimeComponents();
    void reverseValues();
    bool sortValues();
    bool removeDuplicates();
    bool removeLaterDuplicates();
    void storeCounts(std::vector<double>& counts, std::vector<double>& newCategories);
    bool countRanges(bool leftClosed, bool openEnds, double min, double max, long intervals,
                     std::vector<double>& counts);

    void dumpStatistics(std::ostream& out) const;
    void dumpFlags(std::ostream& out) const;

    // Each computes a group of statistics in one pass over the valid values
    // and sets their flags; false when there is no valid value or on error.
    struct SumPass;
    bool calculateSums();
    void storeSums(const SumPass& pass);
    void storeExtremes(const SumPass& pass);
    bool calculateDeviations();
    bool calculateMedian();
    bool calculateMedianDeviation();
    bool calculateMinDifference();
    bool calculateGeometricMean();
    bool calculateHarmonicMean();
    // The valid values in ascending order, made once; false on error 5000.
    bool setUpSortedValues();

    short mDataType = kNumberType;
    double mLowerLimit = kDefaultLowerLimit;
    double mUpperLimit = kDefaultUpperLimit;
    std::vector<double> mValues;
    std::vector<double> mCategories;
    long mNumOfInvalidValues = -1;
    long mNumOfDateComponents = -1;
    long mNumOfTimeComponents = -1;
    bool mIsAscendingSorted = false;
    bool mIsDescendingSorted = false;
    bool mIsUnique = false;
    Statistics mStats;
    std::vector<double> mSortedValues;
    bool mHasSortedValues = false;
};

}  // namespace Velarix
