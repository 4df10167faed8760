#include "platform/vxPictureReader.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>

#include "output/vxBitmap.h"
#include "output/vxFileType.h"

namespace Velarix {

vxPictureReader::vxPictureReader() : vxErrorHolder(L"vxPictureReader") {}

vxPictureReader::~vxPictureReader() = default;

bool vxPictureReader::canRead(short fileType) {
    switch (fileType) {
        case kFileTypePNG:
        case kFileTypeJPEG:
        case kFileTypeGIF:
        case kFileTypeTIFF:
        case kFileTypeBMP:
            return true;
        default:
            return false;
    }
}

bool vxPictureReader::readInfo(short fileType, Bytes bytes, vxPictureInfo& info) {
    info = vxPictureInfo();
    return dispatch(fileType, bytes, info, nullptr);
}

bool vxPictureReader::read(short fileType, Bytes bytes, vxBitmap& bitmap) {
    vxPictureInfo info;
    if (dispatch(fileType, bytes, info, &bitmap)) return true;
    bitmap.clear();
    return false;
}

short vxPictureReader::typeOfBytes(Bytes bytes) {
    auto begins = [bytes](std::initializer_list<uint8_t> signature) {
        return bytes.size() >= signature.size() &&
               std::equal(signature.begin(), signature.end(), bytes.begin());
    };
    if (begins({0x89, 'P', 'N', 'G', 0x0d, 0x0a, 0x1a, 0x0a})) return kFileTypePNG;
    if (begins({0xff, 0xd8, 0xff})) return kFileTypeJPEG;
    if (begins({'G', 'I', 'F', '8'})) return kFileTypeGIF;
    if (begins({'I', 'I', 0x2a, 0x00}) || begins({'M', 'M', 0x00, 0x2a})) return kFileTypeTIFF;
    if (begins({'B', 'M'})) return kFileTypeBMP;
    return 0;
}

bool vxPictureReader::dispatch(short fileType, Bytes bytes, vxPictureInfo& info, vxBitmap* bitmap) {
    clearError();
    if (const short found = typeOfBytes(bytes); found != 0 && canRead(fileType)) fileType = found;
    switch (fileType) {
        case kFileTypePNG:
            return readPNG(bytes, info, bitmap);
        case kFileTypeJPEG:
            return readJPEG(bytes, info, bitmap);
        case kFileTypeGIF:
            return readGIF(bytes, info, bitmap);
        case kFileTypeTIFF:
            return readTIFF(bytes, info, bitmap);
        case kFileTypeBMP:
            return readBMP(bytes, info, bitmap);
        default:
            setError(vxErrFile::kUnknownFormat, where(L"read"));
            return false;
    }
}

bool vxPictureReader::checkSize(const vxPictureInfo& info, const wchar_t* method, int number) {
    if (vxBitmap::isSizeAllowed(info.width, info.height)) return true;
    setError(vxErrChart::kImageDimension, where(method, number),
             std::to_wstring(info.width) + L" x " + std::to_wstring(info.height));
    return false;
}

short vxPictureReader::toResolution(double dotsPerInch) {
    if (!(dotsPerInch >= 1.0)) return 0;
    if (dotsPerInch > 32767.0) return 32767;
    return static_cast<short>(std::lround(dotsPerInch));
}

bool vxPictureReader::allocate(vxBitmap& bitmap, const vxPictureInfo& info) {
    if (!bitmap.allocateMemory(info.width, info.height)) {
        copyError(bitmap.getError());
        return false;
    }
    bitmap.setResolution(info.resolution);
    return true;
}

}  // namespace Velarix
