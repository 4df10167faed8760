// How the line of a series looks: a stroke, the paint it is drawn in, and
// the way it runs between the points (its interpolation).
//
// In a script: the interpolation list, the line widths, the colour and the
// pattern.
#pragma once

#include <memory>
#include <ostream>

#include "graphics/vxLineShape.h"
#include "styles/vxStyle.h"

namespace Velarix {

class vxLineStyle : public vxStyle {
public:
    // The record numbered `number`: a straight, solid line of width 1 in
    // the colour of that number.
    explicit vxLineStyle(vxUserSettings* owner, long number = 1);
    ~vxLineStyle() override;

    bool setDefaults(long number);
    // A deep copy that keeps the kinds of stroke and paint; null resets to
    // the defaults of record 1.
    bool set(const vxLineStyle* from);
    bool assign(vxAssign& assign) override;
    void dump(short depth, std::ostream& out) const override;

    const vxStrokeOLD* getStroke() const { return stroke.get(); }
    const vxPaintOLD* getPaint() const { return paint.get(); }
    const vxLineShape& getShape() const { return shape; }

    // A new stroke of a StrokeKind in place of the old one.
    bool createBasicStroke() { return createStroke(stroke, kBasicStroke); }
    bool createWaveStroke() { return createStroke(stroke, kWaveStroke); }
    bool createCombinedStroke() { return createStroke(stroke, kCombinedStroke); }

protected:
    vxLineStyle(const wchar_t* name, vxUserSettings* owner, long number);

private:
    std::unique_ptr<vxStrokeOLD> stroke;
    std::unique_ptr<vxPaintOLD> paint;
    vxLineShape shape;
};

}  // namespace Velarix
