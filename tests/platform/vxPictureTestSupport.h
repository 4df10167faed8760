// Rasters built pixel by pixel in cairo's layout, and pictures decoded by
// each format's own library, for the encoder tests.
#pragma once

#include <array>
#include <string>
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
    vxRasterPixels pixels() const;

private:
    int mWidth, mHeight, mStride;
    std::vector<unsigned char> mBytes;
};

// A picture read back: straight RGBA pixels (alpha 255 where the file holds
// none) and the resolution in dots per inch, 0 where the file holds none.
struct vxDecodedPicture {
    bool ok = false;
    std::string error;
    int width = 0;
    int height = 0;
    bool hasAlpha = false;
    double dpiX = 0;
    double dpiY = 0;
    std::vector<vxRGBA> pixels;

    vxRGBA at(int x, int y) const { return pixels[size_t(y) * size_t(width) + size_t(x)]; }
};

vxDecodedPicture vxDecodePicture(vxImageFormat format, const std::vector<unsigned char>& bytes);

// The largest difference of one channel; alpha counts only when both have it.
int vxChannelDifference(const vxRGBA& a, const vxRGBA& b, bool withAlpha);

// A straight colour shown over white, rounded: what a picture without alpha
// must hold for it.
vxRGBA vxOverWhite(const vxRGBA& colour);

}  // namespace Velarix
