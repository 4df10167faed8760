// Laying out the axes of a Cartesian chart and handing them to the layers.
#include <algorithm>

#include "axes/vxAxisItem.h"
#include "axes/vxAxisManager.h"
#include "axes/vxAxisScaling.h"
#include "drawing/vxLayer.h"
#include "drawing/vxLayerManager.h"
#include "graphics/vxBoundsUnion.h"

namespace Velarix {

void vxAxisManager::setUpCartesian(const float plot[4], const std::vector<AxisSpan>& spans,
                                   short chartKind, bool isBarOrAreaDateTime,
                                   const vxFormatSettings* settings) {
    doRecalcBounds = true;
    const long count = std::min<long>(2, std::min(getNumOfAxes(), long(spans.size())));
    for (long i = 0; i < count && !isError(); ++i) {
        vxAxisItem& axis = *axes[static_cast<size_t>(i)];
        const AxisSpan& s = spans[static_cast<size_t>(i)];
        axis.setAxisType(s.dataType);
        axis.setCategoryValues(s.categories, s.categoryShift);
        axis.setPhi(i == 0 ? vxAxisItem::kHorizontalPhi : 0.0f);
        if (i == 0) {
            axis.setUpHScaling(plot, s.min, s.max, false, s.hasDate, s.hasTime, chartKind,
                               isBarOrAreaDateTime);
        } else {
            axis.setUpVScaling(plot, s.min, s.max, false, s.hasDate, s.hasTime, chartKind,
                               isBarOrAreaDateTime);
        }
        if (axis.isError()) return copyError(axis.getError());
    }
    for (long i = 0; i < count; ++i) {
        vxAxisItem& axis = *axes[static_cast<size_t>(i)];
        axis.setUpTickMarks(plot, crossing(i, plot));
        axis.setUpLabels(settings);
        axis.placeTitle(plot);
        if (axis.isError()) return copyError(axis.getError());
    }
}

// Where axis i crosses the other one: at the plot's bottom or left side,
// or at the other axis's zero when it moves there and zero is on its scale.
float vxAxisManager::crossing(long i, const float plot[4]) const {
    const float edge = i == 0 ? plot[3] : plot[0];
    const vxAxisItem& axis = *axes[static_cast<size_t>(i)];
    const vxAxisItem* other = getAxis(1 - i);
    if (!axis.getDoRelocateAxis() || !other || !other->getScaling()) return edge;
    const vxAxisScaling& scale = *other->getScaling();
    return scale.isInScale(0.0) ? scale.toDC(0.0) : edge;
}

bool vxAxisManager::getOuterBounds(float bounds[4]) {
    if (doRecalcBounds) {
        hasOuterBounds = false;
        for (const auto& axis : axes) {
            float part[4];
            if (axis->getBounds(part)) vxUniteBounds(outerBounds, part, hasOuterBounds);
        }
        doRecalcBounds = false;
    }
    if (hasOuterBounds) std::copy(outerBounds, outerBounds + 4, bounds);
    return hasOuterBounds;
}

void vxAxisManager::setUpLayers(vxLayerManager* layerMng, const float clip[4], bool front) {
    if (!layerMng) return;
    std::unique_ptr<vxLayer> layer;
    if (!create(layer, L"setUpLayers", kLayerType, front ? kFrontSubType : kBackSubType, clip)) {
        return;
    }
    if (!layer->addClipShape(owner)) return copyError(layer->getError());
    for (const auto& axis : axes) {
        const bool isFront = axis->getAxisLocation() == vxAxisItem::kFront;
        if (isFront != front) continue;
        if (!axis->addTo(*layer)) return copyError(layer->getError());
    }
    layerMng->addLayer(std::move(layer));
    if (layerMng->isError()) copyError(layerMng->getError());
}

}  // namespace Velarix
