// The legend of a chart: the options it reads, its entries and their texts,
// the size it reports and the room it takes from the plot, its markers in
// the look of the series, its layer, and input that a legend must survive.
#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <numeric>

#include "axes/vxAxisTestSupport.h"
#include "charts/vxBaseChart.h"
#include "drawing/vxLayer.h"
#include "drawing/vxLayerManager.h"
#include "furniture/vxLegend.h"
#include "furniture/vxLegendWords.h"
#include "furniture/vxTitle.h"
#include "graphics/vxBasicSymbol.h"
#include "graphics/vxColorOLD.h"
#include "graphics/vxFontOLD.h"
#include "graphics/vxLabel.h"
#include "graphics/vxLine2DOLD.h"
#include "graphics/vxPaintOLD.h"
#include "graphics/vxPath2DOLD.h"
#include "graphics/vxStrokeOLD.h"
#include "graphics/vxText.h"
#include "script/vxAssign.h"
#include "script/vxFunctionIds.h"

namespace Velarix::test {
namespace {

constexpr const wchar_t* kThreeSeries = L"BarChart()\nChartData(1 2; 3 4; 5 6)\n";

class LegendScript : public ChartScript {
protected:
    vxLegend& legend() const { return *chart().getLegend(); }
    float width(const float* r) const { return r[2] - r[0]; }
    float height(const float* r) const { return r[3] - r[1]; }
    // The plot of the same chart without a legend.
    std::vector<float> plotWithout(const std::wstring& calls) {
        EXPECT_EQ(run(calls), 0) << message();
        const float* p = chart().getPlotBounds();
        return {p[0], p[1], p[2], p[3]};
    }
};

TEST_F(LegendScript, OptionsReadInCatalogueOrderAndVoidKeeps) {
    ASSERT_EQ(run(std::wstring(kThreeSeries) +
                  L"LegendOptions(topleft; on; 5; -6; 3 2 1 1 0 0 1; rect+symbol; 20; 10; "
                  L"-50; 2; 3; bottomcenter; 4)\n"),
              0)
        << message();
    const vxLegend& l = legend();
    EXPECT_EQ(l.getBoxLocation(), 1);
    EXPECT_TRUE(l.isBoxInside());
    float offsets[2];
    l.getBoxOffsets(offsets);
    EXPECT_EQ(offsets[0], 5.0f);
    EXPECT_EQ(offsets[1], -6.0f);
    EXPECT_EQ(l.getNumOfRows(), 3);
    EXPECT_EQ(l.getNumOfColumns(), 2);
    EXPECT_TRUE(l.doArrangeColumnByColumn());
    EXPECT_TRUE(l.doArrangeReversed());
    EXPECT_TRUE(l.doCenterIfIncomplete());
    EXPECT_EQ(l.getMarkerType(), 3);
    const vxLegendItem::Layout layout = l.getItemLayout();
    EXPECT_EQ(layout.markerWidth, 20.0f);
    EXPECT_EQ(layout.markerHeight, 10.0f);
    // A negative gap is a percentage of the font size.
    const float fontSize = l.getReferenceText()->getFont()->getSize();
    EXPECT_FLOAT_EQ(layout.markerGap, 0.5f * fontSize);
    EXPECT_EQ(l.getRowGapDC(), 2.0f);
    EXPECT_EQ(l.getColumnGapDC(), 3.0f);
    EXPECT_EQ(layout.textLocation, 8);
    EXPECT_EQ(l.getMarkerShape(), 4);

    // A second call changes what it gives; a short list keeps the rest.
    ASSERT_EQ(run(std::wstring(kThreeSeries) +
                  L"LegendOptions(topleft; on; 5; -6; 3 2 1 1 0 0 1; line; 20)\n"
                  L"LegendOptions(; ; ; ; 4; ; ; 7; ; -100)\n"),
              0)
        << message();
    EXPECT_EQ(legend().getBoxLocation(), 1);
    EXPECT_TRUE(legend().isBoxInside());
    EXPECT_EQ(legend().getNumOfRows(), 4);
    EXPECT_EQ(legend().getNumOfColumns(), 2);
    EXPECT_TRUE(legend().doArrangeReversed());
    EXPECT_EQ(legend().getMarkerType(), 4);
    EXPECT_EQ(legend().getItemLayout().markerWidth, 20.0f);
    EXPECT_EQ(legend().getItemLayout().markerHeight, 7.0f);
    EXPECT_FLOAT_EQ(legend().getRowGapDC(), fontSize);
    EXPECT_EQ(legend().getColumnGapDC(), vxLegend::kDefaultColumnGap);
}

TEST_F(LegendScript, EntriesFromTheSeriesOrFromTheTexts) {
    ASSERT_EQ(run(std::wstring(kThreeSeries) + L"LegendOptions()\n"), 0) << message();
    EXPECT_EQ(legend().getTexts(),
              std::vector<std::wstring>({L"Series 1", L"Series 2", L"Series 3"}));
    // Texts given decide the count; one left out takes the default.
    ASSERT_EQ(run(L"BarChart()\nChartData(1 2; 3 4)\nLegendTexts(\"North\"; ; \"\"; \"West\")\n"),
              0)
        << message();
    EXPECT_EQ(legend().getTexts(),
              std::vector<std::wstring>({L"North", L"Series 2", L"", L"West"}));
    ASSERT_EQ(legend().getNumOfEntries(), 4);
    // The fourth entry takes the look of a fourth series.
    const vxPaintOLD* fill = legend().getItem(3)->getArea()->getFillPaint();
    ASSERT_NE(fill, nullptr);
    EXPECT_TRUE(
        fill->getColor()->isEqual(*chart().getChartType()->getSeriesLook(3).area.fill->getColor()));
    // A later call gives all texts anew.
    ASSERT_EQ(run(L"BarChart()\nChartData(1 2; 3 4)\nLegendTexts(\"A\"; \"B\"; \"C\")\n"
                  L"LegendTexts(\"D\")\n"),
              0);
    EXPECT_EQ(legend().getTexts(), std::vector<std::wstring>({L"D"}));
}

TEST(LegendWords, DefaultTextsByLanguage) {
    EXPECT_EQ(vxLegendDefaultText(1, 1), L"Series 1");
    EXPECT_EQ(vxLegendDefaultText(2, 12), L"Reihe 12");
    EXPECT_EQ(vxLegendDefaultText(3, 2), L"Series 2");
    vxUserSettings german(L"", L"", 2, 1);
    german.setDefaults();
    vxLegend legend(&german);
    legend.setUpTexts(2);
    EXPECT_EQ(legend.getTexts(), std::vector<std::wstring>({L"Reihe 1", L"Reihe 2"}));
}

TEST_F(LegendScript, SizeIsColumnsRowsGapsAndMargins) {
    ASSERT_EQ(run(L"BarChart()\nChartData(1; 2; 3; 4; 5)\n"
                  L"LegendTexts(\"a\"; \"a much longer text\"; \"b\"; \"c\"; \"d\")\n"
                  L"LegendOptions(; ; ; ; 2)\n"),
              0)
        << message();
    const vxLegend& l = legend();
    ASSERT_EQ(l.getGrid().getNumOfColumns(), 3);
    const std::vector<float> widths = l.getColumnWidths();
    const std::vector<float> heights = l.getRowHeights();
    const float sumWidths = std::accumulate(widths.begin(), widths.end(), 0.0f);
    const float sumHeights = std::accumulate(heights.begin(), heights.end(), 0.0f);
    float size[2];
    l.getBoxSize(size);
    EXPECT_EQ(size[0], std::ceil(sumWidths + 2 * 6.0f) + 2 * 3.0f);
    EXPECT_EQ(size[1], std::ceil(sumHeights + 8.0f) + 2 * 3.0f);
    // The second entry makes its column the widest; with equal widths
    // every column takes it.
    EXPECT_GT(widths[1], widths[0] + 20.0f);
    ASSERT_EQ(run(L"BarChart()\nChartData(1; 2; 3; 4; 5)\n"
                  L"LegendTexts(\"a\"; \"a much longer text\"; \"b\"; \"c\"; \"d\")\n"
                  L"LegendOptions(; ; ; ; 2 -1 0 0 1 1)\n"),
              0);
    EXPECT_EQ(legend().getColumnWidths(), std::vector<float>(3, widths[1]));
    // An entry is marker, gap and text wide: "b" alone in the third column.
    const vxText* text = legend().getItem(2)->getText();
    EXPECT_NEAR(widths[2], 12.0f + 4.0f + text->getStringWidth(), 1e-3);
    // Relative margins are percentages of the font size.
    ASSERT_EQ(run(std::wstring(kThreeSeries) + L"LegendBackgroundOptions(1 100)\n"), 0);
    float relative[2];
    legend().getBoxSize(relative);
    ASSERT_EQ(run(std::wstring(kThreeSeries) + L"LegendBackgroundOptions(0 0)\n"), 0);
    float none[2];
    legend().getBoxSize(none);
    const float fontSize = legend().getReferenceText()->getFont()->getSize();
    EXPECT_FLOAT_EQ(relative[0] - none[0], 2 * std::round(fontSize));
}

TEST_F(LegendScript, TakesRoomBesideThePlotButNotInsideIt) {
    const std::vector<float> plain = plotWithout(kThreeSeries);
    // Centre right: the plot is narrower by the legend and its gap of 8,
    // and the legend stands at the chart's margin, centred on the plot.
    ASSERT_EQ(run(std::wstring(kThreeSeries) + L"LegendOptions()\n"), 0) << message();
    float size[2];
    legend().getBoxSize(size);
    const float* plot = chart().getPlotBounds();
    EXPECT_NEAR(plot[2], plain[2] - size[0] - 8.0f, 1.0f);
    EXPECT_EQ(plot[0], plain[0]);
    const float* box = legend().getBounds();
    EXPECT_EQ(box[2], 390.0f);
    EXPECT_NEAR((box[1] + box[3]) / 2, (plot[1] + plot[3]) / 2, 1.0f);
    // At the top, the plot is lower by the legend's height and the gap.
    ASSERT_EQ(run(std::wstring(kThreeSeries) + L"LegendOptions(topcenter)\n"), 0);
    legend().getBoxSize(size);
    EXPECT_NEAR(chart().getPlotBounds()[1], plain[1] + size[1] + 8.0f, 1.0f);
    EXPECT_EQ(legend().getBounds()[1], 10.0f);
    // Inside, the plot stays; the legend stands in the inner area's corner,
    // moved by its offsets.
    ASSERT_EQ(run(std::wstring(kThreeSeries) + L"LegendOptions(topleft; on; 3; 4)\n"), 0);
    EXPECT_EQ(std::vector<float>(chart().getPlotBounds(), chart().getPlotBounds() + 4), plain);
    const float* inner = chart().getInnerBounds();
    EXPECT_NEAR(legend().getBounds()[0], inner[0] + 3.0f, 0.5f);
    EXPECT_NEAR(legend().getBounds()[1], inner[1] + 4.0f, 0.5f);
    // A legend that shows nothing takes no room.
    ASSERT_EQ(run(std::wstring(kThreeSeries) + L"LegendOptions(; ; ; ; 0)\n"), 0);
    EXPECT_EQ(legend().getNumOfEntries(), 0);
    EXPECT_EQ(std::vector<float>(chart().getPlotBounds(), chart().getPlotBounds() + 4), plain);
}

TEST_F(LegendScript, TitleAndLegendAtTheTopShareTheRoom) {
    const std::vector<float> plain = plotWithout(kThreeSeries);
    ASSERT_EQ(
        run(std::wstring(kThreeSeries) + L"TitleText(\"T\")\nLegendOptions(topright; ; ; ; 1)\n"),
        0)
        << message();
    float size[2], title[2];
    legend().getBoxSize(size);
    chart().getTitle()->getBoxSize(title);
    EXPECT_NEAR(chart().getPlotBounds()[1], plain[1] + std::max(size[1], title[1]) + 8.0f, 1.0f);
}

// The parts of every entry's marker, as letters: a area, l line, s symbol.
std::vector<std::string> markerParts(const vxLegend& legend) {
    std::vector<std::string> parts;
    for (long i = 0; i < legend.getNumOfEntries(); ++i) {
        const vxLegendItem* item = legend.getItem(i);
        parts.push_back(std::string(item->getArea() ? "a" : "") + (item->getLine() ? "l" : "") +
                        (item->getSymbol() ? "s" : ""));
    }
    return parts;
}

TEST_F(LegendScript, MarkersTakeTheSeriesLook) {
    ASSERT_EQ(run(L"BarChart()\nChartData(1 2; 3 4)\nFillStyle(2; #3366cc)\n"
                  L"BorderStyle(2; ; 3; #ff0000)\nLegendOptions()\n"),
              0)
        << message();
    const vxPath2DOLD* area = legend().getItem(1)->getArea();
    ASSERT_NE(area, nullptr);
    EXPECT_TRUE(area->getFillPaint()->getColor()->isEqual(vxColorOLD(0x33, 0x66, 0xcc)));
    EXPECT_TRUE(area->getBorderPaint()->getColor()->isEqual(vxColorOLD(255, 0, 0)));
    EXPECT_EQ(area->getBorderStroke()->getLineWidth(), 3.0f);
    // The marker box: 12 by 12, the rectangle on it.
    float b[4];
    const_cast<vxPath2DOLD*>(area)->getBounds(b);
    const float* box = legend().getItem(1)->getMarkerBox();
    EXPECT_EQ(std::vector<float>(b, b + 4), std::vector<float>(box, box + 4));
    EXPECT_EQ(box[2] - box[0], 12.0f);
    // Split colours: the second series shows the third style, the look of
    // its bars at or above the reference.
    ASSERT_EQ(run(L"BarChart()\nChartData(1 -2; 3 -4)\nBarChartOptions(; 0; on)\n"
                  L"FillStyle(3; #00ff00)\nLegendOptions()\n"),
              0)
        << message();
    EXPECT_TRUE(
        legend().getItem(1)->getArea()->getFillPaint()->getColor()->isEqual(vxColorOLD(0, 255, 0)));
    // A gradient fill stays a gradient.
    ASSERT_EQ(run(L"BarChart()\nChartData(1 2)\n"
                  L"FillStyle(1; 0 0 1 0 1 255 0 0 255 0 0 0 255 255 1)\nLegendOptions()\n"),
              0)
        << message();
    EXPECT_EQ(legend().getItem(0)->getArea()->getFillPaint()->getType(),
              vxPaintOLD::kLinearGradient);
}

TEST_F(LegendScript, MarkerTypeBitsDrawTogether) {
    const std::pair<std::wstring, std::string> cases[] = {
        {L"BarChart()", "a"},
        {L"BarChart(symbol)", "as"},  // automatic: the chart's default
        {L"BarChart(symbol)\nLegendOptions(; ; ; ; ; line)", "l"},
        {L"BarChart()\nLegendOptions(; ; ; ; ; rect+symbol+line)", "als"},
        {L"BarChart()\nLegendOptions(; ; ; ; ; oval)", "a"},
    };
    for (const auto& [calls, parts] : cases) {
        ASSERT_EQ(run(calls + L"\nChartData(1 2; 3 4)\nLegendStyle()\n"), 0) << message();
        EXPECT_EQ(markerParts(legend()), std::vector<std::string>(2, parts)) << calls;
    }
    // The line runs across the middle of the box, the symbol stands in it,
    // no larger than the box.
    ASSERT_EQ(run(L"BarChart()\nChartData(1 2)\nSymbolStyle(1; square; 30)\n"
                  L"LegendOptions(; ; ; ; ; symbol+line; 20; 10)\n"),
              0)
        << message();
    const vxLegendItem& item = *legend().getItem(0);
    const float* box = item.getMarkerBox();
    EXPECT_EQ(item.getLine()->getY1(), (box[1] + box[3]) / 2);
    EXPECT_EQ(item.getLine()->getX2() - item.getLine()->getX1(), 20.0f);
    EXPECT_EQ(item.getSymbol()->getSize(), 10.0f);
    EXPECT_EQ(item.getSymbol()->getSymbolType(), 3);
}

TEST_F(LegendScript, AreaShapes) {
    // Verbs of each shape: the oval is curved, the polygons have their
    // corners, the shape argument wins over the type's oval or diamond.
    const std::pair<std::wstring, long> cases[] = {
        {L"rect", 5},
        {L"oval", 6},
        {L"diamond", 5},
        {L"rect; ; ; ; ; ; ; 5", 7},
        {L"oval; ; ; ; ; ; ; 6", 9},
        {L"rect; ; ; ; ; ; ; 1", 5},
    };
    for (const auto& [options, verbs] : cases) {
        ASSERT_EQ(run(L"BarChart()\nChartData(1 2)\nLegendOptions(; ; ; ; ; " + options + L")\n"),
                  0)
            << message();
        EXPECT_EQ(legend().getItem(0)->getArea()->getNumOfVerbs(), verbs) << options;
    }
}

TEST_F(LegendScript, EntriesStandByTheirMarkers) {
    // Text right of the marker (the default), left of it, below it.
    ASSERT_EQ(run(std::wstring(kThreeSeries) + L"LegendOptions()\n"), 0) << message();
    vxLegendItem* item = legend().getItem(0);
    float text[4];
    const_cast<vxText*>(item->getText())->getBounds(text);
    EXPECT_NEAR(text[0], item->getMarkerBox()[2] + 4.0f, 1e-3);
    ASSERT_EQ(
        run(std::wstring(kThreeSeries) + L"LegendOptions(; ; ; ; ; ; ; ; ; ; ; centerleft)\n"), 0);
    item = legend().getItem(0);
    const_cast<vxText*>(item->getText())->getBounds(text);
    EXPECT_NEAR(item->getMarkerBox()[0], text[2] + 4.0f, 0.5f);
    ASSERT_EQ(
        run(std::wstring(kThreeSeries) + L"LegendOptions(; ; ; ; ; ; ; ; ; ; ; bottomcenter)\n"),
        0);
    item = legend().getItem(0);
    const_cast<vxText*>(item->getText())->getBounds(text);
    EXPECT_NEAR(text[1], item->getMarkerBox()[3] + 4.0f, 1e-3);
    EXPECT_NEAR((text[0] + text[2]) / 2, (item->getMarkerBox()[0] + item->getMarkerBox()[2]) / 2,
                0.5f);
    // Beside the marker, a text keeps to its alignment in the rest of the
    // cell: aligned right, a short text ends where the longest does.
    ASSERT_EQ(run(L"BarChart()\nChartData(1; 2)\nLegendTexts(\"a\"; \"a longer one\")\n"
                  L"LegendStyle(; ; ; ; right)\n"),
              0)
        << message();
    float other[4];
    const_cast<vxText*>(legend().getItem(0)->getText())->getBounds(text);
    const_cast<vxText*>(legend().getItem(1)->getText())->getBounds(other);
    EXPECT_NEAR(text[2], other[2], 0.5f);
    EXPECT_GT(text[0], other[0] + 20.0f);
}

TEST_F(LegendScript, IncompleteRowsStandCentred) {
    // Five entries in rows of three: the second row's two entries take the
    // middle of the legend's width.
    const std::wstring calls =
        L"BarChart()\nChartData(1; 2; 3; 4; 5)\nLegendTexts(\"a\"; \"b\"; \"c\"; \"d\"; \"e\")\n";
    ASSERT_EQ(run(calls + L"LegendOptions(; ; ; ; -1 3 0 0 1 0 1)\n"), 0) << message();
    const float* box = legend().getBounds();
    const float* d = legend().getItem(3)->getMarkerBox();
    const float* e = legend().getItem(4)->getMarkerBox();
    const float cellWidth = legend().getColumnWidths()[0];
    EXPECT_GT(d[0], legend().getItem(0)->getMarkerBox()[0] + cellWidth / 2);
    EXPECT_NEAR(d[0] - box[0], box[2] - (e[0] + cellWidth), 1.0f);
    // Without the flag it keeps to the first columns.
    ASSERT_EQ(run(calls + L"LegendOptions(; ; ; ; -1 3 0 0 1 0 0)\n"), 0);
    EXPECT_EQ(legend().getItem(3)->getMarkerBox()[0], legend().getItem(0)->getMarkerBox()[0]);
}

TEST_F(LegendScript, LayerHoldsBackgroundThenEntries) {
    ASSERT_EQ(run(std::wstring(kThreeSeries) + L"LegendBackground(#ffffff; ; 1; #000000)\n"
                                               L"LegendOptions(; ; ; ; ; rect+line)\n"),
              0)
        << message();
    vxLayerManager layers;
    const float clip[4] = {-1, -1, 401, 301};
    layers.setCurrentClipRect(clip);
    chart().setUpLayers(&layers);
    ASSERT_FALSE(chart().isError());
    const long at = layers.findLayer(layers.getCurrentObjectIndex(), 51, 0);
    ASSERT_GE(at, 0);
    const vxLayer& layer = *layers.getLayer(at);
    EXPECT_EQ(std::vector<float>(layer.getClipRect(), layer.getClipRect() + 4),
              std::vector<float>(clip, clip + 4));
    ASSERT_EQ(layer.getNumOfShapes(), 1 + 3 * 3);
    EXPECT_EQ(layer.getShape(0), legend().getBackground());
    for (long i = 0; i < 3; ++i) {
        const vxLegendItem& item = *legend().getItem(i);
        EXPECT_EQ(layer.getShape(1 + 3 * i), item.getArea());
        EXPECT_EQ(layer.getShape(2 + 3 * i), item.getLine());
        EXPECT_EQ(layer.getShape(3 + 3 * i), item.getText());
    }
    // The legend's layer follows the series'.
    EXPECT_EQ(at, layers.getNumOfLayers() - 1);
    // No entries, no layer.
    ASSERT_EQ(run(std::wstring(kThreeSeries) + L"LegendOptions(; ; ; ; 5 0)\n"), 0);
    vxLayerManager none;
    chart().setUpLayers(&none);
    EXPECT_LT(none.findLayer(none.getCurrentObjectIndex(), 51, 0), 0);
}

TEST_F(LegendScript, HundredsOfSeriesStillDraw) {
    std::wstring data = L"ChartData(";
    for (int s = 0; s < 500; ++s) data += std::to_wstring(s % 7 + 1) + L" 2" + L";";
    data.back() = L')';
    const auto start = std::chrono::steady_clock::now();
    ASSERT_EQ(run(L"BarChart()\n" + data + L"\nLegendOptions()\n"), 0) << message();
    // Ten rows, fifty columns: the legend reaches out of the chart, and the
    // plot keeps a third of the graph.
    EXPECT_EQ(legend().getGrid().getNumOfRows(), 10);
    EXPECT_EQ(legend().getGrid().getNumOfColumns(), 50);
    EXPECT_GT(width(chart().getPlotBounds()), 380.0f / 3 - 40.0f);
    EXPECT_GT(legend().getBounds()[2], 400.0f);
    vxLayerManager layers;
    chart().setUpLayers(&layers);
    EXPECT_FALSE(chart().isError());
    const double seconds =
        std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    EXPECT_LT(seconds, 10.0);
    // A legend on the left reaches out to the left, away from the plot.
    ASSERT_EQ(run(L"BarChart()\n" + data + L"\nLegendOptions(centerleft)\n"), 0) << message();
    EXPECT_LT(legend().getBounds()[0], 0.0f);
    EXPECT_LE(legend().getBounds()[2], chart().getPlotBounds()[0]);
}

TEST(LegendBadInput, LongTextsEmptyChartsAndNoRoom) {
    vxUserSettings settings(L"", L"", 1, 1);
    settings.setDefaults();
    // A text of a hundred thousand characters is measured once, quickly;
    // the legend is as wide as it is.
    vxLegend legend(&settings);
    vxAssign texts;
    texts.setFunction(kLegendTexts);
    texts.addString(std::wstring(100000, L'x'));
    texts.addString(L"short");
    legend.assign(texts);
    const auto start = std::chrono::steady_clock::now();
    legend.setUpTexts(7);
    legend.createItems(nullptr, nullptr);
    legend.setUpBounds();
    const double seconds =
        std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    EXPECT_LT(seconds, 5.0);
    ASSERT_FALSE(legend.isError());
    ASSERT_EQ(legend.getNumOfEntries(), 2);
    float size[2];
    legend.getBoxSize(size);
    EXPECT_GT(size[0], 100000.0f);
    // No series, no texts: nothing to show, no room, no layer, no error.
    vxLegend empty(&settings);
    empty.setUpTexts(0);
    empty.createItems(nullptr, nullptr);
    empty.setUpBounds();
    EXPECT_FALSE(empty.isError());
    EXPECT_EQ(empty.getNumOfEntries(), 0);
    empty.getBoxSize(size);
    EXPECT_EQ(size[0], 0.0f);
    EXPECT_EQ(size[1], 0.0f);
    vxLayerManager layers;
    empty.setUpLayer(&layers);
    EXPECT_EQ(layers.getNumOfLayers(), 0);
}

}  // namespace
}  // namespace Velarix::test
