// A piece of a ring with depth: the inner and the outer arc of its top.
#pragma once

#include <vector>

#include "charts/vxPieChartItem3D.h"

namespace Velarix {

class vxPieChartDoughnut3D : public vxPieChartItem3D {
public:
    const std::vector<float>& getXOuterTopArcDC() const { return xOuterTopArcDC; }
    const std::vector<float>& getYOuterTopArcDC() const { return yOuterTopArcDC; }
    const std::vector<float>& getXInnerTopArcDC() const { return xInnerTopArcDC; }
    const std::vector<float>& getYInnerTopArcDC() const { return yInnerTopArcDC; }

protected:
    void reserveArcPoints() override;
    void outline(vxPath2DOLD& path, float dy) const override;

private:
    std::vector<float> xInnerTopArcDC, yInnerTopArcDC;
    std::vector<float> xOuterTopArcDC, yOuterTopArcDC;
};

}  // namespace Velarix
