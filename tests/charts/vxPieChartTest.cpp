// Pies read from scripts and laid out in a view of 400 by 300: the angles
// of the slices, their order, the pie's frame, the labels' places and the
// looks the legend shows.
#include "charts/vxPieChart.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numeric>
#include <set>

#include "axes/vxAxisTestSupport.h"
#include "charts/vxPieChartItem.h"
#include "charts/vxPieChartItem3D.h"
#include "graphics/vxLabel.h"
#include "graphics/vxText.h"

namespace Velarix::test {
namespace {

class PieChart : public ChartScript {
protected:
    vxPieChart& pie(const std::wstring& calls) {
        EXPECT_EQ(run(calls), 0) << message();
        auto* found = dynamic_cast<vxPieChart*>(chart().getChartType());
        EXPECT_NE(found, nullptr);
        return *found;
    }
    static std::vector<float> absolute(std::vector<float> v) {
        for (float& a : v) a = std::fabs(a);
        return v;
    }
};

TEST_F(PieChart, AnglesAreWholeDegreesThatAddUpToTheArc) {
    EXPECT_EQ(pie(L"PieChart()\nChartData(1 1 1)\n").getAngles(),
              (std::vector<float>{120, 120, 120}));
    // 51.43 each rounds to 51; the three degrees left go to the first three
    // of the equal remainders.
    EXPECT_EQ(pie(L"PieChart()\nChartData(1 1 1 1 1 1 1)\n").getAngles(),
              (std::vector<float>{52, 52, 52, 51, 51, 51, 51}));
    // Exact 90.2, 120.2, 149.6: rounded 90 120 150 already add up.
    EXPECT_EQ(pie(L"PieChart()\nChartData(902 1202 1496)\n").getAngles(),
              (std::vector<float>{90, 120, 150}));
    // 154.29 and four of 51.43 lose two degrees; the remainders weighted by
    // the shares are 0.12 and 0.06: the smaller come first.
    EXPECT_EQ(pie(L"PieChart()\nChartData(3 1 1 1 1)\n").getAngles(),
              (std::vector<float>{154, 52, 52, 51, 51}));
    // A half pie, clockwise: the angles turn negative and add up to 180.
    const vxPieChart& half = pie(L"PieChart(;;;90;-180)\nChartData(1 2 3)\n");
    EXPECT_EQ(half.getAngles(), (std::vector<float>{-30, -60, -90}));
    EXPECT_EQ(half.getStartAngles()[0], 270.0f);
    EXPECT_EQ(half.getStartAngles()[1], 240.0f);
    EXPECT_EQ(half.getMidAngles()[2], 135.0f);
}

TEST_F(PieChart, SlicesAreThePositiveValuesOfTheirItems) {
    const vxPieChart& p = pie(L"PieChart()\nChartData(5 -3 0 null 15)\n");
    EXPECT_EQ(p.getValues(), (std::vector<double>{5, 15}));
    EXPECT_EQ(p.getIndices(), (std::vector<long>{0, 4}));
    EXPECT_EQ(p.getTotal(), 20.0);
    EXPECT_EQ(absolute(p.getAngles()), (std::vector<float>{90, 270}));
}

TEST_F(PieChart, AFlatPieStandsInTheSquareOfItsPlotAndAnOvalFillsIt) {
    const vxPieChart& round = pie(L"PieChart()\nChartData(1 2)\n");
    const float width = round.getPieWidth();
    EXPECT_EQ(width, round.getPieHeight());
    const float* plot = chart().getPlotBounds();
    EXPECT_FLOAT_EQ(round.getPieCenter()[0], 0.5f * (plot[0] + plot[2]));
    const float middle = 0.5f * (plot[1] + plot[3]);
    const vxPieChart& oval = pie(L"PieChart(oval)\nChartData(1 2)\n");
    EXPECT_GT(oval.getPieWidth(), oval.getPieHeight() * 1.2f);
    // A half pie moves into the middle of its frame, a quarter grows to it.
    const vxPieChart& half = pie(L"PieChart(;;;;180)\nChartData(1 2)\n");
    EXPECT_NEAR(half.getPieCenter()[1], middle + width / 4, 1.0f);
    EXPECT_NEAR(pie(L"PieChart(;;;;90)\nChartData(1 2)\n").getPieWidth(), 2 * width, 0.01f);
}

TEST_F(PieChart, AnExplodedSliceMovesAlongItsMiddleAndThePieShrinksForIt) {
    const float width = pie(L"PieChart()\nChartData(1 1 1 1)\n").getPieWidth();
    const vxPieChart& p = pie(L"PieChart()\nChartData(1 1 1 1)\nPieChartExplodes(20; 2)\n");
    EXPECT_NEAR(p.getPieWidth(), width / 1.2f, 0.01f);
    // Slice 2 spans 90 to 180 degrees: it moves up and to the left by a
    // fifth of the radius along 135 degrees.
    const auto& moved = p.getItem(1)->getFrame();
    const float shift = 0.2f * p.getPieWidth() / 2;
    EXPECT_NEAR(moved.cx - p.getPieCenter()[0], -shift * std::sqrt(0.5f), 1e-3);
    EXPECT_NEAR(moved.cy - p.getPieCenter()[1], -shift * std::sqrt(0.5f), 1e-3);
    EXPECT_EQ(p.getItem(0)->getFrame().cx, p.getPieCenter()[0]);
    EXPECT_EQ(p.getItem(1)->getOutlineType(), vxPieChartItem::kEveryFace);
}

// Slices with depth are drawn from the back of the pie (the top of the
// page) to its front.
TEST_F(PieChart, SlicesWithDepthAreDrawnFromTheBack) {
    const vxPieChart& p = pie(L"PieChart(;20)\nChartData(1 1 1 1)\n");
    // Middles at 45, 135, 225, 315 degrees: the two at the back first.
    const std::vector<long>& order = p.getDrawingIndices();
    ASSERT_EQ(order.size(), 4u);
    EXPECT_EQ(std::set<long>(order.begin(), order.begin() + 2), (std::set<long>{0, 1}));
    EXPECT_GT(p.getItem(0)->getFrame().depth, 0.0f);
    // A flat pie keeps the order of its items; a slice of no degrees is last.
    const vxPieChart& flat = pie(L"PieChart()\nChartData(1 1000000 1)\n");
    EXPECT_EQ(flat.getDrawingIndices(), (std::vector<long>{1, 0, 2}));
}

TEST_F(PieChart, WallsAreShadedAsTheSidesOfBars) {
    EXPECT_FLOAT_EQ(vxPieChartItem3D::wallDarkening(0.0), 0.25f);
    EXPECT_FLOAT_EQ(vxPieChartItem3D::wallDarkening(90.0), 0.25f);
    // The front is lit as brightly as a wall gets, still darker than the top.
    EXPECT_FLOAT_EQ(vxPieChartItem3D::wallDarkening(270.0), 0.1f);
    EXPECT_LT(vxPieChartItem3D::wallDarkening(240.0), vxPieChartItem3D::wallDarkening(200.0));
}

TEST_F(PieChart, ArcsKnowTheirQuadrants) {
    EXPECT_EQ(vxPieChartItem::quadrantCode(10, 20), 11);
    EXPECT_EQ(vxPieChartItem::quadrantCode(80, 20), 12);
    EXPECT_EQ(vxPieChartItem::quadrantCode(350, -30), 44);
    // Around and back into the quadrant it started in.
    EXPECT_EQ(vxPieChartItem::quadrantCode(45, 340), 111);
    EXPECT_EQ(vxPieChartItem::quadrantCode(300, 100), 41);
}

bool overlap(const vxLabel& a, const vxLabel& b) {
    float p[4], q[4];
    a.getLabelBounds(p);
    b.getLabelBounds(q);
    return p[0] < q[2] && q[0] < p[2] && p[1] < q[3] && q[1] < p[3];
}

// Every pair of the outer labels' boxes, for pies of twenty small slices:
// beside the arc, in columns with aux lines, and packed into a few degrees
// beside one large slice.
TEST_F(PieChart, OuterLabelsNeverOverlap) {
    std::wstring twenty;
    for (int i = 1; i <= 20; ++i) twenty += std::to_wstring(i % 3 + 1) + L" ";
    std::wstring packed = L"200 ";
    for (int i = 1; i <= 20; ++i) packed += L"1 ";
    const std::wstring cases[] = {
        L"PieChart(label)\nChartData(" + twenty + L")\n",
        L"PieChart(label)\nChartData(" + twenty + L")\nPieChartAuxLines()\n",
        L"PieChart(label)\nChartData(" + packed + L")\n",
        L"PieChart(label;30)\nChartData(" + packed + L")\nPieChartAuxLines(20;5;bottom)\n",
        L"PieChart(label)\nChartData(" + packed + L")\nPieChartExplodes(30; max)\n",
    };
    for (const std::wstring& calls : cases) {
        SCOPED_TRACE(std::string(calls.begin(), calls.end()));
        const std::vector<vxLabel*>& labels = pie(calls).getOuterLabels();
        long shown = 0;
        for (size_t i = 0; i < labels.size(); ++i) {
            if (!labels[i]) continue;
            ++shown;
            for (size_t j = i + 1; j < labels.size(); ++j) {
                if (labels[j]) {
                    EXPECT_FALSE(overlap(*labels[i], *labels[j])) << i << " " << j;
                }
            }
        }
        EXPECT_GE(shown, 20);
    }
}

TEST_F(PieChart, SpreadingKeepsBoxesApartAndWithinTheBounds) {
    std::vector<float> tops = {10, 12, 14, 100}, heights = {10, 10, 10, 10};
    vxPieChartLabels::spreadApart(tops, heights, 2, 0, 200, 1);
    // From the second on: the first moves up, the third down.
    EXPECT_EQ(tops, (std::vector<float>{0, 12, 24, 100}));
    // Pushed past the top bound, the run moves down; past the bottom, up.
    tops = {-5, 0, 5};
    vxPieChartLabels::spreadApart(tops, heights, 0, 0, 100, 1);
    EXPECT_EQ(tops, (std::vector<float>{0, 10, 20}));
    tops = {85, 90, 95};
    vxPieChartLabels::spreadApart(tops, heights, 0, 0, 100, 0);
    EXPECT_EQ(tops, (std::vector<float>{70, 80, 90}));
    // No room: apart still, overflowing below.
    tops = {0, 0, 0};
    vxPieChartLabels::spreadApart(tops, heights, 5, 0, 20, 0);
    EXPECT_EQ(tops, (std::vector<float>{0, 15, 30}));
}

TEST_F(PieChart, LabelOptionsChooseWhatIsLabelledAndHow) {
    // Percent mode: shares from 10 percent on show their share.
    const vxPieChart& p =
        pie(L"PieChart(label)\nChartData(5 15 80)\nPieChartLabelOptions(on; 10; 100)\n"
            L"PieChartOptions(3)\nPieChartInnerLabelTexts(\"DEFAULT_FORMAT\")\n");
    const auto& outer = p.getOuterLabels();
    ASSERT_EQ(outer.size(), 3u);
    EXPECT_EQ(outer[0], nullptr);
    ASSERT_NE(outer[2], nullptr);
    EXPECT_EQ(outer[2]->getText()->getText(), L"80");
    EXPECT_EQ(outer[1]->getText()->getText(), L"15");
    // Inner labels lie on their slices, within the radius.
    ASSERT_NE(p.getInnerLabels()[2], nullptr);
    float box[4];
    p.getInnerLabels()[2]->getLabelBounds(box);
    const float r = p.getPieWidth() / 2;
    for (const float x : {box[0], box[2]}) EXPECT_LT(std::fabs(x - p.getPieCenter()[0]), r);
    for (const float y : {box[1], box[3]}) EXPECT_LT(std::fabs(y - p.getPieCenter()[1]), r);
}

TEST_F(PieChart, TheLegendShowsEachSliceInItsLook) {
    const vxPieChart& p =
        pie(L"PieChart()\nChartData(1 2 3)\nFillStyle(1 2; #ff0000)\n"
            L"FillStyle(3; #00ff00)\n");
    // Entry 2 is item 2's own red, entry 3 series 3's green, entry 1 the
    // first default.
    EXPECT_EQ(p.getSeriesLook(1).area.fill, p.getWedgeLook(1).fill);
    EXPECT_EQ(p.getSeriesLook(2).area.fill, p.getWedgeLook(2).fill);
    EXPECT_NE(p.getWedgeLook(0).fill, p.getWedgeLook(1).fill);
    EXPECT_NE(p.getWedgeLook(1).fill, p.getWedgeLook(2).fill);
    EXPECT_EQ(p.getDefaultLegendMarkerType(), 1);
    EXPECT_EQ(p.getNumOfLegendEntries(), 3);
}

TEST_F(PieChart, SmallSlicesGoToTheAddOnChart) {
    const vxPieChart& p = pie(L"PieChart()\nChartData(50 30 2 3 1)\nPieChartAddOn(1; 5)\n");
    // Three small slices become one, of the item after the last.
    EXPECT_EQ(p.getValues(), (std::vector<double>{50, 30, 6}));
    EXPECT_EQ(p.getIndices(), (std::vector<long>{0, 1, 5}));
}

}  // namespace
}  // namespace Velarix::test
