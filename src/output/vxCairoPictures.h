// The pictures that the raster device draws, as cairo image surfaces.
//
// A picture read from a source is decoded on its first use and kept, by
// the source's kind and name, until the cache is cleared: a picture that a
// thousand shapes share is read once, and a picture that can't be read is
// tried once. A picture held in an image's own bitmap has no name to be
// kept by, and is copied into a new surface at each use.
#pragma once

#include <map>
#include <string>
#include <utility>

#include "output/vxCairoPointers.h"

namespace Velarix {

class vxBitmap;
class vxErrorHolder;
class vxImage;

class vxCairoPictures {
public:
    // The picture of an image: its own bitmap, else its source's pixels.
    // `surface` is null for a picture without pixels. False on a fault,
    // which goes to `report`: the reader's own, or error 5000 at
    // "report/method/1" when cairo can't make the surface.
    bool find(const vxImage& image, vxCairoSurface& surface, vxErrorHolder& report,
              const wchar_t* method);
    // The picture of a built-in resource by its number, as above.
    bool findResource(long id, vxCairoSurface& surface, vxErrorHolder& report,
                      const wchar_t* method);
    void clear() { bySource.clear(); }

    // A new surface with a copy of the bitmap's pixels; null for an empty
    // bitmap or when cairo can't make it.
    static vxCairoSurface surfaceOf(const vxBitmap& bitmap);

private:
    // A source's kind code and its name.
    using Key = std::pair<short, std::wstring>;
    struct Entry {
        vxCairoSurface surface;
        bool isFault = false;
    };

    // Keeps the surface of the bitmap under the key; the fault of the
    // bitmap or of cairo goes to `report`.
    const Entry& keep(Key key, const vxBitmap& bitmap, bool isRead, vxErrorHolder& report,
                      const wchar_t* method);
    static bool answer(const Entry& entry, vxCairoSurface& surface);

    std::map<Key, Entry> bySource;
};

}  // namespace Velarix
