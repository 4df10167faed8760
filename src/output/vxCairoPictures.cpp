#include "output/vxCairoPictures.h"

#include <cstring>
#include <new>

#include "output/vxBitmap.h"
#include "output/vxImage.h"
#include "output/vxReadExternal.h"
#include "platform/vxResources.h"
#include "settings/vxErrorHolder.h"

namespace Velarix {

bool vxCairoPictures::find(const vxImage& image, vxCairoSurface& surface, vxErrorHolder& report,
                           const wchar_t* method) {
    surface.reset();
    if (const vxBitmap* own = image.getBitmap()) {
        if (own->isEmpty()) return true;
        surface = surfaceOf(*own);
        if (surface) return true;
        report.setError(vxErrRuntime::kOutOfMemory, report.where(method));
        return false;
    }
    const vxReadExternal* source = image.getSource();
    if (!source) return true;
    Key key(source->getType(), source->getName());
    auto found = bySource.find(key);
    if (found != bySource.end()) return answer(found->second, surface);
    vxBitmap pixels;
    const bool isRead = source->read(pixels);
    return answer(keep(std::move(key), pixels, isRead, report, method), surface);
}

bool vxCairoPictures::findResource(long id, vxCairoSurface& surface, vxErrorHolder& report,
                                   const wchar_t* method) {
    Key key(kSourceResource, std::to_wstring(id));
    auto found = bySource.find(key);
    if (found != bySource.end()) return answer(found->second, surface);
    vxBitmap pixels;
    // A number without pixels is no fault: it draws nothing.
    const bool isRead = vxResources::makePicture(id, pixels) || !pixels.isError();
    return answer(keep(std::move(key), pixels, isRead, report, method), surface);
}

bool vxCairoPictures::answer(const Entry& entry, vxCairoSurface& surface) {
    surface.reset(entry.surface ? cairo_surface_reference(entry.surface.get()) : nullptr);
    return !entry.isFault;
}

const vxCairoPictures::Entry& vxCairoPictures::keep(Key key, const vxBitmap& bitmap, bool isRead,
                                                    vxErrorHolder& report, const wchar_t* method) {
    static const Entry failed{nullptr, true};
    Entry entry;
    if (!isRead) {
        report.copyError(bitmap.getError());
        entry.isFault = true;
    } else if (!bitmap.isEmpty()) {
        entry.surface = surfaceOf(bitmap);
        entry.isFault = !entry.surface;
        if (entry.isFault) report.setError(vxErrRuntime::kOutOfMemory, report.where(method));
    }
    try {
        return bySource.insert_or_assign(std::move(key), std::move(entry)).first->second;
    } catch (const std::bad_alloc&) {
        report.setError(vxErrRuntime::kOutOfMemory, report.where(method));
        return failed;
    }
}

// The bitmap's words are cairo's ARGB32 pixels already; only the stride
// may differ.
vxCairoSurface vxCairoPictures::surfaceOf(const vxBitmap& bitmap) {
    if (bitmap.isEmpty()) return nullptr;
    const int width = static_cast<int>(bitmap.getWidth());
    const int height = static_cast<int>(bitmap.getHeight());
    vxCairoSurface surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, width, height));
    if (cairo_surface_status(surface.get()) != CAIRO_STATUS_SUCCESS) return nullptr;
    cairo_surface_flush(surface.get());
    unsigned char* data = cairo_image_surface_get_data(surface.get());
    const int stride = cairo_image_surface_get_stride(surface.get());
    const auto* from = reinterpret_cast<const unsigned char*>(bitmap.getData());
    const size_t rowBytes = static_cast<size_t>(bitmap.getStride());
    for (int row = 0; row < height; ++row) {
        std::memcpy(data + static_cast<size_t>(row) * stride, from + row * rowBytes, rowBytes);
    }
    cairo_surface_mark_dirty(surface.get());
    return surface;
}

}  // namespace Velarix
