// Pictures of the raster device: images placed by their mapping, and the
// texture brushes of texture numbers and texture paints.
//
// A picture is drawn as a pattern of its pixels over the block of all its
// tiles, repeated from the first tile when there are several, so that a
// thousand tiles cost one fill. On the bitmap route the corners of a tile
// fall on whole pixels.
#include <cmath>

#include "graphics/vxBasicPaint.h"
#include "graphics/vxGradientPaint.h"
#include "graphics/vxTexturePaintOLD.h"
#include "output/vxDeviceGDIPlus.h"
#include "output/vxImage.h"
#include "output/vxImageMapping.h"
#include "platform/vxResources.h"

namespace Velarix {

namespace {

// The first tile of a mapping in the drawing.
struct Tile {
    double left = 0.0;
    double top = 0.0;
    double width = 0.0;
    double height = 0.0;
};

// A side that a pattern can be scaled to: neither empty nor beyond any
// drawing.
bool isUsable(double length) {
    return length > 1e-6 && length < 1e7;
}

Tile tileOf(const vxImageMapping& mapping, bool isWhole) {
    auto at = [isWhole](float value) {
        return isWhole ? std::round(value) : static_cast<double>(value);
    };
    Tile tile;
    tile.left = at(mapping.getDestLeft());
    tile.top = at(mapping.getDestTop());
    tile.width = at(mapping.getDestLeft() + mapping.getDestWidth()) - tile.left;
    tile.height = at(mapping.getDestTop() + mapping.getDestHeight()) - tile.top;
    return tile;
}

// A pattern of pixels laid so that the whole picture covers the tile, and
// repeated beyond it or padded with its edges.
vxCairoPattern patternOver(cairo_surface_t* surface, const Tile& tile, bool isRepeated) {
    vxCairoPattern pattern(cairo_pattern_create_for_surface(surface));
    cairo_pattern_set_extend(pattern.get(), isRepeated ? CAIRO_EXTEND_REPEAT : CAIRO_EXTEND_PAD);
    const double width = cairo_image_surface_get_width(surface);
    const double height = cairo_image_surface_get_height(surface);
    cairo_matrix_t matrix;
    cairo_matrix_init_scale(&matrix, width / tile.width, height / tile.height);
    cairo_matrix_translate(&matrix, -tile.left, -tile.top);
    cairo_pattern_set_matrix(pattern.get(), &matrix);
    return pattern;
}

}  // namespace

// A gradient resource draws its gradient over the destination; tiled, a
// tile of the resource's size is drawn once and repeated.
void vxDeviceGDIPlus::drawImage(const vxImage& image) {
    const vxImageMapping* mapping = image.getMapping();
    if (!isDrawing() || image.isEmpty() || !mapping || mapping->isEmpty()) return;
    const Tile tile = tileOf(*mapping, isBitmapRoute);
    if (!isUsable(tile.width) || !isUsable(tile.height)) return;
    const long rows = mapping->getNumOfRows();
    const long columns = mapping->getNumOfColumns();
    const vxGradientPaint* gradient = image.getGradient();
    if (gradient && rows * columns == 1) {
        const float bounds[4] = {static_cast<float>(tile.left), static_cast<float>(tile.top),
                                 static_cast<float>(tile.left + tile.width),
                                 static_cast<float>(tile.top + tile.height)};
        if (setUpBrush(*gradient, bounds)) fillTiles(tile.left, tile.top, tile.width, tile.height);
        checkStatus(L"drawImage");
        return;
    }
    vxCairoSurface surface;
    if (gradient) {
        surface = gradientTile(*gradient, mapping->getSourceWidth(), mapping->getSourceHeight());
    } else if (!pictures.find(image, surface, *this, L"drawImage")) {
        return;
    }
    if (!surface) return;
    vxCairoPattern pattern = patternOver(surface.get(), tile, rows * columns > 1);
    if (!reportCairoStatus(cairo_pattern_status(pattern.get()), L"drawImage", 1)) return;
    cairo_set_source(cr.get(), pattern.get());
    hasSolidSource = false;
    fillTiles(tile.left, tile.top, tile.width * static_cast<double>(columns),
              tile.height * static_cast<double>(rows));
    checkStatus(L"drawImage", 2);
}

void vxDeviceGDIPlus::fillTiles(double left, double top, double width, double height) {
    cairo_t* c = cr.get();
    cairo_new_path(c);
    cairo_rectangle(c, left, top, width, height);
    beginShape();
    cairo_fill(c);
    endShape();
}

// The gradient drawn into a picture of width by height pixels.
vxCairoSurface vxDeviceGDIPlus::gradientTile(const vxGradientPaint& gradient, long width,
                                             long height) {
    const float bounds[4] = {0.0f, 0.0f, static_cast<float>(width), static_cast<float>(height)};
    if (!setUpBrush(gradient, bounds)) return nullptr;
    vxCairoSurface tile(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, static_cast<int>(width),
                                                   static_cast<int>(height)));
    if (!reportCairoStatus(cairo_surface_status(tile.get()), L"drawImage", 3)) return nullptr;
    vxCairoContext painter(cairo_create(tile.get()));
    cairo_set_source(painter.get(), cairo_get_source(cr.get()));
    cairo_paint(painter.get());
    if (!reportCairoStatus(cairo_status(painter.get()), L"drawImage", 4)) return nullptr;
    return tile;
}

