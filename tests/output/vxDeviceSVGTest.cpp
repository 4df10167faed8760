// The SVG device against texts written out by hand.
#include <gtest/gtest.h>

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "graphics/vxLinearGradient.h"
#include "graphics/vxShadowOLD.h"
#include "output/vxSVGTestSupport.h"
#include "output/vxWriteExternal.h"

namespace Velarix::test {
namespace {

const float kNoBounds[4] = {0, 0, 0, 0};

const char* const kProlog =
    "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n"
    "<!DOCTYPE svg PUBLIC \"-//W3C//DTD SVG 1.1//EN\"\n"
    "\t\"http://www.w3.org/Graphics/SVG/1.1/DTD/svg11.dtd\">\n"
    "\n";

// The style line of a line drawn with the stroke and paint, after the
// definitions of its paint.
std::string lineStyle(const vxStrokeOLD& stroke, const vxPaintOLD& paint) {
    auto device = openDevice();
    device->drawLine2D(stroke, paint, 1, 2, 3, 4);
    std::istringstream body(bodyOf(*device));
    std::string first, second;
    while (std::getline(body, first) && first.rfind("<line", 0) != 0) {
    }
    std::getline(body, second);
    EXPECT_EQ(first, "<line x1=\"1\" y1=\"2\" x2=\"3\" y2=\"4\" ");
    return second;
}

TEST(vxDeviceSVG, EmptyDrawingIsPrologAndEnd) {
    vxDeviceSVG device;
    device.setSize(100, 50.25f);
    device.open();
    device.close();
    EXPECT_EQ(vxToUtf8(device.getDocument()), std::string(kProlog) +
                                                  "<svg xmlns=\"http://www.w3.org/2000/svg\" "
                                                  "xmlns:xlink=\"http://www.w3.org/1999/xlink\" "
                                                  "width=\"100\" height=\"50.25\">\n</svg>\n\n");
    EXPECT_EQ(device.getDeviceID(), 6);
    EXPECT_EQ(device.getNumOfStreams(), 0);
    EXPECT_EQ(device.getStream(0), nullptr);
    EXPECT_FALSE(device.isError());
}

TEST(vxDeviceSVG, MetadataStandsUnescapedInTheProlog) {
    vxDeviceSVG device;
    device.setSize(2000000, 300.6f);
    device.setIsBitmap(true);
    device.setTitle(L"Sales & \u00e4");
    device.setComment(L"made <here>");
    device.open();
    device.close();
    EXPECT_EQ(vxToUtf8(device.getDocument()),
              std::string(kProlog) +
                  "<svg xmlns=\"http://www.w3.org/2000/svg\" "
                  "xmlns:xlink=\"http://www.w3.org/1999/xlink\" width=\"2e+06\" height=\"301\">\n"
                  "<title>Sales & \xc3\xa4</title>\n"
                  "<!-- made <here> -->\n"
                  "</svg>\n\n");
    device.setDescription(L"d");
    device.open();
    EXPECT_EQ(bodyOf(device).rfind("<title>Sales & \xc3\xa4</title>\n<desc>d</desc>\n<!--", 0), 0u);
}

// The example of a red quad without border and the text "Hi".
TEST(vxDeviceSVG, WorkedExample) {
    auto device = openDevice(100, 50);
    vxFontOLD arial(L"Arial", 12, vxFontOLD::kPlain);
    const float bounds[4] = {10, 10, 60, 40};
    device->fillPolygon2D(*rgba(255, 0, 0), {10, 60, 60, 10}, {10, 10, 40, 40}, bounds, 1);
    device->drawString2D(L"Hi", arial, *rgba(0, 0, 0), bounds, 1, 1, 0.0f);
    device->close();
    EXPECT_EQ(bodyOf(*device),
              "<polygon\n"
              "\tpoints=\"10 10 60 10 60 40 10 40 \" \n"
              "\tstyle=\"fill: #ff0000; fill-rule: evenodd; \" />\n"
              "\n"
              "<text x=\"10\" y=\"" +
                  streamed(baselineOf(arial, 10)) +
                  "\" \n"
                  "style=\"font-family: 'Arial'; font-size: 12px; fill: #000000; stroke: none;\" "
                  ">\n"
                  "&#x0048;&#x0069;\n"
                  "</text>\n"
                  "\n"
                  "</svg>\n"
                  "\n");
}

TEST(vxDeviceSVG, PathTakesVerticalHorizontalOrLine) {
    auto device = openDevice();
    // From the start at 0, 0 a line down is vertical; after a close the
    // last point is the start of the closed subpath.
    const vxVerbs verbs = {3, 3, 2, 3, 3, 3, 4, 5, 1, 3};
    const vxPoints x = {0, 7, 7.5f, 7.5f, 20, 30, 31, 32, 1, 3, 5, 7.5f};
    const vxPoints y = {5, 5, 1, 1, 1, 11, 12, 13, 2, 4, 6, 9};
    device->drawPath2D(*plainStroke(), *rgba(0, 0, 0), verbs, x, y, kNoBounds);
    EXPECT_EQ(bodyOf(*device),
              "<path\n"
              "\td=\"V 5 H 7 M 7.5 1 V 1 H 20 L 30 11 Q 31 12 32 13 C 1 2 3 4 5 6 ZV 9 \" \n"
              "\tstyle=\"stroke: #000000; fill: none;\" />\n"
              "\n");

    // A shadow row prints moved points but compares the plain ones: the
    // second line runs across, H and not L.
    device = openDevice();
    vxShadowOLD shadow;
    shadow.setOffsets(3, 0.5f);
    device->fillPath2D(shadow, {2, 3, 3, 3}, {0, 10, 10, 99}, {5, 5, 20}, kNoBounds, 0);
    EXPECT_EQ(bodyOf(*device),
              "<path\n"
              "\td=\"M 3 5.5 H 13 V 20.5 \" \n"
              "\tstyle=\"fill: #888888; fill-rule: nonzero; \" />\n"
              "\n");
}

TEST(vxDeviceSVG, StrokePartsOnlyWhereSVGDefaultsDiffer) {
    const auto black = rgba(0, 0, 0);
    EXPECT_EQ(lineStyle(*plainStroke(), *black), "\tstyle=\"stroke: #000000; fill: none;\" />");
    auto round = plainStroke(2.5f);
    round->setLineCap(vxStrokeOLD::kRoundCap);
    // A dash never carries a cap; an empty dash is no dash.
    round->setDashStyle(2);
    round->setLineJoin(vxStrokeOLD::kBevelJoin);
    EXPECT_EQ(lineStyle(*round, *black),
              "\tstyle=\"stroke: #000000; stroke-width: 2.5; stroke-dasharray: 5 2 2 2; "
              "stroke-linejoin: bevel; fill: none;\" />");
    round->setDashStyle(99);
    EXPECT_EQ(lineStyle(*round, *black),
              "\tstyle=\"stroke: #000000; stroke-width: 2.5; stroke-linecap: round; "
              "stroke-linejoin: bevel; fill: none;\" />");

    // The stroke paint takes the alpha; a hatch strokes with its pattern.
    EXPECT_EQ(lineStyle(*plainStroke(), *rgba(16, 32, 48, 128)),
              "\tstyle=\"stroke: #102030; stroke-opacity: 0.501961; fill: none;\" />");
    EXPECT_EQ(lineStyle(*plainStroke(), *rgba(16, 32, 48, 255, 5)),
              "\tstyle=\"stroke: url(#pt1); fill: none;\" />");
}

TEST(vxDeviceSVG, NothingThatDrawsNothingLeavesATrace) {
    auto device = openDevice();
    const auto stroke = plainStroke();
    const auto black = rgba(0, 0, 0);
    const auto none = rgba(0, 0, 0, 255, vxBasicPaint::kNonePattern);
    const auto clear = rgba(0, 0, 0, 0);
    vxLinearGradient clearGradient;
    clearGradient.addColor(1, 2, 3, 0, 0.0f);
    clearGradient.addColor(4, 5, 6, 0, 1.0f);
    vxFontOLD font;
    vxShadowOLD shadow;

    device->drawLine2D(*stroke, *black, 5, 5, 5.0009f, 4.9991f);
    device->drawLine2D(*plainStroke(0.0f), *black, 0, 0, 10, 10);
    device->drawLine2D(*stroke, *none, 0, 0, 10, 10);
    device->drawLine2D(*stroke, *clear, 0, 0, 10, 10);
    device->drawLine2D(*stroke, shadow, 5, 5, 5, 5);
    device->drawLineArray2D(*stroke, *black, {1, 2}, {1});
    device->drawPolygon2D(*stroke, *none, {0, 1}, {0, 1}, kNoBounds, true);
    device->fillPolygon2D(clearGradient, {0, 1, 1}, {0, 0, 1}, kNoBounds, 1);
    device->fillPath2D(*none, {2, 3}, {0, 1}, {0, 1}, kNoBounds, 1);
    device->drawPath2D(*plainStroke(1e-11f), *black, {2, 3}, {0, 1}, {0, 1}, kNoBounds);
    device->drawString2D(L"x", font, *none, kNoBounds, 1, 1, 0);
    device->drawString2D(L"x", font, shadow, kNoBounds, 1, 1, 0);
    device->drawSymbol(*stroke, *none, *none, 2, 7, 10, 10);
    for (short type : {0, 19, -1}) device->drawSymbol(*stroke, *black, *black, type, 7, 10, 10);
    device->setClipRegion(kNoBounds);
    EXPECT_EQ(bodyOf(*device), "");
    EXPECT_FALSE(device->isError());
}

TEST(vxDeviceSVG, TextIsWrittenAsCharacterReferencesOnly) {
    auto device = openDevice();
    vxFontOLD font(L"Arial", 10, vxFontOLD::kPlain);
    const float bounds[4] = {0, 0, 40, 20};
    device->drawString2D(std::wstring(L"A\u00e4\u20ac ") + wchar_t(0xD83D) + wchar_t(0xDE00) +
                             wchar_t(0xDC00) + L"<",
                         font, *rgba(0, 0, 0), bounds, 1, 1, 0);
    const std::string body = bodyOf(*device);
    EXPECT_NE(body.find("\n&#x0041;&#x00e4;&#x20ac;&#x0020;&#x1f600;&#xfffd;&#x003c;\n"),
              std::string::npos)
        << body;
}

size_t countOf(const std::string& text, const std::string& part) {
    size_t count = 0;
    for (size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
        ++count;
    return count;
}

// A hatch's tile is defined once per colour and shared by the fills and
// strokes that use it; text takes the plain colour. A texture number is
// its picture, a PNG within the document.
TEST(vxDeviceSVG, HatchesAndTexturesArePatternsDefinedOnce) {
    auto device = openDevice();
    const auto hatch = rgba(16, 32, 48, 255, 6);
    const float bounds[4] = {0, 0, 10, 10};
    for (int i = 0; i < 2; ++i) device->fillPolygon2D(*hatch, {0, 10, 10}, {0, 0, 10}, bounds, 1);
    device->drawLine2D(*plainStroke(), *hatch, 0, 0, 10, 10);
    device->fillPolygon2D(*rgba(255, 0, 0, 255, 6), {0, 10, 10}, {0, 0, 10}, bounds, 1);
    device->drawString2D(L"A", vxFontOLD(L"Arial", 10, 0), *hatch, bounds, 1, 1, 0);
    device->fillPolygon2D(*rgba(0, 0, 0, 255, 70), {0, 10, 10}, {0, 0, 10}, bounds, 1);
    const std::string body = bodyOf(*device);
    EXPECT_EQ(countOf(body, "<pattern "), 3u) << body;
    EXPECT_EQ(countOf(body, "fill: url(#pt1); "), 2u) << body;
    EXPECT_EQ(countOf(body, "stroke: url(#pt1); "), 1u) << body;
    EXPECT_EQ(countOf(body, "fill: url(#pt2); "), 1u) << body;
    EXPECT_NE(body.find("font-size: 10px; fill: #102030; stroke: none;"), std::string::npos);
    EXPECT_NE(body.find("<pattern id=\"pt3\" patternUnits=\"userSpaceOnUse\"\n\tx=\"0\" y=\"0\" "),
              std::string::npos);
    EXPECT_NE(body.find("<image xlink:href=\"data:image/png;base64,iVBORw0KGgo"),
              std::string::npos);
    EXPECT_EQ(countOf(body, "fill: url(#pt3); "), 1u) << body;
}

TEST(vxDeviceSVG, ClipRectangleLimits) {
    struct Case {
        float x, y, w, h;
        bool isTaken;
    };
    const Case cases[] = {
        {-32000, 32000, 32000, 0, true}, {0, 0, 32001, 10, false},   {0, 0, 10, -0.5f, false},
        {-32001, 0, 10, 10, false},      {0, 32000.5f, 1, 1, false},
    };
    for (const Case& c : cases) {
        auto device = openDevice();
        device->setClipRegion(c.x, c.y, c.w, c.h, 0);
        device->drawLine2D(*plainStroke(), *rgba(0, 0, 0), 0, 0, 1, 1);
        const std::string body = bodyOf(*device);
        EXPECT_EQ(body.find("clip-path") != std::string::npos, c.isTaken) << body;
    }
    // The bounds form forwards with width and height.
    auto device = openDevice();
    const float rect[4] = {-5, 1, 31995, 11};
    device->setClipRegion(rect, 1);
    EXPECT_NE(bodyOf(*device).find("x=\"-5\" y=\"1\" width=\"32000\" height=\"10\"/>"),
              std::string::npos);
}

class vxDeviceSVGTargets : public ::testing::Test {
protected:
    void SetUp() override {
        folder = std::filesystem::temp_directory_path() /
                 ("vxDeviceSVGTargets-" + std::to_string(::getpid()));
        std::filesystem::remove_all(folder);
        std::filesystem::create_directories(folder);
    }
    void TearDown() override { std::filesystem::remove_all(folder); }

    static std::string read(const std::filesystem::path& path) {
        std::ifstream in(path, std::ios::binary);
        std::ostringstream text;
        text << in.rdbuf();
        return text.str();
    }

    std::filesystem::path folder;
};

TEST_F(vxDeviceSVGTargets, CloseWritesTheDocumentToEveryTarget) {
    const std::filesystem::path first = folder / "a.svg", second = folder / "b.svg";
    vxDeviceSVG device;
    device.setSize(10, 10);
    device.addTarget(kTargetFile);
    EXPECT_EQ(device.getLastTarget()->getFormat(), kFormatNone);
    device.getLastTarget()->setFileName(first.wstring());
    device.addTarget(kTargetStream);  // SVG goes to no stream
    device.addTarget(kTargetClipboard);
    EXPECT_EQ(device.getLastTarget()->getType(), kTargetClipboard);
    device.addTarget(kTargetFile);
    device.getLastTarget()->setFileName(second.wstring());
    device.getLastTarget()->setFormat(kFormatSVG);
    EXPECT_EQ(device.getNumOfTargets(), 3);

    device.open();
    device.drawLine2D(*plainStroke(), *rgba(0, 0, 0), 0, 0, 1, 1);
    device.close();
    EXPECT_FALSE(device.isError());
    const std::string expected = vxToUtf8(device.getDocument());
    EXPECT_NE(expected.find("<line"), std::string::npos);
    EXPECT_EQ(read(first), expected);
    EXPECT_EQ(read(second), expected);
}

TEST_F(vxDeviceSVGTargets, FirstFaultOfATargetEndsTheWriting) {
    const std::filesystem::path fine = folder / "b.svg";
    vxDeviceSVG device;
    device.addTarget(kTargetFile);
    device.getLastTarget()->setFileName((folder / "no-such-folder" / "a.svg").wstring());
    device.addTarget(kTargetFile);
    device.getLastTarget()->setFileName(fine.wstring());
    device.open();
    device.close();
    ASSERT_TRUE(device.isError());
    EXPECT_EQ(device.getError()->getErrorCode(), vxErrFile::kCreate);
    EXPECT_FALSE(std::filesystem::exists(fine));
}

}  // namespace
}  // namespace Velarix::test
