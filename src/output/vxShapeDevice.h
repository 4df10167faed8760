// The layer between the device contract and the devices that draw shapes
// (raster, PDF, SVG): every shape row and its shadow row go through one
// step of the device, which is told how far to move what it draws. A
// shadow row takes the shadow's paint and moves every coordinate by the
// shadow's offsets; a shadow without a paint draws nothing. The plain row
// moves nothing.
//
// The steps apply the common rules themselves, since a device calls them
// from its own shapes too.
#pragma once

#include <string>
#include <vector>

#include "output/vxDevice.h"
#include "output/vxDeviceTargets.h"

namespace Velarix {

class vxShapeDevice : public vxDevice {
public:
    explicit vxShapeDevice(const wchar_t* name) : vxDevice(name) {}

    // Appends a target of a type the device takes (acceptsTarget); any
    // other type makes none.
    void addTarget(short targetType) final;
    long getNumOfTargets() const final { return targets.size(); }
    vxWriteExternal* getLastTarget() const final { return targets.last(); }

    // The points of two point lists: the shorter one rules.
    static size_t numOfPoints(const vxPoints& x, const vxPoints& y);
    // The points a path verb takes from the point lists: 1 for move and
    // line, 2 for a quadratic, 3 for a cubic, none for close and others.
    static size_t pointsOfVerb(short verb);

    void drawLine2D(const vxStrokeOLD& stroke, const vxShadowOLD& shadow, float x1, float y1,
                    float x2, float y2) final;
    void drawLine2D(const vxStrokeOLD& stroke, const vxPaintOLD& paint, float x1, float y1,
                    float x2, float y2) final;
    void drawLineArray2D(const vxStrokeOLD& stroke, const vxShadowOLD& shadow, const vxPoints& x,
                         const vxPoints& y) final;
    void drawLineArray2D(const vxStrokeOLD& stroke, const vxPaintOLD& paint, const vxPoints& x,
                         const vxPoints& y) final;
    void drawPolygon2D(const vxStrokeOLD& stroke, const vxShadowOLD& shadow, const vxPoints& x,
                       const vxPoints& y, const float bounds[4], bool doClose) final;
    void drawPolygon2D(const vxStrokeOLD& stroke, const vxPaintOLD& paint, const vxPoints& x,
                       const vxPoints& y, const float bounds[4], bool doClose) final;
    void fillPolygon2D(const vxShadowOLD& shadow, const vxPoints& x, const vxPoints& y,
                       const float bounds[4], short windingRule) final;
    void fillPolygon2D(const vxPaintOLD& paint, const vxPoints& x, const vxPoints& y,
                       const float bounds[4], short windingRule) final;
    void drawPath2D(const vxStrokeOLD& stroke, const vxShadowOLD& shadow, const vxVerbs& verbs,
                    const vxPoints& x, const vxPoints& y, const float bounds[4]) final;
    void drawPath2D(const vxStrokeOLD& stroke, const vxPaintOLD& paint, const vxVerbs& verbs,
                    const vxPoints& x, const vxPoints& y, const float bounds[4]) final;
    void fillPath2D(const vxShadowOLD& shadow, const vxVerbs& verbs, const vxPoints& x,
                    const vxPoints& y, const float bounds[4], short windingRule) final;
    void fillPath2D(const vxPaintOLD& paint, const vxVerbs& verbs, const vxPoints& x,
                    const vxPoints& y, const float bounds[4], short windingRule) final;

    // The shapes of the symbol types (circles, squares, diamonds and
    // triangles filled and outlined, or outlined only; crosses, bars and
    // ticks as lines). The shadow row fills with the shadow's paint and
    // outlines with `paint`, moved by the shadow's offsets.
    void drawSymbol(const vxStrokeOLD& stroke, const vxPaintOLD& paint, const vxShadowOLD& shadow,
                    short symbolType, float size, float x, float y) final;
    void drawSymbol(const vxStrokeOLD& stroke, const vxPaintOLD& paint, const vxPaintOLD& fillPaint,
                    short symbolType, float size, float x, float y) final;

protected:
    // Clipboard (1), file (3) and stream (4) targets, unless the device
    // says otherwise.
    virtual bool acceptsTarget(short targetType) const;

    // What a shadow row adds to every coordinate it draws.
    struct Offset {
        float dx = 0.0f;
        float dy = 0.0f;
    };
    using Points = std::vector<float>;
    static Offset offsetOf(const vxShadowOLD& shadow);

    // The steps of the rows. `bounds` are the shape's as the object gives
    // them, not moved.
    virtual void strokeLine(const vxStrokeOLD& stroke, const vxPaintOLD& paint, float x1, float y1,
                            float x2, float y2, Offset at) = 0;
    virtual void strokeLines(const vxStrokeOLD& stroke, const vxPaintOLD& paint, const Points& x,
                             const Points& y, Offset at) = 0;
    virtual void strokePolygon(const vxStrokeOLD& stroke, const vxPaintOLD& paint, const Points& x,
                               const Points& y, const float bounds[4], bool doClose, Offset at) = 0;
    virtual void fillPolygon(const vxPaintOLD& paint, const Points& x, const Points& y,
                             const float bounds[4], short windingRule, Offset at) = 0;
    virtual void strokePath(const vxStrokeOLD& stroke, const vxPaintOLD& paint,
                            const vxVerbs& verbs, const Points& x, const Points& y,
                            const float bounds[4], Offset at) = 0;
    virtual void fillPath(const vxPaintOLD& paint, const vxVerbs& verbs, const Points& x,
                          const Points& y, const float bounds[4], short windingRule, Offset at) = 0;
    // A fill paint of null (a shadow without paint) or none skips the fill.
    virtual void drawSymbolAt(const vxStrokeOLD& stroke, const vxPaintOLD& paint,
                              const vxPaintOLD* fillPaint, short symbolType, float size, float x,
                              float y, Offset at) = 0;

    // The marks made of lines (cross 1, plus 7, bars 13 and 14, ticks 15 to
    // 18) of the size centred at x, y, as point pairs, one line each. False
    // for the other types.
    static bool symbolLines(short symbolType, float size, float x, float y, Points& lx, Points& ly);
    // Each line of a mark made of lines by strokeLine; false for the other
    // types, which draw nothing here.
    bool strokeSymbolLines(const vxStrokeOLD& stroke, const vxPaintOLD& paint, short symbolType,
                           float size, float x, float y, Offset at);

    // The lines of a text, split at every carriage return; an empty text
    // is one empty line.
    static std::vector<std::wstring> linesOf(const std::wstring& text);

    vxDeviceTargets targets;
};

}  // namespace Velarix
