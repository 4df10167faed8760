// Pens and brushes of the raster device. The context keeps its pen and its
// source from shape to shape, and both are changed only where a shape asks
// for something else: charts draw long runs of shapes in one style.
#include <cmath>
#include <cstdint>

#include "graphics/vxBasicPaint.h"
#include "graphics/vxDashStyle.h"
#include "graphics/vxHatchPatterns.h"
#include "graphics/vxLinearGradient.h"
#include "graphics/vxRadialGradient.h"
#include "graphics/vxStrokeOLD.h"
#include "output/vxDeviceGDIPlus.h"

namespace Velarix {

namespace {

cairo_line_cap_t capOf(short cap, cairo_line_cap_t otherwise) {
    switch (cap) {
        case vxStrokeOLD::kButtCap:
            return CAIRO_LINE_CAP_BUTT;
        case vxStrokeOLD::kSquareCap:
            return CAIRO_LINE_CAP_SQUARE;
        case vxStrokeOLD::kRoundCap:
            return CAIRO_LINE_CAP_ROUND;
        default:
            return otherwise;
    }
}

cairo_line_join_t joinOf(short join) {
    switch (join) {
        case vxStrokeOLD::kRoundJoin:
            return CAIRO_LINE_JOIN_ROUND;
        case vxStrokeOLD::kBevelJoin:
            return CAIRO_LINE_JOIN_BEVEL;
        default:
            return CAIRO_LINE_JOIN_MITER;
    }
}

cairo_extend_t extendOf(short spread) {
    switch (spread) {
        case vxGradientPaint::kRepeat:
            return CAIRO_EXTEND_REPEAT;
        case vxGradientPaint::kReflect:
            return CAIRO_EXTEND_REFLECT;
        default:
            return CAIRO_EXTEND_PAD;
    }
}

void rgbaOf(const vxColorOLD& color, double rgba[4]) {
    rgba[0] = color.getRedF();
    rgba[1] = color.getGreenF();
    rgba[2] = color.getBlueF();
    rgba[3] = color.getAlphaF();
}

bool sameRGBA(const double a[4], const double b[4]) {
    return a[0] == b[0] && a[1] == b[1] && a[2] == b[2] && a[3] == b[3];
}

// One side of the box that a gradient is laid over. A side without
// extent, or one that isn't a box at all (the empty bounds), is taken as
// one unit long, so that the gradient's matrix stays invertible.
void boxSide(float low, float high, double& origin, double& length) {
    origin = low;
    length = static_cast<double>(high) - low;
    if (!(std::fabs(origin) < 1e7)) origin = 0.0;
    if (!(length > 1e-6 && length < 1e7)) length = 1.0;
}

// A gamma-corrected gradient blends its colours in linear light: between
// two stops the colour channels are mixed raised to the power 2.2 and the
// mix taken back, which cairo is given as this many stops in between.
constexpr int kGammaSteps = 8;
constexpr double kGamma = 2.2;

void addStop(cairo_pattern_t* pattern, double offset, const vxColorOLD& color) {
    cairo_pattern_add_color_stop_rgba(pattern, offset, color.getRedF(), color.getGreenF(),
                                      color.getBlueF(), color.getAlphaF());
}

// The stops between two stops; alpha is mixed as it stands.
void addGammaStops(cairo_pattern_t* pattern, double from, const vxColorOLD& one, double to,
                   const vxColorOLD& other) {
    const double a[4] = {one.getRedF(), one.getGreenF(), one.getBlueF(), one.getAlphaF()};
    const double b[4] = {other.getRedF(), other.getGreenF(), other.getBlueF(), other.getAlphaF()};
    for (int step = 1; step <= kGammaSteps; ++step) {
        const double t = static_cast<double>(step) / (kGammaSteps + 1);
        double mix[3];
        for (int i = 0; i < 3; ++i) {
            const double linear = (1.0 - t) * std::pow(a[i], kGamma) + t * std::pow(b[i], kGamma);
            mix[i] = std::pow(linear, 1.0 / kGamma);
        }
        cairo_pattern_add_color_stop_rgba(pattern, from + t * (to - from), mix[0], mix[1], mix[2],
                                          (1.0 - t) * a[3] + t * b[3]);
    }
}

// A premultiplied ARGB32 pixel.
uint32_t pixelOf(int red, int green, int blue, int alpha) {
    auto times = [alpha](int c) { return static_cast<uint32_t>((c * alpha + 127) / 255); };
    return static_cast<uint32_t>(alpha) << 24 | times(red) << 16 | times(green) << 8 | times(blue);
}

}  // namespace

void vxDeviceGDIPlus::forgetContextState() {
    pen = Pen();
    hasSolidSource = false;
    fillRule = -1;
    currentFontFace = nullptr;
    currentFontSize = 0.0;
}

// Width, caps, joins and miter limit of the stroke. A dashed line has the
// dash's cap at the ends of every dash; its lengths and offset are the
// pattern's own, whatever the line's width, as the other devices draw them.
void vxDeviceGDIPlus::setUpPen(const vxStrokeOLD& stroke) {
    cairo_t* c = cr.get();
    const double width = stroke.getLineWidth();
    const vxDashStyle* dash = stroke.hasDashStyle() ? stroke.getDashStyle() : nullptr;
    const cairo_line_cap_t cap = dash ? capOf(dash->getCapType(), CAIRO_LINE_CAP_BUTT)
                                      : capOf(stroke.getLineCap(), CAIRO_LINE_CAP_SQUARE);
    const cairo_line_join_t join = joinOf(stroke.getLineJoin());
    const double miterLimit = stroke.getMiterLimit();
    const bool isKnown = pen.isKnown;
    if (!isKnown || width != pen.width) cairo_set_line_width(c, pen.width = width);
    if (!isKnown || cap != pen.cap) cairo_set_line_cap(c, pen.cap = cap);
    if (!isKnown || join != pen.join) cairo_set_line_join(c, pen.join = join);
    if (!isKnown || miterLimit != pen.miterLimit) {
        cairo_set_miter_limit(c, pen.miterLimit = miterLimit);
    }

    std::vector<double> dashes;
    double offset = 0.0;
    // A pattern of nothing but zeros has nothing to draw: cairo refuses it,
    // and the line is drawn solid.
    if (dash && dash->getPatternLength() > 0.0f) {
        for (float length : dash->getPattern()) dashes.push_back(length);
        offset = dash->getOffset();
    }
    if (!isKnown || dashes != pen.dashes || offset != pen.dashOffset) {
        cairo_set_dash(c, dashes.data(), static_cast<int>(dashes.size()), offset);
        pen.dashes = std::move(dashes);
        pen.dashOffset = offset;
    }
    pen.isKnown = true;
}

// A hatch or a texture number draws in a text as its plain colour: a
// pattern in glyphs can't be read.
bool vxDeviceGDIPlus::setUpBrush(const vxPaintOLD& paint, const float bounds[4], bool isText) {
    switch (paint.getType()) {
        case vxPaintOLD::kBasic: {
            const auto& basic = static_cast<const vxBasicPaint&>(paint);
            if (basic.hasHatch() && !isText) return setUpHatchBrush(basic);
            if (basic.hasTexture() && !isText) return setUpTextureIndexBrush(basic);
            if (!basic.getColor()) return false;
            setUpSolidBrush(*basic.getColor());
            return true;
        }
        case vxPaintOLD::kLinearGradient:
            return setUpLinearGradientBrush(static_cast<const vxGradientPaint&>(paint), bounds);
        case vxPaintOLD::kRadialGradient:
            return setUpRadialGradientBrush(static_cast<const vxGradientPaint&>(paint), bounds);
        default:
            return setUpTextureBrush(paint, bounds);
    }
}

void vxDeviceGDIPlus::setUpSolidBrush(const vxColorOLD& color) {
    double rgba[4];
    rgbaOf(color, rgba);
    if (hasSolidSource && sameRGBA(rgba, sourceRGBA)) return;
    cairo_set_source_rgba(cr.get(), rgba[0], rgba[1], rgba[2], rgba[3]);
    for (int i = 0; i < 4; ++i) sourceRGBA[i] = rgba[i];
    hasSolidSource = true;
}

// A tile of 8 by 8 pixels repeated from the drawing's origin: set bits in
// the paint's colour, clear bits white at the same alpha. The tile of the
// last hatch is kept for the next shape.
bool vxDeviceGDIPlus::setUpHatchBrush(const vxBasicPaint& paint) {
    const vxColorOLD* color = paint.getColor();
    uint8_t lines[8];
    if (!color || !vxHatchLines(paint.getPatternIndex(), lines)) return false;
    double rgba[4];
    rgbaOf(*color, rgba);
    if (!hatch || hatchIndex != paint.getPatternIndex() || !sameRGBA(rgba, hatchRGBA)) {
        vxCairoSurface tile(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, 8, 8));
        if (!reportCairoStatus(cairo_surface_status(tile.get()), L"setUpHatchBrush", 1)) {
            return false;
        }
        const int alpha = color->getAlpha();
        const uint32_t set = pixelOf(color->getRed(), color->getGreen(), color->getBlue(), alpha);
        const uint32_t clear = pixelOf(255, 255, 255, alpha);
        cairo_surface_flush(tile.get());
        unsigned char* data = cairo_image_surface_get_data(tile.get());
        const int stride = cairo_image_surface_get_stride(tile.get());
        for (int row = 0; row < 8; ++row) {
            auto* pixels = reinterpret_cast<uint32_t*>(data + row * stride);
            for (int column = 0; column < 8; ++column) {
                pixels[column] = (lines[row] & (0x80 >> column)) != 0 ? set : clear;
            }
        }
        cairo_surface_mark_dirty(tile.get());
        hatch.reset(cairo_pattern_create_for_surface(tile.get()));
        cairo_pattern_set_extend(hatch.get(), CAIRO_EXTEND_REPEAT);
        cairo_pattern_set_filter(hatch.get(), CAIRO_FILTER_NEAREST);
        if (!reportCairoStatus(cairo_pattern_status(hatch.get()), L"setUpHatchBrush", 2)) {
            hatch.reset();
            return false;
        }
        hatchIndex = paint.getPatternIndex();
        for (int i = 0; i < 4; ++i) hatchRGBA[i] = rgba[i];
    }
    cairo_set_source(cr.get(), hatch.get());
    hasSolidSource = false;
    return true;
}

