// The texture pictures of pattern indices 65 to 128: small square pictures
// drawn by code, each tiling without seams. Eight families of eight: wood,
// marble, weave, bricks, dots, noise, checks and waves, each variant with
// its own scale and its own colours. The same index always gives the same
// pixels: all randomness comes from a hash of the pixel and the index.
#pragma once

namespace Velarix {

class vxBitmap;

class vxTexturePictures {
public:
    static constexpr long kSize = 32;
    static constexpr short kFirstIndex = 65;
    static constexpr short kLastIndex = 128;

    // The picture of a pattern index into the bitmap, opaque. False for an
    // index outside 65 to 128, with the bitmap empty, or when the bitmap
    // can't be allocated (its error tells).
    static bool make(short patternIndex, vxBitmap& bitmap);
};

}  // namespace Velarix
