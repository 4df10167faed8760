#include "charts/vxBaseChart.h"
#include "data/vxDataManager.h"
#include "graphics/vxShadowOLD.h"
#include "overlays/vxCurveFittingManager.h"
#include "styles/vxShadowStyle.h"
#include "styles/vxStyleManager.h"

namespace Velarix {

// The fits are made once, whoever asks first: the axes' limits may have
// needed them already.
void vxBaseChart::setUpAdditions() {
    if (!curveFittingManager || !getDataManager() || isError()) return;
    curveFittingManager->setUp(*getDataManager());
    if (curveFittingManager->isError()) copyError(curveFittingManager->getError());
}

void vxBaseChart::addCurveFitting(vxLayerManager& layerMng, long series) {
    if (!curveFittingManager || isError()) return;
    curveFittingManager->addCurveFitting(layerMng, *this, series);
    if (curveFittingManager->isError()) copyError(curveFittingManager->getError());
}

void vxBaseChart::addCurveFittingShadow(vxLayerManager& layerMng, long series) {
    if (!curveFittingManager || isError() || !parameters.doShowShadows()) return;
    const vxShadowStyle* style =
        styleManager ? styleManager->getShadowStyle(series + 1, 1) : nullptr;
    if (!style || !style->getShadow()) return;
    curveFittingManager->addCurveFittingShadow(layerMng, *this, series, *style->getShadow());
    if (curveFittingManager->isError()) copyError(curveFittingManager->getError());
}

}  // namespace Velarix
