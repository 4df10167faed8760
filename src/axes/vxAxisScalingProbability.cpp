// The probability scale: fixed percent ticks, mapped by the normal
// distribution function.
#include <algorithm>
#include <cmath>
#include <new>

#include "axes/vxAxisScaling.h"
#include "axes/vxProbabilityTicks.h"

namespace Velarix {

namespace {

constexpr double kFlatBeyond = 6.0;

}  // namespace

// The row of ticks for half the count. A count under 2 takes the first
// row and one over 16 the last, the table's limits; both limits of the
// axis are always the row's ends.
void vxAxisScaling::setUpProbabilityScaling() {
    const bool both = hasPredefinedMinUC && hasPredefinedMaxUC;
    long count = maxNumOfMajorIntervals - (maxNumOfMajorIntervals % 2 != 0 ? 1 : 0);
    if (both && numOfMajorIntervals != 0) count = numOfMajorIntervals;
    if (count < 0) {
        setError(vxErrChart::kScaling, where(L"setUpProbabilityScaling", 1));
        return;
    }
    const long h = std::clamp(count / 2, 1L, kNumOfProbabilityRows);
    const auto row = vxProbabilityTicks(h);
    try {
        majorValuesUC.assign(row.begin(), row.end());
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"setUpProbabilityScaling"));
        return;
    }
    numOfMajorIntervals = 2 * h;
    minUC = majorValuesUC.front();
    maxUC = majorValuesUC.back();
    setUpMinorValues();
}

// P(x) through the upper tail of the chi-square distribution of one degree
// of freedom, Q(x^2) = erfc(|x| / sqrt 2).
double vxAxisScaling::normalDistribution(double x) {
    if (std::isnan(x)) return x;
    const double q = std::erfc(std::fabs(x) / std::sqrt(2.0));
    if (x >= 0.0) return x > kFlatBeyond ? 1.0 : 1.0 - q / 2.0;
    return x < -kFlatBeyond ? 0.0 : q / 2.0;
}

// The x of P(x) = p, by halving; P is flat outside -6 to 6.
double vxAxisScaling::inverseNormalDistribution(double p) {
    double low = -kFlatBeyond, high = kFlatBeyond;
    if (!(p > normalDistribution(low))) return low;
    if (!(p < normalDistribution(high))) return high;
    for (int i = 0; i < 200 && high - low > 1e-15; ++i) {
        const double middle = (low + high) / 2.0;
        (normalDistribution(middle) < p ? low : high) = middle;
    }
    return (low + high) / 2.0;
}

}  // namespace Velarix
