// How a fitted curve looks: a stroke and the paint it is drawn in.
//
// In a script, behind the series and the fit type: the line widths, the
// colour and the pattern. A curve has no interpolation of its own: it is
// always drawn smooth.
#pragma once

#include <memory>
#include <ostream>

#include "styles/vxStyle.h"

namespace Velarix {

class vxCurveFittingLineStyle : public vxStyle {
public:
    // A solid line of width 1 in the colour of record `number`.
    explicit vxCurveFittingLineStyle(vxUserSettings* owner, long number = 1);
    ~vxCurveFittingLineStyle() override;

    bool setDefaults(long number);
    // A deep copy; null resets to the defaults of record 1.
    bool set(const vxCurveFittingLineStyle* from);
    bool assign(vxAssign& assign) override;
    void dump(short depth, std::ostream& out) const override;

    const vxStrokeOLD* getStroke() const { return stroke.get(); }
    const vxPaintOLD* getPaint() const { return paint.get(); }

private:
    std::unique_ptr<vxStrokeOLD> stroke;
    std::unique_ptr<vxPaintOLD> paint;
};

}  // namespace Velarix
