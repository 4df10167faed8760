// What goes with the bars: their shadows under everything, lines that join
// the bars of a series, and symbols at the bars' value ends.
#include <algorithm>
#include <cmath>
#include <memory>

#include "charts/vxBarChart1D.h"
#include "charts/vxBarOutline.h"
#include "charts/vxBarSolid.h"
#include "charts/vxChartLayerTypes.h"
#include "charts/vxChartShapes.h"
#include "drawing/vxLayer.h"
#include "drawing/vxLayerManager.h"
#include "graphics/vxBasicSymbol.h"
#include "graphics/vxGObjectAppearanceOLD.h"
#include "graphics/vxPaintOLD.h"
#include "graphics/vxPath2DOLD.h"
#include "graphics/vxShadowOLD.h"
#include "styles/vxBarStyle.h"
#include "styles/vxLineStyle.h"
#include "styles/vxShadowStyle.h"
#include "styles/vxStyleManager.h"
#include "styles/vxSymbolStyle.h"

namespace Velarix {

namespace {

constexpr long kLineShadowLayer = vxShadowLayerOf(kLineLayer);
constexpr long kBarShadowLayer = vxShadowLayerOf(kBarLayer);

const vxShadowOLD* shadowOf(const vxStyleManager* styles, long s) {
    const vxShadowStyle* style = styles ? styles->getShadowStyle(s + 1, 1) : nullptr;
    return style ? style->getShadow() : nullptr;
}

}  // namespace

// Shadows lie under every bar: first those of the connecting lines, then
// those of the bars, a layer a series from the last.
void vxBarChart1D::addShadows(vxLayerManager& layerMng) {
    const vxStyleManager* styles = getStyleManager();
    const long nS = getNumOfChartSeries();
    float reach[4] = {0.0f, 0.0f, 0.0f, 0.0f};
    for (long s = 0; s < nS; ++s) {
        if (const vxShadowOLD* shadow = shadowOf(styles, s)) {
            reach[0] = std::min(reach[0], shadow->getXOffset());
            reach[1] = std::min(reach[1], shadow->getYOffset());
            reach[2] = std::max(reach[2], shadow->getXOffset());
            reach[3] = std::max(reach[3], shadow->getYOffset());
        }
    }
    setUpShadowClipRect(reach);
    for (long s = nS - 1; s >= 0 && showConnectingLines && !isError(); --s) {
        const vxShadowOLD* shadow = shadowOf(styles, s);
        if (!shadow) continue;
        auto layer = std::make_unique<vxLayer>(kLineShadowLayer, s, getShadowClipRect());
        layer->addClipShape(nullptr);
        if (auto line = makeConnectingLine(s, shadow->getPaint())) {
            line->shift(shadow->getXOffset(), shadow->getYOffset());
            layer->addShape(std::move(line));
        }
        handOver(layerMng, std::move(layer));
    }
    for (long s = nS - 1; s >= 0 && !isError(); --s) {
        const vxShadowOLD* shadow = shadowOf(styles, s);
        if (!shadow || !shadow->getPaint()) continue;
        auto layer = std::make_unique<vxLayer>(kBarShadowLayer, s, getShadowClipRect());
        layer->addClipShape(nullptr);
        for (long c = 0; c < numOfCategories; ++c) {
            if (isDrawable(s, c)) layer->addShape(makeShadow(s, c, *shadow));
        }
        handOver(layerMng, std::move(layer));
    }
}

// The bar's outline, or the silhouette of its solid, moved by the shadow's
// offsets and painted in its paint, border and all.
std::unique_ptr<vxGObjectOLD> vxBarChart1D::makeShadow(long s, long c,
                                                       const vxShadowOLD& shadow) const {
    float r[4];
    getBarRect(s, c, r);
    const vxStyleManager* styles = getStyleManager();
    const vxBarStyle* found = styles ? styles->getBarStyle(s + 1, c + 1) : nullptr;
    static const vxBarStyle plain(nullptr);
    const vxBarStyle& style = found ? *found : plain;
    std::unique_ptr<vxPath2DOLD> path;
    if (getDepthInfo().isDepth()) {
        path = vxBarSolid::outline(r, getBarDirection(s, c), style, getDepthInfo());
        if (!path) throw std::bad_alloc();
    } else {
        path = std::make_unique<vxPath2DOLD>();
        vxBarOutline::build(*path, r, getBarDirection(s, c), style);
    }
    const Look bar = getBarLook(s, c);
    Look look;
    look.fill = shadow.getPaint();
    look.border = bar.border && bar.stroke ? shadow.getPaint() : nullptr;
    look.stroke = bar.stroke;
    vxApplyLook(*path, look);
    path->shift(shadow.getXOffset(), shadow.getYOffset());
    return path;
}

void vxBarChart1D::getValueEnd(long s, long c, float point[2]) const {
    float r[4];
    getBarRect(s, c, r);
    point[0] = 0.5f * (r[0] + r[2]);
    point[1] = 0.5f * (r[1] + r[3]);
    switch (getBarDirection(s, c)) {
        case kUp:
            point[1] = r[1];
            break;
        case kDown:
            point[1] = r[3];
            break;
        case kToLeft:
            point[0] = r[0];
            break;
        default:
            point[0] = r[2];
            break;
    }
}

void vxBarChart1D::addSymbols(vxLayerManager& layerMng, long s) {
    const vxStyleManager* styles = getStyleManager();
    if (!styles || !getParameters().doShowSymbols()) return;
    auto layer = std::make_unique<vxLayer>(kSymbolLayer, s, getExtendedPlotBounds());
    layer->addClipShape(nullptr);
    for (long c = 0; c < numOfCategories; ++c) {
        if (!isDrawable(s, c)) continue;
        const vxSymbolStyle* style = styles->getSymbolStyle(s + 1, c + 1);
        if (!style || !style->getSymbol() || !style->getSymbol()->isDrawn()) continue;
        auto symbol = std::make_unique<vxBasicSymbol>();
        if (!symbol->copy(style->getSymbol())) throw std::bad_alloc();
        float at[2];
        getValueEnd(s, c, at);
        symbol->setCenter(at[0], at[1]);
        layer->addShape(std::move(symbol));
    }
    handOver(layerMng, std::move(layer));
}

void vxBarChart1D::addConnectingLines(vxLayerManager& layerMng) {
    const vxStyleManager* styles = getStyleManager();
    auto layer = std::make_unique<vxLayer>(kLineLayer, kWholeChart, getExtendedPlotBounds());
    layer->addClipShape(nullptr);
    for (long s = getNumOfChartSeries() - 1; s >= 0; --s) {
        const vxLineStyle* style = styles ? styles->getLineStyle(s + 1, 1) : nullptr;
        if (auto line = makeConnectingLine(s, style ? style->getPaint() : nullptr)) {
            layer->addShape(std::move(line));
        }
    }
    handOver(layerMng, std::move(layer));
}

// One path of the series: a line from each bar's value end to the next
// bar's, between the sides that face each other. Bars with a gap between
// them (an empty or zero value) are not joined.
std::unique_ptr<vxGObjectOLD> vxBarChart1D::makeConnectingLine(long s,
                                                               const vxPaintOLD* paint) const {
    const vxStyleManager* styles = getStyleManager();
    const vxLineStyle* style = styles ? styles->getLineStyle(s + 1, 1) : nullptr;
    if (!paint || !style || !style->getStroke()) return nullptr;
    auto path = std::make_unique<vxPath2DOLD>();
    const bool horizontal = getParameters().isHorizontal();
    bool any = false;
    for (long c = 0; c + 1 < numOfCategories; ++c) {
        if (!isDrawable(s, c) || !isDrawable(s, c + 1)) continue;
        float a[4], b[4], from[2], to[2];
        getBarRect(s, c, a);
        getBarRect(s, c + 1, b);
        getValueEnd(s, c, from);
        getValueEnd(s, c + 1, to);
        const int k = horizontal ? 1 : 0;  // along the interval axis
        const bool forward = b[k] >= a[k];
        from[k] = forward ? a[k + 2] : a[k];
        to[k] = forward ? b[k] : b[k + 2];
        path->moveTo(from[0], from[1]);
        path->lineTo(to[0], to[1]);
        any = true;
    }
    if (!any) return nullptr;
    vxGObjectAppearanceOLD& appearance = *path->getAppearance();
    appearance.setBorderPaint(*paint);
    appearance.setBorderStroke(*style->getStroke());
    return path;
}

}  // namespace Velarix
