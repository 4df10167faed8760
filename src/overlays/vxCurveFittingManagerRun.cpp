// The fits of a chart at set-up, their layers, the limits they need and
// their results.
#include <algorithm>
#include <new>

#include "charts/vxBaseChart.h"
#include "charts/vxChartLayerTypes.h"
#include "data/vxDataManager.h"
#include "drawing/vxLayer.h"
#include "drawing/vxLayerManager.h"
#include "graphics/vxGObjectOLD.h"
#include "graphics/vxShadowOLD.h"
#include "overlays/vxCurveFittingData.h"
#include "overlays/vxCurveFittingItem.h"
#include "overlays/vxCurveFittingManager.h"

namespace Velarix {

namespace {

constexpr long kLineShadowLayer = vxShadowLayerOf(kLineLayer);

}  // namespace

const vxCurveFittingItem* vxCurveFittingManager::getItem(long index) const {
    if (index < 0 || index >= getNumOfItems()) return nullptr;
    return items[static_cast<size_t>(index)].get();
}

void vxCurveFittingManager::setUp(const vxDataManager& data) {
    if (setUpDone || isError()) return;
    setUpDone = true;
    try {
        if (!makeItems(data.getNumOfChartSeries())) return;
    } catch (const std::bad_alloc&) {
        return setError(vxErrRuntime::kOutOfMemory, where(L"setUp"));
    }
    for (const auto& item : items) {
        item->setUp(data);
        if (item->isError()) return (void)takeError(*item);
    }
}

// Series by series, the requests in the order of the script: those of the
// series itself and those of all series, unless the series has its own of
// that type. Requests for series the chart lacks make nothing.
bool vxCurveFittingManager::makeItems(long numOfSeries) {
    items.clear();
    for (long s = 1; s <= numOfSeries; ++s) {
        const bool isExcluded = std::find(excluded.begin(), excluded.end(), s) != excluded.end();
        for (const auto& request : requests) {
            const long own = request->getSeriesIndex();
            if (own != s && (own != 0 || isExcluded || findRequest(s, request->getType()))) {
                continue;
            }
            std::unique_ptr<vxCurveFittingItem> item =
                vxCurveFittingItem::make(request->getType(), owner);
            if (!item->copyFrom(*request)) return takeError(*item);
            item->setSeriesIndex(s);
            items.push_back(std::move(item));
        }
    }
    return true;
}

void vxCurveFittingManager::addCurveFitting(vxLayerManager& layerMng, const vxBaseChart& chart,
                                            long series) {
    if (isError()) return;
    try {
        auto lines = std::make_unique<vxLayer>(kLineLayer, series, chart.getExtendedPlotBounds());
        auto marks = std::make_unique<vxLayer>(kSymbolLayer, series, chart.getExtendedPlotBounds());
        lines->addClipShape(nullptr);
        marks->addClipShape(nullptr);
        std::vector<std::unique_ptr<vxGObjectOLD>> symbols;
        for (const auto& item : items) {
            if (item->getSeriesIndex() != series + 1) continue;
            if (auto curve = item->makeCurve(chart)) lines->addShape(std::move(curve));
            item->makeSymbols(chart, symbols);
        }
        for (auto& symbol : symbols) marks->addShape(std::move(symbol));
        handOver(layerMng, std::move(lines));
        if (!isError()) handOver(layerMng, std::move(marks));
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"addCurveFitting"));
    }
}

void vxCurveFittingManager::addCurveFittingShadow(vxLayerManager& layerMng,
                                                  const vxBaseChart& chart, long series,
                                                  const vxShadowOLD& shadow) {
    if (isError() || !shadow.getPaint()) return;
    try {
        auto layer = std::make_unique<vxLayer>(kLineShadowLayer, series, chart.getShadowClipRect());
        layer->addClipShape(nullptr);
        for (const auto& item : items) {
            if (item->getSeriesIndex() != series + 1) continue;
            auto curve = item->makeCurve(chart, shadow.getPaint());
            if (!curve) continue;
            curve->shift(shadow.getXOffset(), shadow.getYOffset());
            layer->addShape(std::move(curve));
        }
        handOver(layerMng, std::move(layer));
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"addCurveFittingShadow"));
    }
}

void vxCurveFittingManager::handOver(vxLayerManager& layerMng, std::unique_ptr<vxLayer> layer) {
    if (layer->isError()) return copyError(layer->getError());
    if (layer->getNumOfShapes() <= 1) return;
    layerMng.addLayer(std::move(layer));
    if (layerMng.isError()) copyError(layerMng.getError());
}

// Axis 0 holds value series 0 of the chart series, axis 1 the values.
void vxCurveFittingManager::getYLimits(std::vector<double>& minValues,
                                       std::vector<double>& maxValues) const {
    if (minValues.size() < 2 || maxValues.size() < 2) return;
    for (const auto& item : items) {
        const size_t x = item->doSwitchAxes() ? 1 : 0;
        const size_t y = 1 - x;
        const double independent[2] = {minValues[x], maxValues[x]};
        double dependent[2] = {minValues[y], maxValues[y]};
        item->getYLimits(independent, dependent);
        minValues[y] = dependent[0];
        maxValues[y] = dependent[1];
    }
}

void vxCurveFittingManager::addResults(vxCurveFittingData& data, long chartIndex) {
    for (const auto& item : items) {
        if (!item->hasCoefficients()) continue;
        vxCurveFittingDataItem result;
        item->fillDataItem(result);
        result.chartIndex = chartIndex;
        if (!data.addItem(result)) return (void)takeError(data);
    }
}

}  // namespace Velarix
