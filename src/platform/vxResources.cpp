#include "platform/vxResources.h"

namespace Velarix {

namespace {

// The hatch patterns share one resource; the bitmaps come from the hatch table.
constexpr long kHatchResource = 23300;
// Textures: the resource number is this base plus the pattern index, and
// pattern indexes run from 1 to 128, although only 65 and up are textures.
constexpr long kTextureResourceBase = 23436;
constexpr long kLastPatternIndex = 128;

}  // namespace

bool vxResourceExists(long id) {
    if (id == kHatchResource) return true;
    return id > kTextureResourceBase && id <= kTextureResourceBase + kLastPatternIndex;
}

}  // namespace Velarix
