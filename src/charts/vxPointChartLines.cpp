// The lines of the series, cut at their gaps, their symbols, and the
// shadows of both.
#include <algorithm>
#include <cmath>
#include <memory>

#include "charts/vxChartLayerTypes.h"
#include "charts/vxPointChart.h"
#include "drawing/vxLayer.h"
#include "drawing/vxLayerManager.h"
#include "graphics/vxBasicStroke.h"
#include "graphics/vxBasicSymbol.h"
#include "graphics/vxGObjectAppearanceOLD.h"
#include "graphics/vxLineShape.h"
#include "graphics/vxPaintOLD.h"
#include "graphics/vxPath2DOLD.h"
#include "graphics/vxShadowOLD.h"
#include "styles/vxBorderStyle.h"
#include "styles/vxLineStyle.h"
#include "styles/vxShadowStyle.h"
#include "styles/vxStyleManager.h"
#include "styles/vxSymbolStyle.h"

namespace Velarix {

namespace {

constexpr short kMiterJoin = 1;
constexpr short kAlongX = 1;
constexpr short kAlongY = 2;

bool isStepped(const vxLineShape& shape) {
    return shape.getType() == vxLineShape::kJump || shape.getType() == vxLineShape::kStep;
}

}  // namespace

// Half the widest line, border or symbol of the series: how far the
// drawing reaches past the plot.
float vxPointChart::widestHalfStroke() const {
    const vxStyleManager* styles = getStyleManager();
    float half = 0.5f;
    for (long s = 0; styles && s < getNumOfChartSeries(); ++s) {
        const vxLineStyle* line = styles->getLineStyle(s + 1, 1);
        if (line && line->getStroke()) half = std::max(half, line->getStroke()->getLineWidth() / 2);
        const vxBorderStyle* border = styles->getBorderStyle(s + 1, 1);
        if (border && border->getStroke()) {
            half = std::max(half, border->getStroke()->getLineWidth() / 2);
        }
        const vxSymbolStyle* symbol = styles->getSymbolStyle(s + 1, 1);
        if (getParameters().doShowSymbols() && symbol && symbol->getSymbol()) {
            half = std::max(half, symbol->getSymbol()->getSize() / 2);
        }
    }
    return half;
}

const vxShadowOLD* vxPointChart::getShadowOf(long s) const {
    const vxStyleManager* styles = getStyleManager();
    const vxShadowStyle* style = styles ? styles->getShadowStyle(s + 1, 1) : nullptr;
    const vxShadowOLD* shadow = style ? style->getShadow() : nullptr;
    return shadow && shadow->getPaint() ? shadow : nullptr;
}

// The clip of the shadows reaches as far as the farthest shadow.
void vxPointChart::setUpSeriesShadowClip() {
    float reach[4] = {0.0f, 0.0f, 0.0f, 0.0f};
    for (long s = 0; s < getNumOfChartSeries(); ++s) {
        if (const vxShadowOLD* shadow = getShadowOf(s)) {
            reach[0] = std::min(reach[0], shadow->getXOffset());
            reach[1] = std::min(reach[1], shadow->getYOffset());
            reach[2] = std::max(reach[2], shadow->getXOffset());
            reach[3] = std::max(reach[3], shadow->getYOffset());
        }
    }
    setUpShadowClipRect(reach);
}

const vxLineStyle* vxPointChart::getDrawnLineStyle(long s) const {
    const vxStyleManager* styles = getStyleManager();
    const vxLineStyle* style = styles ? styles->getLineStyle(s + 1, 1) : nullptr;
    if (!style || !style->getStroke() || !style->getPaint() || style->getShape().isNone()) {
        return nullptr;
    }
    return style;
}

// Steps and jumps settle their outdents by the axis they step along: a
// lone point reaches the plot's frame on both sides; more points reach
// half a category beyond the ends when the points stand in the middle of
// their intervals. Outdents the style gives stay.
void vxPointChart::addSmoothedLine(vxPath2DOLD& path, long s, long first, long count) const {
    const vxLineStyle* style = getDrawnLineStyle(s);
    if (!style || count <= 0) return;
    vxLineShape shape = style->getShape();
    const bool horizontal = getParameters().isHorizontal();
    const short orientation = horizontal ? kAlongY : kAlongX;
    if (isStepped(shape)) {
        const float* plot = getPlotBounds();
        const size_t i = static_cast<size_t>(first);
        const float at = horizontal ? yDC[i] : xDC[i];
        const float shift = doShiftIntervalValues ? 0.5f : 0.0f;
        if (!shape.isStartOutendUserDefined()) {
            shape.setStartOutdentFactor(count < 2 ? std::fabs(at - plot[horizontal ? 1 : 0])
                                                  : shift);
        }
        if (!shape.isEndOutendUserDefined()) {
            shape.setEndOutdentFactor(count < 2 ? std::fabs(plot[horizontal ? 3 : 2] - at) : shift);
        }
    }
    path.addLineShape(xDC, yDC, first, count, shape, orientation);
}

// The runs of valid points, each a piece of the path. A lone point between
// gaps draws no line; a stepped series of one point draws its flat piece.
std::unique_ptr<vxPath2DOLD> vxPointChart::makeSeriesLine(long s) const {
    const vxLineStyle* style = getDrawnLineStyle(s);
    if (!style) return nullptr;
    const long n = static_cast<long>(validDC.size());
    const bool lonePiece =
        isStepped(style->getShape()) && std::count(validDC.begin(), validDC.end(), 1) == 1;
    auto path = std::make_unique<vxPath2DOLD>();
    path->setCapacity(n + 1);
    for (long i = 0; i < n;) {
        long run = 0;
        while (i + run < n && validDC[static_cast<size_t>(i + run)]) ++run;
        if (run >= 2 || (run == 1 && lonePiece)) addSmoothedLine(*path, s, i, run);
        i += std::max(run, 1L);
    }
    if (path->isError()) throw std::bad_alloc();
    if (path->isEmpty()) return nullptr;
    vxGObjectAppearanceOLD& appearance = *path->getAppearance();
    std::unique_ptr<vxStrokeOLD> stroke = style->getStroke()->clone();
    if (auto* basic = dynamic_cast<vxBasicStroke*>(stroke.get())) basic->setLineJoin(kMiterJoin);
    appearance.setBorderStroke(*stroke);
    appearance.setBorderPaint(*style->getPaint());
    return path;
}

void vxPointChart::addLines(vxLayerManager& layerMng, long s) {
    if (!getDrawnLineStyle(s) || !setUpSeriesPolygon(s)) return;
    auto layer = std::make_unique<vxLayer>(kLineLayer, s, getExtendedPlotBounds());
    layer->addClipShape(nullptr);
    if (auto line = makeSeriesLine(s)) layer->addShape(std::move(line));
    handOver(layerMng, std::move(layer));
}

// The same runs of values in the shadow's paint, moved by its offsets.
void vxPointChart::addLineShadows(vxLayerManager& layerMng, long s) {
    const vxShadowOLD* shadow = getShadowOf(s);
    if (!shadow || !getDrawnLineStyle(s) || !setUpSeriesPolygon(s)) return;
    auto layer = std::make_unique<vxLayer>(vxShadowLayerOf(kLineLayer), s, getShadowClipRect());
    layer->addClipShape(nullptr);
    if (auto line = makeSeriesLine(s)) {
        line->getAppearance()->setBorderPaint(*shadow->getPaint());
        line->shift(shadow->getXOffset(), shadow->getYOffset());
        layer->addShape(std::move(line));
    }
    handOver(layerMng, std::move(layer));
}

// A symbol stands on a valid point whose value the value axis shows.
bool vxPointChart::isDrawableSymbol(long s, long c) const {
    if (c >= static_cast<long>(validDC.size()) || !validDC[static_cast<size_t>(c)]) return false;
    return !isOneDimensional() || getParameters().isStacked() || isInAxisRange(getValue(s, 1, c));
}

void vxPointChart::addSymbols(vxLayerManager& layerMng, long s) {
    addSymbolLayer(layerMng, s, nullptr);
}

void vxPointChart::addSymbolShadows(vxLayerManager& layerMng, long s) {
    if (const vxShadowOLD* shadow = getShadowOf(s)) addSymbolLayer(layerMng, s, shadow);
}

// The symbols of a series at its drawable points, or their silhouettes in
// a shadow's paint, moved by its offsets.
void vxPointChart::addSymbolLayer(vxLayerManager& layerMng, long s, const vxShadowOLD* shadow) {
    const vxStyleManager* styles = getStyleManager();
    if (!styles || !getParameters().doShowSymbols() || !setUpSeriesPolygon(s)) return;
    const long type = shadow ? vxShadowLayerOf(kSymbolLayer) : kSymbolLayer;
    auto layer =
        std::make_unique<vxLayer>(type, s, shadow ? getShadowClipRect() : getExtendedPlotBounds());
    layer->addClipShape(nullptr);
    const float dx = shadow ? shadow->getXOffset() : 0.0f;
    const float dy = shadow ? shadow->getYOffset() : 0.0f;
    for (long c = 0; c < static_cast<long>(xDC.size()); ++c) {
        if (!isDrawableSymbol(s, c)) continue;
        const vxSymbolStyle* style = styles->getSymbolStyle(s + 1, c + 1);
        if (!style || !style->getSymbol() || !style->getSymbol()->isDrawn()) continue;
        auto symbol = std::make_unique<vxBasicSymbol>();
        if (!symbol->copy(style->getSymbol())) throw std::bad_alloc();
        symbol->setCenter(xDC[static_cast<size_t>(c)] + dx, yDC[static_cast<size_t>(c)] + dy);
        vxGObjectAppearanceOLD& appearance = *symbol->getAppearance();
        if (shadow && appearance.hasFill()) appearance.setFillPaint(*shadow->getPaint());
        if (shadow && appearance.hasBorder()) appearance.setBorderPaint(*shadow->getPaint());
        layer->addShape(std::move(symbol));
    }
    handOver(layerMng, std::move(layer));
}

void vxPointChart::handOver(vxLayerManager& layerMng, std::unique_ptr<vxLayer> layer) {
    if (layer->isError()) return copyError(layer->getError());
    if (layer->getNumOfShapes() <= 1) return;
    layerMng.addLayer(std::move(layer));
    if (layerMng.isError()) copyError(layerMng.getError());
}

}  // namespace Velarix
