#include "output/vxCairoFontFaces.h"

#include <cairo-ft.h>

#include "platform/vxFontFace.h"
#include "platform/vxFontService.h"

namespace Velarix {

namespace {

constexpr short kFaceStyleBits = vxFontService::kBold | vxFontService::kItalic;

// Outlines as they are: no hinting, which would move glyphs away from the
// unscaled advances that the layout used, and no embedded bitmaps, which
// look different from the outlines at some sizes.
constexpr int kLoadFlags = FT_LOAD_NO_HINTING | FT_LOAD_NO_BITMAP;

}  // namespace

vxCairoFontFaces::Entry vxCairoFontFaces::find(const std::wstring& name, short style) {
    Key key(name, static_cast<short>(style & kFaceStyleBits));
    if (hasLast && key == lastKey) return lastEntry;
    auto found = byName.find(key);
    if (found == byName.end()) {
        Entry entry;
        entry.face = vxFontService::get().findFace(name, key.second);
        if (entry.face) entry.cairoFace = cairoFaceOf(*entry.face);
        if (!entry.cairoFace) entry.face = nullptr;
        found = byName.emplace(key, entry).first;
    }
    lastKey = std::move(key);
    lastEntry = found->second;
    hasLast = true;
    return lastEntry;
}

cairo_font_face_t* vxCairoFontFaces::cairoFaceOf(vxFontFace& face) {
    auto found = cairoFaces.find(&face);
    if (found != cairoFaces.end()) return found->second.get();
    vxCairoFontFace made(cairo_ft_font_face_create_for_ft_face(face.getFTFace(), kLoadFlags));
    if (cairo_font_face_status(made.get()) != CAIRO_STATUS_SUCCESS) return nullptr;
    if (face.isSyntheticBold())
        cairo_ft_font_face_set_synthesize(made.get(), CAIRO_FT_SYNTHESIZE_BOLD);
    return cairoFaces.emplace(&face, std::move(made)).first->second.get();
}

}  // namespace Velarix
