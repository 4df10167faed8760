#include "graphics/vxColorPaletteOLD.h"

#include <algorithm>

#include "graphics/vxPaletteTables.h"
#include "host/vxLog.h"

namespace Velarix {

namespace {

const std::vector<short> kBlackAndWhite = {0, 0, 0, 255, 255, 255};

void setBlack(short rgb[3]) {
    rgb[0] = rgb[1] = rgb[2] = 0;
}

void splitColor(uint32_t value, short rgb[3]) {
    rgb[0] = static_cast<short>((value >> 16) & 0xFF);
    rgb[1] = static_cast<short>((value >> 8) & 0xFF);
    rgb[2] = static_cast<short>(value & 0xFF);
}

void getTableColor(const uint32_t* table, int size, short index, short rgb[3]) {
    if (index < 0 || index >= size) {
        setBlack(rgb);
        return;
    }
    splitColor(table[index], rgb);
}

}  // namespace

vxColorPaletteOLD::vxColorPaletteOLD()
    : vxErrorHolder(L"vxColorPaletteOLD"), userColors(kBlackAndWhite) {}

vxColorPaletteOLD::~vxColorPaletteOLD() = default;

void vxColorPaletteOLD::getColor(short index, short rgb[3]) const {
    switch (paletteID) {
        case kWebPalette:
            getTableColor(kColorPalette216, kColorPalette216Size, index, rgb);
            break;
        case kUserPalette:
            getUserColor(index, rgb);
            break;
        default:
            getTableColor(kColorPalette88, kColorPalette88Size, index, rgb);
            break;
    }
}

// Only complete colours are read: an index whose three numbers run past the
// stored ones, as can happen just beyond the user's last colour, gives black.
void vxColorPaletteOLD::getUserColor(short index, short rgb[3]) const {
    const long first = 3L * index;
    if (index < 0 || first + 2 >= static_cast<long>(userColors.size())) {
        setBlack(rgb);
        return;
    }
    for (int k = 0; k < 3; ++k) rgb[k] = userColors[first + k];
}

long vxColorPaletteOLD::getNumOfColors() const {
    switch (paletteID) {
        case kWebPalette:
            return kColorPalette216Size;
        case kUserPalette:
            return static_cast<long>(userColors.size()) / 3;
        default:
            return kColorPalette88Size;
    }
}

void vxColorPaletteOLD::setPaletteID(short id) {
    paletteID = (id == kWebPalette || id == kUserPalette) ? id : kDefaultPalette;
}

void vxColorPaletteOLD::setColors(const std::vector<short>& colors) {
    setColors(static_cast<long>(colors.size()), colors.data());
}

void vxColorPaletteOLD::setColors(long count, const short* colors) {
    try {
        if (count < 2 || colors == nullptr) {
            userColors = kBlackAndWhite;
            return;
        }
        count = std::min(count, 3 * kMaxUserColors);
        userColors.assign(colors, colors + count);
    } catch (const std::bad_alloc&) {
        userColors.clear();
        setError(vxErrRuntime::kOutOfMemory, where(L"setColors"));
    }
}

void vxColorPaletteOLD::set(const vxColorPaletteOLD* from) {
    if (from == this) return;
    if (from == nullptr) {
        paletteID = kDefaultPalette;
        setColors(0, nullptr);
        return;
    }
    paletteID = from->paletteID;
    setColors(from->userColors);
}

void vxColorPaletteOLD::dump(short depth, std::ostream& out) const {
    vxDumpHeader(out, "vxColorPaletteOLD");
    vxDumpLine(out, "short paletteID:  ", paletteID);
    vxDumpLine(out, "color palette:    ", userColors);
    vxDumpEnd(out);
}

}  // namespace Velarix
