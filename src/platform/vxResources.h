// The pictures built into the program, addressed by resource number.
//
// Numbers: the hatch patterns share 23300 (their bitmaps come from the
// hatch table); every other pattern index i has 23436 + i. The index code
// k = number - 23436 tells the kind of a resource:
//   1 to 32   a linear gradient, from the table of gradient settings;
//   33 to 42  a radial gradient, from the same table;
//   65 to 128 a texture picture, made by vxTexturePictures.
// Codes 43 to 64 name hatches, which have no resource of their own.
#pragma once

#include <memory>

namespace Velarix {

class vxBitmap;
class vxGradientPaint;

class vxResources {
public:
    static constexpr long kHatchResource = 23300;
    static constexpr long kPatternResourceBase = 23436;
    static constexpr short kNumOfGradients = 42;
    static constexpr short kFirstTexture = 65;
    static constexpr short kLastTexture = 128;

    // The kinds of a resource, as paints count them; 0 is a picture.
    static constexpr short kKindImage = 0;
    static constexpr short kKindLinearGradient = 2;
    static constexpr short kKindRadialGradient = 3;

    // The resource number of a paint's pattern index: 23300 for a hatch
    // (3 to 64), otherwise 23436 + index.
    static long calculateResourceID(short patternIndex);
    static bool exists(long id);
    // The index code of a number; 0 for a number outside the pattern range.
    static short getIndexCode(long id);
    // The kind by index code.
    static short getKind(short indexCode);

    // The side of a resource's square picture in pixels: 8 for the hatch,
    // 32 for the others; a gradient has this size when it is tiled.
    static long getPictureSize(long id);

    // A new gradient for a gradient resource, null for another number.
    // Throws std::bad_alloc.
    static std::unique_ptr<vxGradientPaint> makeGradient(long id);
    // The pixels of a picture resource: a texture, or for the hatch number
    // the medium grey hatch. False, with the bitmap empty, for a number
    // that has no pixels (gradients among them); a failed allocation is
    // recorded in the bitmap.
    static bool makePicture(long id, vxBitmap& bitmap);
};

// True for the number of a built-in resource.
bool vxResourceExists(long id);

}  // namespace Velarix
