// Rasters built pixel by pixel in cairo's layout, and pictures decoded by
// each format's own library, for the encoder tests.
#pragma once

#include <array>
#include <vector>

#include "platform/vxImageEncoder.h"

namespace Velarix {

using vxRGBA = std::array<int, 4>;

// A raster in cairo's ARGB32 layout with `padding` spare bytes after each row.
class vxTestRaster {
public:
    vxTestRaster(int width, int height, int padding = 0);
    // Stores straight red, green, blue, alpha premultiplied, as cairo would.
    void set(int x, int y, vxRGBA colour);
    void fill(int x0, int y0, int x1, int y1, vxRGBA colour);
    vxRasterPixels pixels() const { return {mBytes.data(), mWidth, mHeight, mStride}; }

private:
    int mWidth, mHeight, mStride;
    std::vector<unsigned char> mBytes;
};

// A picture read back: RGB or RGBA samples with straight alpha, and the
// resolution in dots per inch, 0 where the file holds none.
struct vxDecodedPicture {
    bool ok = false;
    int width = 0;
    int height = 0;
    bool hasAlpha = false;
    double dpiX = 0;
    double dpiY = 0;
    std::vector<unsigned char> samples;

    // Alpha is 255 in a picture without it.
    vxRGBA at(int x, int y) const;
};

vxDecodedPicture vxDecodePicture(vxImageFormat format, const std::vector<unsigned char>& bytes);

// The largest difference of one channel; alpha counts only `withAlpha`.
int vxChannelDifference(const vxRGBA& a, const vxRGBA& b, bool withAlpha);

// A straight colour shown over white, rounded: what a picture without alpha
// must hold for it.
vxRGBA vxOverWhite(const vxRGBA& colour);

}  // namespace Velarix
