// Picture files from a raster in memory: PNG, JPEG, GIF, TIFF and BMP. The
// encoders read the raster one row at a time, so beyond the encoded bytes
// they need only a few rows of memory, whatever the size of the picture.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace Velarix {

// A raster as cairo keeps it (CAIRO_FORMAT_ARGB32): 32-bit pixels of premultiplied
// alpha, red, green, blue in the machine's byte order; rows `stride` bytes apart.
struct vxRasterPixels {
    const unsigned char* data = nullptr;
    int width = 0;
    int height = 0;
    int stride = 0;
};

struct vxEncoderOptions {
    short resolution = 96;  // dots per inch, written where the format holds one; below 1 means 96
    short quality = 75;     // JPEG quality 0..100 (values outside are clamped)
};

// The formats by their output numbers.
enum class vxImageFormat : short { kGIF = 2, kJPEG = 3, kTIFF = 4, kPNG = 5, kBMP = 6 };

// Whether the format keeps an alpha channel (PNG and TIFF).
bool vxFormatHasAlpha(vxImageFormat format);

// Encodes the raster into `out`. False on failure, with `status` a short text for the
// diagnostics log; `out` is then empty.
//
// PNG and TIFF store red, green, blue and alpha with the alpha divided out. JPEG, GIF
// and BMP have no alpha: a pixel that isn't opaque is shown over white, as a viewer
// would show the PNG. GIF gets a palette of up to 256 colours fitted to the picture,
// without dithering, so that flat chart colours stay flat.
[[nodiscard]] bool vxEncodeImage(vxImageFormat format, const vxRasterPixels& pixels,
                                 const vxEncoderOptions& options, std::vector<unsigned char>& out,
                                 std::string& status);

// Takes the bytes of a picture as they are made; false stops the encoder.
using vxByteSink = std::function<bool(const unsigned char* data, size_t length)>;

// The same, with the bytes handed to `write` instead of held: BMP, which
// is as large as the raster, a few rows at a time; the other formats,
// compressed, in one piece at the end. On failure some bytes may have gone
// to `write` already.
[[nodiscard]] bool vxEncodeImageTo(vxImageFormat format, const vxRasterPixels& pixels,
                                   const vxEncoderOptions& options, const vxByteSink& write,
                                   std::string& status);

}  // namespace Velarix
