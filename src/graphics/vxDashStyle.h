// The rhythm of a dashed line: on and off lengths in turn, walked from the
// start of the line. An empty pattern draws the line solid.
#pragma once

#include <ostream>
#include <vector>

#include "settings/vxErrorHolder.h"

namespace Velarix {

class vxDashStyle : public vxErrorHolder {
public:
    static constexpr short kMaxNumOfSegments = 100;

    vxDashStyle();
    ~vxDashStyle() override;

    // One of the standard patterns (1 to 8); other indexes empty it.
    void setPattern(short index);
    // The count is clamped to 0..100; negative lengths become 0.
    void setPattern(short count, const float* values);
    void clearPattern();
    const std::vector<float>& getPattern() const { return pattern; }
    long getNumOfSegments() const { return static_cast<long>(pattern.size()); }
    float getPatternLength() const { return patternLength; }
    bool isEmpty() const { return pattern.empty(); }

    float getOffset() const { return offset; }
    void setOffset(float value) { offset = value; }
    short getCapType() const { return capType; }
    void setCapType(short value) { capType = value; }

    // At `position` along the line, taken modulo the pattern length: the
    // rest of the segment it falls in, and whether that segment is a gap
    // (an odd element). An empty pattern answers 0 and false.
    float getSegmentLength(float position) const;
    bool isDashAt(float position) const;

    // Null resets to the defaults.
    void copy(const vxDashStyle* from);
    void dump(short depth, std::ostream& out) const;

private:
    // The index of the segment at `position` and the rest of it.
    long findSegment(float position, float& rest) const;

    std::vector<float> pattern;
    float offset = 0.0f;
    short capType = 1;
    float patternLength = 0.0f;
};

}  // namespace Velarix
