#include "charts/vxPieChartDoughnut2D.h"

#include "graphics/vxPath2DOLD.h"

namespace Velarix {

void vxPieChartDoughnut2D::reserveArcPoints() {
    const float k = frame.innerFraction;
    sampleArc(frame.cx, frame.cy, frame.rx, frame.ry, startAngle, arcAngle, xOuterArcDC,
              yOuterArcDC);
    sampleArc(frame.cx, frame.cy, frame.rx * k, frame.ry * k, startAngle, arcAngle, xInnerArcDC,
              yInnerArcDC);
}

// The inner arc runs backward: a whole ring's hole turns against its outer
// edge and stays empty by the non-zero rule.
void vxPieChartDoughnut2D::outline(vxPath2DOLD& path) const {
    path.clear();
    const bool full = isFullCircle();
    path.moveTo(xOuterArcDC[0], yOuterArcDC[0]);
    for (size_t i = 1; i < xOuterArcDC.size(); ++i) path.lineTo(xOuterArcDC[i], yOuterArcDC[i]);
    if (full) {
        path.close();
        path.moveTo(xInnerArcDC.back(), yInnerArcDC.back());
    } else {
        path.lineTo(xInnerArcDC.back(), yInnerArcDC.back());
    }
    for (size_t i = xInnerArcDC.size() - 1; i-- > 0;) path.lineTo(xInnerArcDC[i], yInnerArcDC[i]);
    path.close();
}

}  // namespace Velarix
