// How the shadows of a series look: the offsets, the blur and the paint of
// a shadow.
//
// In a script: the offsets (x alone for both, x and y, or x, y and the
// blur radius), the colour and the pattern.
#pragma once

#include <memory>
#include <ostream>

#include "styles/vxStyle.h"

namespace Velarix {

class vxShadowOLD;

class vxShadowStyle : public vxStyle {
public:
    // Every record starts as the default shadow: offsets 3 and 3, grey.
    explicit vxShadowStyle(vxUserSettings* owner, long number = 1);
    ~vxShadowStyle() override;

    bool setDefaults(long number);
    // A deep copy; null resets to the defaults.
    bool set(const vxShadowStyle* from);
    bool assign(vxAssign& assign) override;
    void dump(short depth, std::ostream& out) const override;

    const vxShadowOLD* getShadow() const { return shadow.get(); }

private:
    std::unique_ptr<vxShadowOLD> shadow;
};

}  // namespace Velarix
