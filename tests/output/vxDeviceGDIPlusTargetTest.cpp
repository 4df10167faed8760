// Picture files and streams of the raster device, and the SaveAs functions
// of a script that make them.
#include <gtest/gtest.h>

#include <filesystem>

#include "graphics/vxLinearGradient.h"
#include "output/vxRasterTestSupport.h"
#include "output/vxStreamRecord.h"
#include "output/vxWriteExternal.h"
#include "support/vxTestRun.h"

namespace Velarix::test {
namespace {

namespace fs = std::filesystem;

bool startsWith(const std::string& bytes, const std::string& magic) {
    return bytes.compare(0, magic.size(), magic) == 0;
}

void addTarget(vxDevice& device, short type, short format, const std::string& path = "",
               short flag = 2) {
    device.addTarget(type);
    vxWriteExternal* target = device.getLastTarget();
    target->setFileName(std::wstring(path.begin(), path.end()));
    target->setFileFlag(flag);
    target->setFormat(format);
}

// PNG keeps the transparent background; BMP, a 24-bit picture bottom up,
// has the picture on white.
TEST(vxDeviceGDIPlusTargets, FilesInTheirFormats) {
    const std::string folder = makeTempFolder("raster-files");
    const char* names[] = {"", "", "a.gif", "a.jpg", "a.tif", "a.png", "a.bmp"};
    for (Route route : {Route::kBitmap, Route::kRecorded}) {
        const Drawn d = draw(
            40, 30,
            [&](vxDeviceGDIPlus& d) {
                for (short f = kFormatGIF; f <= kFormatBMP; ++f)
                    addTarget(d, kTargetFile, f, folder + "/" + names[f]);
                fillRect(d, *rgba(255, 0, 0), 10, 10, 30, 20);
            },
            route);
        ASSERT_FALSE(d.device->isError());
        cairo_surface_t* png = cairo_image_surface_create_from_png((folder + "/a.png").c_str());
        ASSERT_EQ(cairo_surface_status(png), CAIRO_STATUS_SUCCESS);
        EXPECT_EQ(maxDifference(png, d.picture), 0);
        cairo_surface_destroy(png);
        const std::string bmp = readFile(folder + "/a.bmp");
        ASSERT_TRUE(startsWith(bmp, "BM") && bmp.size() == 54 + 40 * 30 * 3);
        auto bgr = [&](int x, int y) { return bmp.substr(54 + (29 - y) * 120 + x * 3, 3); };
        EXPECT_EQ(bgr(15, 15), std::string("\x00\x00\xFF", 3));
        EXPECT_EQ(bgr(5, 5), "\xFF\xFF\xFF");
        EXPECT_TRUE(startsWith(readFile(folder + "/a.jpg"), "\xFF\xD8\xFF"));
        EXPECT_TRUE(startsWith(readFile(folder + "/a.gif"), "GIF8"));
        EXPECT_TRUE(startsWith(readFile(folder + "/a.tif"), "II*"));
    }
}

// One stream for each format asked for, in the order GIF, JPEG, TIFF, PNG,
// BMP, with the drawing's size; a JPEG's quality reaches the encoder.
TEST(vxDeviceGDIPlusTargets, StreamsAndQuality) {
    auto streams = [](const std::vector<short>& formats, short quality) {
        return draw(64, 64, [&](vxDeviceGDIPlus& d) {
            for (short format : formats) addTarget(d, kTargetStream, format);
            d.getLastTarget()->setCompressionQuality(quality);
            vxLinearGradient gradient;
            gradient.addColor(255, 0, 0, 0.0f);
            gradient.addColor(0, 0, 255, 1.0f);
            gradient.setP2(1, 1);
            fillRect(d, gradient, 0, 0, 64, 64);
        });
    };
    const Drawn d = streams({kFormatPNG, kFormatGIF, kFormatPNG, kFormatEMF, kFormatNone}, 0);
    ASSERT_EQ(d.device->getNumOfStreams(), 2);
    const vxStreamRecord* gif = d.device->getStream(0);
    const vxStreamRecord* png = d.device->getStream(1);
    EXPECT_EQ(gif->formatCode, kStreamGIF);
    EXPECT_TRUE(startsWith(std::string(gif->bytes.begin(), gif->bytes.end()), "GIF8"));
    EXPECT_EQ(png->formatCode, kStreamPNG);
    EXPECT_TRUE(startsWith(std::string(png->bytes.begin(), png->bytes.end()), "\x89PNG"));
    EXPECT_EQ(png->width, 64.0f);
    EXPECT_EQ(d.device->getStream(2), nullptr);
    EXPECT_LT(streams({kFormatJPEG}, 20).device->getStream(0)->bytes.size(),
              streams({kFormatJPEG}, 100).device->getStream(0)->bytes.size());
}

// A target's fault ends the writing and becomes the device's error; a
// picture without pixels can't be written, nor one too large for cairo.
TEST(vxDeviceGDIPlusTargets, Faults) {
    const std::string folder = makeTempFolder("raster-fault");
    writeFile(folder + "/taken.png", "old");
    const Drawn d = draw(10, 10, [&](vxDeviceGDIPlus& d) {
        addTarget(d, kTargetFile, kFormatPNG, folder + "/taken.png", 3);
        addTarget(d, kTargetFile, kFormatPNG, folder + "/later.png");
    });
    ASSERT_TRUE(d.device->isError());
    EXPECT_EQ(d.device->getError()->getErrorCode(), vxErrFile::kExists);
    EXPECT_EQ(readFile(folder + "/taken.png"), "old");
    EXPECT_FALSE(fs::exists(folder + "/later.png"));

    const Drawn empty =
        draw(0, 0, [](vxDeviceGDIPlus& d) { addTarget(d, kTargetStream, kFormatPNG); });
    ASSERT_TRUE(empty.device->isError());
    EXPECT_EQ(empty.device->getError()->getErrorCode(), vxErrChart::kImageDimension);
    const Drawn huge =
        draw(40000, 10, [](vxDevice& d) { fillRect(d, *rgba(0, 0, 0), 0, 0, 5, 5); });
    ASSERT_TRUE(huge.device->isError());
    EXPECT_EQ(huge.device->getError()->getErrorCode(), vxErrChart::kImageDimension);
    EXPECT_EQ(huge.picture, nullptr);
}

// The SaveAs functions of the raster formats write picture files of the
// drawing's size through one raster device; EMF and PICT write nothing.
TEST(vxDeviceGDIPlusTargets, SaveAsFunctionsWritePictures) {
    const std::string folder = makeTempFolder("raster-script");
    RunResult r = runVelarix(
        "OpenDrawing(100; 50)\nSaveAsPNGFile(\"a.png\")\nSaveAsGIFFile(\"a.gif\")\n"
        "SaveAsTIFFile(\"a.tif\")\nSaveAsBMPFile(\"a.bmp\")\n"
        "SaveAsJPGFile(\"a.jpg\"; replace; \"JPEG\"; min)\n"
        "SaveAsEMFFile(\"a.emf\")\nSaveAsPICTFile(\"a.pct\")\n",
        {"--base", folder});
    ASSERT_EQ(r.status, 0) << r.err;
    cairo_surface_t* png = cairo_image_surface_create_from_png((folder + "/a.png").c_str());
    EXPECT_EQ(cairo_image_surface_get_width(png), 100);
    EXPECT_EQ(cairo_image_surface_get_height(png), 50);
    cairo_surface_destroy(png);
    for (const char* name : {"a.gif", "a.tif", "a.bmp", "a.jpg"})
        EXPECT_GT(fs::file_size(folder + "/" + name), 50u) << name;
    EXPECT_FALSE(fs::exists(folder + "/a.emf") || fs::exists(folder + "/a.pct"));
}

}  // namespace
}  // namespace Velarix::test