// From P1 to P2 in the unit box. Beyond them the pad spread keeps the end
// colours up to the box's edges; repeat and reflect go on tiling.
bool vxDeviceGDIPlus::setUpLinearGradientBrush(const vxGradientPaint& paint,
                                               const float bounds[4]) {
    const auto& linear = static_cast<const vxLinearGradient&>(paint);
    vxCairoPattern pattern(cairo_pattern_create_linear(linear.getX1(), linear.getY1(),
                                                       linear.getX2(), linear.getY2()));
    return setUpGradientBrush(pattern.get(), paint, bounds, L"setUpLinearGradientBrush");
}

// From the focus out to the circle in the unit box, which the box's
// scaling turns into an ellipse.
bool vxDeviceGDIPlus::setUpRadialGradientBrush(const vxGradientPaint& paint,
                                               const float bounds[4]) {
    const auto& radial = static_cast<const vxRadialGradient&>(paint);
    vxCairoPattern pattern(cairo_pattern_create_radial(
        radial.getFX(), radial.getFY(), 0.0, radial.getCX(), radial.getCY(), radial.getRadius()));
    return setUpGradientBrush(pattern.get(), paint, bounds, L"setUpRadialGradientBrush");
}

// The stops with their alpha, blended in linear light when the paint asks
// for gamma correction; the spread, and the unit box laid over the bounds
// of the shape.
bool vxDeviceGDIPlus::setUpGradientBrush(cairo_pattern_t* pattern, const vxGradientPaint& paint,
                                         const float bounds[4], const wchar_t* method) {
    if (!reportCairoStatus(cairo_pattern_status(pattern), method, 1)) return false;
    for (long i = 0; i < paint.getNumOfColors(); ++i) {
        const double offset = paint.getOffset(i);
        if (i > 0 && paint.getUseGammaCorrection() && offset > paint.getOffset(i - 1)) {
            addGammaStops(pattern, paint.getOffset(i - 1), *paint.getColor(i - 1), offset,
                          *paint.getColor(i));
        }
        addStop(pattern, offset, *paint.getColor(i));
    }
    cairo_pattern_set_extend(pattern, extendOf(paint.getSpread()));
    double left, top, width, height;
    boxSide(bounds[0], bounds[2], left, width);
    boxSide(bounds[1], bounds[3], top, height);
    cairo_matrix_t box;
    cairo_matrix_init(&box, width, 0.0, 0.0, height, left, top);
    cairo_matrix_invert(&box);
    cairo_pattern_set_matrix(pattern, &box);
    if (!reportCairoStatus(cairo_pattern_status(pattern), method, 2)) return false;
    cairo_set_source(cr.get(), pattern);
    hasSolidSource = false;
    return true;
}

}  // namespace Velarix
