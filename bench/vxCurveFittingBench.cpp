// Curve fits over 100,000 points: the solver alone for a line and for
// degree 10, and a whole item of degree 10 that reads its series from a
// chart's data and measures its correlation. Each runs ten times and
// reports the median; "peak_MB" is the most memory the process has held
// so far (VmHWM).
#include <benchmark/benchmark.h>

#include <cmath>
#include <fstream>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "charts/vxBaseChartParameters.h"
#include "charts/vxChartTypeTable.h"
#include "data/vxDataManager.h"
#include "overlays/vxCurveFittingItem.h"
#include "overlays/vxCurveFittingSolver.h"
#include "script/vxAssign.h"
#include "script/vxFunctionIds.h"
#include "settings/vxUserSettings.h"

namespace {

constexpr int kPoints = 100'000;

// Years with a fraction, far from zero, and a noisy cubic over them.
void makeData(std::vector<double>& x, std::vector<double>& y) {
    std::mt19937 random(11);
    std::normal_distribution<double> noise(0.0, 5.0);
    for (int i = 0; i < kPoints; ++i) {
        const double t = 2000.0 + 30.0 * i / (kPoints - 1);
        x.push_back(t);
        y.push_back(100.0 + 3.0 * (t - 2000) + 0.01 * std::pow(t - 2010, 3) + noise(random));
    }
}

double peakMegabytes() {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.rfind("VmHWM:", 0) == 0) return std::stod(line.substr(6)) / 1024.0;
    }
    return 0.0;
}

void solve(benchmark::State& state, int degree) {
    std::vector<double> x, y;
    makeData(x, y);
    Velarix::vxCurveFittingSolver solver;
    for (auto _ : state) {
        if (solver.solve(x, y, degree, false) != Velarix::vxCurveFittingSolver::kSolved) {
            state.SkipWithError("no fit");
        }
        benchmark::DoNotOptimize(solver.getRawCoefficients().data());
    }
    state.counters["peak_MB"] = peakMegabytes();
}

void BM_SolveLineOver100000Points(benchmark::State& state) {
    solve(state, 1);
}
void BM_SolveDegree10Over100000Points(benchmark::State& state) {
    solve(state, 10);
}

std::wstring numberList(const std::vector<double>& values) {
    std::wostringstream out;
    out.precision(17);
    for (size_t i = 0; i < values.size(); ++i) out << (i ? L" " : L"") << values[i];
    return out.str();
}

// The series as a 2D bar chart reads it; each iteration makes and fits a
// fresh item.
void BM_FitItemDegree10Over100000Points(benchmark::State& state) {
    std::vector<double> x, y;
    makeData(x, y);
    Velarix::vxUserSettings settings(L"", L"", 1, 1);
    Velarix::vxBaseChartParameters chart;
    Velarix::vxAssign chartCall;
    chartCall.setFunction(Velarix::kBarChart2D);
    Velarix::vxSetUpChartParameters(Velarix::kBarChart2D, chartCall, chart);
    Velarix::vxDataManager data(&settings);
    Velarix::vxAssign a;
    a.setFunction(Velarix::kChartData);
    a.addString(numberList(x));
    a.addString(numberList(y));
    data.assign(a);
    data.setUp(chart);
    data.setUpChartSeries(chart);
    for (auto _ : state) {
        auto item = Velarix::vxCurveFittingItem::make(10, &settings);
        item->setSeriesIndex(1);
        item->setUp(data);
        if (!item->hasCoefficients()) state.SkipWithError("no fit");
        benchmark::DoNotOptimize(item->getCoefficient(10));
    }
    state.counters["peak_MB"] = peakMegabytes();
}

}  // namespace

BENCHMARK(BM_SolveLineOver100000Points)
    ->Unit(benchmark::kMillisecond)
    ->Repetitions(10)
    ->ReportAggregatesOnly(true);
BENCHMARK(BM_SolveDegree10Over100000Points)
    ->Unit(benchmark::kMillisecond)
    ->Repetitions(10)
    ->ReportAggregatesOnly(true);
BENCHMARK(BM_FitItemDegree10Over100000Points)
    ->Unit(benchmark::kMillisecond)
    ->Repetitions(10)
    ->ReportAggregatesOnly(true);
