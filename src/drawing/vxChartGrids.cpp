// The grids of a chart: the calls of their group and their layers.
#include "drawing/vxChart.h"
#include "furniture/vxGrid.h"
#include "furniture/vxGridManager.h"
#include "script/vxAssign.h"

namespace Velarix {

// An error names the call.
void vxChart::assignGrids(vxAssign& a) {
    if (!gridManager && !create(gridManager, L"createGridManager", getOwnerSettings(), this)) {
        return;
    }
    if (!gridManager->isError()) gridManager->assign(a);
    if (!gridManager->isError()) return;
    copyError(gridManager->getError());
    const vxAssign::CallPlace& place = a.getCallPlace();
    if (error && place.line > 0) error->setCallPlace(place.line, place.fnName, place.scriptPart);
}

// The planes follow the axes as they are laid out when the grids behind
// the series are set up.
void vxChart::setUpGridLayers(vxLayerManager* layerMng, bool front) {
    if (!gridManager) return;
    if (!front) gridManager->setUp();
    if (!gridManager->isError()) {
        gridManager->addToLayers(layerMng, front ? vxGrid::kFront : vxGrid::kBack);
    }
    if (gridManager->isError()) copyError(gridManager->getError());
}

}  // namespace Velarix
