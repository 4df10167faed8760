// Reads the appearance parts of a script call into a graphic object: a fill
// (colour and pattern), a border (line widths, colour and pattern) and a
// shadow (offsets, colour and pattern). Each reader starts at the call's
// argument offset and moves it past the arguments it owns, whether they
// were given or left empty.
#pragma once

namespace Velarix {

class vxAssign;
class vxGObjectOLD;
class vxUserSettings;

class vxAppearanceScript {
public:
    // How a part whose colour is left empty is treated.
    enum EmptyColor : short { kSkipPart = 0, kDefaultBlack = 1 };

    // False when the object failed; its error tells why.
    static bool readFill(vxGObjectOLD& object, vxAssign& assign, const vxUserSettings* settings,
                         EmptyColor empty);
    static bool readBorder(vxGObjectOLD& object, vxAssign& assign, const vxUserSettings* settings,
                           EmptyColor empty);
    static bool readShadow(vxGObjectOLD& object, vxAssign& assign, const vxUserSettings* settings);

    // Whether the colour of a part that starts `index` arguments past the
    // offset was given.
    static bool isGiven(const vxAssign& assign, long index);
};

}  // namespace Velarix
