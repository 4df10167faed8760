// The style attributes of the SVG device and the gradient definitions that
// they refer to.
#include <cmath>

#include "graphics/vxBasicPaint.h"
#include "graphics/vxDashStyle.h"
#include "graphics/vxFontOLD.h"
#include "graphics/vxLinearGradient.h"
#include "graphics/vxRadialGradient.h"
#include "graphics/vxStrokeOLD.h"
#include "graphics/vxTexturePaintOLD.h"
#include "output/vxDeviceSVG.h"
#include "output/vxImage.h"
#include "output/vxNumberWriter.h"
#include "output/vxReadExternal.h"

namespace Velarix {

namespace {

// SVG's own defaults, which need no attribute.
constexpr float kDefaultWidth = 1.0f;
constexpr float kDefaultMiterLimit = 4.0f;
constexpr double kSameValue = 1e-10;

constexpr short kAlignCenter = 2;
constexpr short kAlignRight = 3;

std::wstring dashPart(const vxDashStyle& dash) {
    std::wstring s = L"stroke-dasharray: ";
    const std::vector<float>& pattern = dash.getPattern();
    for (size_t i = 0; i < pattern.size(); ++i) {
        if (i > 0) s += L" ";
        s += vxNumberWriter::generalW(pattern[i]);
    }
    return s + L"; ";
}

std::wstring capPart(short cap) {
    switch (cap) {
        case vxStrokeOLD::kRoundCap:
            return L"stroke-linecap: round; ";
        case vxStrokeOLD::kSquareCap:
            return L"stroke-linecap: square; ";
        default:
            return L"";
    }
}

std::wstring joinPart(short join, float miterLimit) {
    switch (join) {
        case vxStrokeOLD::kMiterJoin:
            if (std::fabs(miterLimit - kDefaultMiterLimit) > kSameValue) {
                return L"stroke-miterlimit: " + vxNumberWriter::generalW(miterLimit) + L"; ";
            }
            return L"";
        case vxStrokeOLD::kRoundJoin:
            return L"stroke-linejoin: round; ";
        case vxStrokeOLD::kBevelJoin:
            return L"stroke-linejoin: bevel; ";
        default:
            return L"";
    }
}

const wchar_t* spreadName(short spread) {
    switch (spread) {
        case vxGradientPaint::kPad:
            return L"spreadMethod=\"pad\"";
        case vxGradientPaint::kRepeat:
            return L"spreadMethod=\"repeat\"";
        case vxGradientPaint::kReflect:
            return L"spreadMethod=\"reflect\"";
        default:
            return L"";
    }
}

}  // namespace

std::wstring vxDeviceSVG::clipPart() const {
    if (!isClipActive) return L"";
    return L"clip-path: url(#clipPath" + std::to_wstring(clipCounter) + L"); ";
}

// The gradients and patterns refer to their definition, written before the
// element; a picture is laid only in the fill of an area, and text takes
// no pattern but its plain colour.
std::wstring vxDeviceSVG::paintPart(const wchar_t* property, const vxPaintOLD& paint,
                                    PaintUse use) const {
    const std::wstring name = property;
    if (paint.getType() == vxPaintOLD::kTexture && use != PaintUse::kArea) return L"";
    if (use == PaintUse::kArea && anchoredPicture(paint)) {
        return name + L": url(#pt" + std::to_wstring(patternCounter) + L"); ";
    }
    if (const long tile = use == PaintUse::kText ? 0 : tilePatternOf(paint); tile > 0) {
        return name + L": url(#pt" + std::to_wstring(tile) + L"); ";
    }
    if (const vxGradientPaint* gradient = gradientOf(paint)) {
        if (gradient->getType() == vxPaintOLD::kLinearGradient) {
            return name + L": url(#lg" + std::to_wstring(linearGradientCounter) + L"); ";
        }
        return name + L": url(#rg" + std::to_wstring(radialGradientCounter) + L"); ";
    }
    if (paint.getType() != vxPaintOLD::kBasic) return L"";
    const vxColorOLD* color = static_cast<const vxBasicPaint&>(paint).getColor();
    if (!color) return L"";
    std::wstring s = name + L": " + color->toHashText() + L"; ";
    if (!color->isOpaque()) {
        s += name + L"-opacity: " + vxNumberWriter::generalW(color->getAlphaF()) + L"; ";
    }
    return s;
}

std::wstring vxDeviceSVG::fillPart(const vxPaintOLD& paint) const {
    return paintPart(L"fill", paint, PaintUse::kArea);
}

std::wstring vxDeviceSVG::textFillPart(const vxPaintOLD& paint) const {
    return paintPart(L"fill", paint, PaintUse::kText);
}

std::wstring vxDeviceSVG::strokePaintPart(const vxPaintOLD& paint) const {
    return paintPart(L"stroke", paint, PaintUse::kStroke);
}

// Width, dash, cap and join of a basic stroke, each left out where SVG's
// default says the same; a dashed line never gets a cap. Other strokes
// have no parts.
std::wstring vxDeviceSVG::strokeParts(const vxStrokeOLD& stroke) {
    if (stroke.getType() != vxStrokeOLD::kBasic) return L"";
    std::wstring s;
    const float width = stroke.getLineWidth();
    if (std::fabs(width - kDefaultWidth) > kSameValue)
        s += L"stroke-width: " + vxNumberWriter::generalW(width) + L"; ";
    if (stroke.hasDashStyle()) {
        s += dashPart(*stroke.getDashStyle());
    } else {
        s += capPart(stroke.getLineCap());
    }
    return s + joinPart(stroke.getLineJoin(), stroke.getMiterLimit());
}

std::wstring vxDeviceSVG::strokeStyle(const vxStrokeOLD& stroke, const vxPaintOLD& paint) const {
    return L"style=\"" + clipPart() + strokePaintPart(paint) + strokeParts(stroke) +
           L"fill: none;\" ";
}

std::wstring vxDeviceSVG::fillStyle(const vxPaintOLD& paint, short windingRule) const {
    const wchar_t* rule = windingRule == 1 ? L"fill-rule: evenodd; " : L"fill-rule: nonzero; ";
    return L"style=\"" + clipPart() + fillPart(paint) + rule + L"\" ";
}

std::wstring vxDeviceSVG::textStyle(const vxFontOLD& font, const vxPaintOLD& paint,
                                    short hAlignment, bool withClip) const {
    std::wstring s = L"style=\"" + (withClip ? clipPart() : std::wstring());
    s += L"font-family: '" + font.getName() + L"'; ";
    // Text is laid out at one unit a point: sizes in user units keep the
    // viewer's text as wide as the layout's.
    s += L"font-size: " + vxNumberWriter::generalW(font.getSize()) + L"px; ";
    if (font.isBold()) s += L"font-weight: bold; ";
    if (font.isItalic()) s += L"font-style: italic; ";
    if (font.isUnderline()) s += L"text-decoration: underline; ";
    if (hAlignment == kAlignCenter) s += L"text-anchor: middle; ";
    if (hAlignment == kAlignRight) s += L"text-anchor: end; ";
    return s + textFillPart(paint) + L"stroke: none;\" ";
}

const vxGradientPaint* vxDeviceSVG::gradientOf(const vxPaintOLD& paint) {
    switch (paint.getType()) {
        case vxPaintOLD::kLinearGradient:
        case vxPaintOLD::kRadialGradient:
            return static_cast<const vxGradientPaint*>(&paint);
        case vxPaintOLD::kTexture: {
            const vxImage* image = static_cast<const vxTexturePaintOLD&>(paint).getImage();
            return image ? image->getGradient() : nullptr;
        }
        default:
            return nullptr;
    }
}

void vxDeviceSVG::writeDefinition(const vxPaintOLD& paint, bool withTiles) {
    if (const vxTexturePaintOLD* picture = anchoredPicture(paint)) return writePattern(*picture);
    if (withTiles && paint.getType() == vxPaintOLD::kBasic) {
        return writeTilePattern(static_cast<const vxBasicPaint&>(paint));
    }
    const vxGradientPaint* gradient = gradientOf(paint);
    if (!gradient) return;
    if (gradient->getType() == vxPaintOLD::kLinearGradient) {
        writeLinearGradient(static_cast<const vxLinearGradient&>(*gradient));
    } else {
        writeRadialGradient(static_cast<const vxRadialGradient&>(*gradient));
    }
}

void vxDeviceSVG::writeLinearGradient(const vxLinearGradient& gradient) {
    ++linearGradientCounter;
    std::wstring s =
        L"<defs>\n<linearGradient id=\"lg" + std::to_wstring(linearGradientCounter) + L"\"\n";
    s += L"\tx1=\"" + vxNumberWriter::generalW(gradient.getX1()) + L"\" y1=\"" +
         vxNumberWriter::generalW(gradient.getY1()) + L"\" x2=\"" +
         vxNumberWriter::generalW(gradient.getX2()) + L"\" y2=\"" +
         vxNumberWriter::generalW(gradient.getY2()) + L"\" \n";
    s += gradientTail(gradient);
    s += L"</linearGradient>\n</defs>\n";
    document += s;
}

void vxDeviceSVG::writeRadialGradient(const vxRadialGradient& gradient) {
    ++radialGradientCounter;
    std::wstring s =
        L"<defs>\n<radialGradient id=\"rg" + std::to_wstring(radialGradientCounter) + L"\"\n";
    s += L"\tcx=\"" + vxNumberWriter::generalW(gradient.getCX()) + L"\" cy=\"" +
         vxNumberWriter::generalW(gradient.getCY()) + L"\" r=\"" +
         vxNumberWriter::generalW(gradient.getRadius()) + L"\" ";
    s += L"fx=\"" + vxNumberWriter::generalW(gradient.getFX()) + L"\" fy=\"" +
         vxNumberWriter::generalW(gradient.getFY()) + L"\" \n";
    s += gradientTail(gradient);
    s += L"</radialGradient>\n</defs>\n";
    document += s;
}

// The spread line and the stops; the alpha of a stop has no place here.
std::wstring vxDeviceSVG::gradientTail(const vxGradientPaint& gradient) {
    std::wstring s = L"\t" + std::wstring(spreadName(gradient.getSpread())) + L">\n";
    for (long i = 0; i < gradient.getNumOfColors(); ++i) {
        s += L"\t<stop offset=\"" + vxNumberWriter::generalW(gradient.getOffset(i)) +
             L"\" style=\"stop-color: " + gradient.getColor(i)->toHashText() + L"; \"/>\n";
    }
    return s;
}

}  // namespace Velarix
