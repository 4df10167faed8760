// Reading chart scripts: a small script and ten megabytes of chart data.
#include <benchmark/benchmark.h>

#include <sstream>
#include <string>

#include "velarix/vxCommand.h"

namespace {

std::string largeScript() {
    std::string script = "OpenDrawing(400; 300)\nBarChart(label)\n";
    const std::string line =
        "ChartData(12.5 -3 4e2 null 7,25 1000 2 3 4 5 6 7 8 9 10 11 12; 1 2 3)  // data\n";
    while (script.size() < 10'000'000) script += line;
    return script;
}

void runScript(benchmark::State& state, const std::string& script) {
    Velarix::vxCommandOptions options;
    for (auto _ : state) {
        std::istringstream in(script);
        std::ostringstream out;
        std::ostringstream err;
        benchmark::DoNotOptimize(Velarix::vxRunCommand(options, in, out, err));
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * script.size()));
}

void BM_ReadSmallScript(benchmark::State& state) {
    runScript(state,
              "OpenDrawing(400; 300)\nOpenView(0; 0; 400; 300)\nOpenChart(10; 10; 380; 280)\n"
              "BarChart(label + shadow)\nChartData(10 20 30 40; 15 25 35 45)\n"
              "FillStyle(all; #3366ff)\nCloseChart()\nCloseView()\nCloseDrawing()\n");
}

void BM_ReadTenMegabytes(benchmark::State& state) {
    runScript(state, largeScript());
}

}  // namespace

BENCHMARK(BM_ReadSmallScript);
BENCHMARK(BM_ReadTenMegabytes)->Unit(benchmark::kMillisecond);
BENCHMARK_MAIN();
