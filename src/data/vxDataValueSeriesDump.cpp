// The log form of a value series: its fields, then every statistic and flag.
#include "data/vxDataDump.h"
#include "data/vxDataValueSeries.h"
#include "host/vxLog.h"

namespace Velarix {

void vxDataValueSeries::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, "vxDataValueSeries");
    vxDumpLine(out, "short dataType:               ", mDataType);
    vxDumpLine(out, "double lowerLimit:            ", mLowerLimit);
    vxDumpLine(out, "double upperLimit:            ", mUpperLimit);
    vxDumpLine(out, "vector<double> values:        ", vxDataDumpText(mValues));
    vxDumpLine(out, "vector<double> categories:    ", vxDataDumpText(mCategories));
    vxDumpLine(out, "long numOfInvalidValues:      ", mNumOfInvalidValues);
    vxDumpLine(out, "long numOfDateComponents:     ", mNumOfDateComponents);
    vxDumpLine(out, "long numOfTimeComponents:     ", mNumOfTimeComponents);
    vxDumpLine(out, "bool isAscendingSorted:       ", mIsAscendingSorted);
    vxDumpLine(out, "bool isDescendingSorted:      ", mIsDescendingSorted);
    vxDumpLine(out, "bool isUnique:                ", mIsUnique);
    dumpStatistics(out);
    dumpFlags(out);
    vxDumpEnd(out);
}

void vxDataValueSeries::dumpStatistics(std::ostream& out) const {
    vxDumpLine(out, "double sum:                   ", mStats.sum);
    vxDumpLine(out, "double absoluteSum:           ", mStats.absoluteSum);
    vxDumpLine(out, "double positiveSum:           ", mStats.positiveSum);
    vxDumpLine(out, "double negativeSum:           ", mStats.negativeSum);
    vxDumpLine(out, "double minValue:              ", mStats.minValue);
    vxDumpLine(out, "double maxValue:              ", mStats.maxValue);
    vxDumpLine(out, "double absoluteMinValue:      ", mStats.absoluteMinValue);
    vxDumpLine(out, "double absoluteMaxValue:      ", mStats.absoluteMaxValue);
    vxDumpLine(out, "double positiveMinValue:      ", mStats.positiveMinValue);
    vxDumpLine(out, "double positiveMaxValue:      ", mStats.positiveMaxValue);
    vxDumpLine(out, "double negativeMinValue:      ", mStats.negativeMinValue);
    vxDumpLine(out, "double negativeMaxValue:      ", mStats.negativeMaxValue);
    vxDumpLine(out, "double minDifference:         ", mStats.minDifference);
    vxDumpLine(out, "double mean:                  ", mStats.mean);
    vxDumpLine(out, "double geometricMean:         ", mStats.geometricMean);
    vxDumpLine(out, "double harmonicMean:          ", mStats.harmonicMean);
    vxDumpLine(out, "double rootMeanSquare:        ", mStats.rootMeanSquare);
    vxDumpLine(out, "double median:                ", mStats.median);
    vxDumpLine(out, "double meanDeviation:         ", mStats.meanDeviation);
    vxDumpLine(out, "double medianDeviation:       ", mStats.medianDeviation);
    vxDumpLine(out, "double standardDeviation:     ", mStats.standardDeviation);
    vxDumpLine(out, "double standardError:         ", mStats.standardError);
    vxDumpLine(out, "double variance:              ", mStats.variance);
    vxDumpLine(out, "double moment[4]:             ", vxDataDumpText(mStats.moment));
    vxDumpLine(out, "double momentMean[4]:         ", vxDataDumpText(mStats.momentMean));
    vxDumpLine(out, "double momentOrigin:          ", mStats.momentOrigin);
}

void vxDataValueSeries::dumpFlags(std::ostream& out) const {
    vxDumpLine(out, "bool hasSum:                  ", mStats.hasSum);
    vxDumpLine(out, "bool hasAbsoluteSum:          ", mStats.hasAbsoluteSum);
    vxDumpLine(out, "bool hasPositiveSum:          ", mStats.hasPositiveSum);
    vxDumpLine(out, "bool hasNegativeSum:          ", mStats.hasNegativeSum);
    vxDumpLine(out, "bool hasMinValue:             ", mStats.hasMinValue);
    vxDumpLine(out, "bool hasMaxValue:             ", mStats.hasMaxValue);
    vxDumpLine(out, "bool hasAbsoluteMinValue:     ", mStats.hasAbsoluteMinValue);
    vxDumpLine(out, "bool hasAbsoluteMaxValue:     ", mStats.hasAbsoluteMaxValue);
    vxDumpLine(out, "bool hasPositiveMinValue:     ", mStats.hasPositiveMinValue);
    vxDumpLine(out, "bool hasPositiveMaxValue:     ", mStats.hasPositiveMaxValue);
    vxDumpLine(out, "bool hasNegativeMinValue:     ", mStats.hasNegativeMinValue);
    vxDumpLine(out, "bool hasNegativeMaxValue:     ", mStats.hasNegativeMaxValue);
    vxDumpLine(out, "bool hasMinDifference:        ", mStats.hasMinDifference);
    vxDumpLine(out, "bool hasMean:                 ", mStats.hasMean);
    vxDumpLine(out, "bool hasGeometricMean:        ", mStats.hasGeometricMean);
    vxDumpLine(out, "bool hasHarmonicMean:         ", mStats.hasHarmonicMean);
    vxDumpLine(out, "bool hasRootMeanSquare:       ", mStats.hasRootMeanSquare);
    vxDumpLine(out, "bool hasMedian:               ", mStats.hasMedian);
    vxDumpLine(out, "bool hasMeanDeviation:        ", mStats.hasMeanDeviation);
    vxDumpLine(out, "bool hasMedianDeviation:      ", mStats.hasMedianDeviation);
    vxDumpLine(out, "bool hasStandardDeviation:    ", mStats.hasStandardDeviation);
    vxDumpLine(out, "bool hasStandardError:        ", mStats.hasStandardError);
    vxDumpLine(out, "bool hasVariance:             ", mStats.hasVariance);
    vxDumpLine(out, "bool hasMoment[4]:            ", vxDataDumpText(mStats.hasMoment));
    vxDumpLine(out, "bool hasMomentMean[4]:        ", vxDataDumpText(mStats.hasMomentMean));
    vxDumpLine(out, "bool hasMomentOrigin:         ", mStats.hasMomentOrigin);
}

}  // namespace Velarix
