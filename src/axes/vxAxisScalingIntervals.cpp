// The choice of the major interval and the count of major intervals.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <new>
#include <optional>
#include <vector>

#include "axes/vxAxisScaling.h"
#include "axes/vxDecimalGrid.h"

namespace Velarix {

namespace {

constexpr double kFactors[3] = {1.0, 2.0, 5.0};
// Rows kept in the table itself; more go to the heap.
constexpr long kInlineRows = 16;

// The candidate table of findNiceInterval, stored by count first, then by
// factor, with the best row (one-based) and the eligibility of each factor.
struct Candidates {
    double inlineIntervals[kInlineRows * 3];
    double inlineWastes[kInlineRows * 3];
    std::vector<double> heap;
    double* intervals = inlineIntervals;
    double* wastes = inlineWastes;
    long rows = 0;
    long bestIndex[3] = {0, 0, 0};
    bool eligible[3] = {true, true, true};

    explicit Candidates(long numOfRows) : rows(numOfRows) {
        if (rows <= kInlineRows) return;
        heap.resize(size_t(rows * 6));
        intervals = heap.data();
        wastes = heap.data() + rows * 3;
    }
    double interval(long row, int k) const { return intervals[row * 3 + k]; }
    double waste(long row, int k) const { return wastes[row * 3 + k]; }
};

// Each candidate: the interval, and the waste of the grid that covers min
// to max with it.
void fillCandidates(Candidates& c, double min, double max, long lowN) {
    static const double log10Factors[3] = {std::log10(kFactors[0]), std::log10(kFactors[1]),
                                           std::log10(kFactors[2])};
    for (long row = 0; row < c.rows; ++row) {
        const double log10Raw = std::log10((max - min) / double(lowN + row));
        for (int k = 0; k < 3; ++k) {
            const double interval =
                vxDecimalGrid::niceAbove(log10Raw, kFactors[k], log10Factors[k]);
            const double start =
                min - vxAxisScaling::remainderOnGrid(min, interval, vxAxisScaling::kFixedTolerance);
            const double end = start + std::ceil((max - start) / interval) * interval;
            c.intervals[row * 3 + k] = interval;
            c.wastes[row * 3 + k] = std::max(0.0, (min - start) + end - max);
        }
    }
}

// For each factor the row of least waste, the larger count among equals.
void findBestRows(Candidates& c) {
    for (int k = 0; k < 3; ++k) {
        c.bestIndex[k] = c.rows;
        for (long row = c.rows - 1; row >= 0; --row) {
            if (c.waste(row, k) < c.waste(c.bestIndex[k] - 1, k)) c.bestIndex[k] = row + 1;
        }
    }
}

// A given limit should lie on the grid. The interval tested is the one at
// position k x bestIndex(k) of the table, as the rule has it. When no
// factor fits, all are eligible.
void markOnGrid(Candidates& c, double limit, double r) {
    bool any = false;
    for (int k = 0; k < 3; ++k) {
        const double interval = c.intervals[k * c.bestIndex[k]];
        c.eligible[k] = std::fabs(std::fmod(limit, interval)) < r * 1e-8;
        any = any || c.eligible[k];
    }
    if (!any) c.eligible[0] = c.eligible[1] = c.eligible[2] = true;
}

// Factors of the same best row: the least waste in that row from k = 0 on,
// then the smallest interval among k = 0 and the eligible others.
int breakTie(const Candidates& c, long row, double r) {
    const double bound = std::fabs(r * 1e-8);
    int current = 0;
    bool tie = false;
    for (int k = 1; k < 3; ++k) {
        if (!c.eligible[k]) continue;
        const double gain = c.waste(row, current) - c.waste(row, k);
        if (gain > bound) {
            current = k;
            tie = false;
        } else if (std::fabs(gain) <= bound) {
            tie = true;
        }
    }
    if (!tie) return current;
    current = 0;
    for (int k = 1; k < 3; ++k) {
        if (c.eligible[k] && c.interval(row, k) < c.interval(row, current)) current = k;
    }
    return current;
}

// The eligible factor of the largest best row; the row is returned in `row`.
int chooseFactor(const Candidates& c, double r, long& row) {
    int current = c.eligible[0] ? 0 : c.eligible[1] ? 1 : 2;
    bool tie = false;
    for (int k = 1; k < 3; ++k) {
        if (!c.eligible[k]) continue;
        if (c.bestIndex[k] > c.bestIndex[current]) {
            current = k;
            tie = false;
        } else if (c.bestIndex[k] == c.bestIndex[current]) {
            tie = true;
        }
    }
    row = c.bestIndex[current] - 1;
    return tie ? breakTie(c, row, r) : current;
}

}  // namespace

double vxAxisScaling::remainderOnGrid(double value, double interval, double tolerance) {
    double rem = std::fmod(value, interval);
    if (std::fabs(std::fabs(rem) - interval) < tolerance) rem = 0.0;
    if (rem < 0.0) rem += interval;
    return rem;
}

double vxAxisScaling::calculateIntervalLength(double min, double max) {
    auto fail = [this](int n) {
        setError(vxErrChart::kScaling, where(L"calculateIntervalLength", n));
        return 0.0;
    };
    isOneIntervalAcrossZero = false;
    if (numOfMajorIntervals < 0 || numOfMinorIntervals < 0) return fail(1);
    verifyScalingLimits();
    if (isError()) return 0.0;
    const bool both = hasPredefinedMinUC && hasPredefinedMaxUC;
    const long n = numOfMajorIntervals;
    const long maxN = maxNumOfMajorIntervals;
    if (n == 0 && (maxN < 1 || maxN > kMaxNumOfIntervals)) return fail(2);
    if (n > kMaxNumOfIntervals) return fail(2);
    double interval = 0.0;
    if (n == 0 && !both && maxN == 1 && min * max < 0.0) {
        numOfMajorIntervals = 1;
        isOneIntervalAcrossZero = true;
        interval = max - min;
    } else if (n == 0) {
        interval = both ? countByShortestMantissa(min, max) : findNiceInterval(min, max, 1, maxN);
    } else {
        interval = both ? (max - min) / double(n) : findNiceInterval(min, max, n, n);
    }
    if (isError()) return 0.0;
    if (!(interval > 0.0) || !std::isfinite(interval)) return fail(3);
    return interval;
}

// Both limits given, no count: the count whose interval prints with the
// shortest mantissa, a later count winning a tie.
double vxAxisScaling::countByShortestMantissa(double min, double max) {
    long best = 1;
    size_t bestLength = size_t(-1);
    char text[64];
    for (long i = 1; i <= maxNumOfMajorIntervals; ++i) {
        const double v = (max - min) / double(i);
        const double m = v / std::pow(10.0, std::ceil(std::log10(v) - kFixedTolerance) - 1.0);
        std::snprintf(text, sizeof text, "%g", m);
        const size_t length = std::strlen(text);
        if (length <= bestLength) {
            best = i;
            bestLength = length;
        }
    }
    numOfMajorIntervals = best;
    return (max - min) / double(best);
}

double vxAxisScaling::findNiceInterval(double min, double max, long lowN, long highN) {
    const double r = max - min;
    std::optional<Candidates> table;
    try {
        table.emplace(highN - lowN + 1);
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"findNiceInterval"));
        return 0.0;
    }
    Candidates& c = *table;
    fillCandidates(c, min, max, lowN);
    findBestRows(c);
    if (hasPredefinedMinUC) markOnGrid(c, min, r);
    if (hasPredefinedMaxUC) markOnGrid(c, max, r);
    long row = 0;
    const int k = chooseFactor(c, r, row);
    const double interval = c.interval(row, k);
    return useIntegersOnly ? std::fmax(interval, 1.0) : interval;
}

// The count of major intervals from the grid below min up to max. A count
// that is given stands, and so does the one interval from min to max that
// a short axis across zero gets.
long vxAxisScaling::countMajorIntervals(double min, double max, double interval) {
    if (hasPredefinedMinUC && hasPredefinedMaxUC) return numOfMajorIntervals;
    if (isOneIntervalAcrossZero) return 1;
    double position = min - remainderOnGrid(min, interval, kFixedTolerance);
    const double end = max - kFixedTolerance;
    long count = 0;
    while (position < end) {
        if (count == kMaxNumOfIntervals) {
            setError(vxErrChart::kScaling, where(L"countMajorIntervals", 1));
            return -1;
        }
        position += interval;
        ++count;
    }
    return count;
}

}  // namespace Velarix
