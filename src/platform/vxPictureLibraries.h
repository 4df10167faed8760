// The picture libraries that only some formats need, opened when a picture
// of such a format is first written or read rather than at the start of
// every process: libtiff for TIFF, giflib for GIF and libimagequant for the
// GIF palette. Each library is opened by its soname with dlopen and its
// calls are looked up once into a table of function pointers.
//
// A library that can't be opened, or that lacks one of the table's calls,
// gives no table; the format's encoder or reader then fails with its own
// message. Opened libraries stay loaded for the life of the process, since
// libimagequant's worker threads may outlive its calls.
#pragma once

#include <gif_lib.h>
#include <libimagequant.h>
#include <tiffio.h>

#include <array>
#include <memory>
#include <mutex>
#include <string>

namespace Velarix {

// The calls of each library that the encoders and readers make; a table's
// members carry the names of the library's own functions.
// clang-format off
#define VX_TIFF_CALLS(X)                                                                 \
    X(TIFFOpenOptionsAlloc) X(TIFFOpenOptionsFree) X(TIFFOpenOptionsSetErrorHandlerExtR) \
    X(TIFFOpenOptionsSetWarningHandlerExtR) X(TIFFClientOpenExt) X(TIFFClose)            \
    X(TIFFIsCODECConfigured) X(TIFFSetField) X(TIFFGetField) X(TIFFGetFieldDefaulted)    \
    X(TIFFDefaultStripSize) X(TIFFWriteScanline) X(TIFFFlush) X(TIFFReadRGBAImageOriented)

#define VX_GIF_CALLS(X)                                                                  \
    X(GifMakeMapObject) X(GifFreeMapObject) X(GifBitSize) X(GifErrorString)              \
    X(EGifOpen) X(EGifPutScreenDesc) X(EGifPutImageDesc) X(EGifPutLine) X(EGifCloseFile) \
    X(DGifOpen) X(DGifCloseFile) X(DGifGetRecordType) X(DGifGetImageDesc)               \
    X(DGifGetExtension) X(DGifGetExtensionNext) X(DGifExtensionToGCB) X(DGifGetLine)

#define VX_IMAGEQUANT_CALLS(X)                                                           \
    X(liq_attr_create) X(liq_attr_destroy) X(liq_set_max_colors)                         \
    X(liq_image_create_custom) X(liq_image_destroy) X(liq_image_quantize)                \
    X(liq_result_destroy) X(liq_get_palette)
// clang-format on

#define VX_CALL_MEMBER(name) decltype(&::name) name = nullptr;

struct vxTIFFCalls {
    VX_TIFF_CALLS(VX_CALL_MEMBER)
};
struct vxGIFCalls {
    VX_GIF_CALLS(VX_CALL_MEMBER)
};
struct vxImageQuantCalls {
    VX_IMAGEQUANT_CALLS(VX_CALL_MEMBER)
};

#undef VX_CALL_MEMBER

enum class vxPictureLibrary { kTIFF, kGIF, kImageQuant };

class vxPictureLibraries {
public:
    using Sonames = std::array<const char*, 3>;  // in the order of vxPictureLibrary
    static constexpr Sonames kDebianSonames = {"libtiff.so.6", "libgif.so.7", "libimagequant.so.0"};

    explicit vxPictureLibraries(const Sonames& sonames = kDebianSonames);
    ~vxPictureLibraries();
    vxPictureLibraries(const vxPictureLibraries&) = delete;
    vxPictureLibraries& operator=(const vxPictureLibraries&) = delete;

    // The set the encoders and readers use.
    static vxPictureLibraries& shared();

    // Each table opens its library at the first call; nullptr when the
    // library or one of the table's calls is missing.
    const vxTIFFCalls* tiff();
    const vxGIFCalls* gif();
    const vxImageQuantCalls* imageQuant();

    // Any function of the library by name, for calls the tables leave out;
    // nullptr when the library or the function is missing.
    void* find(vxPictureLibrary library, const char* name);

    const char* soname(vxPictureLibrary library) const;
    // "libtiff.so.6 is missing", the encoders' message for the library.
    std::string missingText(vxPictureLibrary library) const;

private:
    struct Opened;
    // The library's handle, opened at the first call; nullptr when missing.
    void* handle(vxPictureLibrary library);

    Sonames sonames_;
    std::unique_ptr<Opened> opened_;
};

}  // namespace Velarix
