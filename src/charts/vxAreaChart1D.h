// Areas between each series and the base line, or, stacked, between a
// series' level and the level below it, so that no fill lies on another.
// An area is cut at the gaps of its series into pieces of two points and
// more. The series' top edge can be drawn again with its line style.
//
// The chart function gives, after the flags, whether the points stand in
// the middle of their intervals; AreaChartOptions whether the line styles
// draw, the reference value and whether stacks split by sign.
#pragma once

#include <memory>

#include "charts/vxPointChart.h"

namespace Velarix {

class vxAreaChart1D : public vxPointChart {
public:
    vxAreaChart1D();

    void assign(vxAssign& assign) override;
    void setOptions(vxAssign& assign) override;
    void setDefaults() override;
    void setUp() override;
    void setUpLayers(vxLayerManager* layerMng) override;
    bool doUseLineStyles() const { return useLineStyles; }

protected:
    explicit vxAreaChart1D(const wchar_t* className);
    void setUpMarkerType();
    // The outline of the series' areas, one closed piece a run of valid
    // points, from the scratch pair; null for none.
    virtual std::unique_ptr<vxPath2DOLD> makeAreaOutline(long series);
    // Where the bottom edge of series s lies at item c, across the
    // interval axis.
    float bottomOf(long series, long item) const;
    // ---- layers (vxAreaChartLayers.cpp) ----
    void addAreaLayers(vxLayerManager& layerMng, bool shadows);
    void addAreaPart(vxLayerManager& layerMng, const vxShadowOLD* shadow, long series, bool border);

    bool useLineStyles = false;
};

}  // namespace Velarix
