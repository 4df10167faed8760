// Numbers and dates as text, as a data file of a million values writes them.
#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "Utilities/Sources/vxFormatDateTime.h"
#include "Utilities/Sources/vxFormatNumber.h"

namespace {

std::vector<double> millionValues() {
    std::vector<double> values(1'000'000);
    double v = 0.001;
    for (double& value : values) {
        value = v;
        v = v * 1.0000137 + 0.37;
    }
    return values;
}

// One buffer for the whole file, as the writer keeps it.
void appendEach(benchmark::State& state, Velarix::vxFormat& format,
                const std::vector<double>& values) {
    std::wstring file;
    file.reserve(values.size() * 32);
    for (auto _ : state) {
        file.clear();
        for (double v : values) {
            format.appendString(v, file);
            file += L'\t';
        }
        benchmark::DoNotOptimize(file.data());
    }
    state.SetItemsProcessed(static_cast<int64_t>(state.iterations() * values.size()));
}

void appendAll(benchmark::State& state, const wchar_t* format, wchar_t separator = 0) {
    const std::vector<double> values = millionValues();
    Velarix::vxFormatNumber number;
    number.setThousandsSep(separator);
    if (number.setFormat(format) != 0) state.SkipWithError("bad format");
    appendEach(state, number, values);
}

void BM_NumbersPlain(benchmark::State& state) {
    appendAll(state, L"u");
}

void BM_NumbersFixedWithSeparators(benchmark::State& state) {
    appendAll(state, L"|+f2| kg", L',');
}

void BM_WholeNumbersWithSeparators(benchmark::State& state) {
    appendAll(state, L"i0", L',');
}

void BM_NumbersExponent(benchmark::State& state) {
    appendAll(state, L"e3");
}

// A label at a time: one new text for each value.
void BM_NumberLabels(benchmark::State& state) {
    const std::vector<double> values = millionValues();
    Velarix::vxFormatNumber number;
    if (number.setFormat(L"f2") != 0) state.SkipWithError("bad format");
    for (auto _ : state) {
        for (double v : values) benchmark::DoNotOptimize(number.toString(v));
    }
    state.SetItemsProcessed(static_cast<int64_t>(state.iterations() * values.size()));
}

// Dates with times from 2004 on, a minute and a half apart.
void BM_DatesWithTimes(benchmark::State& state) {
    std::vector<double> values(1'000'000);
    for (size_t i = 0; i < values.size(); ++i) {
        const long minutes = long(i) * 3 / 2;
        values[i] = 2453006 + minutes / 1440 + double(minutes % 1440) * 0.0006;
    }
    Velarix::vxFormatDateTime date(nullptr);
    if (date.setFormat(date.getDefaultFormat(values)) != 0) state.SkipWithError("bad format");
    appendEach(state, date, values);
}

}  // namespace

BENCHMARK(BM_DatesWithTimes)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_NumbersPlain)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_NumbersFixedWithSeparators)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_WholeNumbersWithSeparators)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_NumbersExponent)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_NumberLabels)->Unit(benchmark::kMillisecond);
