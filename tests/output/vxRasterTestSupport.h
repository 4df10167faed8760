// Helpers of the raster device tests: a drawing made in one call, paints
// and strokes in one line, and pixels read back from the finished picture.
#pragma once

#include <cairo.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <functional>
#include <memory>

#include "graphics/vxBasicPaint.h"
#include "graphics/vxBasicStroke.h"
#include "output/vxDeviceGDIPlus.h"

namespace Velarix::test {

// A pixel with its colour taken out of cairo's premultiplied form; a
// transparent pixel reads as 0, 0, 0, 0.
struct Pixel {
    int r = 0, g = 0, b = 0, a = 0;
};

inline Pixel pixelAt(cairo_surface_t* image, int x, int y) {
    cairo_surface_flush(image);
    const unsigned char* row =
        cairo_image_surface_get_data(image) + y * cairo_image_surface_get_stride(image);
    const uint32_t v = reinterpret_cast<const uint32_t*>(row)[x];
    Pixel p;
    p.a = static_cast<int>(v >> 24);
    if (p.a == 0) return p;
    auto unmultiply = [&](uint32_t c) { return static_cast<int>((c * 255 + p.a / 2) / p.a); };
    p.r = unmultiply((v >> 16) & 0xFF);
    p.g = unmultiply((v >> 8) & 0xFF);
    p.b = unmultiply(v & 0xFF);
    return p;
}

// Whether every channel lies within `tolerance` of the colour.
inline bool isNear(const Pixel& p, int r, int g, int b, int a, int tolerance = 0) {
    return std::abs(p.r - r) <= tolerance && std::abs(p.g - g) <= tolerance &&
           std::abs(p.b - b) <= tolerance && std::abs(p.a - a) <= tolerance;
}

// The largest difference of any channel of any pixel, on the raw
// premultiplied bytes; -1 when the sizes differ.
inline int maxDifference(cairo_surface_t* one, cairo_surface_t* other) {
    const int w = cairo_image_surface_get_width(one), h = cairo_image_surface_get_height(one);
    if (w != cairo_image_surface_get_width(other) || h != cairo_image_surface_get_height(other))
        return -1;
    int largest = 0;
    for (int y = 0; y < h; ++y) {
        const unsigned char* a =
            cairo_image_surface_get_data(one) + y * cairo_image_surface_get_stride(one);
        const unsigned char* b =
            cairo_image_surface_get_data(other) + y * cairo_image_surface_get_stride(other);
        for (int i = 0; i < w * 4; ++i) largest = std::max(largest, std::abs(a[i] - b[i]));
    }
    return largest;
}

// The box of the pixels that pass the test: left, top, right and bottom,
// the last two exclusive; all -1 when none passes. `count` of them.
struct Box {
    int left = -1, top = -1, right = -1, bottom = -1, count = 0;
};

inline Box boxOf(cairo_surface_t* image, const std::function<bool(const Pixel&)>& test) {
    Box box;
    for (int y = 0; y < cairo_image_surface_get_height(image); ++y) {
        for (int x = 0; x < cairo_image_surface_get_width(image); ++x) {
            if (!test(pixelAt(image, x, y))) continue;
            box.left = box.count == 0 ? x : std::min(box.left, x);
            box.top = box.count == 0 ? y : box.top;
            box.right = std::max(box.right, x + 1);
            box.bottom = y + 1;
            ++box.count;
        }
    }
    return box;
}

inline bool isInked(const Pixel& p) {
    return p.a > 0;
}

inline std::unique_ptr<vxBasicPaint> rgba(short r, short g, short b, short a = 255,
                                          short pattern = 0) {
    auto paint = std::make_unique<vxBasicPaint>(r, g, b, a);
    paint->setPatternIndex(pattern);
    return paint;
}

inline std::unique_ptr<vxBasicStroke> buttStroke(float width = 1.0f) {
    auto stroke = std::make_unique<vxBasicStroke>(width);
    stroke->setLineCap(vxStrokeOLD::kButtCap);
    return stroke;
}

enum class Route { kBitmap, kRecorded };

// A closed device and its picture as the formats with alpha get it.
struct Drawn {
    std::unique_ptr<vxDeviceGDIPlus> device;
    cairo_surface_t* picture = nullptr;
    Pixel at(int x, int y) const { return pixelAt(picture, x, y); }
    int alpha(int x, int y) const { return at(x, y).a; }
};

// Opens a device of the size on the route, lets `paint` draw, closes it.
inline Drawn draw(int width, int height, const std::function<void(vxDeviceGDIPlus&)>& paint,
                  Route route = Route::kBitmap, short antialiasing = 0) {
    Drawn drawn{std::make_unique<vxDeviceGDIPlus>()};
    drawn.device->setSize(static_cast<float>(width), static_cast<float>(height));
    drawn.device->setIsBitmap(route == Route::kBitmap);
    drawn.device->setAntialiasing(antialiasing);
    drawn.device->open();
    paint(*drawn.device);
    drawn.device->close();
    drawn.picture = drawn.device->getPicture();
    return drawn;
}

// A filled axis-parallel rectangle from left, top to right, bottom.
inline void fillRect(vxDevice& device, const vxPaintOLD& paint, float l, float t, float r,
                     float b) {
    const float bounds[4] = {l, t, r, b};
    device.fillPolygon2D(paint, {l, r, r, l}, {t, t, b, b}, bounds, 1);
}

}  // namespace Velarix::test
