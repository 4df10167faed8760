// Bar charts from the script's text to the bytes of the file, in process: a
// small chart of 2 series by 4 categories on 400 by 300 and a large one of
// 10 series by 1,000 categories on 1,200 by 600, both with their axes, each
// written as SVG and as PNG. The small chart also runs as a process of its
// own, the way a caller meets the command.
#include <benchmark/benchmark.h>

#include <string>

#include "vxBenchScript.h"

namespace {

std::string chartScript(const std::string& size, const std::string& data, const char* saveCall) {
    return "OpenDrawing(" + size + ")\nBarChart()\nChartData(" + data + ")\n" +
           "AxisLabelText(y; \"thousand EUR\")\nCloseDrawing()\n" + saveCall + "\n";
}

std::string smallChart(const char* saveCall) {
    return chartScript("400; 300", "120 180 150 210; 90 140 160 170", saveCall);
}

// Values of 1 to 100 in a fixed pattern that mixes short and tall bars.
std::string largeChart(const char* saveCall) {
    std::string data;
    for (int s = 0; s < 10; ++s) {
        if (s > 0) data += "; ";
        for (int c = 0; c < 1000; ++c) {
            if (c > 0) data += ' ';
            data += std::to_string(1 + (s * 7919 + c * 104729) % 100);
        }
    }
    return chartScript("1200; 600", data, saveCall);
}

constexpr const char* kToSVG = "SaveAsSVGFile(\"bars.svg\"; replace)";
constexpr const char* kToPNG = "SaveAsPNGFile(\"bars.png\"; replace)";

void BM_SmallBarChartToSVG(benchmark::State& state) {
    Velarix::bench::runScriptInProcess(state, smallChart(kToSVG));
}
void BM_SmallBarChartToPNG(benchmark::State& state) {
    Velarix::bench::runScriptInProcess(state, smallChart(kToPNG));
}
void BM_LargeBarChartToSVG(benchmark::State& state) {
    Velarix::bench::runScriptInProcess(state, largeChart(kToSVG));
}
void BM_LargeBarChartToPNG(benchmark::State& state) {
    Velarix::bench::runScriptInProcess(state, largeChart(kToPNG));
}
// The whole command: start, font set-up, the chart, the file, exit.
void BM_SmallBarChartProcessToSVG(benchmark::State& state) {
    Velarix::bench::runScriptAsProcess(state, smallChart(kToSVG));
}
void BM_SmallBarChartProcessToPNG(benchmark::State& state) {
    Velarix::bench::runScriptAsProcess(state, smallChart(kToPNG));
}

}  // namespace

BENCHMARK(BM_SmallBarChartToSVG)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_SmallBarChartToPNG)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_LargeBarChartToSVG)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_LargeBarChartToPNG)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SmallBarChartProcessToSVG)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_SmallBarChartProcessToPNG)->Unit(benchmark::kMillisecond)->UseRealTime();
