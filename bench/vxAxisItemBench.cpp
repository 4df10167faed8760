// One value axis scaled, marked and labelled, as each round of a chart's
// plot fitting does it; and one number through an axis label's format.
#include <benchmark/benchmark.h>

#include "Utilities/Sources/vxFormatNumber.h"
#include "axes/vxAxisItem.h"
#include "settings/vxUserSettings.h"

namespace {

void BM_AxisScaledMarkedAndLabelled(benchmark::State& state) {
    Velarix::vxUserSettings settings(L"", L"", 1, 1);
    settings.setDefaults();
    Velarix::vxAxisItem axis(&settings, 2);
    const float plot[4] = {60, 20, 380, 270};
    for (auto _ : state) {
        axis.setUpVScaling(plot, -12.5, 48.3, false, false, false, 9);
        axis.setUpTickMarks(plot, plot[0]);
        axis.setUpLabels(settings.getFormatSettings());
        benchmark::DoNotOptimize(axis.getNumOfMajorTicks());
    }
    if (axis.isError()) state.SkipWithError("axis failed");
}
BENCHMARK(BM_AxisScaledMarkedAndLabelled);

void BM_AxisLabelNumber(benchmark::State& state) {
    Velarix::vxFormatNumber number;
    std::wstring text;
    double value = 0.25;
    for (auto _ : state) {
        text = number.toString(value, L"|f2| kg");
        value += 0.5;
        benchmark::DoNotOptimize(text.data());
    }
}
BENCHMARK(BM_AxisLabelNumber);

}  // namespace
