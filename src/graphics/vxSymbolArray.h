// The symbols an object carries, in the order they draw. An entry may be
// empty: a gap keeps the places of the symbols after it, as the points of
// a series keep theirs.
//
// Every geometric change of the array is passed on to each symbol; its
// bounds are the box around the bounds of its symbols, and zero when it
// has none.
#pragma once

#include <memory>
#include <ostream>
#include <vector>

#include "graphics/vxGObjectOLD.h"

namespace Velarix {

class vxSymbol;

class vxSymbolArray : public vxGObjectOLD {
public:
    explicit vxSymbolArray(vxUserSettings* owner = nullptr);
    ~vxSymbolArray() override;

    short getType() const override { return kTypeSymbolArray; }
    // When the array is visible: each symbol's shadow step, or its body
    // step, in the order of the array.
    void drawShadow(vxDevice& device) override;
    void drawBody(vxDevice& device) override;
    // The array's knobs from its bounds, then each symbol's own.
    void setUpKnobs(vxSelectionKnobs& knobs) override;
    void transform(const vxTransform2DOLD& transform);

    long getNumOfSymbols() const { return static_cast<long>(symbols.size()); }
    // Null for a gap and for an index out of range.
    vxSymbol* getSymbol(long index) const;
    // Appends a copy of `from`, of the class its type code names. A failed
    // allocation is error 5000 at "vxSymbolArray/addSymbol/1". A code that
    // vxSymbol::make doesn't know adds nothing and answers false.
    bool addSymbol(const vxSymbol& from);
    bool addGap();
    void removeAll();

    void setDefaults() override;
    // Resets, then takes copies of the symbols and gaps of `from`; null
    // only resets.
    bool copy(const vxSymbolArray* from);

    void dump(short depth, std::ostream& out) const override;

protected:
    void transformGeometry(const vxTransform2DOLD& transform) override;
    void calculateBounds(float bounds[4]) const override;

private:
    std::vector<std::unique_ptr<vxSymbol>> symbols;
};

}  // namespace Velarix
