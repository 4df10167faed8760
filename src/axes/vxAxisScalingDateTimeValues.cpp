// The major and minor ticks of a date-time axis, on calendar units. Ticks
// of time kinds are counted in whole seconds, so that they never drift.
#include <algorithm>
#include <cmath>
#include <new>

#include "Utilities/Sources/vxDateTime.h"
#include "axes/vxAxisScaling.h"

namespace Velarix {

namespace {

constexpr double kSecondsPerDay = 86400.0;
constexpr double kEndMargin = 5e-09;
constexpr long kMaxNumOfDateTimeTicks = 5000;

// The seconds of the time kinds -7 (hour) to -19 (second).
constexpr long kTimeKindSeconds[13] = {3600, 1800, 1200, 900, 600, 300, 60, 30, 20, 15, 10, 5, 1};

bool isTimeKind(short kind) {
    return kind <= -7 && kind >= -19;
}

long secondsOf(short kind) {
    return kTimeKindSeconds[-7 - kind];
}

// The months of the month, quarter and year kinds; 0 for the others.
long monthsOf(short kind, long yearIncrement) {
    return kind == -4 ? 1 : kind == -3 ? 3 : kind == -2 ? 12 * yearIncrement : 0;
}

vxDateTime::Components dateOf(double day) {
    vxDateTime::Components c;
    vxDateTime::toComponents(day, c);
    return c;
}

// The Julian day of the first of a month counted from a year and a month.
double firstOfMonth(long year, long months) {
    const long y = year + (months >= 0 ? months / 12 : -((11 - months) / 12));
    const long m = months - (y - year) * 12;
    return double(vxDateTime::julianDay(y, short(m + 1), 1));
}

}  // namespace

// The tick at or below the value, on the grid of the kind.
double vxAxisScaling::floorToDateTimeKind(double value, short kind) const {
    const double day = std::floor(value);
    if (isTimeKind(kind)) {
        const double step = double(secondsOf(kind));
        const double seconds = std::floor((value - day) * kSecondsPerDay + 1e-4);
        return day + std::floor(seconds / step) * step / kSecondsPerDay;
    }
    const vxDateTime::Components c = dateOf(day);
    switch (kind) {
        case -5: {  // back to the first day of the week
            const short fromSunday = short((vxDateTime::weekday(c[0], c[1], c[2]) + 6) % 7);
            return day - double(((fromSunday - weekStartIndex) % 7 + 7) % 7);
        }
        case -4:
            return firstOfMonth(c[0], c[1] - 1);
        case -3:
            return firstOfMonth(c[0], (c[1] - 1) / 3 * 3);
        case -2: {
            const long year =
                long(c[0]) - ((long(c[0]) % yearIncrement) + yearIncrement) % yearIncrement;
            return firstOfMonth(year, 0);
        }
        default:
            return day;
    }
}

// The tick k steps of the kind after `from`, with the calendar's carry.
double vxAxisScaling::addDateTimeSteps(double from, short kind, long k, long months) const {
    if (isTimeKind(kind)) {
        const double day = std::floor(from);
        const double seconds = std::round((from - day) * kSecondsPerDay);
        return day + (seconds + double(k * secondsOf(kind))) / kSecondsPerDay;
    }
    if (months > 0) {
        const vxDateTime::Components c = dateOf(std::floor(from));
        return firstOfMonth(c[0], c[1] - 1 + k * months) + double(c[2] - 1) + from -
               std::floor(from);
    }
    return from + double(k * (kind == -5 ? 7 : 1));
}

void vxAxisScaling::setUpMajorDateTimeScalingValues() {
    const double min = hasPredefinedMinUC ? minUC : minDataUC;
    const double max = hasPredefinedMaxUC ? maxUC : maxDataUC;
    double end = max - kEndMargin;
    short& kind = majorScalingBase;
    if (kind <= -2 && kind >= -6 && !vxDateTime::hasDate(min) && !vxDateTime::hasDate(max)) {
        kind = -1;
    }
    if (isTimeKind(kind)) hasTimeComponents = true;
    if (!hasPredefinedMaxUC && !hasTimeComponents && !isBarOrAreaDateTimeChart && kind >= -5 &&
        kind <= -2) {
        end += 1.0;  // the last unit entire
    }
    yearIncrement = kind == -2 ? findYearIncrement(min, max) : 1;
    const bool made =
        kind == -1 ? setUpPlainDateTimeValues(min, max) : setUpCalendarValues(min, end, kind);
    if (!made) return;
    numOfMajorIntervals = long(majorValuesUC.size()) - 1;
    if (!hasPredefinedMinUC) minUC = majorValuesUC.front();
    if (!hasPredefinedMaxUC) {
        maxUC = majorValuesUC.back();
        // Points of a day stand at its start: a line ends on the last day.
        if (!hasTimeComponents && !isBarOrAreaDateTimeChart && kind == -6 &&
            std::fabs(maxUC - end) > tol(maxUC)) {
            maxUC -= 1.0;
        }
    }
    hasPredefinedMinUC = hasPredefinedMaxUC = true;
}

// 1, 2, 5 times a power of ten: the first that keeps the years within the
// allowed count.
long vxAxisScaling::findYearIncrement(double min, double max) const {
    const double years = double(dateOf(std::floor(max))[0] - dateOf(std::floor(min))[0]);
    long increment = 1;
    for (long power = 1; power <= 100000; power *= 10) {
        for (long f : {1L, 2L, 5L}) {
            increment = f * power;
            if (years / double(increment) + 1.0 <= double(maxNumOfMajorIntervals)) return increment;
        }
    }
    return increment;
}

// From the tick at or below min, one step after the other up to the first
// tick that reaches the end.
bool vxAxisScaling::setUpCalendarValues(double min, double end, short kind) {
    const double first = floorToDateTimeKind(min, kind);
    const long months = monthsOf(kind, yearIncrement);
    majorValuesUC.clear();
    try {
        majorValuesUC.push_back(first);
        for (long k = 1; majorValuesUC.back() < end; ++k) {
            if (k == kMaxNumOfDateTimeTicks) {
                setError(vxErrChart::kScaling,
                         where(L"setUpMajorDateTimeScalingValues", -kind - 1));
                return false;
            }
            majorValuesUC.push_back(addDateTimeSteps(first, kind, k, months));
        }
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"setUpMajorDateTimeScalingValues"));
        return false;
    }
    return true;
}

