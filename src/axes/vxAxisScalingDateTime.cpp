// The date-time road of a scale: the end of the data, the check of the
// interval kinds, the choice of the kinds and the clipping to given limits.
// Everything here is in plain days.
#include <algorithm>
#include <cmath>

#include "Utilities/Sources/vxDateTime.h"
#include "axes/vxAxisScaling.h"

namespace Velarix {

namespace {

constexpr double kSecondsPerDay = 86400.0;

// The lengths that decide the major kind, in seconds: a leap year, a long
// month, a day, an hour, 15 and 5 minutes, a minute, 10 seconds, a second;
// and the kinds they give with and without time components.
constexpr double kKindLengths[9] = {31622400, 2678400, 86400, 3600, 900, 300, 60, 10, 1};
constexpr short kKindsWithTime[9] = {-2, -4, -6, -7, -10, -12, -13, -17, -19};
constexpr short kKindsWithoutTime[9] = {-2, -4, -6, -6, -6, -6, -6, -6, -6};

// The minors a calendar major allows: the finest and the coarsest kind.
bool isAllowedMinor(short major, short minor) {
    if (major <= -7) return minor < major && minor >= -19;
    switch (major) {
        case -6:
            return minor <= -7 && minor >= -13;
        case -5:
            return minor == -6 || minor == -7;
        case -4:
            return minor == -5 || minor == -6;
        case -3:
            return minor <= -4 && minor >= -6;
        case -2:
            return minor <= -3 && minor >= -6;
        default:
            return false;
    }
}

bool isWholeDay(double plainDays) {
    return plainDays == std::floor(plainDays);
}

}  // namespace

void vxAxisScaling::setUpDateTimeRoad() {
    correctDateTimeEnd();
    verifyScalingLimits();
    if (isError()) return;
    setUpDateTimeScaling();
}

// The last day is drawn whole: one day more after data without a time,
// always on a bar or area chart, and after a given max only on those charts
// with a time and a pair of day with hour or of a date kind with day.
void vxAxisScaling::correctDateTimeEnd() {
    if (!hasPredefinedMaxUC) {
        const double span = maxDataUC - minDataUC;
        if (isBarOrAreaDateTimeChart || (span > tol(span) && isWholeDay(maxDataUC))) {
            maxDataUC += 1.0;
        }
        return;
    }
    const short major = majorScalingBase, minor = minorScalingBase;
    const bool dayPair =
        (major == -6 && minor == -7) ||
        (minor == -6 && (major == -2 || major == -3 || major == -4 || major == -5));
    if (isBarOrAreaDateTimeChart && dayPair && hasTimeComponents) maxUC += 1.0;
}

// All dates equal: a calendar unit on each side of the value, a day for a
// date alone and an hour for a value with a time.
void vxAxisScaling::setUpEqualDateLimits() {
    const double unit = isWholeDay(minDataUC) && !hasTimeComponents ? 1.0 : 1.0 / 24.0;
    minUC = minDataUC = minDataUC - unit;
    maxUC = maxDataUC = minDataUC + 2.0 * unit;
    hasPredefinedMinUC = hasPredefinedMaxUC = true;
}

void vxAxisScaling::setUpDateTimeScaling() {
    // Days the calendar holds: from before the first date to 32767.
    static const double lastDay = double(vxDateTime::julianDay(32767, 12, 31));
    const double min = hasPredefinedMinUC ? minUC : minDataUC;
    const double max = hasPredefinedMaxUC ? maxUC : maxDataUC;
    if (!(min >= -1.0 && max <= lastDay)) {
        setError(vxErrChart::kScaling, where(L"setUpDateTimeScaling", 1));
        return;
    }
    verifyDateTimeScales(majorScalingBase, minorScalingBase);
    if (isError()) return;
    determineMajorBase();
    determineMinorBase();
    setUpMajorDateTimeScalingValues();
    if (isError()) return;
    setUpMinorDateTimeScalingValues();
    if (isError()) return;
    verifyDateTimeScales(majorScalingBase, minorScalingBase);
    if (isError()) return;
    clipDateTimeScaling();
}

void vxAxisScaling::verifyDateTimeScales(short major, short minor) {
    if (!hasDateComponents && hasTimeComponents && major <= -2 && major >= -6) {
        setError(vxErrChart::kScaling, where(L"verifyDateTimeScales", 1));
        return;
    }
    verifyDateTimePair(major, minor);
}

// The minor kind must be one that the major allows; a count of major
// intervals allows none.
void vxAxisScaling::verifyDateTimePair(short major, short minor) {
    auto fail = [this](int n) {
        setError(vxErrChart::kScaling, where(L"verifyDateTimeScales", n));
    };
    if (major < -19 || minor < -19) return fail(3);
    if (minor >= -1) return;
    if (major < 0 && !isAllowedMinor(major, minor)) return fail(3);
    if (major > 0 && numOfMajorIntervals > 0) return fail(2);
}

void vxAxisScaling::determineMajorBase() {
    if (numOfMajorIntervals < 0) {
        majorScalingBase = short(numOfMajorIntervals - 1);
        return;
    }
    const double min = hasPredefinedMinUC ? minUC : minDataUC;
    const double max = hasPredefinedMaxUC ? maxUC : maxDataUC;
    const double seconds = (max - min) * kSecondsPerDay;
    if (double(numOfMajorIntervals) > seconds) {
        majorScalingBase = -1;
        return;
    }
    const double limit =
        double(numOfMajorIntervals > 1 ? numOfMajorIntervals : maxNumOfMajorIntervals);
    majorScalingBase = -2;
    for (int i = 8; i >= 0; --i) {
        if (seconds / kKindLengths[i] - 0.5 < limit) {
            majorScalingBase = hasTimeComponents ? kKindsWithTime[i] : kKindsWithoutTime[i];
            break;
        }
    }
    if (numOfMajorIntervals != 0 || numOfMinorIntervals >= 0) return;
    // An automatic count with a minor kind: the year keyword gives years
    // without minors; a major finer than the minor becomes the minor's.
    const short minor = short(numOfMinorIntervals - 1);
    if (numOfMinorIntervals == -1) {
        majorScalingBase = -2;
        minorScalingBase = -1;
        numOfMajorIntervals = numOfMinorIntervals = 1;
    } else if (majorScalingBase < minor) {
        majorScalingBase = minor;
    }
}

// The minor keyword's kind when it is finer than the major; none else.
void vxAxisScaling::determineMinorBase() {
    if (numOfMinorIntervals >= 0) return;
    const short kind = short(numOfMinorIntervals - 1);
    minorScalingBase = kind < majorScalingBase ? kind : short(1);
}

// Given limits keep their ticks within a tolerance; those beyond go.
void vxAxisScaling::clipDateTimeScaling() {
    const double t = (tol(minUC) + tol(maxUC)) / 2.0;
    const double low = hasPredefinedMinUC ? minUC - t : -HUGE_VAL;
    const double high = hasPredefinedMaxUC ? maxUC + t : HUGE_VAL;
    auto outside = [low, high](double v) { return v < low || v > high; };
    const size_t before = majorValuesUC.size() + minorValuesUC.size();
    std::erase_if(majorValuesUC, outside);
    std::erase_if(minorValuesUC, outside);
    if (majorValuesUC.size() + minorValuesUC.size() == before) return;
    numOfMajorIntervals = std::max(0L, long(majorValuesUC.size()) - 1);
    countMinorDateTimeIntervals();
}

// The minors that each major interval holds.
void vxAxisScaling::countMinorDateTimeIntervals() {
    numOfMinorDateTimeIntervals.assign(size_t(numOfMajorIntervals), 0L);
    for (double v : minorValuesUC) {
        const auto next = std::upper_bound(majorValuesUC.begin(), majorValuesUC.end(), v);
        const long i = long(next - majorValuesUC.begin()) - 1;
        if (i >= 0 && i < numOfMajorIntervals) ++numOfMinorDateTimeIntervals[size_t(i)];
    }
}

}  // namespace Velarix
