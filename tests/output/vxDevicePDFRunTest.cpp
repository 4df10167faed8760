// PDF files written by whole runs of the command and read by real
// readers: qpdf checks the file, pdftotext gives its text back, pdftoppm
// renders it like the PNG of the same script. Each reader that isn't
// installed (scripts/install-deps.sh brings them) skips its test.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "output/vxDevicePDF.h"
#include "output/vxPDFTestSupport.h"
#include "platform/vxPictureTestSupport.h"
#include "support/vxPictureFiles.h"
#include "support/vxTestRun.h"

namespace Velarix::test {
namespace {

using namespace pdf;

namespace fs = std::filesystem;

// Fills with alpha and a texture pattern, outlines, dashes, an oval, a
// path with a shadow, pictures with and without transparency; a hatch, a
// gradient and text beyond ASCII come apart.
const std::string kDrawing =
    "OpenDrawing(256; 160)\n"
    "Background(#ffffff)\n"
    "AddRect(8; 8; 80; 48; #3366cc)\n"
    "AddRect(40; 24; 80; 48; 255 0 0 128)\n"
    "AddRect(96; 64; 64; 64; 0 0 0; 70)\n"
    "AddOval(176; 8; 64; 40; #2e8b57)\n"
    "AddLine(176; 80; 248; 80; 2 4; #1f2d3d)\n"
    "AddPath(2 180 150 3 210 100 3 240 150 1; #ffd700; ; 1; #1f2d3d; ; 4 4)\n"
    "AddPicture(8; 120; 32; 32; file; \"p.png\")\n"
    "AddPicture(48; 120; 32; 32; file; \"p.jpg\")\n";

// poppler lays the tiles of a hatch one device pixel lower than they lie:
// the hatch stays out of the comparison of pixels.
const std::string kHatch = "AddRect(8; 64; 80; 48; #e07b39; 12)\n";
const std::string kGradient = "AddRect(176; 56; 72; 16; 0 0 1 0 1 255 0 0 255 0 0 0 255 255 1)\n";
const std::string kText =
    "AddText(128; 150; \"Caf\u00e9 \u20ac 42\"; \"Liberation Sans\"; 12; plain; #000000; center; "
    "center)\n";

class DevicePDFRun : public ::testing::Test {
protected:
    DevicePDFRun() : folder(makeTempFolder("pdf-run")) {
        const Picture picture = makePicture(16, 16);
        writeFile(folder + "/p.png", encodePNG(picture));
        writeFile(folder + "/p.jpg", encodeJPEG(solidPicture(16, 16, {40, 160, 90, 255})));
    }

    RunResult run(const std::string& script, const std::vector<std::string>& more = {}) {
        std::vector<std::string> args = {"--base", folder};
        args.insert(args.end(), more.begin(), more.end());
        return runVelarix(script, args);
    }

    int shell(const std::string& command) {
        return std::system(("cd '" + folder + "' && " + command + " > out.txt 2>&1").c_str());
    }

