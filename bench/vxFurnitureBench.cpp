// The reference chart of our comparisons: two series by four categories
// with axes, tick labels and a legend on 400 by 300, written as SVG and as
// PNG in one run, in process and as a process of its own.
#include <benchmark/benchmark.h>

#include <string>

#include "vxBenchScript.h"

namespace {

const std::string kChart =
    "OpenDrawing(400; 300)\nBarChart()\nChartData(10 20 30 40; 15 25 35 45)\n"
    "LegendTexts(\"North\"; \"South\")\nCloseDrawing()\n"
    "SaveAsSVGFile(\"w1.svg\"; replace)\nSaveAsPNGFile(\"w1.png\"; replace)\n";

const std::string kDressedChart =
    "OpenDrawing(400; 300)\nBarChart()\nChartData(10 20 30 40; 15 25 35 45)\n"
    "LegendTexts(\"North\"; \"South\")\nTitleText(\"Sales\"; \"by quarter\")\n"
    "TitleBackground(#eeeeee)\nChartBackground(xy; #f4f4ff)\nCloseDrawing()\n"
    "SaveAsSVGFile(\"w1.svg\"; replace)\nSaveAsPNGFile(\"w1.png\"; replace)\n";

void BM_LegendChartToSVGAndPNG(benchmark::State& state) {
    Velarix::bench::runScriptInProcess(state, kChart);
}
void BM_TitledChartToSVGAndPNG(benchmark::State& state) {
    Velarix::bench::runScriptInProcess(state, kDressedChart);
}
// Start, font set-up, the chart, both files, exit.
void BM_LegendChartProcessToSVGAndPNG(benchmark::State& state) {
    Velarix::bench::runScriptAsProcess(state, kChart);
}

}  // namespace

BENCHMARK(BM_LegendChartToSVGAndPNG)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_TitledChartToSVGAndPNG)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_LegendChartProcessToSVGAndPNG)->Unit(benchmark::kMillisecond)->UseRealTime();
