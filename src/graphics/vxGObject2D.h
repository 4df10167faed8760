// A graphic object with an outline: its shadow, fill and border follow the
// draw protocol of vxGObjectOLD, and each class says how its shape is
// filled and outlined on a device.
//
// It may carry symbols: marks at its points or arrow heads at its ends.
// They move with the object but take no part in its bounds, and they draw
// after the object's own parts in each step, so they lie above its border.
#pragma once

#include <memory>

#include "graphics/vxGObjectOLD.h"

namespace Velarix {

class vxSymbol;
class vxSymbolArray;

class vxGObject2D : public vxGObjectOLD {
public:
    vxGObject2D(const wchar_t* name, vxUserSettings* owner);
    ~vxGObject2D() override;

    // When visible and with a shadow: the fill, then the outline, moved by
    // the shadow's offsets and in the shadow's paint, then the shadows of
    // the symbols.
    void drawShadow(vxDevice& device) override;
    // When visible: the fill, then the outline, then the symbols.
    void drawBody(vxDevice& device) override;
    // The object's knobs, then those of its symbols.
    void setUpKnobs(vxSelectionKnobs& knobs) override;

    bool hasSymbols() const;
    long getNumOfSymbols() const;
    // Null for a gap and for an index out of range.
    vxSymbol* getSymbol(long index) const;
    // Appends a copy of `from`; the list is made on the first symbol.
    bool addSymbol(const vxSymbol& from);
    // A new list in place of the old one: a copy of `from`, or empty.
    // A failed allocation is error 5000 at ".../createSymbols/1".
    bool createSymbols(const vxSymbolArray* from = nullptr);
    // Copies of the symbols of another object; one without symbols leaves
    // this one without too.
    bool assignSymbols(const vxGObject2D& from);
    const vxSymbolArray* getSymbols() const { return symbols.get(); }

    // Drops the symbols too.
    void setDefaults() override;
    void dump(short depth, std::ostream& out) const override;

protected:
    // Moves the attached symbols. A class with points of its own calls this
    // first and then maps its points.
    void transformGeometry(const vxTransform2DOLD& transform) override;

    // The shape in the device's terms; `bounds` are the object's bounds,
    // moved by the shadow's offsets in the shadow forms.
    virtual void fillShape(vxDevice& device, const vxPaintOLD& paint, const float bounds[4]) {}
    virtual void fillShape(vxDevice& device, const vxShadowOLD& shadow, const float bounds[4]) {}
    virtual void outlineShape(vxDevice& device, const vxStrokeOLD& stroke, const vxPaintOLD& paint,
                              const float bounds[4]) {}
    virtual void outlineShape(vxDevice& device, const vxStrokeOLD& stroke,
                              const vxShadowOLD& shadow, const float bounds[4]) {}

private:
    // The border stroke, made with its defaults when the script gave none.
    const vxStrokeOLD* borderStrokeForDrawing();
    bool takeSymbolsError();

    std::unique_ptr<vxSymbolArray> symbols;  // made with the first symbol
};

}  // namespace Velarix
