// Encoding a chart-sized raster of 400 by 300 pixels.
#include <benchmark/benchmark.h>

#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "platform/vxImageEncoder.h"

namespace {

// A picture like a bar chart: a white page, a light plot area, six bars
// with a shaded rim, grid lines and a transparent margin, in cairo's layout.
std::vector<uint32_t> chartRaster(int width, int height) {
    std::vector<uint32_t> pixels(size_t(width) * size_t(height), 0xFFFFFFFF);
    auto fill = [&](int x0, int y0, int x1, int y1, uint32_t argb) {
        for (int y = y0; y < y1; ++y)
            for (int x = x0; x < x1; ++x) pixels[size_t(y) * size_t(width) + size_t(x)] = argb;
    };
    fill(0, 0, width, 10, 0x00000000);
    fill(40, 30, 380, 270, 0xFFF4F4F8);
    for (int y = 50; y < 270; y += 40) fill(40, y, 380, y + 1, 0xFFC0C0C0);
    for (int bar = 0; bar < 6; ++bar) {
        int x = 55 + bar * 55, top = 250 - bar * 35;
        fill(x, top, x + 35, 270, 0xFF3366FF);
        fill(x, top, x + 2, 270, 0xFF1A3380);
        fill(x + 33, top, x + 35, 270, 0x80102040);  // half transparent, premultiplied
    }
    return pixels;
}

void BM_EncodePNG400x300(benchmark::State& state) {
    const int width = 400, height = 300;
    std::vector<uint32_t> words = chartRaster(width, height);
    Velarix::vxRasterPixels pixels;
    pixels.data = reinterpret_cast<const unsigned char*>(words.data());
    pixels.width = width;
    pixels.height = height;
    pixels.stride = width * 4;
    std::vector<unsigned char> out;
    std::string status;
    for (auto _ : state) {
        if (!Velarix::vxEncodeImage(Velarix::vxImageFormat::kPNG, pixels, {}, out, status))
            state.SkipWithError(status.c_str());
        benchmark::DoNotOptimize(out.data());
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * width * height * 4);
    state.counters["bytes_out"] = static_cast<double>(out.size());
}

}  // namespace

BENCHMARK(BM_EncodePNG400x300)->Unit(benchmark::kMicrosecond);
