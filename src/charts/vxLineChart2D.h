// Lines through the (x, y) pairs of each series: a data set is a pair of
// series, x first. The layers are those of the 1D chart.
#pragma once

#include "charts/vxLineChart1D.h"

namespace Velarix {

class vxLineChart2D : public vxLineChart1D {
public:
    vxLineChart2D();

    void setUp() override;
    bool setUpSeriesPolygon(long series) override;
};

}  // namespace Velarix
