// The colour palettes a script can pick colours from by index: the 88-colour
// default, the 216-colour web-safe cube and a palette of the user's own.
#pragma once

#include <ostream>
#include <vector>

#include "settings/vxErrorHolder.h"

namespace Velarix {

class vxColorPaletteOLD : public vxErrorHolder {
public:
    static constexpr short kDefaultPalette = 1;
    static constexpr short kWebPalette = 2;
    static constexpr short kUserPalette = -1;
    static constexpr long kMaxUserColors = 1024;

    vxColorPaletteOLD();
    ~vxColorPaletteOLD() override;

    // The colour at a 0-based index; black for an index outside the palette.
    void getColor(short index, short rgb[3]) const;
    long getNumOfColors() const;

    short getPaletteID() const { return paletteID; }
    // Codes other than 1, 2 and -1 select the default palette.
    void setPaletteID(short id);

    // The user palette, three numbers a colour. Fewer than two numbers give
    // black and white; colours beyond the 1024th are dropped.
    void setColors(const std::vector<short>& colors);
    void setColors(long count, const short* colors);
    const std::vector<short>& getColors() const { return userColors; }

    // Copies the palette; null resets to the defaults.
    void set(const vxColorPaletteOLD* from);

    void dump(short depth, std::ostream& out) const;

private:
    void getUserColor(short index, short rgb[3]) const;

    short paletteID = kDefaultPalette;
    std::vector<short> userColors;
};

}  // namespace Velarix
