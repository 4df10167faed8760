#include "charts/vxPieChartDoughnut3D.h"

#include "graphics/vxPath2DOLD.h"

namespace Velarix {

void vxPieChartDoughnut3D::reserveArcPoints() {
    const float k = frame.innerFraction;
    sampleArc(frame.cx, frame.cy, frame.rx, frame.ry, startAngle, arcAngle, xOuterTopArcDC,
              yOuterTopArcDC);
    sampleArc(frame.cx, frame.cy, frame.rx * k, frame.ry * k, startAngle, arcAngle, xInnerTopArcDC,
              yInnerTopArcDC);
    splitArc();
}

// As the flat ring: the inner arc backward, a whole ring's hole apart.
void vxPieChartDoughnut3D::outline(vxPath2DOLD& path, float dy) const {
    path.clear();
    const std::vector<float>& xo = xOuterTopArcDC;
    const std::vector<float>& yo = yOuterTopArcDC;
    const std::vector<float>& xi = xInnerTopArcDC;
    const std::vector<float>& yi = yInnerTopArcDC;
    path.moveTo(xo[0], yo[0] + dy);
    for (size_t i = 1; i < xo.size(); ++i) path.lineTo(xo[i], yo[i] + dy);
    if (isFullCircle()) {
        path.close();
        path.moveTo(xi.back(), yi.back() + dy);
    } else {
        path.lineTo(xi.back(), yi.back() + dy);
    }
    for (size_t i = xi.size() - 1; i-- > 0;) path.lineTo(xi[i], yi[i] + dy);
    path.close();
}

}  // namespace Velarix
