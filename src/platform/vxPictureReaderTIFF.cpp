// TIFF pictures through libtiff: the first directory, read through the
// library's RGBA interface, which hands out premultiplied pixels whatever
// the file's photometric form. The library's messages go to this reader's
// handlers, never to the console.
#include <algorithm>
#include <cstring>
#include <memory>

#include "output/vxBitmap.h"
#include "platform/vxPictureLibraries.h"
#include "platform/vxPictureReader.h"

namespace Velarix {

namespace {

struct MemoryInput {
    const uint8_t* data;
    toff_t size;
    toff_t position;
};

tmsize_t readFromMemory(thandle_t handle, void* out, tmsize_t count) {
    auto* input = static_cast<MemoryInput*>(handle);
    if (count <= 0 || input->position >= input->size) return 0;
    const toff_t n = std::min(static_cast<toff_t>(count), input->size - input->position);
    std::memcpy(out, input->data + input->position, static_cast<size_t>(n));
    input->position += n;
    return static_cast<tmsize_t>(n);
}

tmsize_t refuseWrite(thandle_t, void*, tmsize_t) {
    return 0;
}

toff_t seekInMemory(thandle_t handle, toff_t offset, int whence) {
    auto* input = static_cast<MemoryInput*>(handle);
    toff_t base = 0;
    if (whence == SEEK_CUR) base = input->position;
    if (whence == SEEK_END) base = input->size;
    input->position = base + offset;
    return input->position;
}

int closeNothing(thandle_t) {
    return 0;
}

toff_t sizeOfMemory(thandle_t handle) {
    return static_cast<MemoryInput*>(handle)->size;
}

int mapNothing(thandle_t, void**, toff_t*) {
    return 0;
}

void unmapNothing(thandle_t, void*, toff_t) {}

int ignoreMessage(TIFF*, void*, const char*, const char*, va_list) {
    return 1;
}

struct TiffCloser {
    decltype(&::TIFFClose) close;
    void operator()(TIFF* tif) const { close(tif); }
};

struct OptionsFree {
    decltype(&::TIFFOpenOptionsFree) free;
    void operator()(TIFFOpenOptions* options) const { free(options); }
};

bool hasSignature(std::span<const uint8_t> bytes) {
    if (bytes.size() < 8) return false;
    const bool little =
        bytes[0] == 'I' && bytes[1] == 'I' && (bytes[2] == 42 || bytes[2] == 43) && bytes[3] == 0;
    const bool big =
        bytes[0] == 'M' && bytes[1] == 'M' && bytes[2] == 0 && (bytes[3] == 42 || bytes[3] == 43);
    return little || big;
}

double resolutionOf(const vxTIFFCalls& t, TIFF* tif) {
    float x = 0.0f;
    uint16_t unit = RESUNIT_INCH;
    if (!t.TIFFGetField(tif, TIFFTAG_XRESOLUTION, &x)) return 0.0;
    t.TIFFGetFieldDefaulted(tif, TIFFTAG_RESOLUTIONUNIT, &unit);
    if (unit == RESUNIT_CENTIMETER) return x * 2.54;
    return unit == RESUNIT_INCH ? x : 0.0;
}

// The library packs red in the low byte; the bitmap wants alpha high.
void toBitmapOrder(vxBitmap& bitmap) {
    uint32_t* word = bitmap.getData();
    const uint32_t* end = word + static_cast<size_t>(bitmap.getWidth()) * bitmap.getHeight();
    for (; word != end; ++word) {
        const uint32_t abgr = *word;
        *word = (TIFFGetA(abgr) << 24) | (TIFFGetR(abgr) << 16) | (TIFFGetG(abgr) << 8) |
                TIFFGetB(abgr);
    }
}

}  // namespace

bool vxPictureReader::readTIFF(Bytes bytes, vxPictureInfo& info, vxBitmap* bitmap) {
    if (!hasSignature(bytes)) {
        setError(vxErrFile::kUnknownFormat, where(L"readTIFF", 1));
        return false;
    }
    const vxTIFFCalls* t = vxPictureLibraries::shared().tiff();
    if (t == nullptr) {
        setError(vxErrFile::kUnknownFormat, where(L"readTIFF", 6));
        return false;
    }
    std::unique_ptr<TIFFOpenOptions, OptionsFree> options(t->TIFFOpenOptionsAlloc(),
                                                          {t->TIFFOpenOptionsFree});
    if (!options) {
        setError(vxErrRuntime::kOutOfMemory, where(L"readTIFF", 2));
        return false;
    }
    t->TIFFOpenOptionsSetErrorHandlerExtR(options.get(), ignoreMessage, nullptr);
    t->TIFFOpenOptionsSetWarningHandlerExtR(options.get(), ignoreMessage, nullptr);
    MemoryInput input{bytes.data(), static_cast<toff_t>(bytes.size()), 0};
    std::unique_ptr<TIFF, TiffCloser> tif(
        t->TIFFClientOpenExt("picture", "rm", &input, readFromMemory, refuseWrite, seekInMemory,
                             closeNothing, sizeOfMemory, mapNothing, unmapNothing, options.get()),
        {t->TIFFClose});
    uint32_t width = 0, height = 0;
    if (!tif || !t->TIFFGetField(tif.get(), TIFFTAG_IMAGEWIDTH, &width) ||
        !t->TIFFGetField(tif.get(), TIFFTAG_IMAGELENGTH, &height)) {
        setError(vxErrFile::kRead, where(L"readTIFF", 3));
        return false;
    }
    info.width = static_cast<long>(std::min<uint32_t>(width, 0x7FFFFFFF));
    info.height = static_cast<long>(std::min<uint32_t>(height, 0x7FFFFFFF));
    const short dpi = toResolution(resolutionOf(*t, tif.get()));
    if (dpi > 0) info.resolution = dpi;
    if (!checkSize(info, L"readTIFF", 4)) return false;
    if (!bitmap) return true;
    if (!allocate(*bitmap, info)) return false;
    if (!t->TIFFReadRGBAImageOriented(tif.get(), width, height, bitmap->getData(),
                                      ORIENTATION_TOPLEFT, 1)) {
        setError(vxErrFile::kRead, where(L"readTIFF", 5));
        return false;
    }
    toBitmapOrder(*bitmap);
    return true;
}

}  // namespace Velarix
