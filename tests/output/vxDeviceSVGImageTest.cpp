// Pictures in the SVG document, against texts written out by hand.
#include <gtest/gtest.h>

#include <filesystem>

#include "graphics/vxTexturePaintOLD.h"
#include "output/vxImage.h"
#include "output/vxImageMapping.h"
#include "output/vxReadExternal.h"
#include "output/vxSVGTestSupport.h"
#include "support/vxPictureFiles.h"
#include "support/vxTestRun.h"

namespace Velarix::test {
namespace {

const char* const kWhiteToGrey =
    "\t<stop offset=\"0\" style=\"stop-color: #ffffff; \"/>\n"
    "\t<stop offset=\"1\" style=\"stop-color: #b8b8b8; \"/>\n";

// The definition of resource 23437 under an id.
std::string firstGradient(const std::string& id) {
    return "<defs>\n<linearGradient id=\"" + id +
           "\"\n\tx1=\"0\" y1=\"0\" x2=\"1\" y2=\"0\" \n\tspreadMethod=\"pad\">\n" + kWhiteToGrey +
           "</linearGradient>\n</defs>\n";
}

class vxDeviceSVGImage : public ::testing::Test {
protected:
    void SetUp() override {
        folder = makeTempFolder("svg-image");
        writeFile(folder + "/logo.png", encodePNG(makePicture(5, 3)));
    }
    void TearDown() override { std::filesystem::remove_all(folder); }

    // An image of the source in the box with adjustment and location.
    static std::unique_ptr<vxImage> imageOf(short kind, const std::wstring& name,
                                            const float box[4],
                                            short adjustment = vxImageMapping::kFill,
                                            short location = 1) {
        auto image = std::make_unique<vxImage>();
        image->setSource(kind, name);
        image->setMapping(box);
        image->setMapping(adjustment, location, false);
        return image;
    }

