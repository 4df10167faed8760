// Maps colours to the nearest entry of a palette of up to 256 colours, by
// the squared distance in red, green and blue. A chart holds few distinct
// colours over many pixels, so answers are cached by colour.
#pragma once

#include <cstdint>
#include <vector>

namespace Velarix {

class vxPaletteMapper {
public:
    // The palette as 0xRRGGBB colours; at most 256 and at least one.
    explicit vxPaletteMapper(const std::vector<uint32_t>& palette);

    // Index into the palette of the entry nearest to 0xRRGGBB; of equally
    // near entries, the one with the lowest index.
    unsigned char nearest(uint32_t rgb);

private:
    struct Entry {
        int red, green, blue;
        unsigned char index;
    };

    unsigned char search(uint32_t rgb) const;

    std::vector<Entry> mByGreen;       // the palette sorted by green
    std::vector<uint32_t> mCacheKeys;  // colour | kFilled, 0 for an empty slot
    std::vector<unsigned char> mCacheIndex;
};

}  // namespace Velarix
