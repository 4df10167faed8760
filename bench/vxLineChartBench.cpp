// The line chart of our comparisons: ten random walks of 10,000 points on
// 400 by 300, no legend, written as SVG and as PNG in one run; in process
// and as a process of its own, with the peak memory of the process.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <random>
#include <string>

#include "vxBenchScript.h"

namespace {

std::string randomWalks(int series, int points) {
    std::mt19937 random(7);
    std::normal_distribution<double> step(0.0, 1.0);
    std::string data;
    char number[32];
    for (int s = 0; s < series; ++s) {
        double v = 0.0;
        if (s > 0) data += "; ";
        for (int i = 0; i < points; ++i) {
            v += step(random);
            std::snprintf(number, sizeof number, i ? " %.3f" : "%.3f", v);
            data += number;
        }
    }
    return data;
}

const std::string& w2Script() {
    static const std::string script = "OpenDrawing(400; 300)\nLineChart()\nChartData(" +
                                      randomWalks(10, 10000) +
                                      ")\nCloseDrawing()\nSaveAsSVGFile(\"w2.svg\"; replace)\n"
                                      "SaveAsPNGFile(\"w2.png\"; replace)\n";
    return script;
}

void BM_RandomWalksToSVGAndPNG(benchmark::State& state) {
    Velarix::bench::runScriptInProcess(state, w2Script());
}
void BM_RandomWalksProcessToSVGAndPNG(benchmark::State& state) {
    Velarix::bench::runScriptAsProcess(state, w2Script());
}

}  // namespace

BENCHMARK(BM_RandomWalksToSVGAndPNG)
    ->Unit(benchmark::kMillisecond)
    ->Repetitions(5)
    ->ReportAggregatesOnly(true);
BENCHMARK(BM_RandomWalksProcessToSVGAndPNG)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->Repetitions(5)
    ->ReportAggregatesOnly(true);
