// How the arrow heads at the ends of a series' lines look: an arrow symbol
// with its stroke and paints, and the ends that carry one.
//
// In a script: the line widths, the colour, the pattern, the ends (0 none,
// 1 begin, 2 end, 3 both), the head's length, width and inset, and whether
// it is hollow.
#pragma once

#include <memory>
#include <ostream>

#include "styles/vxStyle.h"

namespace Velarix {

class vxArrowSymbol;

class vxArrowStyle : public vxStyle {
public:
    enum Ends : short { kNoEnd = 0, kAtBegin = 1, kAtEnd = 2, kAtBothEnds = 3 };

    // The record numbered `number`: a solid head at the end, drawn with a
    // stroke of width 1 in the colour of that number.
    explicit vxArrowStyle(vxUserSettings* owner, long number = 1);
    ~vxArrowStyle() override;

    bool setDefaults(long number);
    // A deep copy; null resets to the defaults of record 1.
    bool set(const vxArrowStyle* from);
    bool assign(vxAssign& assign) override;
    void dump(short depth, std::ostream& out) const override;

    const vxArrowSymbol* getArrow() const { return arrow.get(); }
    short getArrowEnds() const { return arrowEnds; }
    bool hasArrowAtBegin() const { return (arrowEnds & kAtBegin) != 0; }
    bool hasArrowAtEnd() const { return (arrowEnds & kAtEnd) != 0; }

private:
    bool createArrow();

    std::unique_ptr<vxArrowSymbol> arrow;
    short arrowEnds = kAtEnd;
};

}  // namespace Velarix
