// The layer of a legend: its background, then each entry's marker and
// text, in the order of the entries.
#include "charts/vxChartLayerTypes.h"
#include "drawing/vxLayer.h"
#include "drawing/vxLayerManager.h"
#include "furniture/vxLegend.h"
#include "graphics/vxLabel.h"

namespace Velarix {

void vxLegend::setUpLayer(vxLayerManager* layerMng) {
    if (!layerMng || getNumOfEntries() == 0) return;
    std::unique_ptr<vxLayer> layer;
    if (!create(layer, L"setUpLayer", long(kLegendLayer), 0L, layerMng->getCurrentClipRect())) {
        return;
    }
    if (background && background->hasBackground()) layer->addShape(background.get());
    for (auto& item : items) {
        if (!item->addTo(*layer)) return copyError(item->getError());
    }
    if (layer->isError()) return copyError(layer->getError());
    layerMng->addLayer(std::move(layer));
    if (layerMng->isError()) copyError(layerMng->getError());
}

}  // namespace Velarix
