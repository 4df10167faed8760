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

bool startsWith(const std::vector<uint8_t>& bytes, const std::string& magic) {
    return startsWith(std::string(bytes.begin(), bytes.end()), magic);
}

// A pixel of an uncompressed 24-bit BMP: rows bottom up, blue first, each
// row padded to four bytes.
Pixel bmpPixel(const std::string& bmp, int width, int height, int x, int y) {
    const size_t rowSize = (static_cast<size_t>(width) * 3 + 3) / 4 * 4;
    const size_t at = 54 + static_cast<size_t>(height - 1 - y) * rowSize + x * 3;
    auto byte = [&](size_t i) { return static_cast<int>(static_cast<unsigned char>(bmp[i])); };
    return Pixel{byte(at + 2), byte(at + 1), byte(at), 255};
}

void addFileTarget(vxDevice& device, const std::string& path, short format, short flag = 2) {
    device.addTarget(kTargetFile);
    vxWriteExternal* target = device.getLastTarget();
    target->setFileName(std::wstring(path.begin(), path.end()));
    target->setFileFlag(flag);
    target->setFormat(format);
}

// PNG keeps the transparent background, BMP has the picture on white.
TEST(vxDeviceGDIPlusTargets, FilesInTheirFormats) {
    const std::string folder = makeTempFolder("raster-files");
    for (Route route : {Route::kBitmap, Route::kRecorded}) {
        auto device = std::make_unique<vxDeviceGDIPlus>();
        device->setSize(40, 30);
        device->setIsBitmap(route == Route::kBitmap);
        addFileTarget(*device, folder + "/a.png", kFormatPNG);
        addFileTarget(*device, folder + "/a.bmp", kFormatBMP);
        addFileTarget(*device, folder + "/a.jpg", kFormatJPEG);
        addFileTarget(*device, folder + "/a.gif", kFormatGIF);
        addFileTarget(*device, folder + "/a.tif", kFormatTIFF);
        device->open();
        fillRect(*device, *rgba(255, 0, 0), 10, 10, 30, 20);
        device->close();
        ASSERT_FALSE(device->isError());

        cairo_surface_t* png = cairo_image_surface_create_from_png((folder + "/a.png").c_str());
        ASSERT_EQ(cairo_surface_status(png), CAIRO_STATUS_SUCCESS);
        EXPECT_EQ(cairo_image_surface_get_width(png), 40);
        EXPECT_TRUE(isNear(pixelAt(png, 15, 15), 255, 0, 0, 255));
        EXPECT_EQ(pixelAt(png, 5, 5).a, 0);
        cairo_surface_destroy(png);

        const std::string bmp = readFile(folder + "/a.bmp");
        ASSERT_TRUE(startsWith(bmp, "BM"));
        EXPECT_TRUE(isNear(bmpPixel(bmp, 40, 30, 15, 15), 255, 0, 0, 255));
        EXPECT_TRUE(isNear(bmpPixel(bmp, 40, 30, 5, 5), 255, 255, 255, 255));
        EXPECT_TRUE(startsWith(readFile(folder + "/a.jpg"), "\xFF\xD8\xFF"));
        EXPECT_TRUE(startsWith(readFile(folder + "/a.gif"), "GIF8"));
        EXPECT_TRUE(startsWith(readFile(folder + "/a.tif"), "II*"));
    }
}

// The quality of a JPEG target goes to the encoder: a gradient costs fewer
// bytes at a low quality.
TEST(vxDeviceGDIPlusTargets, JPEGQuality) {
    auto sizeAt = [](short quality) {
        auto device = std::make_unique<vxDeviceGDIPlus>();
        device->setSize(64, 64);
        device->addTarget(kTargetStream);
        device->getLastTarget()->setFormat(kFormatJPEG);
        device->getLastTarget()->setCompressionQuality(quality);
        device->open();
        vxLinearGradient gradient;
        gradient.addColor(255, 0, 0, 0.0f);
        gradient.addColor(0, 0, 255, 1.0f);
        gradient.setP2(1, 1);
        fillRect(*device, gradient, 0, 0, 64, 64);
        device->close();
        return device->getStream(0)->bytes.size();
    };
    EXPECT_LT(sizeAt(20), sizeAt(100));
}

