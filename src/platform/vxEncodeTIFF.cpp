// TIFF through libtiff, written into memory: 8-bit RGB with straight alpha
// as an extra sample, deflate (or LZW) with horizontal prediction, strips of
// about 8 kB, the resolution in dots per inch.
#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <memory>

#include "platform/vxEncoderSupport.h"
#include "platform/vxPictureLibraries.h"

namespace Velarix {

namespace {

// The file libtiff writes into: the output vector with a position. libtiff
// seeks back to patch offsets, so writes may land anywhere.
struct MemoryFile {
    std::vector<unsigned char>* out = nullptr;
    uint64_t position = 0;
    char message[200] = "";
};

MemoryFile& fileOf(thandle_t handle) {
    return *static_cast<MemoryFile*>(handle);
}

tmsize_t onRead(thandle_t handle, void* buffer, tmsize_t size) {
    MemoryFile& file = fileOf(handle);
    if (size <= 0 || file.position >= file.out->size()) return 0;
    size_t count = std::min<uint64_t>(uint64_t(size), file.out->size() - file.position);
    std::memcpy(buffer, file.out->data() + file.position, count);
    file.position += count;
    return tmsize_t(count);
}

bool resizeTo(std::vector<unsigned char>& out, uint64_t size) noexcept {
    try {
        out.resize(size);
    } catch (...) {
        return false;
    }
    return true;
}

tmsize_t onWrite(thandle_t handle, void* data, tmsize_t size) {
    MemoryFile& file = fileOf(handle);
    if (size <= 0) return 0;
    uint64_t end = file.position + uint64_t(size);
    if (end > file.out->size() && !resizeTo(*file.out, end)) return 0;
    std::memcpy(file.out->data() + file.position, data, size_t(size));
    file.position = end;
    return size;
}

toff_t onSeek(thandle_t handle, toff_t offset, int whence) {
    MemoryFile& file = fileOf(handle);
    uint64_t base = whence == SEEK_CUR ? file.position : whence == SEEK_END ? file.out->size() : 0;
    int64_t signedOffset = static_cast<int64_t>(offset);
    if (whence != SEEK_SET && signedOffset < 0 && uint64_t(-signedOffset) > base)
        return static_cast<toff_t>(-1);
    file.position = base + offset;
    return file.position;
}

int onClose(thandle_t) {
    return 0;
}

toff_t onSize(thandle_t handle) {
    return fileOf(handle).out->size();
}

int onMap(thandle_t, void**, toff_t*) {
    return 0;
}

void onUnmap(thandle_t, void*, toff_t) {}

// Keeps the first error of libtiff; warnings are dropped.
int onError(TIFF*, void* user, const char* module, const char* format, va_list args) {
    auto& file = *static_cast<MemoryFile*>(user);
    if (file.message[0] == '\0') std::vsnprintf(file.message, sizeof file.message, format, args);
    return 1;
}

int onWarning(TIFF*, void*, const char*, const char*, va_list) {
    return 1;
}

struct OptionsFree {
    decltype(&::TIFFOpenOptionsFree) free;
    void operator()(TIFFOpenOptions* p) const { free(p); }
};

bool setTags(const vxTIFFCalls& t, TIFF* tif, const vxRasterPixels& pixels,
             const vxEncoderOptions& options) {
    auto TIFFSetField = t.TIFFSetField;
    uint16_t extra = EXTRASAMPLE_UNASSALPHA;
    uint16_t compression = t.TIFFIsCODECConfigured(COMPRESSION_ADOBE_DEFLATE)
                               ? COMPRESSION_ADOBE_DEFLATE
                               : COMPRESSION_LZW;
    double perInch = vxResolutionPerInch(options);
    return TIFFSetField(tif, TIFFTAG_IMAGEWIDTH, uint32_t(pixels.width)) &&
           TIFFSetField(tif, TIFFTAG_IMAGELENGTH, uint32_t(pixels.height)) &&
           TIFFSetField(tif, TIFFTAG_BITSPERSAMPLE, 8) &&
           TIFFSetField(tif, TIFFTAG_SAMPLESPERPIXEL, 4) &&
           TIFFSetField(tif, TIFFTAG_EXTRASAMPLES, 1, &extra) &&
           TIFFSetField(tif, TIFFTAG_PHOTOMETRIC, PHOTOMETRIC_RGB) &&
           TIFFSetField(tif, TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG) &&
           TIFFSetField(tif, TIFFTAG_ORIENTATION, ORIENTATION_TOPLEFT) &&
           TIFFSetField(tif, TIFFTAG_COMPRESSION, compression) &&
           TIFFSetField(tif, TIFFTAG_PREDICTOR, PREDICTOR_HORIZONTAL) &&
           TIFFSetField(tif, TIFFTAG_ROWSPERSTRIP, t.TIFFDefaultStripSize(tif, 0)) &&
           TIFFSetField(tif, TIFFTAG_XRESOLUTION, perInch) &&
           TIFFSetField(tif, TIFFTAG_YRESOLUTION, perInch) &&
           TIFFSetField(tif, TIFFTAG_RESOLUTIONUNIT, RESUNIT_INCH);
}

bool writeRows(const vxTIFFCalls& t, TIFF* tif, const vxRasterPixels& pixels,
               const vxEncoderOptions& options) {
    if (!setTags(t, tif, pixels, options)) return false;
    std::vector<unsigned char> row(size_t(pixels.width) * 4);
    for (int y = 0; y < pixels.height; ++y) {
        vxRowToRGBA(pixels, y, row.data());
        if (t.TIFFWriteScanline(tif, row.data(), uint32_t(y), 0) < 0) return false;
    }
    return t.TIFFFlush(tif) != 0;
}

}  // namespace

bool vxEncodeTIFF(const vxRasterPixels& pixels, const vxEncoderOptions& options,
                  std::vector<unsigned char>& out, std::string& status) {
    vxPictureLibraries& libraries = vxPictureLibraries::shared();
    const vxTIFFCalls* t = libraries.tiff();
    if (t == nullptr) {
        status = libraries.missingText(vxPictureLibrary::kTIFF);
        return false;
    }
    MemoryFile file;
    file.out = &out;
    std::unique_ptr<TIFFOpenOptions, OptionsFree> openOptions(t->TIFFOpenOptionsAlloc(),
                                                              {t->TIFFOpenOptionsFree});
    if (!openOptions) {
        status = "out of memory";
        return false;
    }
    t->TIFFOpenOptionsSetErrorHandlerExtR(openOptions.get(), onError, &file);
    t->TIFFOpenOptionsSetWarningHandlerExtR(openOptions.get(), onWarning, &file);
    TIFF* tif = t->TIFFClientOpenExt("memory", "w", &file, onRead, onWrite, onSeek, onClose, onSize,
                                     onMap, onUnmap, openOptions.get());
    bool done = tif != nullptr && writeRows(*t, tif, pixels, options);
    if (tif != nullptr) t->TIFFClose(tif);
    done = done && file.message[0] == '\0';
    if (!done) status = file.message[0] ? file.message : "libtiff failed";
    return done;
}

}  // namespace Velarix
