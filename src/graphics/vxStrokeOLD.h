// How a line is shaped: its width, ends, corners and dashes. Devices ask a
// stroke for its kind and translate it. The line queries here give the
// defaults, which strokes that aren't basic ones answer.
#pragma once

#include <memory>

#include "graphics/vxAppearance.h"

namespace Velarix {

class vxAssign;
class vxDashStyle;

class vxStrokeOLD : public vxAppearance {
public:
    static constexpr short kBasic = 1;
    static constexpr short kOther = 3;

    static constexpr short kButtCap = 1;
    static constexpr short kSquareCap = 2;
    static constexpr short kRoundCap = 3;
    static constexpr short kMiterJoin = 1;
    static constexpr short kRoundJoin = 2;
    static constexpr short kBevelJoin = 3;

    using vxAppearance::vxAppearance;

    virtual short getType() const = 0;
    // A stroke draws only with a width above 1e-10.
    virtual bool isZeroWidth() const = 0;

    virtual float getLineWidth() const { return 1.0f; }
    virtual short getLineCap() const { return kSquareCap; }
    virtual short getLineJoin() const { return kRoundJoin; }
    virtual float getMiterLimit() const { return 10.0f; }
    virtual const vxDashStyle* getDashStyle() const { return nullptr; }
    // A dash style with a pattern to walk.
    bool hasDashStyle() const;

    // A copy of the same class; throws std::bad_alloc.
    virtual std::unique_ptr<vxStrokeOLD> clone() const = 0;

    // Reads a line-widths argument at the argument offset and moves past it.
    // Strokes that aren't basic ones keep their shape.
    virtual bool assign(vxAssign& assign);

protected:
    static constexpr float kMinWidth = 1e-10f;
};

}  // namespace Velarix
