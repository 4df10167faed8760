// The colour palette a drawing starts with, and the colours of the user's
// own palette: red, green, blue and alpha, four shorts per colour.
#pragma once

#include <ostream>
#include <vector>

namespace Velarix {

class vxStyleSettings {
public:
    vxStyleSettings() = default;
    virtual ~vxStyleSettings() = default;

    void clear();                            // palette 1, no user colours
    void copy(const vxStyleSettings* from);  // null clears
    void dump(short depth, std::ostream& out) const;

    short getColorPaletteID() const { return mColorPaletteID; }
    void setColorPaletteID(short value) { mColorPaletteID = value; }
    const std::vector<short>& getUserDefinedColors() const { return mUserDefinedColors; }
    void setUserDefinedColors(const std::vector<short>& value) { mUserDefinedColors = value; }

private:
    short mColorPaletteID = 1;
    std::vector<short> mUserDefinedColors;
};

}  // namespace Velarix
