// Axes of charts read from scripts: which axis a call reaches, where lines,
// marks, labels and titles stand after the plot is fitted, and the errors
// of scales, placed at their calls.
#include <gtest/gtest.h>

#include <cmath>

#include "axes/vxAxisLabel.h"
#include "axes/vxAxisScaling.h"
#include "axes/vxAxisTestSupport.h"
#include "axes/vxAxisTickMarkLabels.h"
#include "axes/vxAxisTickMarks.h"
#include "graphics/vxBasicStroke.h"
#include "graphics/vxFontOLD.h"
#include "graphics/vxLabel.h"
#include "graphics/vxLine2DOLD.h"
#include "graphics/vxLineArray2DOLD.h"
#include "graphics/vxPaintOLD.h"
#include "graphics/vxText.h"

namespace Velarix::test {
namespace {

constexpr const wchar_t* kBars = L"BarChart()\nChartData(10 20 30 40; 15 25 35 45)\n";

std::vector<std::wstring> labelTexts(const vxAxisItem& axis, short order = 1) {
    std::vector<std::wstring> texts;
    const vxAxisTickMarkLabels& labels = *axis.getTickMarkLabels(order);
    for (long i = 0; i < labels.getNumOfLabels(); ++i) {
        texts.push_back(labels.getLabel(i)->getText()->getText());
    }
    return texts;
}

void labelBox(const vxAxisItem& axis, long i, float box[4]) {
    const_cast<vxLabel*>(axis.getTickMarkLabels(1)->getLabel(i))->getLabelBounds(box);
}

using Texts = std::vector<std::wstring>;

TEST_F(ChartScript, EachCallReachesTheAxesItNames) {
    ASSERT_EQ(run(std::wstring(kBars) + L"AxisLine(x; 2; red)\n"
                                        L"AxisMajorTicks(all; 8; ; ; ; in)\n"
                                        L"Scaling(y; linear; 0; 100; 4)\n"
                                        L"AxisLabelText(y; \"Sales\"; \"EUR\")\n"
                                        L"AxisMajorTicks(y; ; ; ; ; out)\n"
                                        L"AxisOptions(all; front)\n"),
              0)
        << message();
    const vxAxisItem& x = axis(0);
    const vxAxisItem& y = axis(1);
    EXPECT_FLOAT_EQ(x.getAxisLine()->getBorderStroke()->getLineWidth(), 2.0f);
    EXPECT_FLOAT_EQ(y.getAxisLine()->getBorderStroke()->getLineWidth(), 1.0f);
    EXPECT_EQ(x.getTickMarks(1)->getLocation(), vxAxisGeometry::kIn);
    EXPECT_EQ(y.getTickMarks(1)->getLocation(), vxAxisGeometry::kOut);
    // The y axis was made from the default after "all" changed the length.
    EXPECT_FLOAT_EQ(y.getTickMarks(1)->getLength(), 8.0f);
    EXPECT_EQ(y.getScaling()->getMajorValues(), (std::vector<double>{0, 25, 50, 75, 100}));
    EXPECT_EQ(y.getAxisLabel()->getInputStrings(), (Texts{L"Sales", L"EUR"}));
    EXPECT_FALSE(x.getAxisLabel()->hasText());
    EXPECT_EQ(x.getAxisLocation(), vxAxisItem::kFront);
    EXPECT_EQ(y.getAxisLocation(), vxAxisItem::kFront);
    EXPECT_EQ(labelTexts(y), (Texts{L"0", L"25", L"50", L"75", L"100"}));
}

TEST_F(ChartScript, StylesAndBackgroundsReachLabelsAndTitles) {
    ASSERT_EQ(run(std::wstring(kBars) +
                  L"AxisMajorTickLabelStyle(y; \"DejaVu Sans\"; 12; bold; red; ; 45)\n"
                  L"AxisMajorTickLabelBackground(y; yellow)\n"
                  L"AxisMajorTickLabelBackgroundOptions(0 4; 3)\n"
                  L"AxisLabelText(x; \"Quarter\")\n"
                  L"AxisLabelStyle(x; ; 14)\n"
                  L"AxisLabelBackground(x; #eeeeee)\n"
                  L"AxisLabelOptions(x; bottomright; 5; 2)\n"),
              0)
        << message();
    const vxLabel& tick = *axis(1).getTickMarkLabels(1)->getLabel(0);
    EXPECT_EQ(tick.getText()->getFont()->getName(), L"DejaVu Sans");
    EXPECT_FLOAT_EQ(tick.getText()->getFont()->getSize(), 12.0f);
    EXPECT_NEAR(tick.getText()->getOrientation(), 0.7853982f, 1e-6f);
    ASSERT_TRUE(tick.hasBackground());
    EXPECT_EQ(tick.getBackgroundShape(), vxLabel::kRoundRect);
    // The options carry no axis index: every axis takes them.
    EXPECT_EQ(axis(0).getTickMarkLabels(1)->getLabel(0)->getBackgroundShape(), vxLabel::kRoundRect);
    const vxAxisLabel& title = *axis(0).getAxisLabel();
    EXPECT_FLOAT_EQ(title.getLabel()->getText()->getFont()->getSize(), 14.0f);
    EXPECT_TRUE(title.getLabel()->hasBackground());
    EXPECT_EQ(title.getLocation(), 9);
    // Bottom right: the title ends at the plot's right side, moved by its offsets.
    float box[4];
    ASSERT_TRUE(title.getBounds(box));
    EXPECT_NEAR(box[2], chart().getPlotBounds()[2] + 5.0f, 0.5f);
}

TEST_F(ChartScript, LinesMarksAndLabelsStandBesideThePlot) {
    ASSERT_EQ(
        run(std::wstring(kBars) + L"AxisLabelText(x; \"Quarter\")\nAxisLabelText(y; \"Sales\")\n"),
        0)
        << message();
    const float* plot = chart().getPlotBounds();
    const vxAxisItem& x = axis(0);
    const vxAxisItem& y = axis(1);
    float ends[4];
    x.getAxisEnds(ends);
    EXPECT_EQ(std::vector<float>(ends, ends + 4),
              (std::vector<float>{plot[0], plot[3], plot[2], plot[3]}));
    y.getAxisEnds(ends);
    EXPECT_EQ(std::vector<float>(ends, ends + 4),
              (std::vector<float>{plot[0], plot[3], plot[0], plot[1]}));
    // Marks reach 5 out of the plot; labels stand beyond them, centred on
    // their ticks.
    const vxLineArray2DOLD& marks = *x.getTickMarks(1)->getLines();
    ASSERT_GT(marks.getNumOfLines(), 1);
    EXPECT_FLOAT_EQ(marks.getY()[0], plot[3]);
    EXPECT_FLOAT_EQ(marks.getY()[1], plot[3] + 5.0f);
    // The bars' categories stand between the marks, and so do their labels.
    EXPECT_EQ(x.getScaling()->getMajorValues(), (std::vector<double>{0, 1, 2, 3, 4}));
    ASSERT_EQ(labelTexts(x), (Texts{L"1", L"2", L"3", L"4"}));
    for (long i = 0; i < 4; ++i) {
        float box[4];
        labelBox(x, i, box);
        EXPECT_GT(box[1], plot[3] + 5.0f);
        EXPECT_NEAR((box[0] + box[2]) / 2, x.toDC(i + 0.5), 0.5f);
    }
    for (long i = 0; i < y.getTickMarkLabels(1)->getNumOfLabels(); ++i) {
        float box[4];
        labelBox(y, i, box);
        EXPECT_LT(box[2], plot[0] - 5.0f);
    }
    // Titles: under the x labels, and left of the y labels reading upward.
    float title[4], labels[4];
    x.getAxisLabel()->getBounds(title);
    x.getTickMarkLabels(1)->getBounds(labels);
    EXPECT_GT(title[1], labels[3]);
    EXPECT_NEAR((title[0] + title[2]) / 2, (plot[0] + plot[2]) / 2, 0.5f);
    y.getAxisLabel()->getBounds(title);
    y.getTickMarkLabels(1)->getBounds(labels);
    EXPECT_LT(title[2], labels[0]);
    EXPECT_NEAR((title[1] + title[3]) / 2, (plot[1] + plot[3]) / 2, 0.5f);
    EXPECT_GT(title[3] - title[1], title[2] - title[0]);
    // Everything fits in the chart less its margins.
    float outer[4];
    ASSERT_TRUE(chart().getAxisManager()->getOuterBounds(outer));
    EXPECT_GE(outer[0], 10.0f - 1.0f);
    EXPECT_LE(outer[3], 290.0f + 1.0f);
}

TEST_F(ChartScript, LongLabelsNarrowThePlot) {
    ASSERT_EQ(run(std::wstring(kBars)), 0) << message();
    const float shortLeft = chart().getPlotBounds()[0];
    ASSERT_EQ(run(std::wstring(kBars) + L"AxisMajorTickLabelTexts(y; \"|f2| thousand\")\n"), 0)
        << message();
    EXPECT_GT(chart().getPlotBounds()[0], shortLeft + 30.0f);
    float outer[4];
    ASSERT_TRUE(chart().getAxisManager()->getOuterBounds(outer));
    EXPECT_NEAR(outer[0], 10.0f, 1.5f);
}

TEST_F(ChartScript, LabelsTakeTheirFormats) {
    struct Case {
        const wchar_t* calls;
        long axis;
        Texts labels;
    } cases[] = {
        {L"Scaling(y; linear; 0; 1; 2)", 1, {L"0.0", L"0.5", L"1.0"}},
        {L"Scaling(y; linear; 0; 40; 2)\nAxisMajorTickLabelTexts(y; \"|f1| kg\")",
         1,
         {L"0.0 kg", L"20.0 kg", L"40.0 kg"}},
        {L"Scaling(y; linear; 0; 40; 2)\nAxisMajorTickLabelTexts(y; \"<|u|\"; \"|u|>\")",
         1,
         {L"<0", L"20>", L"<40"}},
        {L"Scaling(y; linear; -10; 10; 2)\nScalingOptions(y; ; ; on)", 1, {L"-10", L"10"}},
        {L"Scaling(y; linear; 0; 10; 10)\nAxisMajorTickLabelOptions(y; ; ; ; 3; 2)",
         1,
         {L"1", L"4", L"7", L"10"}},
        {L"AxisMajorTickLabelTexts(x; \"North\"; \"South\"; \"East\"; \"West\")",
         0,
         {L"North", L"South", L"East", L"West"}},
        {L"SetDecimalPoint(\",\")\nScaling(y; linear; 0; 1; 2)", 1, {L"0,0", L"0,5", L"1,0"}},
    };
    for (const Case& c : cases) {
        ASSERT_EQ(run(std::wstring(kBars) + c.calls + L"\n"), 0) << message();
        EXPECT_EQ(labelTexts(axis(c.axis)), c.labels) << c.calls;
    }
}

TEST_F(ChartScript, ManyCategoriesKeepEveryFewLabels) {
    std::wstring values;
    for (int i = 1; i <= 40; ++i) values += std::to_wstring(i) + L" ";
    ASSERT_EQ(run(L"BarChart()\nChartData(" + values + L")\n"), 0) << message();
    const Texts labels = labelTexts(axis(0));
    EXPECT_EQ(labels.size(), 20u);
    EXPECT_EQ(labels.front(), L"1");
    EXPECT_EQ(labels.back(), L"39");
    for (long i = 1; i < long(labels.size()); ++i) {
        float left[4], right[4];
        labelBox(axis(0), i - 1, left);
        labelBox(axis(0), i, right);
        EXPECT_LT(left[2], right[0]) << "labels " << i - 1 << " and " << i << " overlap";
    }
}

TEST_F(ChartScript, PercentScalesShowThePercentSign) {
    ASSERT_EQ(run(std::wstring(kBars) + L"Scaling(y; percent)\n"), 0) << message();
    const Texts labels = labelTexts(axis(1));
    ASSERT_FALSE(labels.empty());
    for (const std::wstring& label : labels) EXPECT_EQ(label.back(), L'%') << label;
}

TEST_F(ChartScript, MinorLabelsCountWithinEachMajorInterval) {
    ASSERT_EQ(run(std::wstring(kBars) + L"Scaling(y; linear; 0; 2; 2; 4)\n"
                                        L"AxisMinorTickLabelTexts(y; \"|f2|\")\n"
                                        L"AxisMinorTickLabelOptions(y; ; ; ; 2; 1)\n"),
              0)
        << message();
    EXPECT_EQ(axis(1).getScaling()->getNumOfMinorValues(), 6);
    EXPECT_EQ(labelTexts(axis(1), 2), (Texts{L"0.25", L"0.75", L"1.25", L"1.75"}));
    ASSERT_EQ(run(std::wstring(kBars) + L"Scaling(y; linear; 0; 2; 2; 4)\n"
                                        L"AxisMinorTickLabelTexts(y; \"|f2|\")\n"
                                        L"AxisMinorTickLabelOptions(y; ; ; ; 2; 1; off)\n"),
              0)
        << message();
    EXPECT_EQ(labelTexts(axis(1), 2), (Texts{L"0.25", L"0.75", L"1.50"}));
    EXPECT_EQ(axis(1).getTickMarks(2)->getNumOfTicks(), 6);
}

TEST_F(ChartScript, HiddenAxesDrawNothingAndTakeNoRoom) {
    ASSERT_EQ(run(std::wstring(kBars) + L"AxisOptions(all; none)\n"), 0) << message();
    float outer[4];
    EXPECT_FALSE(chart().getAxisManager()->getOuterBounds(outer));
    EXPECT_EQ(chart().getPlotBounds()[0], 10.0f);
    EXPECT_EQ(axis(1).getTickMarkLabels(1)->getNumOfLabels(), 0);
}

TEST_F(ChartScript, ScaleErrorsPointAtTheirCall) {
    struct Case {
        const wchar_t* calls;
        const wchar_t* expected;
    } cases[] = {
        {L"Scaling(y; linear; 100; 0)", L"Scaling(y; linear; 100; 0)"},
        {L"ChartData(0 10 100)\nScaling(y; log)", L"Scaling(y; log)"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(run(std::wstring(kBars) + c.calls + L"\n"), 2100) << c.calls;
        const std::wstring text = message();
        EXPECT_NE(text.find(L"2100: Line "), std::wstring::npos) << text;
        EXPECT_NE(text.find(L"Function \"Scaling\": Invalid scaling values."), std::wstring::npos)
            << text;
        EXPECT_NE(text.find(std::wstring(L"--->") + c.expected + L"<---"), std::wstring::npos)
            << text;
    }
    EXPECT_EQ(run(std::wstring(kBars) + L"AxisMajorTickLabelTexts(y; \"|q|\")\n"), 2001);
    EXPECT_NE(message().find(L"vxAxisTickMarkLabels/setUpFormats/3"), std::wstring::npos);
    EXPECT_NE(message().find(L"--->AxisMajorTickLabelTexts(y; \"|q|\")<---"), std::wstring::npos)
        << message();
}

TEST(AxisTickMarks, MarksReachInOutOrAcrossTheLine) {
    struct Case {
        short location;
        float from, to;
    } cases[] = {{vxAxisGeometry::kOut, 100, 106},
                 {vxAxisGeometry::kIn, 94, 100},
                 {vxAxisGeometry::kCenter, 97, 103}};
    for (const Case& c : cases) {
        vxAxisTickMarks marks(nullptr, 1);
        marks.setLength(6);
        marks.setLocation(c.location);
        // A line at y 100 under the plot: toward the plot is up (-1).
        ASSERT_TRUE(marks.setUp({10, 20}, 100, -1, true));
        const auto& y = marks.getLines()->getY();
        ASSERT_EQ(y.size(), 4u);
        EXPECT_EQ(std::min(y[0], y[1]), c.from);
        EXPECT_EQ(std::max(y[0], y[1]), c.to);
        EXPECT_EQ(marks.getOutwardExtent(), c.location == vxAxisGeometry::kOut      ? 6.0f
                                            : c.location == vxAxisGeometry::kCenter ? 3.0f
                                                                                    : 0.0f);
    }
}

}  // namespace
}  // namespace Velarix::test
