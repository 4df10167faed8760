// Drawing into the raster device: a thousand mixed shapes (rectangles,
// polygons and lines of text) into a picture of 400 by 300, on either route.
#include <benchmark/benchmark.h>

#include <cmath>
#include <string>

#include "graphics/vxBasicPaint.h"
#include "graphics/vxBasicStroke.h"
#include "graphics/vxFontOLD.h"
#include "output/vxDeviceGDIPlus.h"

namespace {

using namespace Velarix;

void drawMixedShapes(vxDevice& device, const vxBasicPaint* paints, const vxBasicStroke& stroke,
                     const vxFontOLD& font) {
    for (int i = 0; i < 1000; ++i) {
        const float x = static_cast<float>((i * 37) % 360);
        const float y = static_cast<float>((i * 53) % 270);
        const vxBasicPaint& paint = paints[i % 4];
        switch (i % 3) {
            case 0: {
                const float bounds[4] = {x, y, x + 30, y + 20};
                device.fillPolygon2D(paint, {x, x + 30, x + 30, x}, {y, y, y + 20, y + 20}, bounds,
                                     1);
                device.drawPolygon2D(stroke, paints[0], {x, x + 30, x + 30, x},
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
                const float bounds[4] = {x, y, x + 80, y + font.getStringHeight()};
                device.drawString2D(L"Sales " + std::to_wstring(i), font, paints[0], bounds, 1, 1,
                                    0.0f);
                break;
            }
        }
    }
}

void BM_RasterMixedShapes(benchmark::State& state) {
    vxBasicPaint paints[4] = {vxBasicPaint(0, 0, 0), vxBasicPaint(51, 102, 255),
                              vxBasicPaint(255, 102, 0, 200), vxBasicPaint(120, 0, 120)};
    paints[3].setPatternIndex(27);  // a hatch
    const vxBasicStroke stroke(1.5f);
    const vxFontOLD font(L"Arial", 10, vxFontOLD::kPlain);
    font.getLineHeight();  // measured once, outside the loop
    vxDeviceGDIPlus device;
    device.setSize(400, 300);
    device.setIsBitmap(state.range(0) != 0);
    device.setAntialiasing(1);
    for (auto _ : state) {
        device.open();
        drawMixedShapes(device, paints, stroke, font);
        device.close();
        benchmark::DoNotOptimize(device.getPicture());
    }
    state.SetItemsProcessed(state.iterations() * 1000);
    state.SetLabel(state.range(0) != 0 ? "bitmap" : "recorded");
}

}  // namespace

BENCHMARK(BM_RasterMixedShapes)->Arg(1)->Arg(0)->Unit(benchmark::kMillisecond);