    std::string folder;
};

TEST_F(vxDeviceSVGImage, FileIsOneImageElementPerTile) {
    const std::wstring logo = vxFromUtf8(folder + "/logo.png");
    auto device = openDevice();
    // A 5 by 3 picture kept and centred in a 100 by 50 box.
    const float box[4] = {10, 20, 110, 70};
    device->drawImage(*imageOf(kSourceFile, logo, box, vxImageMapping::kKeep, 5));
    // Tiled over 12 by 5: three columns, two rows, rows first.
    const float tiles[4] = {0, 0, 12, 5};
    device->drawImage(*imageOf(kSourceFile, logo, tiles, vxImageMapping::kTile, 1));
    const std::string head = "<image xlink:href=\"" + folder + "/logo.png\"\n";
    std::string expected = head + "\tx=\"57.5\" y=\"43.5\" width=\"5\" height=\"3\" />\n";
    for (const char* at : {"x=\"0\" y=\"0\"", "x=\"5\" y=\"0\"", "x=\"10\" y=\"0\"",
                           "x=\"0\" y=\"3\"", "x=\"5\" y=\"3\"", "x=\"10\" y=\"3\""}) {
        expected += head + "\t" + at + " width=\"5\" height=\"3\" />\n";
    }
    EXPECT_EQ(bodyOf(*device), expected);
    EXPECT_FALSE(device->isError());
}

TEST_F(vxDeviceSVGImage, PathStaysAsciiAndWellFormed) {
    const std::string name = folder + "/a&b \xc3\xa4.png";
    writeFile(name, encodePNG(makePicture(2, 2)));
    auto device = openDevice();
    const float box[4] = {0, 0, 2, 2};
    device->drawImage(*imageOf(kSourceFile, vxFromUtf8(name), box));
    EXPECT_EQ(bodyOf(*device), "<image xlink:href=\"" + folder +
                                   "/a&amp;b %C3%A4.png\"\n"
                                   "\tx=\"0\" y=\"0\" width=\"2\" height=\"2\" />\n");
}

TEST_F(vxDeviceSVGImage, GradientResourceIsADefinitionAndRectangles) {
    auto device = openDevice();
    // Resource 23437: the first gradient, left to right, white to grey.
    const float box[4] = {10, 10, 60, 40};
    device->drawImage(*imageOf(kSourceResource, L"23437", box));
    // Resource 23469, the first radial one, tiled 32 by 32 over 64 by 32.
    const float tiles[4] = {0, 0, 64, 32};
    device->drawImage(*imageOf(kSourceResource, L"23469", tiles, vxImageMapping::kTile));
    EXPECT_EQ(bodyOf(*device), firstGradient("lg1") +
                                   "<rect\n"
                                   "\tx=\"10\" y=\"10\" width=\"50\" height=\"30\" \n"
                                   "\tstyle=\"fill: url(#lg1); fill-rule: evenodd; \" />\n"
                                   "<defs>\n"
                                   "<radialGradient id=\"rg1\"\n"
                                   "\tcx=\"0.5\" cy=\"0.5\" r=\"0.5\" fx=\"0.5\" fy=\"0.5\" \n"
                                   "\tspreadMethod=\"pad\">\n" +
                                   kWhiteToGrey +
                                   "</radialGradient>\n"
                                   "</defs>\n"
                                   "<rect\n"
                                   "\tx=\"0\" y=\"0\" width=\"32\" height=\"32\" \n"
                                   "\tstyle=\"fill: url(#rg1); fill-rule: evenodd; \" />\n"
                                   "<rect\n"
                                   "\tx=\"32\" y=\"0\" width=\"32\" height=\"32\" \n"
                                   "\tstyle=\"fill: url(#rg1); fill-rule: evenodd; \" />\n");
}

TEST_F(vxDeviceSVGImage, TileBelowOnePixelIsDivisionByZero) {
    auto device = openDevice();
    const float thin[4] = {0, 0, 0.5f, 40};
    device->drawImage(*imageOf(kSourceResource, L"23437", thin));
    EXPECT_EQ(bodyOf(*device), "");
    ASSERT_TRUE(device->isError());
    EXPECT_EQ(device->getError()->getErrorCode(), 5010);
    EXPECT_EQ(device->getError()->getLocation(), L"vxDeviceSVG/drawImage/1");
}

TEST_F(vxDeviceSVGImage, OtherSourcesWriteNothing) {
    const float box[4] = {0, 0, 40, 40};
    const float flat[4] = {0, 0, 40, 0};
    auto device = openDevice();
    device->drawImage(*imageOf(kSourceResource, L"23501", box));  // a texture picture
    device->drawImage(*imageOf(kSourceURL, L"http://example.com/a.png", box));
    device->drawImage(*imageOf(kSourceResource, L"23437", flat));  // no anchor
    device->drawImage(vxImage());
    EXPECT_EQ(bodyOf(*device), "");
    EXPECT_FALSE(device->isError());

    // The clipboard's fault reaches the device.
    device->drawImage(*imageOf(kSourceClipboard, L"", box));
    EXPECT_EQ(bodyOf(*device), "");
    ASSERT_TRUE(device->isError());
    EXPECT_EQ(device->getError()->getErrorCode(), 1150);
}

// A texture paint fills an area with its gradient resource; lines and text
// get no colour from it, though the definition is written for them too.
TEST_F(vxDeviceSVGImage, TexturePaintWithAGradientResource) {
    vxTexturePaintOLD texture;
    ASSERT_TRUE(texture.createImage());
    ASSERT_TRUE(texture.getImage()->setSource(kSourceResource, L"23437"));
    auto device = openDevice();
    const float bounds[4] = {0, 0, 5, 5};
    device->fillPolygon2D(texture, {0, 5, 5}, {0, 0, 5}, bounds, 1);
    device->drawLine2D(*plainStroke(), texture, 0, 0, 5, 5);
    EXPECT_EQ(bodyOf(*device), firstGradient("lg1") +
                                   "<polygon\n"
                                   "\tpoints=\"0 0 5 0 5 5 \" \n"
                                   "\tstyle=\"fill: url(#lg1); fill-rule: evenodd; \" />\n"
                                   "\n" +
                                   firstGradient("lg2") +
                                   "<line x1=\"0\" y1=\"0\" x2=\"5\" y2=\"5\" \n"
                                   "\tstyle=\"fill: none;\" />\n"
                                   "\n");

    // A texture with a picture that isn't a gradient fills with nothing.
    texture.getImage()->setSource(kSourceResource, L"23501");
    auto other = openDevice();
    other->fillPolygon2D(texture, {0, 5, 5}, {0, 0, 5}, bounds, 0);
    EXPECT_EQ(bodyOf(*other),
              "<polygon\n\tpoints=\"0 0 5 0 5 5 \" \n\tstyle=\"fill-rule: nonzero; \" />\n\n");
}

}  // namespace
}  // namespace Velarix::test
