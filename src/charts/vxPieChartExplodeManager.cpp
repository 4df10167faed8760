#include "charts/vxPieChartExplodeManager.h"

#include <algorithm>
#include <cmath>

#include "host/vxLog.h"
#include "script/vxAssign.h"
#include "script/vxFunctionIds.h"

namespace Velarix {

namespace {

constexpr double kDegree = 3.14159265358979323846 / 180.0;

float at(const std::vector<float>& v, long i) {
    return i >= 0 && size_t(i) < v.size() ? v[size_t(i)] : 0.0f;
}

}  // namespace

void vxPieChartExplodeManager::assign(vxAssign& a) {
    Request r;
    r.radial = a.getFunction() == kPieChartExplodeRadials;
    r.percent = a.getFloat(0, r.radial ? kDefaultRadialPercent : 0.0f);
    for (long i = 1; i < a.getNumOfArguments(); ++i) {
        if (!a.isVoid(i)) r.items.push_back(a.getLong(i));
    }
    // A percentage alone pulls out every slice.
    if (r.items.empty()) r.items.push_back(kAll);
    requests.push_back(std::move(r));
}

void vxPieChartExplodeManager::setUp(const std::vector<double>& values,
                                     const std::vector<long>& items) {
    mNumOfSlices = long(values.size());
    mRadialExplodes.assign(values.size(), 0.0f);
    mDepthExplodes.assign(values.size(), 0.0f);
    for (const Request& r : requests) apply(r, values, items);
    mExplodeFlags.assign(values.size(), 0);
    mExplodeIndices.clear();
    for (size_t i = 0; i < values.size(); ++i) {
        if (mRadialExplodes[i] > 0.0f || mDepthExplodes[i] > 0.0f) {
            mExplodeFlags[i] = 1;
            mExplodeIndices.push_back(long(i));
        }
    }
}

void vxPieChartExplodeManager::apply(const Request& r, const std::vector<double>& values,
                                     const std::vector<long>& items) {
    std::vector<float>& target = r.radial ? mRadialExplodes : mDepthExplodes;
    if (values.empty()) return;
    const auto largest = std::max_element(values.begin(), values.end()) - values.begin();
    const auto smallest = std::min_element(values.begin(), values.end()) - values.begin();
    for (const long word : r.items) {
        for (size_t i = 0; i < values.size(); ++i) {
            const bool hit = word == kAll || (word == kMax && long(i) == largest) ||
                             (word == kMin && long(i) == smallest) || word == items[i] + 1;
            if (hit) target[i] = std::max(0.0f, r.percent);
        }
    }
}

bool vxPieChartExplodeManager::isExploded(long slice) const {
    return slice >= 0 && size_t(slice) < mExplodeFlags.size() && mExplodeFlags[size_t(slice)];
}

float vxPieChartExplodeManager::getRadialPercent(long slice) const {
    return at(mRadialExplodes, slice);
}

float vxPieChartExplodeManager::getDepthPercent(long slice) const {
    return at(mDepthExplodes, slice);
}

float vxPieChartExplodeManager::getMaxRadialPercent() const {
    return mRadialExplodes.empty()
               ? 0.0f
               : *std::max_element(mRadialExplodes.begin(), mRadialExplodes.end());
}

float vxPieChartExplodeManager::getMaxDepthPercent() const {
    return mDepthExplodes.empty() ? 0.0f
                                  : *std::max_element(mDepthExplodes.begin(), mDepthExplodes.end());
}

void vxPieChartExplodeManager::getRadialOffset(long slice, float midAngle, float rx, float ry,
                                               float offset[2]) const {
    const float share = getRadialPercent(slice) * mRelativeOffset * mAbsoluteFactor;
    const double a = midAngle * kDegree;
    offset[0] = float(share * rx * std::cos(a));
    offset[1] = float(-share * (mDoSlant ? ry : rx) * std::sin(a));
}

void vxPieChartExplodeManager::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, "vxPieChartExplodeManager");
    vxDumpLine(out, "float mRelativeOffset: ", mRelativeOffset);
    vxDumpLine(out, "float mAbsoluteFactor: ", mAbsoluteFactor);
    vxDumpLine(out, "bool mDoSlant:         ", mDoSlant);
    vxDumpLine(out, "long mNumOfSlices:     ", mNumOfSlices);
    vxDumpEnd(out);
}

}  // namespace Velarix
