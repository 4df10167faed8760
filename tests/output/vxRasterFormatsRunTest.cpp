// Picture files written by whole runs of the command, read back by each
// format's own library: what a user sees in the file, format by format.
#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <regex>
#include <string>
#include <vector>

#include "graphics/vxLinearGradient.h"
#include "output/vxRasterTestSupport.h"
#include "output/vxWriteExternal.h"
#include "platform/vxPictureTestSupport.h"
#include "support/vxTestRun.h"

namespace Velarix::test {
namespace {

struct Format {
    const char* saveAs;
    const char* file;
    vxImageFormat format;
    bool alpha;
    // The largest channel difference on flat areas: GIF holds the few
    // colours of these drawings exactly in its palette; JPEG's default
    // quality smears edges and a 1-pixel pattern.
    int tolerance;
};

const Format kFormats[] = {
    {"SaveAsPNGFile", "a.png", vxImageFormat::kPNG, true, 0},
    {"SaveAsTIFFile", "a.tif", vxImageFormat::kTIFF, true, 0},
    {"SaveAsGIFFile", "a.gif", vxImageFormat::kGIF, false, 0},
    {"SaveAsBMPFile", "a.bmp", vxImageFormat::kBMP, false, 0},
    {"SaveAsJPGFile", "a.jpg", vxImageFormat::kJPEG, false, 24},
};

vxDecodedPicture decode(const std::string& path, vxImageFormat format) {
    const std::string bytes = readFile(path);
    return vxDecodePicture(format, std::vector<unsigned char>(bytes.begin(), bytes.end()));
}

// A pixel as it shows on a white page, and its grey level.
vxRGBA seen(const vxDecodedPicture& p, int x, int y) {
    return vxOverWhite(p.at(x, y));
}

int grey(const vxRGBA& c) {
    return (c[0] * 299 + c[1] * 587 + c[2] * 114) / 1000;
}

bool isNear(const vxRGBA& c, vxRGBA expected, int tolerance) {
    return vxChannelDifference(c, expected, true) <= tolerance;
}

std::string saveAll() {
    std::string lines;
    for (const Format& f : kFormats) lines += std::string(f.saveAs) + "(\"" + f.file + "\")\n";
    return lines;
}

// A red square, a black line of width 1 on a whole-pixel y, and a blue
// checkered hatch, with antialiasing off and on; the background stays
// transparent where the format has alpha and is white elsewhere.
TEST(vxRasterFormatsRun, ShapesInEveryFormat) {
    for (int antialiasing : {0, 3}) {
        const std::string folder = makeTempFolder("formats-" + std::to_string(antialiasing));
        const RunResult r = runVelarix("OpenDrawing(80; 60; 0; " + std::to_string(antialiasing) +
                                           ")\n"
                                           "AddRect(4; 4; 20; 20; 255 0 0)\n"
                                           "AddLine(30; 5; 76; 5; 1; 0 0 0)\n"
                                           "AddRect(32; 16; 40; 16; 0 0 255; 8)\n" +
                                           saveAll(),
                                       {"--base", folder});
        ASSERT_EQ(r.status, 0) << r.err;
        for (const Format& f : kFormats) {
            SCOPED_TRACE(std::string(f.file) + " antialiasing " + std::to_string(antialiasing));
            const vxDecodedPicture p = decode(folder + "/" + f.file, f.format);
            ASSERT_TRUE(p.ok);
            EXPECT_EQ(p.width, 80);
            EXPECT_EQ(p.height, 60);
            EXPECT_EQ(p.hasAlpha, f.alpha);
            const vxRGBA background = {255, 255, 255, f.alpha ? 0 : 255};
            EXPECT_TRUE(isNear(p.at(10, 45), background, f.alpha ? 0 : 2));
            EXPECT_TRUE(isNear(p.at(14, 14), {255, 0, 0, 255}, f.tolerance));

            // The line lies half in row 4 and half in row 5.
            int dark = 0, blended = 0;
            for (int y = 1; y < 10; ++y) {
                const int level = grey(seen(p, 50, y));
                dark += level < 64;
                blended += level >= 64 && level < 192;
            }
            if (antialiasing == 0) {
                EXPECT_EQ(dark, 1);
                EXPECT_EQ(blended, 0);
            } else {
                EXPECT_EQ(dark, 0);
                EXPECT_EQ(blended, 2);
            }

            // Set bits of the hatch, where x + y is odd, are blue; the others white.
            long setSum = 0, clearSum = 0;
            for (int y = 17; y < 31; ++y) {
                for (int x = 33; x < 71; ++x) {
                    const bool isSet = (x + y) % 2 == 1;
                    const vxRGBA c = seen(p, x, y);
                    (isSet ? setSum : clearSum) += grey(c);
                    if (f.format == vxImageFormat::kJPEG) continue;
                    const vxRGBA expected =
                        isSet ? vxRGBA{0, 0, 255, 255} : vxRGBA{255, 255, 255, 255};
                    ASSERT_TRUE(isNear(c, expected, f.tolerance)) << x << "," << y;
                }
            }
            EXPECT_GT(clearSum - setSum, 150 * 38 * 7);
        }
    }
}

// A gradient from red to blue across the drawing, written in every format.
TEST(vxRasterFormatsRun, GradientRunsFromFirstToLastColourInEveryFormat) {
    const std::string folder = makeTempFolder("formats-gradient");
    vxLinearGradient gradient;
    gradient.setUseGammaCorrection(false);
    gradient.addColor(255, 0, 0, 0.0f);
    gradient.addColor(0, 0, 255, 1.0f);
    const Drawn d = draw(
        100, 16,
        [&](vxDeviceGDIPlus& device) {
            for (const Format& f : kFormats) {
                device.addTarget(kTargetFile);
                vxWriteExternal* target = device.getLastTarget();
                const std::string path = folder + "/" + f.file;
                target->setFileName(std::wstring(path.begin(), path.end()));
                target->setFileFlag(2);
                target->setFormat(static_cast<short>(f.format));
            }
            fillRect(device, gradient, 0, 0, 100, 16);
        },
        Route::kRecorded, 1);
    ASSERT_FALSE(d.device->isError());
    for (const Format& f : kFormats) {
        SCOPED_TRACE(f.file);
        const vxDecodedPicture p = decode(folder + "/" + f.file, f.format);
        ASSERT_TRUE(p.ok);
        const int tolerance = f.tolerance / 2 + 4;
        EXPECT_TRUE(isNear(p.at(0, 8), {253, 0, 2, 255}, tolerance));
        EXPECT_TRUE(isNear(p.at(50, 8), {126, 0, 129, 255}, tolerance));
        EXPECT_TRUE(isNear(p.at(99, 8), {1, 0, 254, 255}, tolerance));
        // Red falls and blue rises step by step.
        for (int x = 10; x < 100; x += 10) {
            EXPECT_LT(p.at(x, 8)[0], p.at(x - 10, 8)[0]) << x;
            EXPECT_GT(p.at(x, 8)[2], p.at(x - 10, 8)[2]) << x;
        }
    }
}

// The ink of a text in the PNG sits where the SVG of the same run puts the
// text: its baseline under letters without descenders, its anchor at the
// left edge, the middle or the right edge of the ink, within the side
// bearings of the first and last letter.
TEST(vxRasterFormatsRun, TextInThePNGSitsWhereTheSVGPutsIt) {
    const std::string folder = makeTempFolder("formats-text");
    const RunResult r = runVelarix(
        "OpenDrawing(300; 150)\n"
        "AddText(20; 20; \"HEH\"; \"Liberation Sans\"; 20; plain; 0 0 0; left)\n"
        "AddText(150; 60; \"HEHEH\"; \"Liberation Serif\"; 16; bold; 0 0 0; center)\n"
        "AddText(280; 100; \"HIH\"; \"DejaVu Sans\"; 24; plain; 0 0 0; right)\n"
        "SaveAsSVGFile(\"t.svg\")\nSaveAsPNGFile(\"t.png\")\n",
        {"--base", folder});
    ASSERT_EQ(r.status, 0) << r.err;
    const std::string svg = readFile(folder + "/t.svg");
    const std::regex textTag(R"re(<text x="([0-9.]+)" y="([0-9.]+)")re");
    std::vector<std::pair<double, double>> anchors;
    for (auto it = std::sregex_iterator(svg.begin(), svg.end(), textTag);
         it != std::sregex_iterator(); ++it)
        anchors.emplace_back(std::stod((*it)[1]), std::stod((*it)[2]));
    ASSERT_EQ(anchors.size(), 3u);

    const vxDecodedPicture png = decode(folder + "/t.png", vxImageFormat::kPNG);
    ASSERT_TRUE(png.ok);
    // Each text alone in a band of rows between the others' baselines.
    const int bands[3][2] = {{0, 25}, {25, 65}, {65, 150}};
    for (int i = 0; i < 3; ++i) {
        SCOPED_TRACE(i);
        int left = png.width, right = -1, bottom = -1;
        for (int y = bands[i][0]; y < bands[i][1]; ++y) {
            for (int x = 0; x < png.width; ++x) {
                if (png.at(x, y)[3] < 128) continue;
                left = std::min(left, x);
                right = std::max(right, x + 1);
                bottom = std::max(bottom, y + 1);
            }
        }
        ASSERT_GE(right, 0);
        const auto [x, y] = anchors[static_cast<size_t>(i)];
        EXPECT_NEAR(bottom, y, 1.0);
        const double centre = (left + right) / 2.0;
        const double inkAnchor[3] = {left - 2.0, centre, right + 2.5};
        EXPECT_NEAR(inkAnchor[i], x, i == 1 ? 1.5 : 2.5);
    }
}

// A picture of 10000 by 10000 pixels takes 400 MB as it is drawn. On
// either route it is all the memory that writing it takes, in a format with
// alpha, one without, and BMP, whose 300 MB file goes out a few rows at a
// time: a second picture or the BMP file in memory would pass 700 MB.
TEST(vxRasterFormatsRun, HugeDrawingIsWrittenInOnePicturesMemory) {
    for (const char* route : {"0", "1"}) {
        SCOPED_TRACE(std::string("route ") + route);
        const std::string folder = makeTempFolder(std::string("formats-huge-") + route);
        // The command tells its own peak: a child's usage as the system
        // counts it starts from the memory of the test process.
        setenv("VELARIX_PEAK_MEMORY", "1", 1);
        const RunResult r = runVelarixBinary(
            "--base " + folder, std::string("OpenDrawing(10000; 10000; ") + route +
                                    ")\nAddRect(100; 100; 9800; 9800; 255 0 0)\n"
                                    "SaveAsPNGFile(\"big.png\")\nSaveAsJPGFile(\"big.jpg\")\n"
                                    "SaveAsBMPFile(\"big.bmp\")\n");
        ASSERT_EQ(r.status, 0) << r.err;
        const std::string png = readFile(folder + "/big.png");
        ASSERT_GT(png.size(), 24u);
        auto bigEndian = [&](size_t at) {
            return (unsigned(uint8_t(png[at])) << 24) | (unsigned(uint8_t(png[at + 1])) << 16) |
                   (unsigned(uint8_t(png[at + 2])) << 8) | unsigned(uint8_t(png[at + 3]));
        };
        EXPECT_EQ(bigEndian(16), 10000u);
        EXPECT_EQ(bigEndian(20), 10000u);
        EXPECT_GT(readFile(folder + "/big.jpg").size(), 1000u);
        EXPECT_EQ(std::filesystem::file_size(folder + "/big.bmp"), 54u + 30000u * 10000u);
        std::filesystem::remove(folder + "/big.bmp");
        unsetenv("VELARIX_PEAK_MEMORY");
        const size_t at = r.err.find("VmHWM:");
        ASSERT_NE(at, std::string::npos) << r.err;
        EXPECT_LT(std::stol(r.err.substr(at + 6)), 560L * 1024) << "kilobytes at the peak";
    }
}

}  // namespace
}  // namespace Velarix::test
