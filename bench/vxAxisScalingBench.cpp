// The set-up of a value axis and the mapping of a long series.
#include <benchmark/benchmark.h>

#include <vector>

#include "axes/vxAxisScaling.h"

namespace {

// Data of a typical chart: 3.7 to 96.2 on an axis of 300 units; the
// argument is the number of minor parts of a major interval.
void setUpTypicalAxis(Velarix::vxAxisScaling& scale, long numOfMinorIntervals) {
    scale.setMinDataUC(3.7);
    scale.setMaxDataUC(96.2);
    scale.setOrigNumOfMinorIntervals(numOfMinorIntervals);
    scale.setMaxNumOfMajorIntervals(12);
    scale.setMinDC(0.0f);
    scale.setMaxDC(300.0f);
}

void BM_LinearSetUp(benchmark::State& state) {
    Velarix::vxAxisScaling scale;
    setUpTypicalAxis(scale, state.range(0));
    for (auto _ : state) {
        scale.setUp(1, 2);
        benchmark::DoNotOptimize(scale.getMajorValues().data());
    }
    if (scale.isError()) state.SkipWithError("scaling error");
}

void BM_ToDCOfTenThousandValues(benchmark::State& state) {
    Velarix::vxAxisScaling scale;
    setUpTypicalAxis(scale, 2);
    scale.setUp(1, 2);
    std::vector<double> values(10000);
    for (size_t i = 0; i < values.size(); ++i) values[i] = 3.7 + double(i % 977) * 0.0947;
    std::vector<float> out;
    for (auto _ : state) {
        scale.toDC(values, out);
        benchmark::DoNotOptimize(out.data());
    }
    state.SetItemsProcessed(static_cast<int64_t>(state.iterations() * values.size()));
}

}  // namespace

BENCHMARK(BM_LinearSetUp)->Arg(0)->Arg(2)->Unit(benchmark::kNanosecond);
BENCHMARK(BM_ToDCOfTenThousandValues)->Unit(benchmark::kMicrosecond);
