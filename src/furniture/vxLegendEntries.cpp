// The entries of a legend: their texts and their markers.
#include "charts/vxBaseChart.h"
#include "data/vxDataManager.h"
#include "drawing/vxChart.h"
#include "furniture/vxLegend.h"
#include "furniture/vxLegendStandardItem.h"
#include "furniture/vxLegendWords.h"
#include "graphics/vxText.h"
#include "settings/vxUserSettings.h"

namespace Velarix {

namespace {

// The marker of a chart without a chart class: an area.
constexpr short kFallbackMarkerType = vxLegendStandardItem::kArea;

}  // namespace

void vxLegend::setUp(const vxChart& chart) {
    const vxDataManager* data = chart.getDataManager();
    const vxBaseChart* chartType = chart.getChartType();
    setUpTexts(chartType ? chartType->getNumOfLegendEntries()
                         : (data ? data->getNumOfChartSeries() : 0));
    if (!isError()) createItems(chart.getChartType(), chart.getStyleManager());
    if (!isError()) setUpBounds();
}

void vxLegend::setUpTexts(long numOfSeries) {
    languageID = owner ? owner->getLanguageID() : 1;
    const bool given = !givenTexts.empty();
    const long n = given ? static_cast<long>(givenTexts.size()) : std::max(0L, numOfSeries);
    try {
        texts.clear();
        texts.reserve(static_cast<size_t>(n));
        for (long i = 0; i < n; ++i) {
            const auto* text = given ? &givenTexts[static_cast<size_t>(i)] : nullptr;
            texts.push_back(text && *text ? **text : vxLegendDefaultText(languageID, i + 1));
        }
    } catch (const std::bad_alloc&) {
        texts.clear();
        setError(vxErrRuntime::kOutOfMemory, where(L"setUpTexts"));
    }
}

void vxLegend::createItems(const vxBaseChart* chartType, const vxStyleManager* styles) {
    items.clear();
    if (!createReferenceText()) return;
    effectiveMarkerType = markerType;
    if (effectiveMarkerType == 0) {
        effectiveMarkerType =
            chartType ? chartType->getDefaultLegendMarkerType() : kFallbackMarkerType;
    }
    try {
        items.reserve(texts.size());
        for (size_t i = 0; i < texts.size(); ++i) {
            auto item = std::make_unique<vxLegendStandardItem>(owner);
            const long series = static_cast<long>(i);
            const vxBaseChart::SeriesLook look = chartType
                                                     ? chartType->getSeriesLook(series)
                                                     : vxBaseChart::getSeriesLook(styles, series);
            if (!item->addText(*referenceText, texts[i]) ||
                !item->createMarker(look, effectiveMarkerType, markerShape, markerWidthDC,
                                    markerHeightDC)) {
                items.clear();
                return copyError(item->getError());
            }
            items.push_back(std::move(item));
        }
    } catch (const std::bad_alloc&) {
        items.clear();
        setError(vxErrRuntime::kOutOfMemory, where(L"createItems"));
    }
}

}  // namespace Velarix
