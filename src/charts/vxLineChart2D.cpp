#include "charts/vxLineChart2D.h"

namespace Velarix {

vxLineChart2D::vxLineChart2D() : vxLineChart1D(L"vxLineChart2D") {}

// The points are read series by series as they are drawn.
void vxLineChart2D::setUp() {
    setUpReferenceValue();
    if (!isError()) setUpAdditions();
}

bool vxLineChart2D::setUpSeriesPolygon(long s) {
    return setUpPairPolygon(s);
}

}  // namespace Velarix
