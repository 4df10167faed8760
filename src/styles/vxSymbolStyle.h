// How the point marks of a series look: a basic symbol with its type, size,
// border stroke, border paint and fill paint.
//
// In a script: the symbol type, the size, the line widths, the colour and
// the pattern. The colour and pattern paint the border and the fill alike.
#pragma once

#include <memory>
#include <ostream>

#include "styles/vxStyle.h"

namespace Velarix {

class vxBasicSymbol;

class vxSymbolStyle : public vxStyle {
public:
    // The record numbered `number`: symbol type `number` (1 cross, 2 filled
    // circle ... 12 hollow up triangle), size 7, a border of width 1, and
    // border and fill in the colour of that number.
    explicit vxSymbolStyle(vxUserSettings* owner, long number = 1);
    ~vxSymbolStyle() override;

    bool setDefaults(long number);
    // A deep copy; null resets to the defaults of record 1.
    bool set(const vxSymbolStyle* from);
    bool assign(vxAssign& assign) override;
    void dump(short depth, std::ostream& out) const override;

    const vxBasicSymbol* getSymbol() const { return symbol.get(); }

private:
    bool createSymbol();

    std::unique_ptr<vxBasicSymbol> symbol;
};

}  // namespace Velarix
