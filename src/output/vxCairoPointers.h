// Owning pointers for cairo's reference-counted objects: the pointer drops
// its reference when it goes.
#pragma once

#include <cairo.h>

#include <memory>

namespace Velarix {

struct vxCairoRelease {
    void operator()(cairo_t* cr) const { cairo_destroy(cr); }
    void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
    void operator()(cairo_pattern_t* pattern) const { cairo_pattern_destroy(pattern); }
    void operator()(cairo_font_face_t* face) const { cairo_font_face_destroy(face); }
    void operator()(cairo_path_t* path) const { cairo_path_destroy(path); }
};

using vxCairoContext = std::unique_ptr<cairo_t, vxCairoRelease>;
using vxCairoSurface = std::unique_ptr<cairo_surface_t, vxCairoRelease>;
using vxCairoPattern = std::unique_ptr<cairo_pattern_t, vxCairoRelease>;
using vxCairoFontFace = std::unique_ptr<cairo_font_face_t, vxCairoRelease>;
using vxCairoPath = std::unique_ptr<cairo_path_t, vxCairoRelease>;

}  // namespace Velarix
