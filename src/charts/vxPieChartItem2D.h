// A flat slice: one shape, its outline filled and bordered in the wedge's
// look.
#pragma once

#include "charts/vxPieChartItem.h"

namespace Velarix {

class vxPieChartItem2D : public vxPieChartItem {
public:
    bool addShapes(Shapes& out, const vxBaseChart::Look& look) const override;
    std::unique_ptr<vxPath2DOLD> makeSilhouette() const override;

protected:
    // The slice's closed outline.
    virtual void outline(vxPath2DOLD& path) const = 0;
};

}  // namespace Velarix
