// A flat wedge: from the centre along the arc and back; a whole circle is
// the ellipse alone.
#pragma once

#include <vector>

#include "charts/vxPieChartItem2D.h"

namespace Velarix {

class vxPieChartWedge2D : public vxPieChartItem2D {
public:
    float getXCenterDC() const { return xCenterDC; }
    float getYCenterDC() const { return yCenterDC; }
    const std::vector<float>& getXArcDC() const { return xArcDC; }
    const std::vector<float>& getYArcDC() const { return yArcDC; }

protected:
    void reserveArcPoints() override;
    void outline(vxPath2DOLD& path) const override;

private:
    float xCenterDC = 0.0f;
    float yCenterDC = 0.0f;
    std::vector<float> xArcDC, yArcDC;
};

}  // namespace Velarix
