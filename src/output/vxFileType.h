// The kinds of file the engine knows by their names' extensions. Picture
// kinds carry the codes of the matching output formats.
#pragma once

#include <string>

namespace Velarix {

enum vxFileType : short {
    kFileTypeUnknown = 0,
    kFileTypeTXT = 1,
    kFileTypeGIF = 2,
    kFileTypeJPEG = 3,
    kFileTypeTIFF = 4,
    kFileTypePNG = 5,
    kFileTypeBMP = 6,
    kFileTypePICT = 7,
    kFileTypeEMF = 8,
    kFileTypePDF = 9,
    kFileTypeSVG = 10,
    kFileTypeSWF = 11,
    kFileTypeWMF = 12,
    kFileTypeDWG = 13,
};

// The type by the extension of the path's last name part, compared without
// regard to case: "txt", "gif", "jpg", "jpeg", "tif", "tiff", "png", "bmp",
// "pct", "pict", "wmf", "emf", "pdf", "svg", "swf", "dwg". Anything else,
// or no extension, is unknown.
vxFileType vxFileTypeOf(const std::wstring& path);

}  // namespace Velarix