    std::string folder;
};

TEST_F(DevicePDFRun, SaveAsPDFFileWritesTheFileWithItsMetadata) {
    RunResult r = run(kDrawing + "SaveAsPDFFile(\"a.pdf\"; replace; ; \"Sales\"; \"Ann\")\n");
    ASSERT_EQ(r.status, 0) << r.err;
    const ParsedPDF pdf = parsePDF(readFile(folder + "/a.pdf"));
    ASSERT_EQ(pdf.fault, "");
    const std::string& info = pdf.objects.at(pdf.info);
    EXPECT_NE(info.find(" /Title <53616C6573> /Author <416E6E>"), std::string::npos) << info;
    // Two pictures, the PNG with its soft mask; the JPEG kept as it is.
    const std::string resources = pdf.objects.at(2);
    EXPECT_NE(resources.find("/XObject << /Im1"), std::string::npos) << resources;
    bool hasJPEG = false, hasMask = false;
    for (const auto& [number, object] : pdf.objects) {
        hasJPEG = hasJPEG || object.find("/Filter /DCTDecode") != std::string::npos;
        hasMask = hasMask || object.find(" /SMask ") != std::string::npos;
    }
    EXPECT_TRUE(hasJPEG);
    EXPECT_TRUE(hasMask);
}

// OpenDrawing's third argument -1 sends the picture to the host as PDF.
TEST_F(DevicePDFRun, AHostDrawingComesBackAsAPDFStream) {
    const std::string streams = makeTempFolder("pdf-streams");
    RunResult r =
        run("OpenDrawing(100; 50; -1)\nAddRect(10; 10; 50; 30; #ff0000)\n", {"--streams", streams});
    ASSERT_EQ(r.status, 0) << r.err;
    const ParsedPDF pdf = parsePDF(readFile(streams + "/stream-1.pdf"));
    EXPECT_EQ(pdf.fault, "");
    EXPECT_NE(pdf.objects.at(1).find("/MediaBox [0 0 100 50]"), std::string::npos);
    EXPECT_FALSE(fs::exists(streams + "/stream-2.pdf"));
}

TEST_F(DevicePDFRun, QpdfFindsNoFaultPlainOrCompressed) {
    if (!hasProgram("qpdf")) GTEST_SKIP() << "qpdf is not installed";
    ASSERT_EQ(run(kDrawing + kHatch + kGradient + kText + "SaveAsPDFFile(\"a.pdf\")\n").status, 0);
    EXPECT_EQ(shell("qpdf --check a.pdf"), 0) << readFile(folder + "/out.txt");
    auto device = drawPDF(
        100, 50, [](vxDevicePDF& d) { fillRect(d, *rgba(0, 0, 255, 100, 20), 0, 0, 50, 50); },
        true);
    writeFile(folder + "/b.pdf", textOf(device->getFile()));
    EXPECT_EQ(shell("qpdf --check b.pdf"), 0) << readFile(folder + "/out.txt");
}

TEST_F(DevicePDFRun, PdftotextGivesTheTextBack) {
    if (!hasProgram("pdftotext")) GTEST_SKIP() << "pdftotext is not installed";
    ASSERT_EQ(run(kDrawing + kText + "SaveAsPDFFile(\"a.pdf\")\n").status, 0);
    ASSERT_EQ(shell("pdftotext -enc UTF-8 a.pdf a.txt"), 0) << readFile(folder + "/out.txt");
    EXPECT_NE(readFile(folder + "/a.txt").find("Caf\xc3\xa9 \xe2\x82\xac 42"), std::string::npos)
        << readFile(folder + "/a.txt");
}

// pdftoppm at 72 dots per inch gives a pixel per drawing unit. Both
// renderers smooth edges their own way, so a pixel may differ along the
// edges of shapes: at most 1 % of the pixels differ by more than 48 in a
// channel (0.3 % do here), and the mean of the largest channel difference
// stays below 2.5 (1.8 here).
TEST_F(DevicePDFRun, PdftoppmRendersItLikeThePNG) {
    if (!hasProgram("pdftoppm")) GTEST_SKIP() << "pdftoppm is not installed";
    ASSERT_EQ(run(kDrawing + "SaveAsPNGFile(\"a.png\")\nSaveAsPDFFile(\"a.pdf\")\n").status, 0);
    ASSERT_EQ(shell("pdftoppm -png -r 72 -singlefile a.pdf b"), 0) << readFile(folder + "/out.txt");
    auto decode = [&](const std::string& name) {
        const std::string bytes = readFile(folder + "/" + name);
        return vxDecodePicture(vxImageFormat::kPNG,
                               std::vector<unsigned char>(bytes.begin(), bytes.end()));
    };
    const vxDecodedPicture png = decode("a.png"), pdf = decode("b.png");
    ASSERT_TRUE(png.ok && pdf.ok);
    ASSERT_EQ(pdf.width, png.width);
    ASSERT_EQ(pdf.height, png.height);
    long far = 0;
    double sum = 0;
    for (int y = 0; y < png.height; ++y) {
        for (int x = 0; x < png.width; ++x) {
            const int difference =
                vxChannelDifference(vxOverWhite(png.at(x, y)), pdf.at(x, y), false);
            far += difference > 48 ? 1 : 0;
            sum += difference;
        }
    }
    const double pixels = static_cast<double>(png.width) * png.height;
    EXPECT_LE(far, pixels * 0.01) << far << " pixels differ";
    EXPECT_LT(sum / pixels, 2.5);
}

}  // namespace
}  // namespace Velarix::test
