// Measuring and laying out short texts, as axis labels and legends do by
// the hundred.
#include <benchmark/benchmark.h>

#include <string>

#include "graphics/vxFontOLD.h"
#include "graphics/vxText.h"

namespace {

const std::wstring kLabel = L"Revenue 2024 (k EUR)";

void BM_MeasureLabel(benchmark::State& state) {
    const Velarix::vxFontOLD font(L"Verdana", 10.0f, Velarix::vxFontOLD::kPlain);
    benchmark::DoNotOptimize(font.getWidth(kLabel));  // finds the font outside the timing
    for (auto _ : state) benchmark::DoNotOptimize(font.getWidth(kLabel));
}

void BM_WrapAndShortenLabel(benchmark::State& state) {
    Velarix::vxText text(nullptr, kLabel + L" and a longer explanation of the figures");
    text.setMaxSize(60.0f, 30.0f);
    benchmark::DoNotOptimize(text.getOutputString());
    for (auto _ : state) {
        text.setText(kLabel + L" and a longer explanation of the figures");
        benchmark::DoNotOptimize(text.getOutputString());
    }
}

}  // namespace

BENCHMARK(BM_MeasureLabel);
BENCHMARK(BM_WrapAndShortenLabel);
