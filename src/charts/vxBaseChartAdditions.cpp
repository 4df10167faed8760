#include "charts/vxBaseChart.h"

namespace Velarix {

void vxBaseChart::setUpAdditions() {}

void vxBaseChart::addCurveFitting(vxLayerManager&, long) {}

void vxBaseChart::addCurveFittingShadow(vxLayerManager&, long) {}

}  // namespace Velarix
