// The PDF device on its own: the file's structure read back by its
// cross-reference table, the content of a set of shapes against a golden
// file, resources shared by name, text codes and widths, compression.
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>

#include "graphics/vxFontOLD.h"
#include "graphics/vxLinearGradient.h"
#include "graphics/vxRadialGradient.h"
#include "graphics/vxShadowOLD.h"
#include "output/vxNumberWriter.h"
#include "output/vxPDFTestSupport.h"
#include "output/vxPDFText.h"
#include "output/vxWriteStreamWIN.h"

namespace Velarix::test {
namespace {

using namespace pdf;

std::string goldenPath(const std::string& name) {
    return std::string(VELARIX_TEST_DATA_DIR) + "/output/golden/" + name;
}

// The golden file holds the content with plain line feeds.
void expectGolden(const std::string& name, std::string actual) {
    for (size_t at = actual.find("\r\n"); at != std::string::npos; at = actual.find("\r\n", at))
        actual.erase(at, 1);
    if (std::getenv("VELARIX_UPDATE_GOLDEN")) std::ofstream(goldenPath(name) + ".new") << actual;
    std::ifstream in(goldenPath(name), std::ios::binary);
    ASSERT_TRUE(in) << "missing golden file " << name;
    std::ostringstream expected;
    expected << in.rdbuf();
    EXPECT_EQ(actual, expected.str());
}

TEST(DevicePDFNumbers, SixDigitsFixedWhereAnExponentWouldBeAndZeroBelowAMillionth) {
    EXPECT_EQ(vxNumberWriter::pdf(0.5), "0.5");
    EXPECT_EQ(vxNumberWriter::pdf(100), "100");
    EXPECT_EQ(vxNumberWriter::pdf(123.4567), "123.457");
    EXPECT_EQ(vxNumberWriter::pdf(1234567), "1234567.000000");
    EXPECT_EQ(vxNumberWriter::pdf(0.00001), "0.000010");
    EXPECT_EQ(vxNumberWriter::pdf(-0.0000001), "0");
    EXPECT_EQ(vxNumberWriter::pdf(-2.5), "-2.5");
}

// One filled rectangle: objects 1 to 4, the info and the catalog, in the
// file's own order, each where the table says, and no graphics state.
TEST(DevicePDFFile, ObjectsLieInTheirOrderAtTheOffsetsOfTheTable) {
    auto device =
        drawPDF(100, 50, [](vxDevicePDF& d) { fillRect(d, *rgba(255, 0, 0), 10, 10, 60, 40); });
    ASSERT_FALSE(device->isError());
    const ParsedPDF pdf = parsePDF(textOf(device->getFile()));
    ASSERT_EQ(pdf.fault, "");
    EXPECT_EQ(pdf.size, 7);
    EXPECT_EQ(pdf.root, 6);
    EXPECT_EQ(pdf.info, 5);
    EXPECT_EQ(pdf.order, (std::vector<long>{3, 4, 1, 2, 5, 6}));
    EXPECT_EQ(pdf.objects.at(3),
              "3 0 obj\r\n<< /Type /Page /Parent 1 0 R /Resources 2 0 R /Contents 4 0 R "
              ">>\r\nendobj");
    EXPECT_EQ(pdf.objects.at(1),
              "1 0 obj\r\n<< /Type /Pages /Kids [3 0 R] /Count 1 /MediaBox [0 0 100 50] "
              ">>\r\nendobj");
    EXPECT_EQ(pdf.objects.at(2),
              "2 0 obj\r\n<<\r\n/ProcSet [/PDF /Text /ImageB /ImageC /ImageI]\r\n>>\r\nendobj");
    EXPECT_EQ(pdf.objects.at(6),
              "6 0 obj\r\n<< /Type /Catalog /Pages 1 0 R /OpenAction [3 0 R /FitH null]"
              " /PageLayout /OneColumn >>\r\nendobj");
    const std::string content =
        "1 0 0 -1 0 50 cm\r\nq 10 10 m 60 10 l 60 40 l 10 40 l 1 0 0 rg f* Q\r\n";
    EXPECT_EQ(pdf.objects.at(4), "4 0 obj\r\n<< /Length " + std::to_string(content.size()) +
                                     " >>\r\nstream\r\n" + content + "endstream\r\nendobj");
}

TEST(DevicePDFFile, InfoAndCatalogCarryTheMetadataAndTheOpenAction) {
    auto device = std::make_unique<vxDevicePDF>();
    device->setSize(10, 10);
    device->setTitle(L"Q\u00e4");
    device->setAuthor(L"Ann");
    device->setAuthor(L"");  // an empty text leaves the field
    device->setOpenAction(150);
    device->setPageLayout(vxDevicePDF::kTwoColumnLeft);
    device->open();
    device->close();
    const ParsedPDF pdf = parsePDF(textOf(device->getFile()));
    ASSERT_EQ(pdf.fault, "");
    const std::string& info = pdf.objects.at(pdf.info);
    EXPECT_NE(info.find(" /ModDate (D:"), std::string::npos);
    EXPECT_NE(info.find(" /Producer <56656C6172697820332E33> /Title <51E4> /Author <416E6E> >>"),
              std::string::npos);
    // Local time and the offset to UTC: D:YYYYMMDDHHmmSS+HH'mm'.
    const size_t date = info.find("(D:");
    EXPECT_EQ(info.substr(date + 17, 1).find_first_of("+-"), 0u);
    EXPECT_EQ(info.substr(date + 20, 1), "'");
    EXPECT_NE(pdf.objects.at(pdf.root).find(" /OpenAction [3 0 R /XYZ null null 1.5] /PageLayout "
                                            "/TwoColumnLeft >>"),
              std::string::npos);
}

// Resources follow the page tree, table by table, and the dictionary
// names each one; an equal resource asked again is the same name.
TEST(DevicePDFFile, ResourcesAreNamedOnceAndNumberedTableByTable) {
    auto device = drawPDF(100, 50, [](vxDevicePDF& d) {
        auto gradient = std::make_unique<vxLinearGradient>();
        gradient->addColor(255, 0, 0, 0.0f);
        gradient->addColor(0, 0, 255, 1.0f);
        fillRect(d, *gradient, 0, 0, 10, 10);
        fillRect(d, *rgba(0, 0, 0, 128), 0, 0, 10, 10);
        fillRect(d, *rgba(0, 0, 0, 128), 0, 0, 20, 20);
        fillRect(d, *rgba(0, 0, 0, 64), 0, 0, 20, 20);
    });
    const ParsedPDF pdf = parsePDF(textOf(device->getFile()));
    ASSERT_EQ(pdf.fault, "");
    EXPECT_EQ(pdf.order, (std::vector<long>{3, 4, 1, 5, 6, 7, 8, 2, 9, 10}));
    EXPECT_EQ(pdf.objects.at(5), "5 0 obj\r\n/DeviceRGB\r\nendobj");
    EXPECT_EQ(pdf.objects.at(6), "6 0 obj\r\n<< /Type /ExtGState /ca 0.501961 >>\r\nendobj");
    EXPECT_EQ(pdf.objects.at(7), "7 0 obj\r\n<< /Type /ExtGState /ca 0.25098 >>\r\nendobj");
    EXPECT_NE(pdf.objects.at(8).find("<< /ShadingType 2 /ColorSpace 5 0 R /Function"),
              std::string::npos);
    EXPECT_EQ(pdf.objects.at(2),
              "2 0 obj\r\n<<\r\n/ProcSet [/PDF /Text /ImageB /ImageC /ImageI]\r\n"
              "/ColorSpace << /Cs1 5 0 R >>\r\n/ExtGState << /Gs1 6 0 R /Gs2 7 0 R >>\r\n"
              "/Shading << /Sh1 8 0 R >>\r\n>>\r\nendobj");
    EXPECT_EQ(device->getContent().find("/Gs2 gs"), device->getContent().rfind("/Gs2 gs"));
}

// Stroke states, alpha, a clip, a path with every verb, a hatch, a
// gradient, a shadow and a symbol.
TEST(DevicePDFContent, ShapesAsInTheGoldenContent) {
    auto device = drawPDF(200, 100, [](vxDevicePDF& d) {
        fillRect(d, *rgba(255, 0, 0), 10, 10, 60, 40);
        const float bounds[4] = {0, 0, 100, 50};
        d.drawPolygon2D(*plainStroke(), *rgba(128, 128, 128), {0, 100, 100}, {0, 0, 50}, bounds,
                        true);
        auto stroke = std::make_unique<vxBasicStroke>(2.5f);
        stroke->setLineCap(vxStrokeOLD::kRoundCap);
        stroke->setLineJoin(vxStrokeOLD::kBevelJoin);
        stroke->setMiterLimit(4.0f);
        d.drawLine2D(*stroke, *rgba(0, 0, 255, 128), 0, 0, 10, 10);
        stroke->setDashStyle(2);
        d.drawLine2D(*stroke, *rgba(0, 0, 0), 0, 20, 100, 20);
        d.setClipRegion(5, 5, 90, 40, 1);
        d.fillPath2D(*rgba(0, 128, 0), {2, 3, 4, 5, 1}, {0, 10, 20, 30, 40, 50, 60},
                     {0, 0, 10, 10, 20, 20, 30}, bounds, 2);
        d.resetClipRegion();
        fillRect(d, *rgba(255, 128, 0, 255, 6), 0, 60, 50, 90);
        auto gradient = std::make_unique<vxRadialGradient>();
        gradient->addColor(255, 255, 255, 0.0f);
        gradient->addColor(0, 0, 0, 0.5f);
        gradient->addColor(0, 0, 255, 1.0f);
        fillRect(d, *gradient, 100, 60, 140, 80);
        vxShadowOLD shadow;
        shadow.setOffsets(2, 3);
        fillRect(d, *rgba(0, 0, 0), 150, 10, 160, 20);
        d.fillPolygon2D(shadow, {150, 160, 160, 150}, {10, 10, 20, 20}, bounds, 1);
        d.drawSymbol(*plainStroke(), *rgba(0, 0, 0), *rgba(255, 255, 0), 2, 10, 180, 50);
    });
    ASSERT_FALSE(device->isError());
    expectGolden("pdf-content.txt", device->getContent());
}

// A quadratic becomes the cubic with its control points two thirds of
// the way towards the quadratic's; after a close it starts from the
// figure's first point, and a shadow moves all three points.
TEST(DevicePDFContent, QuadraticsAsTheirExactCubics) {
    const float bounds[4] = {0, 0, 30, 30};
    const std::vector<short> verbs = {2, 3, 1, 4};
    const std::vector<float> x = {0, 30, 15, 30}, y = {0, 0, 30, 0};
    auto device = drawPDF(100, 50, [&](vxDevicePDF& d) {
        d.drawPath2D(*plainStroke(), *rgba(0, 0, 0), verbs, x, y, bounds);
        vxShadowOLD shadow;
        shadow.setOffsets(1, 2);
        d.fillPath2D(shadow, verbs, x, y, bounds, 1);
    });
    const std::string content = blocksOf(*device);
    EXPECT_NE(content.find("0 0 m 30 0 l h 10 20 20 20 30 0 c "), std::string::npos) << content;
    EXPECT_NE(content.find("1 2 m 31 2 l h 11 22 21 22 31 2 c "), std::string::npos) << content;
    EXPECT_EQ(content.find(" v "), std::string::npos) << content;
}

// A zero-length line, a stroke of width 0, a none paint and a point list
// of one point leave no trace; a tiny angle is no rotation.
TEST(DevicePDFContent, WhatDrawsNothingWritesNothing) {
    auto device = drawPDF(100, 50, [](vxDevicePDF& d) {
        d.drawLine2D(*plainStroke(), *rgba(0, 0, 0), 5, 5, 5.0005f, 5.0005f);
        d.drawLine2D(*plainStroke(0.0f), *rgba(0, 0, 0), 0, 0, 50, 50);
        d.drawLine2D(*plainStroke(), *rgba(0, 0, 0, 255, vxBasicPaint::kNonePattern), 0, 0, 50, 50);
        const float bounds[4] = {0, 0, 0, 0};
        d.fillPolygon2D(*rgba(0, 0, 0), {1}, {1}, bounds, 1);
        d.drawSymbol(*plainStroke(), *rgba(0, 0, 0), *rgba(0, 0, 0), 2, 0.0f, 10, 10);
    });
    EXPECT_EQ(blocksOf(*device), "");
    EXPECT_FALSE(vxDevice::isAngle(0.0001f));
}

TEST(DevicePDFText, LinesInHelveticaPlacedByItsWidths) {
    vxFontOLD font(L"Arial", 12, vxFontOLD::kPlain);
    const float top = 10, baseline = top + font.getLineHeight() - font.getDescent();
    auto device = drawPDF(100, 50, [&](vxDevicePDF& d) {
        const float bounds[4] = {10, top, 90, 40};
        d.drawString2D(L"Hi\rH\u20ac", font, *rgba(0, 0, 0), bounds, 3, 1, 0.0f);
    });
    // H 722, i 222; the Euro 556.
    const std::string expected = "q /F1 12 Tf 0 g 1 0 0 -1 0 " + vxNumberWriter::pdf(baseline) +
                                 " cm BT " + vxNumberWriter::pdf(90 - 11.328f) +
                                 " 0 Td <4869> Tj ET BT " + vxNumberWriter::pdf(90 - 15.336f) +
                                 " " + vxNumberWriter::pdf(-font.getLineHeight()) +
                                 " Td <4880> Tj ET Q\r\n";
    EXPECT_EQ(blocksOf(*device), expected);
    const ParsedPDF pdf = parsePDF(textOf(device->getFile()));
    EXPECT_EQ(pdf.objects.at(5),
              "5 0 obj\r\n<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica /Encoding "
              "/WinAnsiEncoding >>\r\nendobj");
}

TEST(DevicePDFText, CodesOfWindows1252) {
    EXPECT_EQ(vxPDFText::hexOf(L"A\u00e9\u2014\u0178\t"),
              "41E997"
              "9F09");
    // Beyond the code page a character keeps its number in two codes.
    EXPECT_EQ(vxPDFText::hexOf(L"\u4e2d"), "4E2D");
}

TEST(DevicePDFText, RotationAndUnderline) {
    vxFontOLD font(L"Arial", 10, vxFontOLD::kUnderline | vxFontOLD::kBold);
    auto device = drawPDF(100, 100, [&](vxDevicePDF& d) {
        const float bounds[4] = {0, 0, 100, 100};
        d.drawString2D(L"Hi", font, *rgba(255, 0, 0), bounds, 1, 1, 3.14159265f / 2);
    });
    const std::string content = blocksOf(*device);
    EXPECT_NE(content.find("/F1 10 Tf 1 0 0 rg 0 1 1 0 "), std::string::npos) << content;
    EXPECT_NE(content.find(" Td <4869> Tj ET 0 -1 10 -0.5 re f Q"), std::string::npos) << content;
}

// The compressed file holds the same content, deflated; the host's
// stream gets the same bytes as a file.
TEST(DevicePDFFile, CompressedContentInflatesToThePlainOne) {
    auto draw = [](vxDevicePDF& d) {
        for (int i = 0; i < 20; ++i) fillRect(d, *rgba(255, 0, 0), 10, 10, 60, 40 + i);
    };
    auto plain = drawPDF(100, 50, draw);
    auto packed = drawPDF(100, 50, draw, true);
    const ParsedPDF pdf = parsePDF(textOf(packed->getFile()));
    ASSERT_EQ(pdf.fault, "");
    EXPECT_NE(pdf.objects.at(4).find("<< /Filter /FlateDecode /Length "), std::string::npos);
    EXPECT_EQ(streamOf(pdf.objects.at(4)), plain->getContent());
    EXPECT_LT(packed->getFile().size(), plain->getFile().size());
}

TEST(DevicePDFFile, StreamTargetsHandTheFileToTheHost) {
    auto device = std::make_unique<vxDevicePDF>();
    device->addTarget(kTargetStream);
    device->addTarget(2);  // no such target
    EXPECT_EQ(device->getNumOfTargets(), 1);
    EXPECT_EQ(device->getLastTarget()->getFormat(), kFormatNone);
    device->setSize(30, 20);
    device->open();
    device->close();
    ASSERT_EQ(device->getNumOfStreams(), 1);
    const vxStreamRecord* stream = device->getStream(0);
    ASSERT_NE(stream, nullptr);
    EXPECT_EQ(stream->formatCode, kStreamPDF);
    EXPECT_EQ(stream->bytes, device->getFile());
    EXPECT_EQ(stream->width, 30.0f);
    EXPECT_EQ(device->getStream(1), nullptr);
}

}  // namespace
}  // namespace Velarix::test
