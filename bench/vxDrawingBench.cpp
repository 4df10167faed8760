// A whole run of the command in-process: read a script of 1,000 mixed
// primitives (rectangles, polygons, texts) on a 400 by 300 drawing, lay it
// out and write it as SVG, PNG or PDF.
#include <benchmark/benchmark.h>

#include <string>

#include "vxBenchScript.h"

namespace {

std::string mixedScript(const char* saveCall) {
    std::string s = "OpenDrawing(400; 300)\n";
    for (int i = 0; i < 1000; ++i) {
        const int x = (i * 37) % 360;
        const int y = (i * 53) % 270;
        const std::string xs = std::to_string(x), ys = std::to_string(y);
        switch (i % 3) {
            case 0:
                s += "AddRect(" + xs + "; " + ys + "; 30; 20; " + std::to_string(i % 255) +
                     " 120 200)\n";
                break;
            case 1:
                s += "AddPolygon(xyxy; " + xs + " " + std::to_string(y + 30) + " " +
                     std::to_string(x + 40) + " " + std::to_string(y + 25) + " " +
                     std::to_string(x + 25) + " " + ys + "; seagreen)\n";
                break;
            default:
                s += "AddText(" + xs + "; " + ys + "; \"Sales " + std::to_string(i) +
                     "\"; \"Verdana\"; 9)\n";
                break;
        }
    }
    return s + saveCall + "\n";
}

void runScript(benchmark::State& state, const char* saveCall) {
    Velarix::bench::runScriptInProcess(state, mixedScript(saveCall));
}

void BM_MixedPrimitivesToSVG(benchmark::State& state) {
    runScript(state, "SaveAsSVGFile(\"mixed.svg\"; replace)");
}
void BM_MixedPrimitivesToPNG(benchmark::State& state) {
    runScript(state, "SaveAsPNGFile(\"mixed.png\"; replace)");
}
void BM_MixedPrimitivesToPDF(benchmark::State& state) {
    runScript(state, "SaveAsPDFFile(\"mixed.pdf\"; replace)");
}
// Reading the script and building the drawing, with nothing written.
void BM_MixedPrimitivesNoOutput(benchmark::State& state) {
    runScript(state, "");
}

}  // namespace

BENCHMARK(BM_MixedPrimitivesNoOutput)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_MixedPrimitivesToSVG)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_MixedPrimitivesToPNG)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_MixedPrimitivesToPDF)->Unit(benchmark::kMillisecond);
