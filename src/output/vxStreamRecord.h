// A picture written into memory for the host: its format code, its bytes
// and its size in drawing units.
#pragma once

#include <cstdint>
#include <vector>

namespace Velarix {

// Format codes of memory streams, as the host's container types know them.
enum vxStreamFormat : short {
    kStreamGIF = 2,
    kStreamJPEG = 3,
    kStreamTIFF = 4,
    kStreamPNG = 5,
    kStreamBMP = 6,
    kStreamPICT = 7,
    kStreamMeta = 8,
    kStreamPDF = 9,
};

struct vxStreamRecord {
    short formatCode = 0;
    std::vector<uint8_t> bytes;
    float width = 0.0f;
    float height = 0.0f;
};

}  // namespace Velarix
