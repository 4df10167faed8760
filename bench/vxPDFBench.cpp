// Drawing into the PDF device: mixed shapes (filled and outlined
// rectangles, polygons, lines of text, a translucent paint and a hatch)
// into a document of 400 by 300, closed into its file, plain and
// compressed; a thousand shapes and a hundred thousand.
#include <benchmark/benchmark.h>

#include <string>

#include "graphics/vxBasicPaint.h"
#include "graphics/vxBasicStroke.h"
#include "graphics/vxFontOLD.h"
#include "output/vxDevicePDF.h"

namespace {

using namespace Velarix;

struct Styles {
    vxBasicPaint paints[4] = {
        {0, 0, 0, 255}, {200, 60, 30, 255}, {30, 90, 200, 128}, {20, 140, 90, 255}};
    vxBasicStroke stroke{1.5f};
    vxFontOLD font{L"Helvetica", 9, vxFontOLD::kPlain};
    Styles() { paints[3].setPatternIndex(6); }
};

void drawShape(vxDevicePDF& device, const Styles& styles, int i) {
    const float x = static_cast<float>((i * 37) % 360);
    const float y = static_cast<float>((i * 53) % 270);
    const vxBasicPaint& paint = styles.paints[i % 4];
    switch (i % 3) {
        case 0: {
            const float bounds[4] = {x, y, x + 30, y + 20};
            device.fillPolygon2D(paint, {x, x + 30, x + 30, x}, {y, y, y + 20, y + 20}, bounds, 1);
            device.drawPolygon2D(styles.stroke, styles.paints[0], {x, x + 30, x + 30, x},
                                 {y, y, y + 20, y + 20}, bounds, true);
            break;
        }
        case 1: {
            const float bounds[4] = {x, y, x + 40, y + 30};
            device.fillPolygon2D(paint, {x, x + 40, x + 25, x + 5}, {y + 30, y + 25, y, y + 10},
                                 bounds, 0);
            break;
        }
        default: {
            const float bounds[4] = {x, y, x + 80, y + styles.font.getStringHeight()};
            device.drawString2D(L"Sales " + std::to_wstring(i), styles.font, styles.paints[0],
                                bounds, 3, 1, 0.0f);
            break;
        }
    }
}

void drawToPDF(benchmark::State& state, bool compress) {
    const Styles styles;
    const int count = static_cast<int>(state.range(0));
    for (auto _ : state) {
        vxDevicePDF device;
        device.setSize(400, 300);
        device.setCompression(compress);
        device.open();
        for (int i = 0; i < count; ++i) drawShape(device, styles, i);
        device.close();
        if (device.isError()) state.SkipWithError("the device failed");
        benchmark::DoNotOptimize(device.getFile().size());
    }
}

void BM_MixedShapesToPDF(benchmark::State& state) {
    drawToPDF(state, false);
}
void BM_MixedShapesToCompressedPDF(benchmark::State& state) {
    drawToPDF(state, true);
}

}  // namespace

BENCHMARK(BM_MixedShapesToPDF)->Arg(1000)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_MixedShapesToCompressedPDF)->Arg(1000)->Unit(benchmark::kMillisecond);
