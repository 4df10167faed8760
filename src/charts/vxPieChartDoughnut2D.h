// A flat piece of a ring: along the outer arc and back along the inner
// one; a whole ring is the outer ellipse with the inner one as its hole.
#pragma once

#include <vector>

#include "charts/vxPieChartItem2D.h"

namespace Velarix {

class vxPieChartDoughnut2D : public vxPieChartItem2D {
public:
    const std::vector<float>& getXOuterArcDC() const { return xOuterArcDC; }
    const std::vector<float>& getYOuterArcDC() const { return yOuterArcDC; }
    const std::vector<float>& getXInnerArcDC() const { return xInnerArcDC; }
    const std::vector<float>& getYInnerArcDC() const { return yInnerArcDC; }

protected:
    void reserveArcPoints() override;
    void outline(vxPath2DOLD& path) const override;

private:
    std::vector<float> xInnerArcDC, yInnerArcDC;
    std::vector<float> xOuterArcDC, yOuterArcDC;
};

}  // namespace Velarix
