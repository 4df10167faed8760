// Bars laid out from the chart's axes: widths and gaps, edges beside each
// other and in stacks, upright and horizontal, and the boxes of bars with
// depth.
#include "charts/vxBarChart1D.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "axes/vxAxisScaling.h"
#include "axes/vxAxisTestSupport.h"
#include "drawing/vxLayer.h"
#include "drawing/vxLayerManager.h"
#include "graphics/vxLabel.h"
#include "graphics/vxText.h"
#include "graphics/vxTexturePaintOLD.h"
#include "script/vxAssign.h"
#include "support/vxPictureFiles.h"

namespace Velarix::test {
namespace {

class BarChart : public ChartScript {
protected:
    // Lays the chart out, then sets the bars up with the chart function's
    // arguments after the flags.
    void layOut(const std::wstring& calls, std::vector<float> gaps = {},
                std::vector<float> depth = {}) {
        ASSERT_EQ(run(calls), 0) << message();
        bars.getParameters().copyFrom(chart().getParameters());
        bars.setManagers(chart().getDataManager(), chart().getAxisManager(), nullptr);
        bars.setPlotBounds(chart().getPlotBounds());
        vxAssign a;
        for (float g : gaps) a.addFloat(g);
        while (a.getNumOfArguments() < 2) a.addVoid();
        if (depth.empty()) {
            a.addVoid();
        } else {
            a.addFloatArray(depth);
        }
        bars.assign(a);
        bars.setUp();
        ASSERT_FALSE(bars.isError());
    }
    std::vector<float> rect(long s, long c) {
        float r[4];
        if (!bars.getBarRect(s, c, r)) return {};
        return {r[0], r[1], r[2], r[3]};
    }
    vxBarChart1D bars;
};

TEST_F(BarChart, WidthsAndGapsShareTheIntervalAxis) {
    // Three series of four: 12 bars and 4 gaps of one bar width share the
    // axis of 0 to 4; the first bar starts half a gap from its start.
    layOut(L"BarChart()\nChartData(1 2 3 4; 2 3 4 5; 3 4 5 6)\n");
    const float length = bars.getIntervalAxisLengthDC();
    EXPECT_NEAR(bars.getBarWidthDC(), length / 16, 1e-4);
    EXPECT_NEAR(bars.getCategoryGapDC(), bars.getBarWidthDC(), 1e-4);
    const float left = chart().getPlotBounds()[0];
    EXPECT_NEAR(rect(0, 0)[0], left + bars.getBarWidthDC() / 2, 1e-3);
    EXPECT_NEAR(rect(1, 0)[0], rect(0, 0)[2], 1e-3);
    EXPECT_NEAR(rect(0, 1)[0] - rect(2, 0)[2], bars.getBarWidthDC(), 1e-3);
    // Upright bars stand on the reference value, 0, and reach their value.
    EXPECT_FLOAT_EQ(rect(2, 3)[3], axis(1).toDC(0));
    EXPECT_FLOAT_EQ(rect(2, 3)[1], axis(1).toDC(6));
    EXPECT_EQ(bars.getBarDirection(2, 3), vxBarChart1D::kUp);

    // Gaps of the script: none between categories, half a bar between series.
    layOut(L"BarChart()\nChartData(1 2; 2 3)\n", {0, 50});
    EXPECT_NEAR(bars.getBarWidthDC(), bars.getIntervalAxisLengthDC() / 5, 1e-3);
    EXPECT_NEAR(rect(1, 0)[0] - rect(0, 0)[2], bars.getBarWidthDC() / 2, 1e-3);
}

TEST_F(BarChart, NegativeValuesHangAndEmptyValuesAreNoBars) {
    layOut(L"BarChart()\nChartData(-5 null 0 8)\n");
    EXPECT_EQ(bars.getBarDirection(0, 0), vxBarChart1D::kDown);
    EXPECT_FLOAT_EQ(rect(0, 0)[1], axis(1).toDC(0));
    EXPECT_FLOAT_EQ(rect(0, 0)[3], axis(1).toDC(-5));
    EXPECT_TRUE(rect(0, 1).empty());
    EXPECT_FALSE(bars.isDrawable(0, 1));
    EXPECT_FALSE(bars.isDrawable(0, 2));  // a value of 0 draws nothing
    EXPECT_TRUE(bars.isDrawable(0, 3));
}

TEST_F(BarChart, StacksGrowFromTheReferenceBothWays) {
    layOut(L"BarChart(stacked)\nChartData(10 -4; 5 -6; -3 2)\n");
    EXPECT_FLOAT_EQ(bars.getSeriesGapPercent(), -100);
    // Category 1: 10 then 5 upward, -3 downward; all share one place.
    EXPECT_FLOAT_EQ(rect(0, 0)[3], axis(1).toDC(0));
    EXPECT_FLOAT_EQ(rect(0, 0)[1], axis(1).toDC(10));
    EXPECT_FLOAT_EQ(rect(1, 0)[3], axis(1).toDC(10));
    EXPECT_FLOAT_EQ(rect(1, 0)[1], axis(1).toDC(15));
    EXPECT_FLOAT_EQ(rect(2, 0)[1], axis(1).toDC(0));
    EXPECT_FLOAT_EQ(rect(2, 0)[3], axis(1).toDC(-3));
    EXPECT_EQ(rect(0, 0)[0], rect(2, 0)[0]);
    // Category 2: -4 and -6 downward, 2 upward.
    EXPECT_FLOAT_EQ(rect(1, 1)[1], axis(1).toDC(-4));
    EXPECT_FLOAT_EQ(rect(1, 1)[3], axis(1).toDC(-10));
    EXPECT_EQ(bars.getBarDirection(2, 1), vxBarChart1D::kUp);
}

TEST_F(BarChart, HorizontalBarsRunAlongX) {
    layOut(L"BarChart(horizontal)\nChartData(3 6)\n");
    EXPECT_FLOAT_EQ(rect(0, 1)[0], axis(0).toDC(0));
    EXPECT_FLOAT_EQ(rect(0, 1)[2], axis(0).toDC(6));
    EXPECT_EQ(bars.getBarDirection(0, 1), vxBarChart1D::kToRight);
    // The first category stands at the bottom of the upward axis.
    EXPECT_GT(rect(0, 0)[1], rect(0, 1)[1]);
}

TEST_F(BarChart, BoxesOfBarsWithDepth) {
    // A relative depth of 100 is one bar width along the diagonal.
    layOut(L"BarChart()\nChartData(3 6)\n", {}, {100});
    const vxBaseChartDepthInfo& depth = bars.getDepthInfo();
    EXPECT_NEAR(depth.getDepth(), bars.getBarWidthDC(), bars.getBarWidthDC() * 1e-3);
    vxLayerManager layers;
    bars.setUpLayers(&layers);
    ASSERT_EQ(layers.getNumOfLayers(), 1);
    // Without a style the fill lets light through: six faces a bar, after
    // the layer's clip.
    EXPECT_EQ(layers.getLayer(0)->getNumOfShapes(), 1 + 12);
    // Flat bars: a layer a series.
    layOut(L"BarChart()\nChartData(3 6; 4 5)\n");
    vxLayerManager flat;
    bars.setUpLayers(&flat);
    EXPECT_EQ(flat.getNumOfLayers(), 2);
}

TEST_F(ChartScript, LabelsStandAtTheirBars) {
    ASSERT_EQ(run(L"BarChart(label)\nChartData(10 45)\nLabelOptions(1 2; 5)\n"), 0) << message();
    vxLayerManager layers;
    chart().setUpLayers(&layers);
    ASSERT_FALSE(chart().isError());
    const vxLayer* labels = nullptr;
    for (long i = 0; i < layers.getNumOfLayers(); ++i) {
        if (layers.getLayer(i)->getTypeID() == 23) labels = layers.getLayer(i);
    }
    ASSERT_NE(labels, nullptr);
    ASSERT_EQ(labels->getNumOfShapes(), 3);  // the clip and two labels
    auto* bars = dynamic_cast<vxBarChart1D*>(chart().getChartType());
    float bar[4], box[4];
    // "smartout": over the first bar; the second reaches the plot's top
    // and still has room above it in the chart.
    bars->getBarRect(0, 0, bar);
    dynamic_cast<vxLabel*>(labels->getShape(1))->getLabelBounds(box);
    EXPECT_EQ(dynamic_cast<vxLabel*>(labels->getShape(1))->getText()->getText(), L"10");
    EXPECT_LT(box[3], bar[1]);
    EXPECT_NEAR((box[0] + box[2]) / 2, (bar[0] + bar[2]) / 2, 1.0f);
    // Location 5 of item 2: in the middle of its bar.
    bars->getBarRect(0, 1, bar);
    dynamic_cast<vxLabel*>(labels->getShape(2))->getLabelBounds(box);
    EXPECT_NEAR((box[1] + box[3]) / 2, (bar[1] + bar[3]) / 2, 1.0f);
}

TEST_F(ChartScript, BarsOfASeriesShareAShapeUnlessTheirLooksDiffer) {
    const auto barLayers = [this](std::vector<long>& shapes, std::vector<bool>& aliased) {
        vxLayerManager layers;
        chart().setUpLayers(&layers);
        ASSERT_FALSE(chart().isError());
        for (long i = 0; i < layers.getNumOfLayers(); ++i) {
            const vxLayer* layer = layers.getLayer(i);
            if (layer->getTypeID() != 5) continue;
            shapes.push_back(layer->getNumOfShapes() - 1);  // less the clip
            aliased.push_back(layer->doUseAliasedShapes());
        }
    };
    std::vector<long> shapes;
    std::vector<bool> aliased;
    // One plain colour a series: one shape a series, the last series first.
    ASSERT_EQ(run(L"BarChart()\nChartData(1 2 3; 4 5 6)\nFillStyle(2 2; #ff0000)\n"), 0);
    barLayers(shapes, aliased);
    EXPECT_EQ(shapes, std::vector<long>({3, 1}));
    // Split colours give the values below the reference a style of their
    // own: the bars are drawn one by one.
    shapes.clear();
    ASSERT_EQ(run(L"BarChart()\nChartData(1 -2 3)\nBarChartOptions(0; 0; 1)\n"), 0);
    barLayers(shapes, aliased);
    EXPECT_EQ(shapes, std::vector<long>({3}));
    // Two hundred bars of two pixels draw without smoothing.
    std::wstring values;
    for (int i = 1; i <= 200; ++i) values += std::to_wstring(i) + L" ";
    shapes.clear();
    aliased.clear();
    ASSERT_EQ(run(L"BarChart()\nChartData(" + values + L")\n"), 0);
    barLayers(shapes, aliased);
    EXPECT_EQ(aliased, std::vector<bool>({true}));
}

TEST_F(ChartScript, PicturesStandOnTheBaseOfTheirBars) {
    const auto path = std::filesystem::temp_directory_path() / "vxBarChartPicture.png";
    std::ofstream(path, std::ios::binary) << encodePNG(makePicture(4, 4));
    const auto anchorOf = [this](float anchor[4]) {
        vxLayerManager layers;
        chart().setUpLayers(&layers);
        for (long i = 0; i < layers.getNumOfLayers(); ++i) {
            if (layers.getLayer(i)->getTypeID() != 5) continue;
            auto* paint = dynamic_cast<const vxTexturePaintOLD*>(
                layers.getLayer(i)->getShape(1)->getFillPaint());
            ASSERT_NE(paint, nullptr);
            paint->getAnchorBounds(anchor);
        }
    };
    float bar[4], anchor[4];
    // One picture for every 10: the first stands on the base, as tall as
    // 10 on the value axis.
    ASSERT_EQ(
        run(L"BarChart()\nChartData(35)\nPictureStyle(1; file; \"" + path.wstring() + L"\"; 10)\n"),
        0)
        << message();
    anchorOf(anchor);
    dynamic_cast<vxBarChart1D*>(chart().getChartType())->getBarRect(0, 0, bar);
    EXPECT_FLOAT_EQ(anchor[0], bar[0]);
    EXPECT_FLOAT_EQ(anchor[2], bar[2]);
    EXPECT_FLOAT_EQ(anchor[3], bar[3]);
    EXPECT_NEAR(anchor[3] - anchor[1], axis(1).toDC(0) - axis(1).toDC(10), 1e-3);
    // Without a stack value the picture is stretched over the bar; a bar
    // hanging from the reference has its base at the top.
    ASSERT_EQ(
        run(L"BarChart()\nChartData(-35)\nPictureStyle(1; file; \"" + path.wstring() + L"\")\n"),
        0);
    anchorOf(anchor);
    dynamic_cast<vxBarChart1D*>(chart().getChartType())->getBarRect(0, 0, bar);
    EXPECT_EQ(std::vector<float>(anchor, anchor + 4), std::vector<float>(bar, bar + 4));
}

}  // namespace
}  // namespace Velarix::test
