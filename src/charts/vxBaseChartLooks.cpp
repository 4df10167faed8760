// The look of a whole series, for the markers of a legend.
#include "charts/vxBaseChart.h"
#include "graphics/vxBasicSymbol.h"
#include "graphics/vxLineShape.h"
#include "styles/vxStyleManager.h"

namespace Velarix {

namespace {

// No item: the lookups find the series' own record, as no item record
// holds the item number 0.
constexpr long kNoItem = -1;
constexpr long kNoItemNumber = kNoItem + 1;

}  // namespace

vxBaseChart::SeriesLook vxBaseChart::getSeriesLook(long series) const {
    SeriesLook look = getSeriesLook(styleManager, series);
    look.area = getAreaLook(series, kNoItem);
    return look;
}

vxBaseChart::SeriesLook vxBaseChart::getSeriesLook(const vxStyleManager* styles, long series) {
    SeriesLook look;
    if (!styles) return look;
    if (const vxFillStyle* fill = styles->getFillStyle(series + 1, kNoItemNumber)) {
        look.area.fill = fill->getPaint();
    }
    // Lines and borders of the type "none" draw nothing.
    const vxBorderStyle* border = styles->getBorderStyle(series + 1, kNoItemNumber);
    if (border && border->getShape().getType() != vxLineShape::kNone) {
        look.area.stroke = border->getStroke();
        look.area.border = border->getPaint();
    }
    const vxLineStyle* line = styles->getLineStyle(series + 1, kNoItemNumber);
    if (line && line->getShape().getType() != vxLineShape::kNone) {
        look.line.stroke = line->getStroke();
        look.line.border = line->getPaint();
    }
    const vxSymbolStyle* symbol = styles->getSymbolStyle(series + 1, kNoItemNumber);
    if (symbol && symbol->getSymbol() && symbol->getSymbol()->isDrawn()) {
        look.symbol = symbol->getSymbol();
    }
    return look;
}

}  // namespace Velarix
