// The backgrounds of a chart's planes: plane 1 is the plot (the back wall
// of a chart with depth), plane 2 the floor and plane 3 the side wall at
// the first axis's start. ChartBackground, ChartBackgroundOptions and
// ChartBackgroundPict name a plane first ("all" 0, "xy" 1, "xz" 2, "yz" 3);
// a plane's background is made at its first call.
#pragma once

#include <array>
#include <memory>
#include <ostream>

#include "settings/vxErrorHolder.h"

namespace Velarix {

class vxAssign;
class vxBackground;
class vxBaseChartDepthInfo;
class vxLayerManager;
class vxUserSettings;

class vxBackgroundManager : public vxErrorHolder {
public:
    static constexpr int kNumOfPlanes = 3;

    explicit vxBackgroundManager(vxUserSettings* owner);
    ~vxBackgroundManager() override;

    void assign(vxAssign& assign);
    // Puts the planes on the plot, whose rectangle is the front face of a
    // chart with depth; without depth only the plot's plane has a place.
    void setUp(const float plot[4], const vxBaseChartDepthInfo* depth);
    // One layer of type 60 for each plane that has a background and a place.
    void setUpLayers(vxLayerManager* layerMng);

    // Plane 1 to 3; null before the script gave it a background.
    vxBackground* getBackground(short plane) const;
    long getNumOfBackgrounds() const;

    void dump(short depth, std::ostream& out) const;

private:
    bool createBackground(short plane);
    void assignToPlane(short plane, vxAssign& assign);

    vxUserSettings* owner;  // not owned
    std::array<std::unique_ptr<vxBackground>, kNumOfPlanes> backgrounds;
    std::array<bool, kNumOfPlanes> isPlaced = {};
};

}  // namespace Velarix
