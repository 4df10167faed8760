// The legend of a chart: one marker and one text per entry, laid out in
// rows and columns inside a background of its own. The chart makes it at
// the first Legend... call, sets it up once the series are read, reserves
// room for it or places it in the plot, and then asks for its layer.
#pragma once

#include <memory>
#include <ostream>

#include "furniture/vxChartBox.h"
#include "settings/vxErrorHolder.h"

namespace Velarix {

class vxAssign;
class vxChart;
class vxLayerManager;
class vxUserSettings;

class vxLegend : public vxErrorHolder, public vxChartBox {
public:
    explicit vxLegend(vxUserSettings* owner);
    ~vxLegend() override;

    // LegendOptions, LegendStyle, LegendTexts, LegendBackground,
    // LegendBackgroundOptions.
    void assign(vxAssign& assign);
    // Makes the entries for the chart's series and measures the legend.
    void setUp(const vxChart& chart);
    // A layer of type 51 with the background and the entries; nothing for
    // a legend without entries.
    void setUpLayer(vxLayerManager* layerMng);

    short getBoxLocation() const override;
    bool isBoxInside() const override;
    void getBoxOffsets(float offsets[2]) const override;
    void getBoxSize(float size[2]) const override;
    void moveBoxTo(float left, float top) override;

    void dump(short depth, std::ostream& out) const;

private:
    vxUserSettings* owner;  // not owned
};

}  // namespace Velarix
