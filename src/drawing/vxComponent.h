// An object of a view that takes script calls of its own while it is open:
// a chart, a table or a calendar. It lays itself out in setUp and puts its
// graphic objects into layers of its own in setUpLayers.
#pragma once

#include "graphics/vxGObjectOLD.h"

namespace Velarix {

class vxAssign;
class vxLayerManager;
class vxCurveFittingData;

class vxComponent : public vxGObjectOLD {
public:
    vxComponent(const wchar_t* name, vxUserSettings* owner, const float frame[4]);
    ~vxComponent() override;

    virtual void assign(vxAssign& assign) = 0;
    virtual void setUp(const float bounds[4]) {}
    virtual void setUpLayers(vxLayerManager* layerMng) {}
    virtual void setUpCurveFittingData(vxCurveFittingData* data) {}

    const float* getFrame() const { return frame; }

protected:
    void transformGeometry(const vxTransform2DOLD& transform) override;
    void calculateBounds(float bounds[4]) const override;

    float frame[4];  // left, top, right, bottom
};

}  // namespace Velarix
