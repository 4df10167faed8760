// The areas on their layers: the fills of all series before any border,
// so that no border lies under another series' fill; then the lines,
// symbols and labels. Shadows of each group come first, in the same order.
#include <memory>

#include "charts/vxAreaChart1D.h"
#include "charts/vxChartLayerTypes.h"
#include "charts/vxChartShapes.h"
#include "drawing/vxLayer.h"
#include "drawing/vxLayerManager.h"
#include "graphics/vxGObjectAppearanceOLD.h"
#include "graphics/vxPath2DOLD.h"
#include "graphics/vxShadowOLD.h"
#include "settings/vxErrorCodes.h"

namespace Velarix {

namespace {

// The series' own record, not one of its items.
constexpr long kSeriesLook = -1;

}  // namespace

void vxAreaChart1D::setUpLayers(vxLayerManager* layerMng) {
    if (!layerMng || isError()) return;
    setUpClipRect(widestHalfStroke());
    try {
        if (getParameters().doShowShadows()) {
            setUpSeriesShadowClip();
            addAreaLayers(*layerMng, true);
        }
        if (!isError()) addAreaLayers(*layerMng, false);
        if (!isError()) addLabels(*layerMng);
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"setUpLayers"));
    }
}

// Fills, borders, lines and symbols, each group over all series from the
// last; or their shadows.
void vxAreaChart1D::addAreaLayers(vxLayerManager& layerMng, bool shadows) {
    const long nS = getNumOfChartSeries();
    auto shadowOf = [&](long s) { return shadows ? getShadowOf(s) : nullptr; };
    for (long s = nS - 1; s >= 0 && !isError(); --s) {
        if (!shadows || shadowOf(s)) addAreaPart(layerMng, shadowOf(s), s, false);
    }
    for (long s = nS - 1; s >= 0 && !isError(); --s) {
        if (!shadows || shadowOf(s)) addAreaPart(layerMng, shadowOf(s), s, true);
    }
    for (long s = nS - 1; s >= 0 && useLineStyles && !isError(); --s) {
        if (shadows) {
            addLineShadows(layerMng, s);
        } else {
            addLines(layerMng, s);
        }
    }
    for (long s = nS - 1; s >= 0 && !isError(); --s) {
        if (shadows) {
            addSymbolShadows(layerMng, s);
        } else {
            addSymbols(layerMng, s);
        }
    }
}

// The fill or the border of the series' areas, or its shadow: the same
// outline in the shadow's paint, moved by its offsets.
void vxAreaChart1D::addAreaPart(vxLayerManager& layerMng, const vxShadowOLD* shadow, long s,
                                bool border) {
    const Look look = getAreaLook(s, kSeriesLook);
    if (border ? !look.border || !look.stroke : !look.fill) return;
    std::unique_ptr<vxPath2DOLD> outline = makeAreaOutline(s);
    if (!outline) return;
    const vxPaintOLD* paint = shadow ? shadow->getPaint() : border ? look.border : look.fill;
    Look part;
    (border ? part.border : part.fill) = paint;
    part.stroke = border ? look.stroke : nullptr;
    vxApplyLook(*outline, part);
    if (shadow) outline->shift(shadow->getXOffset(), shadow->getYOffset());
    const vxChartLayerType kind = border ? kAreaBorderLayer : kAreaFillLayer;
    auto layer = std::make_unique<vxLayer>(shadow ? vxShadowLayerOf(kind) : long(kind), s,
                                           shadow ? getShadowClipRect() : getExtendedPlotBounds());
    layer->addClipShape(nullptr);
    layer->addShape(std::move(outline));
    handOver(layerMng, std::move(layer));
}

}  // namespace Velarix
