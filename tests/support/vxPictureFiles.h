// Small pictures written with the formats' own libraries (BMP by hand), for
// the tests of picture reading. Every encoder returns the file's bytes.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace Velarix::test {

struct Rgba {
    uint8_t r, g, b, a;
    bool operator==(const Rgba&) const = default;
};

struct Picture {
    int width = 0;
    int height = 0;
    std::vector<Rgba> pixels;  // rows top to bottom

    Rgba at(int x, int y) const { return pixels[static_cast<size_t>(y * width + x)]; }
};

// Every pixel a colour of its own: red grows to the right, green
// downward, blue is fixed. The last pixel is half transparent, the one
// before it fully transparent (black).
Picture makePicture(int width, int height);
// One colour throughout.
Picture solidPicture(int width, int height, Rgba color);

std::string encodePNG(const Picture& picture, int dpi = 0, bool interlaced = false);
std::string encodeJPEG(const Picture& picture, int dpi = 0);
// The palette holds the picture's colours; pixels with alpha 0 become the
// transparent index.
std::string encodeGIF(const Picture& picture, bool interlaced = false);
std::string encodeTIFF(const Picture& picture, int dpi = 0);
// 24 bits, 32 bits with alpha, or 8 bits with a palette; rows bottom-up
// unless topDown.
std::string encodeBMP(const Picture& picture, int bits, bool topDown = false, int dpi = 0);

}  // namespace Velarix::test
