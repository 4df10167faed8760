#include "charts/vxPieChartWedge3D.h"

#include "graphics/vxPath2DOLD.h"

namespace Velarix {

void vxPieChartWedge3D::reserveArcPoints() {
    xTopCenterDC = xBottomCenterDC = frame.cx;
    yTopCenterDC = frame.cy;
    yBottomCenterDC = frame.cy + frame.depth;
    sampleArc(frame.cx, frame.cy, frame.rx, frame.ry, startAngle, arcAngle, xTopArcDC, yTopArcDC);
    xBottomArcDC = xTopArcDC;
    yBottomArcDC = yTopArcDC;
    for (float& y : yBottomArcDC) y += frame.depth;
    splitArc();
}

void vxPieChartWedge3D::outline(vxPath2DOLD& path, float dy) const {
    path.clear();
    if (isFullCircle()) {
        path.moveTo(xTopArcDC[0], yTopArcDC[0] + dy);
    } else {
        path.moveTo(xTopCenterDC, yTopCenterDC + dy);
        path.lineTo(xTopArcDC[0], yTopArcDC[0] + dy);
    }
    for (size_t i = 1; i < xTopArcDC.size(); ++i) path.lineTo(xTopArcDC[i], yTopArcDC[i] + dy);
    path.close();
}

}  // namespace Velarix
