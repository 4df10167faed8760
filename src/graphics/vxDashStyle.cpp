#include "graphics/vxDashStyle.h"

#include <algorithm>
#include <cmath>
#include <new>
#include <string>

#include "graphics/vxDashPatterns.h"
#include "host/vxLog.h"

namespace Velarix {

namespace {

constexpr float kTolerance = 1e-10f;

}  // namespace

vxDashStyle::vxDashStyle() : vxErrorHolder(L"vxDashStyle") {}

vxDashStyle::~vxDashStyle() = default;

void vxDashStyle::setPattern(short index) {
    if (index < 1 || index > kNumOfDashPatterns) {
        clearPattern();
        return;
    }
    const vxDashPattern& standard = kDashPatterns[index - 1];
    setPattern(standard.count, standard.lengths);
}

void vxDashStyle::setPattern(short count, const float* values) {
    clearPattern();
    const short n = values ? std::clamp<short>(count, 0, kMaxNumOfSegments) : 0;
    try {
        pattern.reserve(static_cast<size_t>(n));
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"setPattern"));
        return;
    }
    for (short i = 0; i < n; ++i) pattern.push_back(std::max(values[i], 0.0f));
    for (float length : pattern) patternLength += length;
}

void vxDashStyle::clearPattern() {
    pattern.clear();
    patternLength = 0.0f;
}

long vxDashStyle::findSegment(float position, float& rest) const {
    rest = 0.0f;
    if (patternLength <= kTolerance) return -1;
    float at = std::fmod(position, patternLength);
    if (at < 0.0f) at += patternLength;
    float end = 0.0f;
    for (size_t i = 0; i < pattern.size(); ++i) {
        end += pattern[i];
        if (at < end - kTolerance) {
            rest = end - at;
            return static_cast<long>(i);
        }
    }
    // Within the tolerance of the end: the first segment begins again.
    rest = pattern.front();
    return 0;
}

float vxDashStyle::getSegmentLength(float position) const {
    float rest = 0.0f;
    findSegment(position, rest);
    return rest;
}

bool vxDashStyle::isDashAt(float position) const {
    float rest = 0.0f;
    return findSegment(position, rest) % 2 == 1;
}

void vxDashStyle::copy(const vxDashStyle* from) {
    if (from == this) return;
    clearPattern();
    offset = 0.0f;
    capType = 1;
    if (from == nullptr) return;
    setPattern(static_cast<short>(from->pattern.size()), from->pattern.data());
    offset = from->offset;
    capType = from->capType;
}

void vxDashStyle::dump(short depth, std::ostream& out) const {
    vxDumpHeader(out, "vxDashStyle");
    std::string lengths;
    for (float length : pattern) {
        lengths += ' ';
        lengths += std::to_string(length);
    }
    vxDumpLine(out, "vector<float> pattern: ", lengths);
    vxDumpLine(out, "float offset:  ", offset);
    vxDumpLine(out, "short capType:  ", capType);
    vxDumpLine(out, "float patternLength:  ", patternLength);
    vxDumpEnd(out);
}

}  // namespace Velarix