// A target's fault ends the writing and becomes the device's error.
TEST(vxDeviceGDIPlusTargets, TargetFaultsReachTheDevice) {
    const std::string folder = makeTempFolder("raster-fault");
    writeFile(folder + "/taken.png", "old");
    auto device = openDevice(10, 10);
    addFileTarget(*device, folder + "/taken.png", kFormatPNG, 3);
    addFileTarget(*device, folder + "/later.png", kFormatPNG);
    device->close();
    ASSERT_TRUE(device->isError());
    EXPECT_EQ(device->getError()->getErrorCode(), vxErrFile::kExists);
    EXPECT_EQ(readFile(folder + "/taken.png"), "old");
    EXPECT_FALSE(fs::exists(folder + "/later.png"));
}

// One stream for each format asked for, in the order GIF, JPEG, TIFF,
// PNG, BMP, with the drawing's size.
TEST(vxDeviceGDIPlusTargets, OneStreamForEachFormat) {
    auto device = std::make_unique<vxDeviceGDIPlus>();
    device->setSize(40, 30);
    for (short format : {short{kFormatPNG}, short{kFormatGIF}, short{kFormatPNG}, short{kFormatEMF},
                         kFormatNone}) {
        device->addTarget(kTargetStream);
        device->getLastTarget()->setFormat(format);
    }
    device->addTarget(2);
    EXPECT_EQ(device->getNumOfTargets(), 5);
    EXPECT_EQ(device->getNumOfStreams(), 2);
    device->open();
    device->close();
    ASSERT_FALSE(device->isError());
    const vxStreamRecord* gif = device->getStream(0);
    const vxStreamRecord* png = device->getStream(1);
    ASSERT_TRUE(gif && png);
    EXPECT_EQ(gif->formatCode, kStreamGIF);
    EXPECT_TRUE(startsWith(gif->bytes, "GIF8"));
    EXPECT_EQ(png->formatCode, kStreamPNG);
    EXPECT_TRUE(startsWith(png->bytes, "\x89PNG"));
    EXPECT_EQ(png->width, 40.0f);
    EXPECT_EQ(png->height, 30.0f);
    EXPECT_EQ(device->getStream(2), nullptr);
}

TEST(vxDeviceGDIPlusTargets, EmptyPictureCantBeEncoded) {
    auto device = std::make_unique<vxDeviceGDIPlus>();
    device->addTarget(kTargetStream);
    device->getLastTarget()->setFormat(kFormatPNG);
    device->open();
    device->close();
    ASSERT_TRUE(device->isError());
    EXPECT_EQ(device->getError()->getErrorCode(), vxErrChart::kImageDimension);
}

// The SaveAs functions of the raster formats write picture files through
// one raster device, with their file flags and the JPEG quality; EMF and
// PICT write nothing.
TEST(vxDeviceGDIPlusTargets, SaveAsFunctionsWritePictures) {
    const std::string folder = makeTempFolder("raster-script");
    const std::string script =
        "OpenDrawing(100; 50)\n"
        "SaveAsPNGFile(\"a.png\")\nSaveAsGIFFile(\"a.gif\")\nSaveAsTIFFile(\"a.tif\")\n"
        "SaveAsBMPFile(\"a.bmp\")\nSaveAsJPGFile(\"a.jpg\"; replace; \"JPEG\"; min)\n"
        "SaveAsEMFFile(\"a.emf\")\nSaveAsPICTFile(\"a.pct\")\n";
    RunResult r = runVelarix(script, {"--base", folder});
    ASSERT_EQ(r.status, 0) << r.err;
    cairo_surface_t* png = cairo_image_surface_create_from_png((folder + "/a.png").c_str());
    ASSERT_EQ(cairo_surface_status(png), CAIRO_STATUS_SUCCESS);
    EXPECT_EQ(cairo_image_surface_get_width(png), 100);
    EXPECT_EQ(cairo_image_surface_get_height(png), 50);
    cairo_surface_destroy(png);
    EXPECT_TRUE(startsWith(readFile(folder + "/a.gif"), "GIF8"));
    EXPECT_TRUE(startsWith(readFile(folder + "/a.tif"), "II*"));
    EXPECT_TRUE(startsWith(readFile(folder + "/a.bmp"), "BM"));
    EXPECT_TRUE(startsWith(readFile(folder + "/a.jpg"), "\xFF\xD8\xFF"));
    EXPECT_FALSE(fs::exists(folder + "/a.emf"));
    EXPECT_FALSE(fs::exists(folder + "/a.pct"));

    ASSERT_EQ(runVelarix(script, {"--base", folder}).status, 0);
    EXPECT_TRUE(fs::exists(folder + "/a-1.png"));
    RunResult refused = runVelarix("OpenDrawing(10; 10)\nSaveAsBMPFile(\"a.bmp\"; throwerror)\n",
                                   {"--base", folder});
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.err.substr(0, 4), "4001");
}

}  // namespace
}  // namespace Velarix::test
