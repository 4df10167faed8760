// A small mark with a centre point: attached to a point of a series, to the
// end of a line or to a legend entry.
//
// The geometry operations of an object apply to the centre alone: shift
// moves it, rotate turns it about a point and flip mirrors it, so that a
// mark keeps its size and shape wherever its owner goes. rotate(angle) and
// flip(mode) without a point keep the centre where it is. The offsets are a
// displacement added to the centre when drawing; transforms leave them.
//
// width and height are the mark's nominal extent; the bounds are those of
// what it draws, centred on the centre plus the offsets unless a class says
// otherwise.
#pragma once

#include <memory>
#include <ostream>
#include <string>

#include "graphics/vxGObjectOLD.h"

namespace Velarix {

class vxAssign;
class vxStrokeOLD;
class vxPaintOLD;

class vxSymbol : public vxGObjectOLD {
public:
    vxSymbol(const wchar_t* name, vxUserSettings* owner);
    ~vxSymbol() override;

    // A new symbol of the class with the type code and its defaults; null
    // for a code that names no symbol class. Throws std::bad_alloc or
    // vxExceptionRuntime when memory runs out.
    static std::unique_ptr<vxSymbol> make(short type, vxUserSettings* owner);

    using vxGObjectOLD::flip;
    using vxGObjectOLD::rotate;
    void rotate(float angle) override;
    void flip(short mode) override;
    // Applies a map to the centre (and, for classes with a direction, to
    // the direction), as the owner of the symbol moves.
    void transform(const vxTransform2DOLD& transform);

    float getXCenter() const { return xCenter; }
    float getYCenter() const { return yCenter; }
    void setCenter(float x, float y);
    float getXOffset() const { return xOffset; }
    float getYOffset() const { return yOffset; }
    void setOffsets(float x, float y);
    // Radians, counted counter-clockwise on the page from the x axis.
    float getOrientation() const { return orientation; }
    void setOrientation(float angle);
    float getSymbolWidth() const { return width; }
    float getSymbolHeight() const { return height; }
    // The size a layout reserves for the mark: the larger extent.
    virtual float getSymbolSize() const;

    void setDefaults() override;
    // Resets, then takes the state, appearance, centre, offsets and
    // orientation of `from`, and its extent and the fields of its class
    // when it is of the same class. Null only resets.
    bool copy(const vxSymbol* from);

    void dump(short depth, std::ostream& out) const override;

protected:
    // Where the mark is drawn: the centre plus the offsets.
    float drawX() const { return xCenter + xOffset; }
    float drawY() const { return yCenter + yOffset; }
    void setExtent(float w, float h);
    void transformGeometry(const vxTransform2DOLD& transform) override;
    void calculateBounds(float bounds[4]) const override;
    // The fields of the class, after those of the symbol.
    virtual void resetFields() {}
    virtual void copyFields(const vxSymbol& from) {}
    virtual void dumpFields(std::ostream& out) const {}

    // Script parts read at the argument offset, which moves past them. A
    // void argument leaves the part as it stands.
    bool assignStroke(vxAssign& assign);
    bool assignBorderPaint(vxAssign& assign, const vxUserSettings* settings);
    bool assignFillPaint(vxAssign& assign, const vxUserSettings* settings);
    bool assignShadow(vxAssign& assign, const vxUserSettings* settings);

    // The border stroke to draw with: the symbol's own, or the default
    // stroke held by the caller.
    const vxStrokeOLD& strokeOr(const vxStrokeOLD& fallback) const;

private:
    bool assignPaint(vxAssign& assign, const vxUserSettings* settings, bool isFill);
    bool takeAppearanceError();
    void resetGeometry();

    float width = 0.0f;
    float height = 0.0f;
    float xCenter = 0.0f;
    float yCenter = 0.0f;
    float xOffset = 0.0f;
    float yOffset = 0.0f;
    float orientation = 0.0f;
};

}  // namespace Velarix
