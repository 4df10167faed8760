#include "charts/vxPieChartWedge2D.h"

#include "graphics/vxPath2DOLD.h"

namespace Velarix {

void vxPieChartWedge2D::reserveArcPoints() {
    xCenterDC = frame.cx;
    yCenterDC = frame.cy;
    sampleArc(frame.cx, frame.cy, frame.rx, frame.ry, startAngle, arcAngle, xArcDC, yArcDC);
}

void vxPieChartWedge2D::outline(vxPath2DOLD& path) const {
    path.clear();
    const bool full = isFullCircle();
    if (full) {
        path.moveTo(xArcDC[0], yArcDC[0]);
    } else {
        path.moveTo(xCenterDC, yCenterDC);
        path.lineTo(xArcDC[0], yArcDC[0]);
    }
    for (size_t i = 1; i < xArcDC.size(); ++i) path.lineTo(xArcDC[i], yArcDC[i]);
    path.close();
}

}  // namespace Velarix
