// Clips of the raster device. A run of intersections is a cairo clip: each
// clip path is kept, and narrows the context's clip as it comes. The first
// exclusion or union turns the clip into a coverage mask of the drawing's
// size, made from the paths so far; from then on every clip combines with
// the mask, and every shape is drawn through it.
#include "output/vxDeviceGDIPlus.h"

namespace Velarix {

void vxDeviceGDIPlus::resetClipRegion() {
    if (!isDrawing()) return;
    clipPaths.clear();
    clipMask.reset();
    cairo_reset_clip(cr.get());
}

// Outside the limits of the device contract, and narrower or lower than a
// pixel on a bitmap, a rectangle leaves the clip as it stands.
void vxDeviceGDIPlus::setClipRegion(float x, float y, float w, float h, short mode) {
    if (!isDrawing() || isClipOutOfLimits(x, y, w, h)) return;
    const float smallest = isBitmapRoute ? 1.0f : 1e-10f;
    if (w < smallest || h < smallest) return;
    cairo_new_path(cr.get());
    cairo_rectangle(cr.get(), at(x), at(y), at(w), at(h));
    applyClip(mode, L"setClipRegion");
}

void vxDeviceGDIPlus::setClipRegion(const float rect[4]) {
    setClipRegion(rect[0], rect[1], rect[2] - rect[0], rect[3] - rect[1], 0);
}

void vxDeviceGDIPlus::setClipRegion(const vxVerbs& verbs, const vxPoints& x, const vxPoints& y,
                                    const float bounds[4], short mode) {
    if (!isDrawing()) return;
    addPath(verbs, x, y, Offset{});
    applyClip(mode, L"setClipRegion");
}

void vxDeviceGDIPlus::applyClip(short mode, const wchar_t* method) {
    switch (mode) {
        case kIntersect:
            if (clipMask) {
                combineClipMask(mode, method);
            } else {
                intersectClip(method);
            }
            break;
        case kExclude:
        case kUnion:
            if (clipMask || makeClipMask(method)) combineClipMask(mode, method);
            break;
        default:
            clipPaths.clear();
            clipMask.reset();
            cairo_reset_clip(cr.get());
            intersectClip(method);
            break;
    }
    cairo_new_path(cr.get());
    checkStatus(method);
}

void vxDeviceGDIPlus::intersectClip(const wchar_t* method) {
    vxCairoPath path(cairo_copy_path(cr.get()));
    if (!reportCairoStatus(path->status, method, 2)) return;
    clipPaths.push_back(std::move(path));
    cairo_clip(cr.get());
}

// The mask covers what the clip paths leave open, all of the drawing when
// there are none; the context's own clip is dropped.
bool vxDeviceGDIPlus::makeClipMask(const wchar_t* method) {
    vxCairoSurface mask(cairo_image_surface_create(CAIRO_FORMAT_A8, pixelWidth, pixelHeight));
    if (!reportCairoStatus(cairo_surface_status(mask.get()), method, 3)) return false;
    vxCairoContext painter(cairo_create(mask.get()));
    cairo_set_antialias(painter.get(), cairo_get_antialias(cr.get()));
    for (const vxCairoPath& path : clipPaths) {
        cairo_append_path(painter.get(), path.get());
        cairo_clip(painter.get());
    }
    cairo_paint(painter.get());
    if (!reportCairoStatus(cairo_status(painter.get()), method, 4)) return false;
    clipPaths.clear();
    cairo_reset_clip(cr.get());
    clipMask = std::move(mask);
    return true;
}

// The current path combines with the mask: an exclusion clears its
// inside, a union covers it, an intersection keeps only what it covers.
void vxDeviceGDIPlus::combineClipMask(short mode, const wchar_t* method) {
    vxCairoPath path(cairo_copy_path(cr.get()));
    if (!reportCairoStatus(path->status, method, 5)) return;
    vxCairoContext painter(cairo_create(clipMask.get()));
    const cairo_antialias_t antialias = cairo_get_antialias(cr.get());
    cairo_set_antialias(painter.get(), antialias);
    if (mode == kIntersect) {
        vxCairoSurface inside(cairo_image_surface_create(CAIRO_FORMAT_A8, pixelWidth, pixelHeight));
        vxCairoContext filler(cairo_create(inside.get()));
        cairo_set_antialias(filler.get(), antialias);
        cairo_append_path(filler.get(), path.get());
        cairo_fill(filler.get());
        if (!reportCairoStatus(cairo_status(filler.get()), method, 6)) return;
        filler.reset();
        cairo_set_source_surface(painter.get(), inside.get(), 0.0, 0.0);
        cairo_set_operator(painter.get(), CAIRO_OPERATOR_DEST_IN);
        cairo_paint(painter.get());
    } else {
        cairo_append_path(painter.get(), path.get());
        cairo_set_operator(painter.get(),
                           mode == kExclude ? CAIRO_OPERATOR_CLEAR : CAIRO_OPERATOR_OVER);
        cairo_fill(painter.get());
    }
    reportCairoStatus(cairo_status(painter.get()), method, 7);
}

}  // namespace Velarix
