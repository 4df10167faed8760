// The PDF device under input at its limits: a drawing of the most objects
// a script may add, text of a hundred thousand characters, pictures that
// can't be read. Each gives a file that qpdf accepts, or the error named
// and no file at all.
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <string>

#include "graphics/vxFontOLD.h"
#include "output/vxPDFTestSupport.h"
#include "support/vxPictureFiles.h"
#include "support/vxTestRun.h"

namespace Velarix::test {
namespace {

using namespace pdf;

class PDFBadInput : public ::testing::Test {
protected:
    PDFBadInput() : folder(makeTempFolder("pdf-bad-input")) {}

    // qpdf's verdict on the file; empty when it finds nothing wrong.
    std::string checked(const std::string& name) {
        const std::string command =
            "cd '" + folder + "' && qpdf --check '" + name + "' > check.txt 2>&1";
        return std::system(command.c_str()) == 0 ? "" : readFile(folder + "/check.txt");
    }

    RunResult run(const std::string& script) {
        return runVelarix(script + "SaveAsPDFFile(\"a.pdf\"; replace)\n", {"--base", folder});
    }

    std::string folder;
};

TEST_F(PDFBadInput, TheMostObjectsAScriptMayAddMakeAValidFile) {
    if (!hasProgram("qpdf")) GTEST_SKIP() << "qpdf is not installed";
    std::string script = "OpenDrawing(400; 300)\n";
    script.reserve(4'000'000);
    for (int i = 0; i < 100'000; ++i) {
        script += "AddRect(" + std::to_string(i % 390) + "; " + std::to_string(i % 290) +
                  "; 10; 10; " + std::to_string(i % 256) + " 80 160 " +
                  std::to_string(128 + i % 128) + ")\n";
    }
    const auto start = std::chrono::steady_clock::now();
    const RunResult r = run(script);
    const auto seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start);
    ASSERT_EQ(r.status, 0) << r.err;
    EXPECT_LT(seconds.count(), 60.0);
    EXPECT_EQ(checked("a.pdf"), "");
}

// One line and many, in the code page and beyond it.
TEST_F(PDFBadInput, TextOfAHundredThousandCharactersMakesAValidFile) {
    if (!hasProgram("qpdf")) GTEST_SKIP() << "qpdf is not installed";
    std::wstring latin, lines, greek;
    for (int i = 0; i < 100'000; ++i) {
        latin += static_cast<wchar_t>(L'a' + i % 26);
        lines += i % 80 == 79 ? wchar_t(13) : static_cast<wchar_t>(L'A' + i % 26);
        greek += static_cast<wchar_t>(0x03B1 + i % 24);
    }
    const vxFontOLD font(L"DejaVu Sans", 10, vxFontOLD::kPlain);
    const auto device = drawPDF(400, 300, [&](vxDevicePDF& d) {
        const float bounds[4] = {10, 10, 390, 290};
        for (const std::wstring* text : {&latin, &lines, &greek}) {
            d.drawString2D(*text, font, *rgba(0, 0, 0), bounds, 3, 1, 0.0f);
        }
    });
    ASSERT_FALSE(device->isError());
    writeFile(folder + "/a.pdf", textOf(device->getFile()));
    EXPECT_EQ(checked("a.pdf"), "");
}

// A picture, a background picture and a texture that can't be read stop
// the drawing with the error of the fault, before any file is written.
TEST_F(PDFBadInput, PicturesThatCantBeReadAreErrorsAndNoFile) {
    writeFile(folder + "/cut.png", encodePNG(makePicture(20, 10)).substr(0, 40));
    writeFile(folder + "/text.png", "just some text, not a picture");
    const struct {
        const char* line;
        const char* code;
    } cases[] = {{"AddPicture(0; 0; 10; 10; file; \"missing.png\")", "4000:"},
                 {"AddPicture(0; 0; 10; 10; file; \"cut.png\")", "4004:"},
                 {"AddPicture(0; 0; 10; 10; file; \"text.png\")", "4013:"},
                 {"BackgroundPict(file; \"cut.png\")", "4004:"}};
    for (const auto& c : cases) {
        const RunResult r = run(std::string("OpenDrawing(200; 100)\n") + c.line + "\n");
        EXPECT_EQ(r.status, 1) << c.line;
        EXPECT_EQ(r.err.substr(0, 5), c.code) << c.line << ": " << r.err;
        EXPECT_FALSE(std::filesystem::exists(folder + "/a.pdf")) << c.line;
    }
}

}  // namespace
}  // namespace Velarix::test
