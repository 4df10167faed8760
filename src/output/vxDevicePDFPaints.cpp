// Paints of the PDF device: colours with their alpha, hatches and texture
// numbers as tiling patterns, gradients as shadings clipped to the shape.
#include <cmath>

#include "graphics/vxBasicPaint.h"
#include "graphics/vxHatchPatterns.h"
#include "graphics/vxLinearGradient.h"
#include "graphics/vxStrokeOLD.h"
#include "graphics/vxTexturePaintOLD.h"
#include "output/vxBitmap.h"
#include "output/vxDevicePDF.h"
#include "output/vxImage.h"
#include "output/vxImageMapping.h"
#include "output/vxNumberWriter.h"
#include "platform/vxResources.h"

namespace Velarix {

namespace {

// A picture repeated over a shape stops at this many copies.
constexpr long kMaxRepeatedAnchors = 10000;

const char kBlockEnd[] = "Q\r\n";

std::string number(double value) {
    return vxNumberWriter::pdf(value) + " ";
}

std::string rgbOf(const vxColorOLD& color) {
    return number(color.getRedF()) + number(color.getGreenF()) + number(color.getBlueF());
}

const char* fillOperator(short windingRule) {
    return windingRule == 1 ? "f* " : "f ";
}

}  // namespace

// ---- colour ---------------------------------------------------------------

std::string vxDevicePDF::colorState(const vxColorOLD& color, bool isStroke) {
    std::string s;
    if (color.isGray()) {
        s = number(color.getRedF()) + (isStroke ? "G " : "g ");
    } else {
        s = rgbOf(color) + (isStroke ? "RG " : "rg ");
    }
    if (!color.isOpaque()) s += alphaState(color.getAlphaF(), isStroke);
    return s;
}

std::string vxDevicePDF::alphaState(float alpha, bool isStroke) {
    const std::string state = (isStroke ? "/CA " : "/ca ") + vxNumberWriter::pdf(alpha);
    const std::string name =
        addResource(vxPDFResources::kGraphicsState, "<< /Type /ExtGState " + state + " >>");
    return name.empty() ? std::string() : name + " gs ";
}

// ---- strokes --------------------------------------------------------------

// A gradient or a picture has no stroke colour here: the line keeps the
// current one. A pattern is laid over a white line.
void vxDevicePDF::strokeWith(const vxStrokeOLD& stroke, const vxPaintOLD& paint,
                             const std::string& path) {
    const std::string head = "q " + strokeState(stroke) + pageState + path;
    if (paint.getType() != vxPaintOLD::kBasic) return block(head + "S " + kBlockEnd);
    const auto& basic = static_cast<const vxBasicPaint&>(paint);
    const vxColorOLD* color = basic.getColor();
    if (!color) return;
    if (basic.hasPattern()) {
        const std::string pattern = patternState(basic, true);
        if (!pattern.empty()) {
            const vxColorOLD white(255, 255, 255, color->getAlpha());
            block(head + colorState(white, true) + "S " + kBlockEnd);
            return block(head + pattern + "S " + kBlockEnd);
        }
    }
    block(head + colorState(*color, true) + "S " + kBlockEnd);
}

// ---- fills ----------------------------------------------------------------

void vxDevicePDF::fillWith(const vxPaintOLD& paint, const std::string& path, const float bounds[4],
                           short windingRule) {
    switch (paint.getType()) {
        case vxPaintOLD::kBasic:
            return fillWithBasic(static_cast<const vxBasicPaint&>(paint), path, windingRule);
        case vxPaintOLD::kLinearGradient:
        case vxPaintOLD::kRadialGradient:
            return fillWithGradient(static_cast<const vxGradientPaint&>(paint), path, bounds,
                                    windingRule);
        case vxPaintOLD::kTexture:
            return fillWithTexture(static_cast<const vxTexturePaintOLD&>(paint), path, bounds,
                                   windingRule);
        default:
            return;
    }
}

// The path, then the paint state, then the fill. A pattern lies on the
// path painted white at the paint's alpha.
void vxDevicePDF::fillWithBasic(const vxBasicPaint& paint, const std::string& path,
                                short windingRule) {
    const vxColorOLD* color = paint.getColor();
    if (!color) return;
    const std::string head = "q " + pageState + path;
    const std::string tail = std::string(fillOperator(windingRule)) + kBlockEnd;
    if (paint.hasPattern()) {
        const std::string pattern = patternState(paint, false);
        if (!pattern.empty()) {
            const vxColorOLD white(255, 255, 255, color->getAlpha());
            block(head + colorState(white, false) + tail);
            return block(head + pattern + tail);
        }
    }
    block(head + colorState(*color, false) + tail);
}

// A texture paint whose picture is a gradient resource fills with that
// gradient; a picture is laid by its mapping onto the paint's anchor, or
// onto the shape, inside the shape.
void vxDevicePDF::fillWithTexture(const vxTexturePaintOLD& paint, const std::string& path,
                                  const float bounds[4], short windingRule) {
    const vxImage* image = paint.getImage();
    if (!image || image->isEmpty() || !image->getMapping()) return;
    if (const vxGradientPaint* gradient = image->getGradient())
        return fillWithGradient(*gradient, path, bounds, windingRule);
    vxImageMapping mapping = *image->getMapping();
    float anchor[4] = {bounds[0], bounds[1], bounds[2], bounds[3]};
    if (paint.hasImage()) paint.getAnchorBounds(anchor);
    mapping.setAnchor(anchor);
    if (mapping.isEmpty()) return;
    const std::string name = imageOf(*image);
    if (name.empty()) return;
    block("q " + pageState + path + (windingRule == 1 ? "W* n " : "W n "));
    // The anchor repeats over the shape, as the raster device lays it:
    // pictures stacked along a bar stand one above the other.
    const float w = anchor[2] - anchor[0], h = anchor[3] - anchor[1];
    const auto steps = [](float from, float to, float origin, float size, long& first, long& last) {
        first = long(std::floor((from - origin) / size));
        last = long(std::ceil((to - origin) / size)) - 1;
    };
    long x0 = 0, x1 = 0, y0 = 0, y1 = 0;
    if (w > 0.5f && h > 0.5f) {
        steps(bounds[0], bounds[2], anchor[0], w, x0, x1);
        steps(bounds[1], bounds[3], anchor[1], h, y0, y1);
    }
    if ((x1 - x0 + 1) * (y1 - y0 + 1) > kMaxRepeatedAnchors) x0 = x1 = y0 = y1 = 0;
    for (long row = y0; row <= y1; ++row) {
        for (long column = x0; column <= x1; ++column) {
            const float at[4] = {anchor[0] + column * w, anchor[1] + row * h,
                                 anchor[2] + column * w, anchor[3] + row * h};
            mapping.setAnchor(at);
            placeTiles(mapping, name);
        }
    }
    block(kBlockEnd);
}

void vxDevicePDF::fillWithGradient(const vxGradientPaint& paint, const std::string& path,
                                   const float bounds[4], short windingRule) {
    if (paint.getNumOfColors() == 0) return;
    const std::string shading = shadingOf(paint);
    if (shading.empty()) return;
    block("q " + pageState + path + (windingRule == 1 ? "h W* n " : "h W n ") + "q " +
          gradientMatrix(paint, bounds) + "cm " + shading + " sh Q " + kBlockEnd);
}

// ---- patterns -------------------------------------------------------------

// A hatch: the colour under the uncoloured pattern; a texture number: its
// coloured pattern.
std::string vxDevicePDF::patternState(const vxBasicPaint& paint, bool isStroke) {
    const vxColorOLD* color = paint.getColor();
    if (paint.hasHatch() && color) {
        const std::string pattern = hatchPattern(paint.getPatternIndex());
        const std::string space = addResource(vxPDFResources::kColorSpace, "[/Pattern /DeviceRGB]");
        if (pattern.empty() || space.empty()) return std::string();
        std::string s = space + (isStroke ? " CS " : " cs ") + rgbOf(*color) + pattern +
                        (isStroke ? " SCN " : " scn ");
        if (!color->isOpaque()) s += alphaState(color->getAlphaF(), isStroke);
        return s;
    }
    const std::string pattern = texturePattern(paint.getPatternIndex());
    const std::string space = addResource(vxPDFResources::kColorSpace, "/Pattern");
    if (pattern.empty() || space.empty()) return std::string();
    return space + (isStroke ? " CS " : " cs ") + pattern + (isStroke ? " SCN " : " scn ");
}

// The 8 by 8 mask of the hatch, its set bits painted, one tile every 8
// units.
std::string vxDevicePDF::hatchPattern(short patternIndex) {
    uint8_t lines[8];
    if (!vxHatchLines(patternIndex, lines)) return std::string();
    std::vector<uint8_t> hex;
    static const char kDigits[] = "0123456789ABCDEF";
    for (uint8_t line : lines) {
        hex.push_back(static_cast<uint8_t>(kDigits[line >> 4]));
        hex.push_back(static_cast<uint8_t>(kDigits[line & 0x0F]));
    }
    hex.push_back('>');
    const std::string image = addResource(
        vxPDFResources::kImage,
        "<< /Type /XObject /Subtype /Image /Width 8 /Height 8 /ImageMask true /Decode [1 0]"
        " /Filter /ASCIIHexDecode /Length " +
            std::to_string(hex.size()) + " >>",
        hex);
    if (image.empty()) return std::string();
    const std::string body = "q " + image + " Do Q";
    return addResource(vxPDFResources::kPattern,
                       "<< /Type /Pattern /PatternType 1 /PaintType 2 /TilingType 1"
                       " /BBox [0 0 1 1] /XStep 1 /YStep 1 /Resources << /ProcSet [/PDF /ImageB]"
                       " /XObject << " +
                           image + " " + vxPDFResources::referenceTo(image) +
                           " >> >> /Matrix [8 0 0 8 0 0] /Length " + std::to_string(body.size()) +
                           " >>",
                       std::vector<uint8_t>(body.begin(), body.end()));
}

// The built-in picture of the number, one tile for each of its pixels.
std::string vxDevicePDF::texturePattern(short patternIndex) {
    vxBitmap bitmap;
    if (!vxResources::makePicture(vxResources::calculateResourceID(patternIndex), bitmap) ||
        bitmap.isEmpty()) {
        return std::string();
    }
    const std::string image = pixelImage(bitmap);
    if (image.empty()) return std::string();
    const std::string side = std::to_string(bitmap.getWidth());
    const std::string high = std::to_string(bitmap.getHeight());
    const std::string body = "q " + image + " Do Q";
    return addResource(vxPDFResources::kPattern,
                       "<< /Type /Pattern /PatternType 1 /PaintType 1 /TilingType 1"
                       " /BBox [0 0 1 1] /XStep 1 /YStep 1 /Resources << /ProcSet [/PDF /ImageC]"
                       " /XObject << " +
                           image + " " + vxPDFResources::referenceTo(image) + " >> >> /Matrix [" +
                           side + " 0 0 " + high + " 0 0] /Length " + std::to_string(body.size()) +
                           " >>",
                       std::vector<uint8_t>(body.begin(), body.end()));
}

// ---- shadings -------------------------------------------------------------

std::string vxDevicePDF::shadingOf(const vxGradientPaint& paint) {
    const std::string space = addResource(vxPDFResources::kColorSpace, "/DeviceRGB");
    if (space.empty()) return std::string();
    const bool isLinear = paint.getType() == vxPaintOLD::kLinearGradient;
    return addResource(vxPDFResources::kShading,
                       std::string("<< /ShadingType ") + (isLinear ? "2" : "3") + " /ColorSpace " +
                           vxPDFResources::referenceTo(space) + " /Function " +
                           gradientFunction(paint) +
                           (isLinear ? " /Coords [0 0 1 0]" : " /Coords [0 0 0 0 0 1]") +
                           " /Extend [true true] >>");
}

// A stitching function of one blend for each pair of neighbouring stops,
// the stops padded to 0 and 1 with the colours of the ends.
std::string vxDevicePDF::gradientFunction(const vxGradientPaint& paint) {
    std::vector<const vxColorOLD*> colors;
    std::vector<float> offsets;
    for (long i = 0; i < paint.getNumOfColors(); ++i) {
        colors.push_back(paint.getColor(i));
        offsets.push_back(paint.getOffset(i));
    }
    if (offsets.front() > 0.0f) colors.insert(colors.begin(), colors.front());
    if (offsets.front() > 0.0f) offsets.insert(offsets.begin(), 0.0f);
    if (offsets.size() < 2 || offsets.back() < 1.0f) colors.push_back(colors.back());
    if (offsets.size() < 2 || offsets.back() < 1.0f) offsets.push_back(1.0f);
    std::string encode, bounds, functions;
    for (size_t i = 0; i + 1 < colors.size(); ++i) {
        encode += i == 0 ? "0 1" : " 0 1";
        if (i > 0) bounds += (i > 1 ? " " : "") + vxNumberWriter::fixed(offsets[i], 3);
        functions += " << /FunctionType 2 /Domain [0 1] /C0 [" + rgbOf(*colors[i]) + "] /C1 [" +
                     rgbOf(*colors[i + 1]) + "] /N 1 >>";
    }
    return "<< /FunctionType 3 /Domain [0 1] /Encode [" + encode + "] /Bounds [" + bounds +
           "] /Functions [" + functions + " ] >>";
}

// The unit square to the shape: a linear gradient runs along the
// direction from P1 to P2 across the whole box, a radial one fills the
// ellipse in the box.
std::string vxDevicePDF::gradientMatrix(const vxGradientPaint& paint, const float bounds[4]) {
    const float w = bounds[2] - bounds[0], h = bounds[3] - bounds[1];
    const float cx = (bounds[0] + bounds[2]) * 0.5f, cy = (bounds[1] + bounds[3]) * 0.5f;
    if (paint.getType() != vxPaintOLD::kLinearGradient)
        return number(w * 0.5f) + "0 0 " + number(-h * 0.5f) + number(cx) + number(cy);
    const auto& linear = static_cast<const vxLinearGradient&>(paint);
    const double dx = (linear.getX2() - linear.getX1()) * w;
    const double dy = (linear.getY2() - linear.getY1()) * h;
    const double t = std::atan2(dx, dy);
    const double s = std::sin(t), c = std::cos(t);
    const double l = std::fabs(s) * w + std::fabs(c) * h;
    return number(l * s) + number(l * c) + number(l * c) + number(-l * s) + number(cx - l / 2 * s) +
           number(cy - l / 2 * c);
}

}  // namespace Velarix
