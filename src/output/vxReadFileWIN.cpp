#include "output/vxReadFileWIN.h"

#include <vector>

#include "output/vxBitmap.h"
#include "platform/vxPictureReader.h"

namespace Velarix {

vxReadFileWIN::vxReadFileWIN() : vxReadFile(L"vxReadFileWIN") {}

vxReadFileWIN::~vxReadFileWIN() = default;

std::unique_ptr<vxReadExternal> vxReadFileWIN::clone() const {
    auto copy = std::make_unique<vxReadFileWIN>();
    copyTo(*copy);
    return copy;
}

bool vxReadFileWIN::setName(const std::wstring& name) {
    if (!createFName(name) || !setImageType()) return false;
    std::vector<uint8_t> bytes;
    if (!readBytes(bytes, *this)) return false;
    // The whole picture is decoded once, so that a damaged file is told
    // here, whichever device draws it later; the pixels aren't kept.
    vxPictureReader reader;
    vxBitmap pixels;
    if (!reader.read(getFileType(), bytes, pixels)) {
        copyError(reader.getError());
        return false;
    }
    setSize(pixels.getWidth(), pixels.getHeight());
    return true;
}

bool vxReadFileWIN::setImageType() {
    if (vxPictureReader::canRead(getFileType())) return true;
    setError(vxErrFile::kUnknownFormat, where(L"setImageType"), getName());
    return false;
}

bool vxReadFileWIN::read(vxBitmap& bitmap) const {
    bitmap.clear();
    std::vector<uint8_t> bytes;
    if (!readBytes(bytes, bitmap)) return false;
    vxPictureReader reader;
    if (reader.read(getFileType(), bytes, bitmap)) return true;
    bitmap.copyError(reader.getError());
    return false;
}

}  // namespace Velarix
