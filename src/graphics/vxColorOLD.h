// The engine's colour value: red, green, blue and alpha, each 0 to 255.
// A colour may be taken from a palette by index; it then owns a palette of
// its own, made the first time one is needed.
#pragma once

#include <memory>
#include <ostream>
#include <string>

#include "graphics/vxColorPaletteOLD.h"
#include "settings/vxErrorHolder.h"

namespace Velarix {

class vxColorOLD : public vxErrorHolder {
public:
    vxColorOLD();  // opaque black
    vxColorOLD(short red, short green, short blue, short alpha = 255);
    vxColorOLD(const vxColorOLD& from);
    vxColorOLD& operator=(const vxColorOLD& from);
    ~vxColorOLD() override;

    // Every setter clamps its components to 0..255.
    void set(short red, short green, short blue);  // alpha 255
    void set(short red, short green, short blue, short alpha);
    // Three or four components; any other count resets to opaque black.
    void set(short count, const short* components);
    // Copies the components and the palette; null resets to the defaults.
    void set(const vxColorOLD* from);
    void setRed(short value);
    void setGreen(short value);
    void setBlue(short value);
    void setAlpha(short value);

    // The palette colour at a 0-based index, opaque.
    void setFromPalette(short index, short paletteID);
    void setFromPalette(short index, const vxColorPaletteOLD* palette);
    bool createColorPalette();
    vxColorPaletteOLD* getColorPalette() const { return palette.get(); }

    short getRed() const { return red; }
    short getGreen() const { return green; }
    short getBlue() const { return blue; }
    short getAlpha() const { return alpha; }
    float getRedF() const { return red / 255.0f; }
    float getGreenF() const { return green / 255.0f; }
    float getBlueF() const { return blue / 255.0f; }
    float getAlphaF() const { return alpha / 255.0f; }

    bool isGray() const { return red == green && green == blue; }
    bool isTransparent() const { return alpha == 0; }
    bool isTranslucent() const { return alpha != 0 && alpha != 255; }
    bool isOpaque() const { return alpha == 255; }
    // Same components; the palettes don't count.
    bool isEqual(const vxColorOLD& other) const;

    // Moves red, green and blue the fraction f of the way to white or to
    // black; alpha stays.
    void brighten(float f);
    void darken(float f);

    std::wstring toHashText() const;     // "#rrggbb", lower case, no alpha
    std::wstring toDecimalText() const;  // "r g b"

    // Reads "#rgb", "#rgba", "#rrggbb" or "#rrggbbaa" into rgba (alpha 255
    // when absent). Returns 0, or error 1140 leaving rgba untouched.
    static short parseHashText(const std::wstring& text, short rgba[4]);
    static bool isHashText(const std::wstring& text);

    void dump(short depth, std::ostream& out) const;

private:
    void copyPalette(const vxColorPaletteOLD* from);

    std::unique_ptr<vxColorPaletteOLD> palette;
    short red = 0;
    short green = 0;
    short blue = 0;
    short alpha = 255;
};

}  // namespace Velarix
