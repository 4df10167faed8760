// Chart data: ten series of 100,000 values, read from a script and prepared
// into chart series with their statistics.
#include <benchmark/benchmark.h>

#include <random>
#include <sstream>
#include <string>

#include "charts/vxBaseChartParameters.h"
#include "charts/vxChartTypeTable.h"
#include "data/vxDataManager.h"
#include "data/vxDataValueSeries.h"
#include "script/vxAssign.h"
#include "script/vxFunctionIds.h"
#include "settings/vxUserSettings.h"
#include "velarix/vxCommand.h"

namespace {

constexpr int kSeries = 10;
constexpr int kValues = 100'000;

std::wstring numberSeries(std::mt19937& random) {
    std::uniform_real_distribution<double> value(-1000.0, 1000.0);
    std::wostringstream out;
    out.precision(6);
    for (int i = 0; i < kValues; ++i) out << (i ? L" " : L"") << value(random);
    return out.str();
}

std::wstring dateSeries(std::mt19937& random) {
    std::uniform_int_distribution<int> day(1, 28), month(1, 12), year(1990, 2030);
    std::wostringstream out;
    for (int i = 0; i < kValues; ++i) {
        out << (i ? L" " : L"") << month(random) << L'/' << day(random) << L'/' << year(random)
            << L"&12:30";
    }
    return out.str();
}

std::vector<std::wstring> makeSeries(bool dates) {
    std::mt19937 random(7);
    std::vector<std::wstring> series;
    for (int s = 0; s < kSeries; ++s)
        series.push_back(dates ? dateSeries(random) : numberSeries(random));
    return series;
}

// The data manager alone: texts to chart series, and every series' mean,
// deviation and median.
void prepare(benchmark::State& state, bool dates) {
    const std::vector<std::wstring> texts = makeSeries(dates);
    Velarix::vxUserSettings settings(L"", L"", 1, 1);
    Velarix::vxBaseChartParameters chart;
    Velarix::vxAssign line;
    line.setFunction(Velarix::kLineChart1D);
    Velarix::vxSetUpChartParameters(Velarix::kLineChart1D, line, chart);
    for (auto _ : state) {
        Velarix::vxDataManager data(&settings);
        Velarix::vxAssign a;
        a.setFunction(Velarix::kChartData);
        for (const std::wstring& text : texts) a.addString(text);
        data.assign(a);
        data.setUp(chart);
        data.setUpChartSeries(chart);
        data.insertIntervalValues(chart);
        for (long s = 0; s < data.getNumOfChartSeries(); ++s) {
            Velarix::vxDataValueSeries* values = data.getValueSeries(s, 1);
            benchmark::DoNotOptimize(values->getMean());
            benchmark::DoNotOptimize(values->getStandardDeviation());
            benchmark::DoNotOptimize(values->getMedian());
        }
        if (data.isError()) state.SkipWithError("data error");
    }
}

void BM_PrepareTenSeriesOfNumbers(benchmark::State& state) {
    prepare(state, false);
}

void BM_PrepareTenSeriesOfDates(benchmark::State& state) {
    prepare(state, true);
}

// The whole command: the script read, checked and its series prepared.
void BM_RunTenSeriesOfNumbers(benchmark::State& state) {
    const std::vector<std::wstring> texts = makeSeries(false);
    std::string script = "OpenDrawing(400; 300)\nLineChart()\nChartData(";
    for (size_t s = 0; s < texts.size(); ++s) {
        script += (s ? "; " : "") + std::string(texts[s].begin(), texts[s].end());
    }
    script += ")\n";
    Velarix::vxCommandOptions options;
    for (auto _ : state) {
        std::istringstream in(script);
        std::ostringstream out, err;
        if (Velarix::vxRunCommand(options, in, out, err) != 0) state.SkipWithError("run failed");
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * script.size()));
}

}  // namespace

BENCHMARK(BM_PrepareTenSeriesOfNumbers)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_PrepareTenSeriesOfDates)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_RunTenSeriesOfNumbers)->Unit(benchmark::kMillisecond);
