// Decoding of picture files held in memory, one format per source file:
// PNG through libpng, JPEG through libjpeg-turbo, GIF through giflib (the
// first frame), TIFF through libtiff and BMP by hand (uncompressed 24 and
// 32 bits, 1, 4 and 8 bits with a palette, bit fields for 32 bits).
//
// The bytes decide the format when they begin with the signature of one
// that has a reader, as a picture named .jpg that holds a PNG; otherwise the
// format is the one the file's name promises. Faults, each at
// "vxPictureReader/readFORMAT/n":
//   4013  the bytes aren't a picture of the promised kind, or the kind has
//         no reader here, as when its library can't be opened;
//   4004  the picture ends early or its data is damaged;
//   2020  the header asks for a size above the bitmap's limits;
//   5000  memory ran out.
// A header that gives zero width or height is no fault: the picture is
// empty and draws nothing.
#pragma once

#include <cstdint>
#include <span>

#include "settings/vxErrorHolder.h"

namespace Velarix {

class vxBitmap;

struct vxPictureInfo {
    long width = 0;
    long height = 0;
    short resolution = 72;  // dots per inch
};

class vxPictureReader : public vxErrorHolder {
public:
    using Bytes = std::span<const uint8_t>;

    vxPictureReader();
    ~vxPictureReader() override;

    // Whether pictures of the file type can be read.
    static bool canRead(short fileType);

    // Size and resolution from the header alone.
    bool readInfo(short fileType, Bytes bytes, vxPictureInfo& info);
    // All pixels; the bitmap takes size and resolution. On a fault the
    // bitmap is left empty.
    bool read(short fileType, Bytes bytes, vxBitmap& bitmap);

private:
    // Each reads the header into `info` and, with a bitmap, the pixels.
    // The format whose signature the bytes begin with, or 0.
    static short typeOfBytes(Bytes bytes);
    bool readPNG(Bytes bytes, vxPictureInfo& info, vxBitmap* bitmap);
    bool readJPEG(Bytes bytes, vxPictureInfo& info, vxBitmap* bitmap);
    bool readGIF(Bytes bytes, vxPictureInfo& info, vxBitmap* bitmap);
    bool readTIFF(Bytes bytes, vxPictureInfo& info, vxBitmap* bitmap);
    bool readBMP(Bytes bytes, vxPictureInfo& info, vxBitmap* bitmap);
    bool dispatch(short fileType, Bytes bytes, vxPictureInfo& info, vxBitmap* bitmap);

    // Error 2020 at method/number when the size is beyond the limits.
    bool checkSize(const vxPictureInfo& info, const wchar_t* method, int number);
    // A resolution in dots per inch as a bitmap keeps it; 0 when unknown.
    static short toResolution(double dotsPerInch);
    // Room in the bitmap for the picture; the bitmap's fault is copied.
    bool allocate(vxBitmap& bitmap, const vxPictureInfo& info);
};

}  // namespace Velarix
