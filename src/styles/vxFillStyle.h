// How the areas of a series are filled: one paint, a colour with its
// pattern, a gradient or a picture.
//
// In a script FillStyle gives the colour and the pattern; PictureStyle the
// picture's source kind and source, and the data value one picture stands
// for when pictures are stacked. A picture makes the paint a texture; a
// colour after it makes it a plain or gradient paint again.
#pragma once

#include <memory>
#include <ostream>

#include "styles/vxStyle.h"

namespace Velarix {

class vxFillStyle : public vxStyle {
public:
    // The record numbered `number` paints in the colour of that number.
    explicit vxFillStyle(vxUserSettings* owner, long number = 1);
    ~vxFillStyle() override;

    bool setDefaults(long number);
    // A deep copy; null resets to the defaults of record 1.
    bool set(const vxFillStyle* from);
    bool assign(vxAssign& assign) override;
    void dump(short depth, std::ostream& out) const override;

    const vxPaintOLD* getPaint() const { return paint.get(); }

private:
    bool assignPicture(vxAssign& assign);

    std::unique_ptr<vxPaintOLD> paint;
};

}  // namespace Velarix
