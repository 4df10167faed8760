// The pixels of a picture in memory, laid out for a raster device to wrap
// without copying: 32-bit words of premultiplied alpha, red, green and blue
// (alpha in the high byte) in the machine's byte order, rows top to bottom,
// each row `width` words long, so the stride is width * 4 bytes.
//
// A bitmap of zero width or height holds nothing and draws nothing.
#pragma once

#include <cstdint>
#include <ostream>
#include <vector>

#include "settings/vxErrorHolder.h"

namespace Velarix {

class vxBitmap : public vxErrorHolder {
public:
    // The largest side a bitmap may have, and the most pixels in all: a
    // header asking for more is refused before anything is allocated.
    static constexpr long kMaxSide = 32767;
    static constexpr long kMaxPixels = 64L * 1024L * 1024L;
    static constexpr short kDefaultResolution = 72;

    vxBitmap();
    ~vxBitmap() override;

    // Whether a bitmap of the size may be made: both sides 0 to kMaxSide
    // and at most kMaxPixels pixels.
    static bool isSizeAllowed(long width, long height);

    // Makes room for width by height pixels, all transparent black. A size
    // that isn't allowed is error 2020 at "/allocateMemory/2"; memory that
    // can't be had is error 5000 at "/allocateMemory/1". Either leaves the
    // bitmap empty.
    bool allocateMemory(long width, long height);
    void clear();
    // Takes size, pixels, resolution and interpolation mode of `from`.
    bool set(const vxBitmap& from);

    bool isEmpty() const { return width < 1 || height < 1; }
    long getWidth() const { return width; }
    long getHeight() const { return height; }
    long getStride() const { return width * 4; }
    long getBufferSize() const { return static_cast<long>(pixels.size() * 4); }
    long getNumOfRows() const { return height; }
    long getNumOfColumns() const { return width; }
    uint32_t* getData() { return pixels.data(); }
    const uint32_t* getData() const { return pixels.data(); }

    // Dots per inch; values below 1 become the default, 72.
    short getResolution() const { return resolution; }
    void setResolution(short dpi);
    short getInterpolationMode() const { return interpolationMode; }
    void setInterpolationMode(short mode) { interpolationMode = mode; }

    // The premultiplied word at a pixel; 0 outside the bitmap.
    uint32_t getPixel(long x, long y) const;
    // Stores a colour given with straight (not premultiplied) alpha.
    void setPixel(long x, long y, uint8_t red, uint8_t green, uint8_t blue, uint8_t alpha = 255);
    // The colour at a pixel with its alpha taken out again: red, green,
    // blue and alpha, 0 to 255.
    void getColor(long x, long y, uint8_t rgba[4]) const;

    // A decoder that has written bytes red, green, blue, alpha in memory
    // order into the pixel words turns them into the bitmap's own form.
    void convertFromRGBA();

    // Packs a straight-alpha colour into a premultiplied word.
    static uint32_t premultiply(uint8_t red, uint8_t green, uint8_t blue, uint8_t alpha);

    void dump(short depth, std::ostream& out) const;

private:
    std::vector<uint32_t> pixels;
    long width = 0;
    long height = 0;
    short resolution = kDefaultResolution;
    short interpolationMode = 0;
};

}  // namespace Velarix
