// Value labels at the points, with the label flag of the chart function:
// one layer a series, the last series first, or for stacks one layer of
// them all at the stacks' levels.
#include <algorithm>
#include <cmath>
#include <memory>

#include "charts/vxChartLayerTypes.h"
#include "charts/vxPointChart.h"
#include "drawing/vxLayer.h"
#include "drawing/vxLayerManager.h"
#include "graphics/vxBasicSymbol.h"
#include "graphics/vxLabel.h"
#include "graphics/vxText.h"
#include "styles/vxLabelStyle.h"
#include "styles/vxStyleManager.h"
#include "styles/vxSymbolStyle.h"

namespace Velarix {

namespace {

// Moves of the anchor off a symbol by the label's place, in halves of the
// symbol's size: keypad places 1 to 9.
constexpr float kAroundSymbol[10][2] = {{0, 0}, {-1, -1}, {0, -1}, {1, -1}, {-1, 0},
                                        {0, 0}, {1, 0},   {-1, 1}, {0, 1},  {1, 1}};

}  // namespace

void vxPointChart::shiftLabelAroundSymbol(long s, short location, float point[2]) const {
    const vxStyleManager* styles = getStyleManager();
    if (!getParameters().doShowSymbols() || !styles || location < 1 || location > 9) return;
    const vxSymbolStyle* style = styles->getSymbolStyle(s + 1, 1);
    if (!style || !style->getSymbol() || !style->getSymbol()->isDrawn()) return;
    const float half = style->getSymbol()->getSize() / 2;
    point[0] += kAroundSymbol[location][0] * half;
    point[1] += kAroundSymbol[location][1] * half;
}

void vxPointChart::addLabels(vxLayerManager& layerMng) {
    if (getParameters().isStacked() && isOneDimensional()) return addStackedLabels(layerMng);
    addNonStackedLabels(layerMng);
}

void vxPointChart::addNonStackedLabels(vxLayerManager& layerMng) {
    if (!getStyleManager() || !getParameters().doShowLabels()) return;
    for (long s = getNumOfChartSeries() - 1; s >= 0 && !isError(); --s) {
        if (!setUpSeriesPolygon(s)) continue;
        auto layer = std::make_unique<vxLayer>(kLabelLayer, s, getLabelClipRect());
        layer->addClipShape(nullptr);
        for (long c = 0; c < static_cast<long>(xDC.size()); ++c) {
            if (auto label = makePointLabel(s, c, false)) layer->addShape(std::move(label));
        }
        handOver(layerMng, std::move(layer));
    }
}

void vxPointChart::addStackedLabels(vxLayerManager& layerMng) {
    if (!getStyleManager() || !getParameters().doShowLabels()) return;
    auto layer = std::make_unique<vxLayer>(kLabelLayer, kWholeChart, getLabelClipRect());
    layer->addClipShape(nullptr);
    for (long s = getNumOfChartSeries() - 1; s >= 0 && !isError(); --s) {
        if (!setUpSeriesPolygon(s)) continue;
        for (long c = 0; c < static_cast<long>(xDC.size()); ++c) {
            if (auto label = makePointLabel(s, c, true)) layer->addShape(std::move(label));
        }
    }
    handOver(layerMng, std::move(layer));
}

// The label of point (s, c) from the scratch pair: its style's text or a
// format of the value, placed about the point (off its symbol) by the
// style's location. A proportional chart shows each value as its share of
// the larger total of its stack. Null for no label.
std::unique_ptr<vxLabel> vxPointChart::makePointLabel(long s, long c, bool stacked) {
    const vxLabelStyle* style = getStyleManager()->getLabelStyle(s + 1, c + 1);
    const double v = getValue(s, 1, c);
    if (!style || !style->getLabel() || !style->isInLimits(v)) return nullptr;
    if (!validDC[static_cast<size_t>(c)] || (!stacked && !isInAxisRange(v))) return nullptr;
    double shown = v;
    if (stacked && getParameters().isProportional()) {
        double positive = 0.0, negative = 0.0;
        getStackTotals(c, positive, negative);
        const double scale = std::max(positive, -negative);
        if (scale > 1e-10) shown = v / scale;
    }
    const std::wstring text = formatLabelString(kNumber, shown, style->getText(c + 1));
    if (text.empty()) return nullptr;
    auto label = std::make_unique<vxLabel>(style->getLabel()->getOwnerSettings());
    if (!label->set(style->getLabel())) throw std::bad_alloc();
    label->getText()->setText(text);
    const short location =
        style->getLocation() > 0 ? style->getLocation() : getDefaultLabelLocation();
    float at[2] = {xDC[static_cast<size_t>(c)], yDC[static_cast<size_t>(c)]};
    shiftLabelAroundSymbol(s, location, at);
    const float offset[2] = {style->getXOffset(), style->getYOffset()};
    label->setPosition(location, at, offset);
    return label;
}

}  // namespace Velarix