// The built-in picture of the number, repeated from the drawing's origin
// as a hatch is; the paint's colour has no part in it. The pattern of the
// last number is kept for the next shape.
bool vxDeviceGDIPlus::setUpTextureIndexBrush(const vxBasicPaint& paint) {
    const short index = paint.getPatternIndex();
    if (!texture || textureIndex != index) {
        texture.reset();
        vxCairoSurface surface;
        const long id = vxResources::calculateResourceID(index);
        if (!pictures.findResource(id, surface, *this, L"setUpTextureBrush") || !surface) {
            return false;
        }
        texture.reset(cairo_pattern_create_for_surface(surface.get()));
        cairo_pattern_set_extend(texture.get(), CAIRO_EXTEND_REPEAT);
        if (!reportCairoStatus(cairo_pattern_status(texture.get()), L"setUpTextureBrush", 1)) {
            texture.reset();
            return false;
        }
        textureIndex = index;
    }
    cairo_set_source(cr.get(), texture.get());
    hasSolidSource = false;
    return true;
}

// The picture of a texture paint, laid by its mapping onto the paint's
// anchor, else onto the image's own anchor, else onto the shape's bounds,
// and repeated from there in both directions. A gradient resource paints
// its gradient over the shape.
bool vxDeviceGDIPlus::setUpTextureBrush(const vxPaintOLD& paint, const float bounds[4]) {
    if (paint.getType() != vxPaintOLD::kTexture) return false;
    const auto& texturePaint = static_cast<const vxTexturePaintOLD&>(paint);
    const vxImage* image = texturePaint.getImage();
    if (!image || image->isEmpty() || !image->getMapping()) return false;
    if (const vxGradientPaint* gradient = image->getGradient())
        return setUpBrush(*gradient, bounds);
    vxImageMapping mapping = *image->getMapping();
    if (texturePaint.hasImage()) {
        float anchor[4];
        texturePaint.getAnchorBounds(anchor);
        mapping.setAnchor(anchor);
    } else if (mapping.isEmpty()) {
        mapping.setAnchor(bounds);
    }
    const Tile tile = tileOf(mapping, isBitmapRoute);
    if (mapping.isEmpty() || !isUsable(tile.width) || !isUsable(tile.height)) return false;
    vxCairoSurface surface;
    if (!pictures.find(*image, surface, *this, L"setUpTextureBrush") || !surface) return false;
    vxCairoPattern pattern = patternOver(surface.get(), tile, true);
    if (!reportCairoStatus(cairo_pattern_status(pattern.get()), L"setUpTextureBrush", 2)) {
        return false;
    }
    cairo_set_source(cr.get(), pattern.get());
    hasSolidSource = false;
    return true;
}

}  // namespace Velarix
