// The title of a chart: the room it takes at each side, its place along
// the plot, inside the plot, around a fixed plot, wrapped when too wide,
// and its two texts aligned.
#include <gtest/gtest.h>

#include <cmath>

#include "axes/vxAxisTestSupport.h"
#include "furniture/vxTitle.h"
#include "graphics/vxText.h"

namespace Velarix::test {
namespace {

const wchar_t* const kBars = L"BarChart()\nChartData(10 20 30; 15 25 35)\n";

class TitleScript : public ChartScript {
protected:
    const float* box() const { return chart().getTitle()->getBounds(); }
    const float* plot() const { return chart().getPlotBounds(); }
    // The axes' outer bounds: plot, marks and labels.
    void outer(float bounds[4]) const { chart().getAxisManager()->getOuterBounds(bounds); }
};

TEST_F(TitleScript, TitleTakesTheTopOfTheChartCentredOnThePlot) {
    ASSERT_EQ(run(kBars), 0);
    const float plainTop = plot()[1];
    ASSERT_EQ(run(std::wstring(kBars) + L"TitleText(\"Sales\"; \"by quarter\")\n"), 0) << message();
    EXPECT_EQ(box()[1], 10.0f);  // the chart's margin
    EXPECT_NEAR((box()[0] + box()[2]) / 2, (plot()[0] + plot()[2]) / 2, 0.6f);
    float axes[4];
    outer(axes);
    EXPECT_GE(axes[1], box()[3] + 8.0f - 0.01f);  // the gap below the title
    EXPECT_GT(plot()[1], plainTop + 20.0f);
    // Title above subtitle, the title's font larger.
    const vxTitle& title = *chart().getTitle();
    EXPECT_LT(title.getTitle()->getYAnchor(), title.getSubTitle()->getYAnchor());
    EXPECT_GT(title.getTitle()->getStringHeight(), title.getSubTitle()->getStringHeight());
}

TEST_F(TitleScript, EachSideGivesItsRoom) {
    ASSERT_EQ(run(kBars), 0);
    float plain[4];
    outer(plain);
    struct Case {
        const wchar_t* place;
        int side;  // the side of the axes' bounds that moves in
    };
    for (const Case& c : {Case{L"bottomcenter", 3}, Case{L"centerleft", 0}, Case{L"centerright", 2},
                          Case{L"topleft", 1}}) {
        ASSERT_EQ(
            run(std::wstring(kBars) + L"TitleText(\"Sales\")\nTitleOptions(" + c.place + L")\n"), 0)
            << message();
        float axes[4];
        outer(axes);
        for (int i = 0; i < 4; ++i) {
            if (i == c.side) {
                EXPECT_GT(std::fabs(axes[i] - plain[i]), 10.0f) << c.place << i;
            } else {
                EXPECT_NEAR(axes[i], plain[i], 1.0f) << c.place << i;
            }
        }
    }
    // Bottom: the box ends at the margin; left: it starts there.
    ASSERT_EQ(run(std::wstring(kBars) + L"TitleText(\"Sales\")\nTitleOptions(bottomright)\n"), 0);
    EXPECT_EQ(box()[3], 290.0f);
    EXPECT_NEAR(box()[2], plot()[2], 0.6f);
    ASSERT_EQ(run(std::wstring(kBars) + L"TitleText(\"Sales\")\nTitleOptions(centerleft)\n"), 0);
    EXPECT_EQ(box()[0], 10.0f);
}

TEST_F(TitleScript, InsideTitleLeavesThePlotAndShifts) {
    ASSERT_EQ(run(kBars), 0);
    const std::vector<float> plain(plot(), plot() + 4);
    ASSERT_EQ(
        run(std::wstring(kBars) + L"TitleText(\"Sales\")\nTitleOptions(topright; on; -4; 6)\n"), 0)
        << message();
    EXPECT_EQ(std::vector<float>(plot(), plot() + 4), plain);
    EXPECT_NEAR(box()[2], plot()[2] - 8.0f - 4.0f, 0.6f);
    EXPECT_NEAR(box()[1], plot()[1] + 8.0f + 6.0f, 0.6f);
}

TEST_F(TitleScript, FixedPlotStaysAndTheTitleStandsAboveIt) {
    const std::wstring open = L"OpenChart(60; 80; 300; 180; 1)";
    ASSERT_EQ(run(std::wstring(kBars) + L"TitleText(\"Sales\")\n", open), 0) << message();
    EXPECT_EQ(std::vector<float>(plot(), plot() + 4), std::vector<float>({60, 80, 360, 260}));
    // Above the graph's margin and the gap.
    EXPECT_NEAR(box()[3], 80.0f - 8.0f - 8.0f, 0.01f);
    EXPECT_LT(chart().getChartBounds()[1], box()[1]);
}

TEST_F(TitleScript, WideTitleWrapsToTheGraph) {
    std::wstring words;
    for (int i = 0; i < 12; ++i) words += L"quarterly ";
    ASSERT_EQ(run(std::wstring(kBars) + L"TitleText(\"" + words + L"\")\n"), 0) << message();
    EXPECT_GE(box()[0], 10.0f - 0.01f);
    EXPECT_LE(box()[2], 390.0f + 0.01f);
    EXPECT_GT(chart().getTitle()->getTitle()->getNumOfLines(), 1);
    // However long, the title is cut to a quarter of the graph's height
    // and ends in an ellipsis.
    std::wstring lines;
    for (int i = 0; i < 7; ++i) lines += words;
    ASSERT_EQ(run(std::wstring(kBars) + L"TitleText(\"" + lines + L"\")\n"), 0) << message();
    EXPECT_LE(box()[3] - box()[1], 280.0f / 4 + 8.0f);
    const std::wstring& shown = chart().getTitle()->getTitle()->getOutputString();
    EXPECT_EQ(shown.back(), vxText::kEllipsis);
}

TEST_F(TitleScript, AlignmentLinesUpTitleAndSubtitle) {
    const std::wstring texts = L"TitleText(\"A long title line\"; \"short\")\n";
    for (short align : {1, 2, 3}) {
        ASSERT_EQ(run(std::wstring(kBars) + texts + L"TitleOptions(;;;;;" + std::to_wstring(align) +
                      L")\n"),
                  0)
            << message();
        const vxTitle& title = *chart().getTitle();
        float a[4], b[4];
        title.getTitle()->getStringBounds(a);
        title.getSubTitle()->getStringBounds(b);
        const int edge = align == 1 ? 0 : 2;
        if (align == 2) {
            EXPECT_NEAR(a[0] + a[2], b[0] + b[2], 0.01f);
        } else {
            EXPECT_NEAR(a[edge], b[edge], 0.01f) << align;
        }
    }
}

TEST_F(TitleScript, EmptyTitleTakesNoRoom) {
    ASSERT_EQ(run(kBars), 0);
    const std::vector<float> plain(plot(), plot() + 4);
    ASSERT_EQ(run(std::wstring(kBars) + L"TitleOptions(bottomcenter)\nTitleText(\"\")\n"), 0);
    EXPECT_EQ(std::vector<float>(plot(), plot() + 4), plain);
    EXPECT_TRUE(chart().getTitle()->isEmpty());
}

}  // namespace
}  // namespace Velarix::test
