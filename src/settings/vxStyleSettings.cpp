#include "settings/vxStyleSettings.h"

#include "host/vxLog.h"

namespace Velarix {

void vxStyleSettings::clear() {
    mColorPaletteID = 1;
    mUserDefinedColors.clear();
}

void vxStyleSettings::copy(const vxStyleSettings* from) {
    if (from == this) return;
    clear();
    if (!from) return;
    mColorPaletteID = from->mColorPaletteID;
    mUserDefinedColors = from->mUserDefinedColors;
}

void vxStyleSettings::dump(short depth, std::ostream& out) const {
    vxDumpHeader(out, "vxStyleSettings");
    vxDumpLine(out, "short colorPaletteID:  ", mColorPaletteID);
    vxDumpLine(out, "vector<short> userDefinedColors: ", mUserDefinedColors);
    vxDumpEnd(out);
}

}  // namespace Velarix
