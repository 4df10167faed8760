// A rectangle of the drawing that holds charts, sub-views and shapes in
// script order. The root view covers the whole drawing.
//
// The view receives every script call that belongs to the layout, a chart or
// an added shape through assign, which answers the view that is current from
// then on (OpenView moves down, CloseView up). The run then calls, in order:
//   1. setUp(bounds): every view and chart computes its layout;
//   2. setUpLayers(layerMng): the objects are put into numbered layers;
//   3. setUpCurveFittingData(data): fitted curves are collected.
#pragma once

#include <ostream>

#include "settings/vxErrorHolder.h"

namespace Velarix {

class vxAssign;
class vxLayerManager;
class vxCurveFittingData;

class vxView : public vxErrorHolder {
public:
    vxView();
    ~vxView() override;

    virtual vxView* assign(vxAssign& assign);
    virtual void setUp(const float bounds[4]);
    virtual void setUpLayers(vxLayerManager* layerMng);
    virtual void setUpCurveFittingData(vxCurveFittingData* data);
    virtual void dump(short depth, std::ostream& out) const;

    const float* getBounds() const { return bounds; }

private:
    float bounds[4] = {0.0f, 0.0f, 0.0f, 0.0f};
};

}  // namespace Velarix
