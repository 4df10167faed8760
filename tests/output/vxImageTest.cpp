#include "output/vxImage.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "graphics/vxGradientPaint.h"
#include "graphics/vxTexturePaintOLD.h"
#include "graphics/vxTransform2DOLD.h"
#include "output/vxBitmap.h"
#include "output/vxImageMapping.h"
#include "output/vxReadExternal.h"
#include "output/vxReadResource.h"
#include "platform/vxTextCodec.h"
#include "script/vxAssign.h"
#include "script/vxFunctionIds.h"
#include "support/vxPictureFiles.h"
#include "support/vxTestRun.h"

namespace Velarix {
namespace {

class vxImageTest : public ::testing::Test {
protected:
    void SetUp() override {
        folder = test::makeTempFolder("image-test");
        picture = test::makePicture(5, 3);
        put("chart.png", test::encodePNG(picture));
    }
    void TearDown() override { std::filesystem::remove_all(folder); }

    std::wstring put(const std::string& name, const std::string& bytes) const {
        test::writeFile(folder + "/" + name, bytes);
        return path(name);
    }
    std::wstring path(const std::string& name) const { return vxFromUtf8(folder + "/" + name); }
    static short codeOf(const vxErrorHolder& holder) { return holder.getError()->getErrorCode(); }

