#include "furniture/vxLegendStandardItem.h"

#include <algorithm>

#include "charts/vxChartShapes.h"
#include "graphics/vxBasicSymbol.h"
#include "graphics/vxGObjectAppearanceOLD.h"
#include "graphics/vxLine2DOLD.h"
#include "graphics/vxPath2DOLD.h"

namespace Velarix {

namespace {

constexpr float kPi = 3.14159265f;
// The corner radii of a rounded rectangle, in percent of the box's sides.
constexpr float kCornerRadiusPercent = 12.0f;

}  // namespace

vxLegendStandardItem::vxLegendStandardItem(vxUserSettings* ownerSettings)
    : vxLegendItem(ownerSettings, L"vxLegendStandardItem") {}

vxLegendStandardItem::~vxLegendStandardItem() = default;

short vxLegendStandardItem::shapeOf(short markerType, short markerShape) {
    if (markerShape >= kRectangle && markerShape <= kTriangle) return markerShape;
    if (markerType & kDiamond) return kDiamondShape;
    if (markerType & kOval) return kOvalShape;
    return kRectangle;
}

bool vxLegendStandardItem::createMarker(const vxBaseChart::SeriesLook& look, short markerType,
                                        short markerShape, float width, float height) {
    area.reset();
    line.reset();
    symbol.reset();
    setMarkerSize(width, height);
    if ((markerType & (kArea | kOval | kDiamond)) &&
        !createArea(shapeOf(markerType, markerShape), width, height, look.area)) {
        return false;
    }
    if ((markerType & kLine) && !createLine(width, height, look.line)) return false;
    if ((markerType & kSymbol) && look.symbol && !createSymbol(width, height, *look.symbol)) {
        return false;
    }
    return true;
}

bool vxLegendStandardItem::createArea(short shape, float w, float h,
                                      const vxBaseChart::Look& look) {
    if (!create(area, L"createArea", owner)) return false;
    const float cx = w * 0.5f, cy = h * 0.5f;
    const float r = 0.01f * kCornerRadiusPercent;
    switch (shape) {
        case kOvalShape:
            area->addOval(0.0f, 0.0f, w, h);
            break;
        case kRoundRect:
            area->addRoundRect(0.0f, 0.0f, w, h, r * w, r * h);
            break;
        case kDiamondShape:
            area->addMultigon(4, 0.0f, cx, cy, cx, cy, 1.0f, 0.0f);
            break;
        case kHexagon:
            area->addMultigon(6, kPi / 6.0f, cx, cy, cx, cy, 1.0f, 0.0f);
            break;
        case kOctagon:
            area->addMultigon(8, kPi / 8.0f, cx, cy, cx, cy, 1.0f, 0.0f);
            break;
        case kTriangle:
            area->addMultigon(3, 0.0f, cx, cy, cx, cy, 1.0f, 0.0f);
            break;
        default:
            area->addRect(0.0f, 0.0f, w, h);
            break;
    }
    vxApplyLook(*area, look);
    if (area->isError()) copyError(area->getError());
    return !isError();
}

bool vxLegendStandardItem::createLine(float w, float h, const vxBaseChart::Look& look) {
    if (!look.stroke || !look.border) return true;
    if (!create(line, L"createLine", owner, 0.0f, h * 0.5f, w, h * 0.5f)) return false;
    vxGObjectAppearanceOLD& appearance = *line->getAppearance();
    appearance.setBorderStroke(*look.stroke);
    appearance.setBorderPaint(*look.border);
    if (appearance.isError()) copyError(appearance.getError());
    return !isError();
}

bool vxLegendStandardItem::createSymbol(float w, float h, const vxBasicSymbol& from) {
    if (!create(symbol, L"createSymbol", owner)) return false;
    if (!symbol->copy(&from)) {
        copyError(symbol->getError());
        return false;
    }
    symbol->setOffsets(0.0f, 0.0f);
    symbol->setSize(std::min(symbol->getSize(), std::min(w, h)));
    symbol->setCenter(w * 0.5f, h * 0.5f);
    return true;
}

}  // namespace Velarix
