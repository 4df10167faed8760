// An area through the (x, y) pairs of each series: a closed polygon of its
// points, or closed down to the x axis (1) or across to the y axis (2) at
// the reference value. The chart function gives that choice after the
// flags. The layers are those of the 1D chart.
#pragma once

#include "charts/vxAreaChart1D.h"

namespace Velarix {

class vxAreaChart2D : public vxAreaChart1D {
public:
    enum FillTo : short { kSelf = 0, kXAxis = 1, kYAxis = 2 };

    vxAreaChart2D();

    void assign(vxAssign& assign) override;
    void setUp() override;
    bool setUpSeriesPolygon(long series) override;
    short getFillAreaToAxis() const { return mFillAreaToAxis; }

protected:
    std::unique_ptr<vxPath2DOLD> makeAreaOutline(long series) override;

private:
    short mFillAreaToAxis = kSelf;
};

}  // namespace Velarix
