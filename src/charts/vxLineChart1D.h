// Lines through the values of each series at the positions of their
// categories, plain or stacked, upright or horizontal, with symbols,
// labels and shadows. A line is cut at the gaps of its series; a lone
// point between gaps shows its symbol only.
//
// The chart function gives, after the flags, whether the points stand in
// the middle of their intervals.
#pragma once

#include "charts/vxPointChart.h"

namespace Velarix {

class vxLineChart1D : public vxPointChart {
public:
    vxLineChart1D();

    void assign(vxAssign& assign) override;
    // The reference value comes with ScatterChartOptions; LineChartOptions
    // has no effect on the chart.
    void setOptions(vxAssign& assign) override;
    void setDefaults() override;
    void setUp() override;
    void setUpLayers(vxLayerManager* layerMng) override;

protected:
    explicit vxLineChart1D(const wchar_t* className);
    void addSeriesShadows(vxLayerManager& layerMng);
    void addSeries(vxLayerManager& layerMng);
};

}  // namespace Velarix