// Evenly from min to max; a count that isn't given makes one interval.
bool vxAxisScaling::setUpPlainDateTimeValues(double min, double max) {
    const long count = std::max(1L, numOfMajorIntervals);
    if (count >= kMaxNumOfDateTimeTicks) {
        setError(vxErrChart::kScaling, where(L"setUpMajorDateTimeScalingValues", 19));
        return false;
    }
    try {
        majorValuesUC.resize(size_t(count) + 1);
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"setUpMajorDateTimeScalingValues"));
        return false;
    }
    for (long i = 0; i <= count; ++i) {
        majorValuesUC[size_t(i)] = min + (max - min) * double(i) / double(count);
    }
    majorValuesUC.back() = max;
    return true;
}

// Between neighbouring majors, k steps from the major while under the next
// one; each major interval records how many it received.
void vxAxisScaling::setUpMinorDateTimeScalingValues() {
    const long intervals = long(majorValuesUC.size()) - 1;
    minorValuesUC.clear();
    try {
        numOfMinorDateTimeIntervals.assign(size_t(std::max(0L, intervals)), 0L);
        for (long i = 0; i < intervals; ++i) {
            const double low = majorValuesUC[size_t(i)];
            const double high = majorValuesUC[size_t(i) + 1] - kEndMargin;
            for (long k = 1;; ++k) {
                const double v = nextMinorDateTimeValue(low, high, k);
                if (!(v < high)) break;
                if (long(minorValuesUC.size()) == kMaxNumOfMinorValues) {
                    setError(vxErrChart::kScaling, where(L"setUpMinorDateTimeScalingValues", 1));
                    return;
                }
                minorValuesUC.push_back(v);
                ++numOfMinorDateTimeIntervals[size_t(i)];
            }
        }
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"setUpMinorDateTimeScalingValues"));
    }
}

// The k-th minor after `low`: a calendar or time step of the minor kind, or
// an even part of the interval for a count; past `high` when there is none.
double vxAxisScaling::nextMinorDateTimeValue(double low, double high, long k) const {
    const short kind = minorScalingBase;
    if (kind >= -1) {
        if (numOfMinorIntervals <= 1 || k >= numOfMinorIntervals) return HUGE_VAL;
        return low + (high + kEndMargin - low) * double(k) / double(numOfMinorIntervals);
    }
    if (isTimeKind(kind)) return low + double(k) * double(secondsOf(kind)) / kSecondsPerDay;
    return addDateTimeSteps(low, kind, k, monthsOf(kind, 1));
}

}  // namespace Velarix
