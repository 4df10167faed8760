// The smallest complete script, run by the command: a PNG with two series
// of four bars, read back pixel by pixel.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "platform/vxPictureTestSupport.h"
#include "support/vxTestRun.h"

namespace Velarix::test {
namespace {

TEST(BarChartPicture, TheFirstScriptDrawsTwoSeriesOfFourBars) {
    const std::string folder = makeTempFolder("first-chart");
    const RunResult r = runVelarix(
        "OpenDrawing(400; 300)\nOpenView(0; 0; 400; 300)\nOpenChart(10; 10; 380; 280)\n"
        "BarChart(label)\nChartData(10 20 30 40; 15 25 35 45)  // two series of four values\n"
        "CloseChart()\nCloseView()\nCloseDrawing()\nSaveAsPNGFile(\"chart.png\")\n",
        {"--base", folder});
    ASSERT_EQ(r.status, 0) << r.err;
    std::ifstream file(folder + "/chart.png", std::ios::binary);
    const std::vector<unsigned char> bytes{std::istreambuf_iterator<char>(file), {}};
    const vxDecodedPicture png = vxDecodePicture(vxImageFormat::kPNG, bytes);
    ASSERT_TRUE(png.ok);
    ASSERT_EQ(png.width, 400);
    ASSERT_EQ(png.height, 300);
    // Just over the category axis, left to right: runs of the first
    // series' black and the second's dark red, alternating, each several
    // pixels wide (edges may blend; a channel may be off by 8).
    const vxRGBA colours[2] = {{0, 0, 0, 255}, {0x44, 0, 0, 255}};
    std::vector<int> runs;
    int y = 0;
    for (y = png.height - 1; y > 0; --y) {
        if (vxChannelDifference(png.at(200, y), {255, 255, 255, 255}, false) > 8) break;
    }
    y -= 6;  // over the axis line and its marks
    int last = -1, length = 0;
    for (int x = 0; x < png.width; ++x) {
        int kind = -1;
        for (int k = 0; k < 2; ++k) {
            if (vxChannelDifference(png.at(x, y), colours[k], false) <= 8) kind = k;
        }
        if (kind == last) {
            ++length;
            continue;
        }
        if (last >= 0 && length >= 5) runs.push_back(last);
        last = kind;
        length = 1;
    }
    EXPECT_EQ(runs, std::vector<int>({0, 1, 0, 1, 0, 1, 0, 1})) << "scan line " << y;
}

}  // namespace
}  // namespace Velarix::test
