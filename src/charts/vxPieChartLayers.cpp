// The pie on its layers: the slices' shadows, the slices in their order of
// drawing, the add-on chart, then the labels. And the looks of the slices,
// which the legend shows an entry a slice.
#include <memory>

#include "charts/vxChartLayerTypes.h"
#include "charts/vxChartShapes.h"
#include "charts/vxPieChart.h"
#include "charts/vxPieChartAddOnChart.h"
#include "charts/vxPieChartItem.h"
#include "drawing/vxLayer.h"
#include "drawing/vxLayerManager.h"
#include "graphics/vxGObjectOLD.h"
#include "graphics/vxLabel.h"
#include "graphics/vxPath2DOLD.h"
#include "graphics/vxShadowOLD.h"
#include "styles/vxShadowStyle.h"
#include "styles/vxStyleManager.h"

namespace Velarix {

namespace {

constexpr long kSliceShadowLayer = vxShadowLayerOf(kPieSliceLayer);
constexpr long kFirstSeries = 1;

}  // namespace

void vxPieChart::setUpLayers(vxLayerManager* layerMng) {
    if (!layerMng || isError()) return;
    setUpClipRect(0.5f);
    try {
        if (getParameters().doShowShadows()) addSliceShadows(*layerMng);
        if (!isError()) addSlices(*layerMng);
        if (!isError()) addAddOnChart(*layerMng);
        if (!isError()) addLabels(*layerMng);
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"setUpLayers"));
    }
}

// The look of item i's slices: the item's own style of series 1, when the
// script gave one; else the style of series i + 1, so that the legend's
// entry i shows it.
vxBaseChart::Look vxPieChart::getWedgeLook(long item) const {
    const vxStyleManager* styles = getStyleManager();
    if (!styles) return {};
    const vxFillStyle* fill = styles->getFillStyle(kFirstSeries, item + 1);
    const bool own = fill && fill->getSeriesIndex() == kFirstSeries && fill->hasItems();
    Look look = getAreaLook(own ? 0 : item, own ? item : -1);
    const vxBorderStyle* border = styles->getBorderStyle(kFirstSeries, item + 1);
    if (border && border->getSeriesIndex() == kFirstSeries && border->hasItems()) {
        const Look bordered = getAreaLook(0, item);
        look.stroke = bordered.stroke;
        look.border = bordered.border;
    }
    return look;
}

vxBaseChart::SeriesLook vxPieChart::getSeriesLook(long entry) const {
    SeriesLook look;
    look.area = getWedgeLook(entry);
    return look;
}

void vxPieChart::addSliceShadows(vxLayerManager& layerMng) {
    const vxStyleManager* styles = getStyleManager();
    const vxShadowStyle* style = styles ? styles->getShadowStyle(kFirstSeries, 1) : nullptr;
    const vxShadowOLD* shadow = style ? style->getShadow() : nullptr;
    if (!shadow || !shadow->getPaint()) return;
    const float reach[4] = {
        std::min(0.0f, shadow->getXOffset()), std::min(0.0f, shadow->getYOffset()),
        std::max(0.0f, shadow->getXOffset()), std::max(0.0f, shadow->getYOffset())};
    setUpShadowClipRect(reach);
    auto layer = std::make_unique<vxLayer>(kSliceShadowLayer, 0, getShadowClipRect());
    layer->addClipShape(nullptr);
    for (const long i : drawingIndices) {
        if (angles[size_t(i)] == 0.0f) continue;
        std::unique_ptr<vxPath2DOLD> path = items[size_t(i)]->makeSilhouette();
        Look look;
        look.fill = shadow->getPaint();
        vxApplyLook(*path, look);
        path->shift(shadow->getXOffset(), shadow->getYOffset());
        layer->addShape(std::move(path));
    }
    handOver(layerMng, std::move(layer));
}

void vxPieChart::addSlices(vxLayerManager& layerMng) {
    auto layer = std::make_unique<vxLayer>(kPieSliceLayer, 0, getExtendedPlotBounds());
    layer->addClipShape(nullptr);
    vxPieChartItem::Shapes shapes;
    // Slices of no whole degree stand last in the order and draw nothing:
    // their area is nil, and their borders would only darken a line.
    for (const long i : drawingIndices) {
        if (angles[size_t(i)] == 0.0f) break;
        if (!items[size_t(i)]->addShapes(shapes, getWedgeLook(indices[size_t(i)]))) {
            throw std::bad_alloc();
        }
    }
    for (auto& shape : shapes) layer->addShape(std::move(shape));
    handOver(layerMng, std::move(layer));
}

void vxPieChart::addAddOnChart(vxLayerManager& layerMng) {
    if (!addOnChart || !addOnChart->isShown()) return;
    auto layer = std::make_unique<vxLayer>(kPieSliceLayer, 1, getLimitBounds());
    layer->addClipShape(nullptr);
    vxPieChartItem::Shapes shapes;
    if (!addOnChart->addShapes(shapes, [this](long item) { return getWedgeLook(item); })) {
        throw std::bad_alloc();
    }
    for (auto& shape : shapes) layer->addShape(std::move(shape));
    handOver(layerMng, std::move(layer));
}

// Inner labels over the slices, outer labels with their lines, the centre
// label last.
void vxPieChart::addLabels(vxLayerManager& layerMng) {
    auto layer = std::make_unique<vxLayer>(kLabelLayer, kWholeChart, getLabelClipRect());
    layer->addClipShape(nullptr);
    for (auto* owned : {&innerOwned, &outerOwned}) {
        for (auto& label : *owned) {
            if (label) layer->addShape(std::move(label));
        }
    }
    if (centerLabel) layer->addShape(std::move(centerLabel));
    outerLabels.clear();
    innerLabels.clear();
    handOver(layerMng, std::move(layer));
}

void vxPieChart::handOver(vxLayerManager& layerMng, std::unique_ptr<vxLayer> layer) {
    if (layer->isError()) return copyError(layer->getError());
    if (layer->getNumOfShapes() <= 1) return;
    layerMng.addLayer(std::move(layer));
    if (layerMng.isError()) copyError(layerMng.getError());
}

}  // namespace Velarix
