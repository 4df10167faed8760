#include "styles/vxSymbolStyle.h"

#include "graphics/vxBasicPaint.h"
#include "graphics/vxBasicStroke.h"
#include "graphics/vxBasicSymbol.h"
#include "graphics/vxGObjectAppearanceOLD.h"
#include "host/vxLog.h"
#include "script/vxAssign.h"

namespace Velarix {

namespace {

// The arguments behind the selection: type, size, widths, colour, pattern.
constexpr long kColorAt = 3;
constexpr long kPatternAt = 4;

}  // namespace

vxSymbolStyle::vxSymbolStyle(vxUserSettings* owner, long number)
    : vxStyle(L"vxSymbolStyle", owner) {
    setDefaults(number);
}

vxSymbolStyle::~vxSymbolStyle() = default;

bool vxSymbolStyle::createSymbol() {
    return create(symbol, L"createSymbol", owner);
}

bool vxSymbolStyle::setDefaults(long number) {
    if (!createSymbol()) return false;
    symbol->setSymbolType(static_cast<short>(number));
    return paintInNumber(*symbol, number);
}

bool vxSymbolStyle::set(const vxSymbolStyle* from) {
    if (!from) return copySelection(nullptr) && setDefaults(1);
    if (!copySelection(from) || !createSymbol()) return false;
    symbol->copy(from->symbol.get());
    return takeError(symbol.get());
}

// The symbol's reader gives a fill only to a symbol without one; a style's
// symbol always has one, which follows the border's paint here.
bool vxSymbolStyle::assign(vxAssign& a) {
    if (!symbol && !createSymbol()) return false;
    const bool paintGiven = !a.isVoid(kColorAt) || !a.isVoid(kPatternAt);
    if (!symbol->assign(a, owner)) return takeError(symbol.get());
    vxGObjectAppearanceOLD* look = symbol->getAppearance();
    if (paintGiven && look->getBorderPaint()) look->setFillPaint(*look->getBorderPaint());
    return takeError(look) && takeError(symbol.get());
}

void vxSymbolStyle::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, "vxSymbolStyle");
    dumpSelection(out);
    vxDumpEnd(out);
    if (symbol) symbol->dump(static_cast<short>(depth - 1), out);
}

}  // namespace Velarix
