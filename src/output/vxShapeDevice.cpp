#include "output/vxShapeDevice.h"

#include <algorithm>

#include "graphics/vxPath2DOLD.h"
#include "graphics/vxShadowOLD.h"

namespace Velarix {

namespace {

constexpr wchar_t kLineBreak = 13;

}  // namespace

size_t vxShapeDevice::numOfPoints(const vxPoints& x, const vxPoints& y) {
    return std::min(x.size(), y.size());
}

size_t vxShapeDevice::pointsOfVerb(short verb) {
    switch (verb) {
        case vxPath2DOLD::kMove:
        case vxPath2DOLD::kLine:
            return 1;
        case vxPath2DOLD::kQuad:
            return 2;
        case vxPath2DOLD::kCubic:
            return 3;
        default:
            return 0;
    }
}

void vxShapeDevice::addTarget(short targetType) {
    if (acceptsTarget(targetType)) targets.add(targetType, *this);
}

bool vxShapeDevice::acceptsTarget(short targetType) const {
    return targetType == kTargetClipboard || targetType == kTargetFile ||
           targetType == kTargetStream;
}

vxShapeDevice::Offset vxShapeDevice::offsetOf(const vxShadowOLD& shadow) {
    return Offset{shadow.getXOffset(), shadow.getYOffset()};
}

std::vector<std::wstring> vxShapeDevice::linesOf(const std::wstring& text) {
    std::vector<std::wstring> lines(1);
    for (wchar_t c : text) {
        if (c == kLineBreak) {
            lines.emplace_back();
        } else {
            lines.back() += c;
        }
    }
    return lines;
}

bool vxShapeDevice::symbolLines(short symbolType, float size, float x, float y, Points& lx,
                                Points& ly) {
    const float l = x - size / 2.0f, r = l + size;
    const float t = y - size / 2.0f, b = t + size;
    switch (symbolType) {
        case 1:
            lx = {l, r, r, l}, ly = {t, b, t, b};
            return true;
        case 7:
            lx = {l, r, x, x}, ly = {y, y, t, b};
            return true;
        case 13:
            lx = {l, r}, ly = {y, y};
            return true;
        case 14:
            lx = {x, x}, ly = {t, b};
            return true;
        case 15:
            lx = {x - size, x}, ly = {y, y};
            return true;
        case 16:
            lx = {x, x + size}, ly = {y, y};
            return true;
        case 17:
            lx = {x, x}, ly = {y - size, y};
            return true;
        case 18:
            lx = {x, x}, ly = {y, y + size};
            return true;
        default:
            return false;
    }
}

bool vxShapeDevice::strokeSymbolLines(const vxStrokeOLD& stroke, const vxPaintOLD& paint,
                                      short symbolType, float size, float x, float y, Offset at) {
    Points lx, ly;
    if (!symbolLines(symbolType, size, x, y, lx, ly)) return false;
    for (size_t i = 0; i + 1 < lx.size(); i += 2)
        strokeLine(stroke, paint, lx[i], ly[i], lx[i + 1], ly[i + 1], at);
    return true;
}

void vxShapeDevice::drawLine2D(const vxStrokeOLD& stroke, const vxShadowOLD& shadow, float x1,
                               float y1, float x2, float y2) {
    if (const vxPaintOLD* paint = shadow.getPaint())
        strokeLine(stroke, *paint, x1, y1, x2, y2, offsetOf(shadow));
}

void vxShapeDevice::drawLine2D(const vxStrokeOLD& stroke, const vxPaintOLD& paint, float x1,
                               float y1, float x2, float y2) {
    strokeLine(stroke, paint, x1, y1, x2, y2, Offset{});
}

void vxShapeDevice::drawLineArray2D(const vxStrokeOLD& stroke, const vxShadowOLD& shadow,
                                    const vxPoints& x, const vxPoints& y) {
    if (const vxPaintOLD* paint = shadow.getPaint())
        strokeLines(stroke, *paint, x, y, offsetOf(shadow));
}

void vxShapeDevice::drawLineArray2D(const vxStrokeOLD& stroke, const vxPaintOLD& paint,
                                    const vxPoints& x, const vxPoints& y) {
    strokeLines(stroke, paint, x, y, Offset{});
}

void vxShapeDevice::drawPolygon2D(const vxStrokeOLD& stroke, const vxShadowOLD& shadow,
                                  const vxPoints& x, const vxPoints& y, const float bounds[4],
                                  bool doClose) {
    if (const vxPaintOLD* paint = shadow.getPaint())
        strokePolygon(stroke, *paint, x, y, bounds, doClose, offsetOf(shadow));
}

void vxShapeDevice::drawPolygon2D(const vxStrokeOLD& stroke, const vxPaintOLD& paint,
                                  const vxPoints& x, const vxPoints& y, const float bounds[4],
                                  bool doClose) {
    strokePolygon(stroke, paint, x, y, bounds, doClose, Offset{});
}

void vxShapeDevice::fillPolygon2D(const vxShadowOLD& shadow, const vxPoints& x, const vxPoints& y,
                                  const float bounds[4], short windingRule) {
    if (const vxPaintOLD* paint = shadow.getPaint())
        fillPolygon(*paint, x, y, bounds, windingRule, offsetOf(shadow));
}

void vxShapeDevice::fillPolygon2D(const vxPaintOLD& paint, const vxPoints& x, const vxPoints& y,
                                  const float bounds[4], short windingRule) {
    fillPolygon(paint, x, y, bounds, windingRule, Offset{});
}

void vxShapeDevice::drawPath2D(const vxStrokeOLD& stroke, const vxShadowOLD& shadow,
                               const vxVerbs& verbs, const vxPoints& x, const vxPoints& y,
                               const float bounds[4]) {
    if (const vxPaintOLD* paint = shadow.getPaint())
        strokePath(stroke, *paint, verbs, x, y, bounds, offsetOf(shadow));
}

void vxShapeDevice::drawPath2D(const vxStrokeOLD& stroke, const vxPaintOLD& paint,
                               const vxVerbs& verbs, const vxPoints& x, const vxPoints& y,
                               const float bounds[4]) {
    strokePath(stroke, paint, verbs, x, y, bounds, Offset{});
}

void vxShapeDevice::fillPath2D(const vxShadowOLD& shadow, const vxVerbs& verbs, const vxPoints& x,
                               const vxPoints& y, const float bounds[4], short windingRule) {
    if (const vxPaintOLD* paint = shadow.getPaint())
        fillPath(*paint, verbs, x, y, bounds, windingRule, offsetOf(shadow));
}

void vxShapeDevice::fillPath2D(const vxPaintOLD& paint, const vxVerbs& verbs, const vxPoints& x,
                               const vxPoints& y, const float bounds[4], short windingRule) {
    fillPath(paint, verbs, x, y, bounds, windingRule, Offset{});
}

void vxShapeDevice::drawSymbol(const vxStrokeOLD& stroke, const vxPaintOLD& paint,
                               const vxShadowOLD& shadow, short symbolType, float size, float x,
                               float y) {
    drawSymbolAt(stroke, paint, shadow.getPaint(), symbolType, size, x, y, offsetOf(shadow));
}

void vxShapeDevice::drawSymbol(const vxStrokeOLD& stroke, const vxPaintOLD& paint,
                               const vxPaintOLD& fillPaint, short symbolType, float size, float x,
                               float y) {
    drawSymbolAt(stroke, paint, &fillPaint, symbolType, size, x, y, Offset{});
}

}  // namespace Velarix
