// The shapes of the SVG device: lines, polygons, paths and symbols, each
// with its shadow row. A shadow row prints every coordinate moved by the
// shadow's offsets and paints with the shadow's paint.
#include <algorithm>
#include <cmath>

#include "graphics/vxPaintOLD.h"
#include "graphics/vxPath2DOLD.h"
#include "graphics/vxShadowOLD.h"
#include "graphics/vxStrokeOLD.h"
#include "output/vxDeviceSVG.h"
#include "output/vxNumberWriter.h"

namespace Velarix {

namespace {

// A number and a blank.
void appendNumber(std::wstring& out, double value) {
    vxNumberWriter::append(out, value);
    out += L' ';
}

void appendPoint(std::wstring& out, float x, float y) {
    appendNumber(out, x);
    appendNumber(out, y);
}

// An attribute and its value in quotes, as ` name="value"`, the blank before
// it left out for the first.
void appendAttribute(std::wstring& out, const wchar_t* name, double value) {
    out += name;
    out += L"=\"";
    vxNumberWriter::append(out, value);
    out += L'"';
}

// A line segment of a path goes straight up or across when it moves by
// less than this in x or in y.
constexpr double kStraight = 1e-10;

}  // namespace

// ---- element writers ------------------------------------------------------

void vxDeviceSVG::writeLine(const std::wstring& style, float x1, float y1, float x2, float y2,
                            Offset at) {
    document += L"<line";
    appendAttribute(document, L" x1", x1 + at.dx);
    appendAttribute(document, L" y1", y1 + at.dy);
    appendAttribute(document, L" x2", x2 + at.dx);
    appendAttribute(document, L" y2", y2 + at.dy);
    document += L" \n\t";
    document += style;
    document += L"/>\n\n";
}

void vxDeviceSVG::writeLineArray(const std::wstring& style, const Points& x, const Points& y,
                                 Offset at) {
    const size_t count = numOfPoints(x, y);
    document += L"<g ";
    document += style;
    document += L">\n";
    for (size_t i = 0; i + 1 < count; i += 2) {
        document += L"\t<line";
        appendAttribute(document, L" x1", x[i] + at.dx);
        appendAttribute(document, L" y1", y[i] + at.dy);
        appendAttribute(document, L" x2", x[i + 1] + at.dx);
        appendAttribute(document, L" y2", y[i + 1] + at.dy);
        document += L" />\n";
    }
    document += L"</g>\n";
}

void vxDeviceSVG::writePoints(const wchar_t* element, const std::wstring& style, const Points& x,
                              const Points& y, Offset at) {
    const size_t count = numOfPoints(x, y);
    document += L"<";
    document += element;
    document += L"\n\tpoints=\"";
    for (size_t i = 0; i < count; ++i) appendPoint(document, x[i] + at.dx, y[i] + at.dy);
    document += L"\" \n\t";
    document += style;
    document += L"/>\n\n";
}

void vxDeviceSVG::writePath(const std::wstring& style, const vxVerbs& verbs, const Points& x,
                            const Points& y, Offset at) {
    document += L"<path\n\td=\"";
    appendPathData(document, verbs, x, y, at);
    document += L"\" \n\t";
    document += style;
    document += L"/>\n\n";
}

void vxDeviceSVG::writeCircle(const std::wstring& style, float x, float y, float r) {
    document += L"<circle\n\t";
    appendAttribute(document, L"cx", x);
    appendAttribute(document, L" cy", y);
    appendAttribute(document, L" r", r);
    document += L" \n\t";
    document += style;
    document += L"/>\n\n";
}

// Each command and each coordinate is followed by a blank, but for the
// close command. A line goes by V or H where it runs straight, judged on
// the plain coordinates against the last point, which starts at 0, 0 and
// after a close is the start of the closed subpath. A verb whose points
// are missing ends the data.
void vxDeviceSVG::appendPathData(std::wstring& d, const vxVerbs& verbs, const Points& x,
                                 const Points& y, Offset at) {
    const size_t count = numOfPoints(x, y);
    size_t p = 0;
    float lastX = 0.0f, lastY = 0.0f, startX = 0.0f, startY = 0.0f;
    auto pointAt = [&](size_t i) { appendPoint(d, x[i] + at.dx, y[i] + at.dy); };
    for (short verb : verbs) {
        const size_t needed = pointsOfVerb(verb);
        if (p + needed > count) break;
        switch (verb) {
            case vxPath2DOLD::kClose:
                d += L"Z";
                lastX = startX;
                lastY = startY;
                break;
            case vxPath2DOLD::kMove:
                d += L"M ";
                pointAt(p);
                startX = x[p];
                startY = y[p];
                break;
            case vxPath2DOLD::kLine:
                if (std::fabs(static_cast<double>(x[p]) - lastX) < kStraight) {
                    d += L"V ";
                    appendNumber(d, y[p] + at.dy);
                } else if (std::fabs(static_cast<double>(y[p]) - lastY) < kStraight) {
                    d += L"H ";
                    appendNumber(d, x[p] + at.dx);
                } else {
                    d += L"L ";
                    pointAt(p);
                }
                break;
            case vxPath2DOLD::kQuad:
                d += L"Q ";
                pointAt(p);
                pointAt(p + 1);
                break;
            case vxPath2DOLD::kCubic:
                d += L"C ";
                pointAt(p);
                pointAt(p + 1);
                pointAt(p + 2);
                break;
            default:
                break;
        }
        if (needed > 0) {
            p += needed;
            lastX = x[p - 1];
            lastY = y[p - 1];
        }
    }
}

// ---- stroked and filled elements after the common rules -------------------

void vxDeviceSVG::strokeLine(const vxStrokeOLD& stroke, const vxPaintOLD& paint, float x1, float y1,
                             float x2, float y2, Offset at) {
    if (drawsNothing(stroke) || drawsNothing(paint) || isDegenerateLine(x1, y1, x2, y2)) return;
    writeDefinition(paint);
    writeLine(strokeStyle(stroke, paint), x1, y1, x2, y2, at);
}

void vxDeviceSVG::strokeLines(const vxStrokeOLD& stroke, const vxPaintOLD& paint, const Points& x,
                              const Points& y, Offset at) {
    if (drawsNothing(stroke) || drawsNothing(paint) || numOfPoints(x, y) < 2) return;
    writeDefinition(paint);
    writeLineArray(strokeStyle(stroke, paint), x, y, at);
}

void vxDeviceSVG::strokePolygon(const vxStrokeOLD& stroke, const vxPaintOLD& paint, const Points& x,
                                const Points& y, const float bounds[4], bool doClose, Offset at) {
    if (drawsNothing(stroke) || drawsNothing(paint) || numOfPoints(x, y) == 0) return;
    writeDefinition(paint);
    writePoints(doClose ? L"polygon" : L"polyline", strokeStyle(stroke, paint), x, y, at);
}

void vxDeviceSVG::fillPolygon(const vxPaintOLD& paint, const Points& x, const Points& y,
                              const float bounds[4], short windingRule, Offset at) {
    if (drawsNothing(paint) || numOfPoints(x, y) == 0) return;
    writeDefinition(paint);
    writePoints(L"polygon", fillStyle(paint, windingRule), x, y, at);
}

void vxDeviceSVG::strokePath(const vxStrokeOLD& stroke, const vxPaintOLD& paint,
                             const vxVerbs& verbs, const Points& x, const Points& y,
                             const float bounds[4], Offset at) {
    if (drawsNothing(stroke) || drawsNothing(paint) || verbs.empty()) return;
    writeDefinition(paint);
    writePath(strokeStyle(stroke, paint), verbs, x, y, at);
}

void vxDeviceSVG::fillPath(const vxPaintOLD& paint, const vxVerbs& verbs, const Points& x,
                           const Points& y, const float bounds[4], short windingRule, Offset at) {
    if (drawsNothing(paint) || verbs.empty()) return;
    writeDefinition(paint);
    writePath(fillStyle(paint, windingRule), verbs, x, y, at);
}

// ---- symbols --------------------------------------------------------------

// A mark without extent draws nothing, and neither does a negative size,
// which would turn the shapes inside out and give a circle no valid radius.
void vxDeviceSVG::drawSymbolAt(const vxStrokeOLD& stroke, const vxPaintOLD& paint,
                               const vxPaintOLD* fillPaint, short symbolType, float size, float x,
                               float y, Offset at) {
    if (!(size > 0.0f)) return;
    if (writeSymbolShape(stroke, paint, fillPaint, symbolType, size, x, y, at)) return;
    strokeSymbolLines(stroke, paint, symbolType, size, x, y, at);
}

// Circles, squares, diamonds and triangles: types 2 to 6 filled and then
// outlined, types 8 to 12 only outlined. False for any other type.
bool vxDeviceSVG::writeSymbolShape(const vxStrokeOLD& stroke, const vxPaintOLD& paint,
                                   const vxPaintOLD* fillPaint, short symbolType, float size,
                                   float x, float y, Offset at) {
    const bool isFilled = symbolType >= 2 && symbolType <= 6;
    const bool isOutline = symbolType >= 8 && symbolType <= 12;
    if (!isFilled && !isOutline) return false;
    const short shape = isFilled ? symbolType : static_cast<short>(symbolType - 6);
    const float l = x - size / 2.0f, r = l + size;
    const float t = y - size / 2.0f, b = t + size;
    Points px, py;
    switch (shape) {
        case 3:  // square
            px = {l, r, r, l}, py = {b, b, t, t};
            break;
        case 4:  // diamond
            px = {x, r, x, l}, py = {t, y, b, y};
            break;
        case 5:  // triangle down
            px = {l, r, x}, py = {t, t, b};
            break;
        case 6:  // triangle up
            px = {x, r, l}, py = {t, b, b};
            break;
        default:  // circle
            break;
    }
    auto write = [&](const std::wstring& style) {
        if (shape == 2)
            writeCircle(style, x + at.dx, y + at.dy, size / 2.0f);
        else
            writePoints(L"polygon", style, px, py, at);
    };
    if (isFilled && fillPaint && !drawsNothing(*fillPaint)) {
        writeDefinition(*fillPaint);
        write(fillStyle(*fillPaint, 1));
    }
    if (!drawsNothing(stroke) && !drawsNothing(paint)) {
        writeDefinition(paint);
        write(strokeStyle(stroke, paint));
    }
    return true;
}

}  // namespace Velarix