    std::string folder;
    test::Picture picture;
};

TEST_F(vxImageTest, FileSourceReadsSizeAndPixels) {
    vxImage image;
    ASSERT_TRUE(image.setSource(kSourceFile, path("chart.png")));
    ASSERT_NE(image.getSource(), nullptr);
    EXPECT_EQ(image.getSourceType(), 3);
    EXPECT_EQ(image.getSource()->getName(), path("chart.png"));
    EXPECT_EQ(image.getSource()->getWidth(), 5);
    EXPECT_EQ(image.getMapping()->getSourceWidth(), 5);
    EXPECT_EQ(image.getMapping()->getSourceHeight(), 3);
    EXPECT_FALSE(image.isEmpty());
    EXPECT_EQ(image.getGradient(), nullptr);

    float size[2];
    EXPECT_TRUE(image.getTextureSize(size));  // no anchor yet: the picture's size
    EXPECT_FLOAT_EQ(size[0], 5);
    const float box[4] = {0, 0, 50, 30};
    image.setMapping(box);
    image.setMapping(vxImageMapping::kTile, 1, false);
    EXPECT_TRUE(image.getTextureSize(size));
    EXPECT_FLOAT_EQ(size[0], 5);
    EXPECT_FLOAT_EQ(size[1], 3);

    vxBitmap pixels;
    ASSERT_TRUE(image.readBitmap(pixels));
    EXPECT_EQ(pixels.getPixel(1, 2), vxBitmap::premultiply(40, 120, 200, 255));
    EXPECT_EQ(image.getBitmap(), nullptr);
    ASSERT_TRUE(image.loadBitmap());
    ASSERT_NE(image.getBitmap(), nullptr);
    EXPECT_EQ(image.getBitmap()->getPixel(1, 2), pixels.getPixel(1, 2));
}

// The name says whether a picture reader exists: "jpeg" and "JPG" are JPEG
// files. The bytes say which reader: a PNG under a GIF's name is read.
TEST_F(vxImageTest, FileTypeFollowsTheExtensionWhateverTheCaseAndThenTheBytes) {
    const std::string jpeg = test::encodeJPEG(picture);
    for (const char* name : {"a.jpeg", "b.JPG", "c.JpEg"}) {
        vxImage image;
        EXPECT_TRUE(image.setSource(kSourceFile, put(name, jpeg))) << name;
        EXPECT_EQ(image.getSource()->getHeight(), 3) << name;
    }
    vxImage misnamed;
    ASSERT_TRUE(misnamed.setSource(kSourceFile, put("wrong.gif", test::encodePNG(picture))));
    vxBitmap pixels;
    ASSERT_TRUE(misnamed.readBitmap(pixels));
    EXPECT_EQ(pixels.getPixel(1, 2), vxBitmap::premultiply(40, 120, 200, 255));
}

TEST_F(vxImageTest, FileFaultsBecomeErrorRecords) {
    const std::string png = test::encodePNG(picture);
    const struct {
        std::wstring path;
        short code;
    } cases[] = {
        {path("missing.png"), 4000},
        {put("notes.txt", "hello"), 4013},   // no picture reader
        {put("chart.svg", "<svg/>"), 4013},  // no picture reader
        {put("wrong.gif", "GIF"), 4013},     // too short for a GIF
        {put("cut.png", png.substr(0, png.size() - 20)), 4004},
        {put("empty.bmp", ""), 4013},
        {L"", 4011},
    };
    for (const auto& c : cases) {
        vxImage image;
        EXPECT_FALSE(image.setSource(kSourceFile, c.path)) << vxToUtf8(c.path);
        EXPECT_EQ(codeOf(image), c.code) << vxToUtf8(c.path);
        EXPECT_TRUE(image.isEmpty());
    }
}

TEST_F(vxImageTest, ResourceClipboardUrlAndUnknownSources) {
    vxImage gradient;
    ASSERT_TRUE(gradient.setSource(kSourceResource, L"23437"));
    ASSERT_NE(gradient.getGradient(), nullptr);
    EXPECT_EQ(gradient.getGradient()->getType(), 2);
    EXPECT_FALSE(gradient.isEmpty());

    vxImage texture;
    ASSERT_TRUE(texture.setSource(kSourceResource, L"23501"));
    EXPECT_EQ(texture.getGradient(), nullptr);
    vxBitmap pixels;
    ASSERT_TRUE(texture.readBitmap(pixels));
    EXPECT_EQ(pixels.getWidth(), 32);
    EXPECT_EQ(texture.getMapping()->getSourceWidth(), 32);

    vxImage resource;
    EXPECT_FALSE(resource.setSource(kSourceResource, L"23480"));  // a hatch code
    EXPECT_EQ(codeOf(resource), 1180);
    EXPECT_FALSE(resource.setSource(kSourceResource, L"23437x"));
    EXPECT_EQ(codeOf(resource), 1000);

    // No clipboard here: the source keeps its fault for the devices.
    vxImage clipboard;
    EXPECT_FALSE(clipboard.setSource(kSourceClipboard, L""));
    EXPECT_EQ(codeOf(clipboard), 1150);
    ASSERT_NE(clipboard.getSource(), nullptr);
    EXPECT_EQ(codeOf(*clipboard.getSource()), 1150);
    EXPECT_TRUE(clipboard.isEmpty());

    // A URL is kept and never fetched.
    vxImage url;
    EXPECT_TRUE(url.setSource(kSourceURL, L"https://example.com/logo.png"));
    EXPECT_EQ(url.getSourceType(), 5);
    EXPECT_TRUE(url.isEmpty());
    EXPECT_TRUE(url.readBitmap(pixels));
    EXPECT_TRUE(pixels.isEmpty());

    vxImage unknown;
    EXPECT_FALSE(unknown.setSource(4, L"x"));
    EXPECT_EQ(codeOf(unknown), 1130);
}

TEST_F(vxImageTest, CopyTakesEveryPartAndStandsAlone) {
    vxImage original;
    ASSERT_TRUE(original.setSource(kSourceFile, path("chart.png")));
    const float box[4] = {10, 20, 110, 70};
    original.setMapping(box);
    original.setMapping(vxImageMapping::kKeep, 9, true);
    vxTransform2DOLD transform;
    transform.translate(3, 4);
    original.setTransform(transform);
    vxImage extra;
    extra.setSource(kSourceResource, L"23440");
    original.addImage(extra);
    ASSERT_TRUE(original.loadBitmap());

    vxImage copy;
    ASSERT_TRUE(copy.set(&original));
    original.setSource(kSourceResource, L"23501");
    original.setMapping(vxImageMapping::kFill, 1, false);
    EXPECT_EQ(copy.getSource()->getName(), path("chart.png"));
    EXPECT_EQ(copy.getMapping()->getLocation(), 9);
    EXPECT_TRUE(copy.getMapping()->getIsProportional());
    EXPECT_FLOAT_EQ(copy.getMapping()->getAnchorWidth(), 100);
    EXPECT_FLOAT_EQ(copy.getTransform()->m02, 3);
    ASSERT_EQ(copy.getNumOfImages(), 1);
    EXPECT_NE(copy.getImage(0)->getGradient(), nullptr);
    EXPECT_EQ(copy.getImage(1), nullptr);
    ASSERT_NE(copy.getBitmap(), nullptr);
    EXPECT_EQ(copy.getBitmap()->getWidth(), 5);

    // A copy of a source with a fault keeps the fault; null resets.
    vxImage clipboard;
    clipboard.setSource(kSourceClipboard, L"");
    ASSERT_TRUE(copy.set(&clipboard));
    EXPECT_EQ(codeOf(*copy.getSource()), 1150);
    ASSERT_TRUE(copy.set(nullptr));
    EXPECT_EQ(copy.getSource(), nullptr);
    EXPECT_EQ(copy.getMapping(), nullptr);
    EXPECT_FALSE(copy.isError());
}

// AddPicture(x; y; w; h; kind; source; location; adjustment; proportional):
// the image reads from the kind on.
TEST_F(vxImageTest, AssignReadsThePictureForms) {
    const struct {
        bool voidAdjustment;
        short scriptAdjustment, mappingAdjustment;
    } adjustments[] = {{true, 0, 5}, {false, 1, 1}, {false, 2, 2}, {false, 4, 4}, {false, 5, 6}};
    for (const auto& a : adjustments) {
        vxAssign assign;
        assign.setFunction(kAddPicture);
        for (int i = 0; i < 4; ++i) assign.addFloat(10.0f * i);
        assign.addShort(kSourceFile);
        assign.addString(path("chart.png"));
        assign.addShort(5);
        a.voidAdjustment ? assign.addVoid() : assign.addShort(a.scriptAdjustment);
        assign.addShort(1);
        assign.addToArgumentOffset(4);
        vxImage image;
        ASSERT_TRUE(image.assign(assign));
        EXPECT_EQ(assign.getArgumentOffset(), 9);
        EXPECT_EQ(image.getSourceType(), 3);
        EXPECT_EQ(image.getMapping()->getLocation(), 5);
        EXPECT_EQ(image.getMapping()->getAdjustment(), a.mappingAdjustment);
        EXPECT_TRUE(image.getMapping()->getIsProportional());
    }

    // Left out: kind 1 (the clipboard, which fails here), location 4.
    vxAssign background;
    background.setFunction(kBackgroundPict);
    vxImage image;
    EXPECT_FALSE(image.assign(background));
    EXPECT_EQ(codeOf(image), 1150);
    EXPECT_EQ(image.getMapping()->getLocation(), 4);
    EXPECT_EQ(image.getMapping()->getAdjustment(), 5);

    // PictureStyle(stack; kind; source; ...) from the kind on.
    vxAssign style;
    style.setFunction(kPictureStyle);
    style.addLongArray(std::vector<long>{1});
    style.addShort(kSourceResource);
    style.addString(L"23470");
    style.addToArgumentOffset(1);
    ASSERT_TRUE(image.assign(style));
    EXPECT_EQ(style.getArgumentOffset(), 3);
    EXPECT_NE(image.getGradient(), nullptr);

    // Any other function: a name alone, a resource.
    vxAssign other;
    other.setFunction(kAddSymbol);
    other.addString(L"23565");
    EXPECT_FALSE(image.assign(other));
    EXPECT_EQ(codeOf(image), 1180);
    EXPECT_EQ(other.getArgumentOffset(), 1);
}

TEST_F(vxImageTest, TexturePaintOwnsACopyOfItsImage) {
    vxTexturePaintOLD paint;
    const float bounds[4] = {0, 0, 10, 10};
    paint.setAnchorBounds(bounds);
    EXPECT_FALSE(paint.hasImage());
    ASSERT_TRUE(paint.createImage());
    EXPECT_TRUE(paint.hasImage());
    paint.getImage()->setSource(kSourceResource, L"23437");

    std::unique_ptr<vxPaintOLD> clone = paint.clone();
    auto& copy = static_cast<vxTexturePaintOLD&>(*clone);
    ASSERT_NE(copy.getImage(), nullptr);
    EXPECT_NE(copy.getImage(), paint.getImage());
    paint.getImage()->setSource(kSourceResource, L"23501");
    EXPECT_NE(copy.getImage()->getGradient(), nullptr);

    const float none[4] = {0, 0, 0, 10};
    copy.setAnchorBounds(none);
    EXPECT_FALSE(copy.hasImage());
    ASSERT_TRUE(copy.setImage(nullptr));
    EXPECT_EQ(copy.getImage(), nullptr);
    copy.setDefaults();
    EXPECT_EQ(copy.getImage(), nullptr);
}

}  // namespace
}  // namespace Velarix
