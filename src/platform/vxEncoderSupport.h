// What the picture encoders share: one encoder function per format, the
// conversion of one raster row into the layout a format stores, the
// resolution in the units the formats use, and appending to the output.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "platform/vxImageEncoder.h"

namespace Velarix {

// The encoders behind vxEncodeImage. They get a raster that has been checked
// (data, positive size, rows of at least width * 4 bytes) and an empty `out`.
bool vxEncodePNG(const vxRasterPixels& pixels, const vxEncoderOptions& options,
                 std::vector<unsigned char>& out, std::string& status);
bool vxEncodeJPEG(const vxRasterPixels& pixels, const vxEncoderOptions& options,
                  std::vector<unsigned char>& out, std::string& status);
bool vxEncodeGIF(const vxRasterPixels& pixels, const vxEncoderOptions& options,
                 std::vector<unsigned char>& out, std::string& status);
bool vxEncodeTIFF(const vxRasterPixels& pixels, const vxEncoderOptions& options,
                  std::vector<unsigned char>& out, std::string& status);
bool vxEncodeBMP(const vxRasterPixels& pixels, const vxEncoderOptions& options,
                 std::vector<unsigned char>& out, std::string& status);
// BMP handed to `write` in pieces of about a megabyte.
bool vxWriteBMP(const vxRasterPixels& pixels, const vxEncoderOptions& options,
                const vxByteSink& write, std::string& status);

// Row y as red, green, blue, alpha bytes with the alpha divided out, and
// white where alpha is 0; `out` holds width * 4 bytes.
void vxRowToRGBA(const vxRasterPixels& pixels, int y, unsigned char* out);

// Row y shown over white as red, green, blue bytes; `out` holds width * 3.
void vxRowToRGB(const vxRasterPixels& pixels, int y, unsigned char* out);

// The same in the order blue, green, red.
void vxRowToBGR(const vxRasterPixels& pixels, int y, unsigned char* out);

// Pixel x of row y shown over white, as 0xRRGGBB.
uint32_t vxPixelOverWhite(const vxRasterPixels& pixels, int x, int y);

// The resolution in dots per inch; a value below 1 counts as 96.
int vxResolutionPerInch(const vxEncoderOptions& options);

// The resolution in dots per metre, rounded.
uint32_t vxResolutionPerMetre(const vxEncoderOptions& options);

// Appends bytes to the output; false when memory runs out. It never throws,
// since its callers are callbacks of C libraries.
bool vxAppendBytes(std::vector<unsigned char>& out, const void* data, size_t length) noexcept;

}  // namespace Velarix
