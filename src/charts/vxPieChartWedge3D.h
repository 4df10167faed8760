// A wedge with depth: its top and bottom arcs and centres.
#pragma once

#include <vector>

#include "charts/vxPieChartItem3D.h"

namespace Velarix {

class vxPieChartWedge3D : public vxPieChartItem3D {
public:
    float getXTopCenterDC() const { return xTopCenterDC; }
    float getYTopCenterDC() const { return yTopCenterDC; }
    float getYBottomCenterDC() const { return yBottomCenterDC; }
    const std::vector<float>& getXTopArcDC() const { return xTopArcDC; }
    const std::vector<float>& getYTopArcDC() const { return yTopArcDC; }
    const std::vector<float>& getYBottomArcDC() const { return yBottomArcDC; }

protected:
    void reserveArcPoints() override;
    void outline(vxPath2DOLD& path, float dy) const override;

private:
    float xBottomCenterDC = 0.0f, yBottomCenterDC = 0.0f;
    float xTopCenterDC = 0.0f, yTopCenterDC = 0.0f;
    std::vector<float> xBottomArcDC, yBottomArcDC;
    std::vector<float> xTopArcDC, yTopArcDC;
};

}  // namespace Velarix
