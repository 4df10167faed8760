// Every example and a set of small scripts written as PNG, SVG and PDF, with
// the SVG shown by librsvg and the PDF by poppler: all three must look alike,
// the PDF must be sound to qpdf and its words must come back as text.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>

#include "output/vxReaderComparison.h"
#include "output/vxReaderScripts.h"
#include "support/vxTestRun.h"

namespace Velarix::test {
namespace {

namespace fs = std::filesystem;

// Blocks of 8 by 8 pixels, each the mean of its pixels over white. A glyph of
// another face moves ink inside the block it lies in, and an edge drawn one
// pixel apart moves at most 8 of 64 pixels, an eighth of the contrast: the
// channel tolerance of 48 lets both pass. A shape that is missing or drawn in
// another place or colour changes the whole block by the contrast of the
// shape with what lies under it, far above 48 for any shape that can be seen.
constexpr int kBlock = 8;
constexpr int kTolerance = 48;
// Text set in another face (poppler shows Verdana as Helvetica) moves a few
// blocks past the tolerance where its words run wider or narrower: a quarter
// of a percent of the blocks, and at least 4, may differ. On the largest
// example that is 13 blocks, fewer than a missing shape of 32 by 32 pixels
// changes.
size_t allowedBlocks(size_t blocks) {
    return std::max<size_t>(4, blocks / 400);
}

struct Readers {
    bool rsvg = false, pdftoppm = false, pdftotext = false, qpdf = false;
};

Readers installedReaders() {
    auto has = [](const std::string& name) {
        return std::system(("command -v " + name + " > /dev/null 2>&1").c_str()) == 0;
    };
    return {has("rsvg-convert"), has("pdftoppm"), has("pdftotext"), has("qpdf")};
}

// The script with its own save calls dropped and one of each vector format
// and PNG added at its end, all named after `name`.
std::string withOurSaves(const std::string& script, const std::string& name) {
    std::istringstream in(script);
    std::string kept, line;
    while (std::getline(in, line)) {
        if (line.rfind("SaveAs", 0) != 0) kept += line + "\n";
    }
    for (const char* format : {"PNG", "SVG", "PDF"}) {
        std::string extension = format;
        for (char& c : extension) c = char(std::tolower(c));
        kept +=
            std::string("SaveAs") + format + "File(\"" + name + "." + extension + "\"; replace)\n";
    }
    return kept;
}

vxDecodedPicture decodedPNG(const std::string& path) {
    const std::string bytes = readFile(path);
    return vxDecodePicture(vxImageFormat::kPNG,
                           std::vector<unsigned char>(bytes.begin(), bytes.end()));
}

// What one reader shows differs from our PNG in more blocks than allowed.
void expectLooksAlike(const vxDecodedPicture& ours, const std::string& theirsPath,
                      const std::string& what) {
    const vxDecodedPicture theirs = decodedPNG(theirsPath);
    ASSERT_TRUE(theirs.ok) << what << ": no picture at " << theirsPath;
    const BlockPicture a = blocksOf(ours, kBlock);
    const auto differences = differingBlocks(a, blocksOf(theirs, kBlock), kTolerance);
    const size_t allowed = allowedBlocks(a.means.size());
    EXPECT_LE(differences.size(), allowed) << what << ": " << differences.size() << " of "
                                           << a.means.size() << " blocks differ, the worst:\n"
                                           << describeBlocks(differences, 20);
}

// What a reader showed of one file: the PDF's text as poppler finds it and
// the words our SVG holds.
struct ReaderResult {
    std::string pdfText;
    std::vector<std::string> svgWords;
};

using enum CompareWith;

class ReaderComparison : public ::testing::Test {
protected:
    void SetUp() override {
        const Readers readers = installedReaders();
        if (!readers.rsvg) GTEST_SKIP() << "rsvg-convert (librsvg2-bin) is not installed";
        if (!readers.pdftoppm || !readers.pdftotext) {
            GTEST_SKIP() << "pdftoppm and pdftotext (poppler-utils) are not installed";
        }
        if (!readers.qpdf) GTEST_SKIP() << "qpdf is not installed";
    }

    // Writes the three files of the script into `folder`, checks the PDF
    // with qpdf and compares the readers' pictures as `compare` says.
    ReaderResult check(const std::string& folder, const std::string& name,
                       const std::string& script, CompareWith compare = kBoth) {
        RunResult run = runVelarix(withOurSaves(script, name), {"--base", folder});
        EXPECT_EQ(run.status, 0) << name << "\n" << run.err;
        const vxDecodedPicture png = decodedPNG(folder + "/" + name + ".png");
        if (run.status != 0 || !png.ok) {
            ADD_FAILURE() << name << ": no PNG to compare with";
            return {};
        }
        std::string said;
        EXPECT_TRUE(runIn(folder, "qpdf --check " + name + ".pdf", &said)) << name << "\n" << said;
        const std::string w = std::to_string(png.width), h = std::to_string(png.height);
        EXPECT_TRUE(
            runIn(folder,
                  "rsvg-convert -w " + w + " -h " + h + " -o " + name + "-svg.png " + name + ".svg",
                  &said))
            << name << "\n"
            << said;
        EXPECT_TRUE(runIn(folder,
                          "pdftoppm -r 72 -png -singlefile -scale-to-x " + w + " -scale-to-y " + h +
                              " " + name + ".pdf " + name + "-pdf",
                          &said))
            << name << "\n"
            << said;
        if (compare == kBoth || compare == kOnlySVG) {
            expectLooksAlike(png, folder + "/" + name + "-svg.png", name + ".svg by librsvg");
        }
        if (compare == kBoth || compare == kOnlyPDF) {
            expectLooksAlike(png, folder + "/" + name + "-pdf.png", name + ".pdf by poppler");
        }
        ReaderResult result;
        EXPECT_TRUE(runIn(folder, "pdftotext " + name + ".pdf -", &result.pdfText)) << name;
        result.svgWords = wordsOfSVG(readFile(folder + "/" + name + ".svg"));
        return result;
    }
};

// Every word we set must be in the PDF as text, not only as shapes: at least
// one of the words of the drawing comes back from poppler.
void expectTextComesBack(const std::string& name, const ReaderResult& result) {
    if (result.svgWords.empty()) return;
    bool found = false;
    for (const std::string& word : result.svgWords) {
        found = found || result.pdfText.find(word) != std::string::npos;
    }
    EXPECT_TRUE(found) << name << ": none of the words of the drawing (first \""
                       << result.svgWords.front() << "\") in the PDF's text:\n"
                       << result.pdfText;
}

// Examples whose pictures differ between the formats, and the readers whose
// pictures are therefore not compared. They are differences of the formats
// themselves: the raster device blends gradients gamma-corrected where SVG
// and PDF blend linearly, a PDF shading is centred where the raster device
// moves it to the focus, and PDF text takes no gradient.
const std::map<std::string, CompareWith> kKnownDifferences = {
    // gamma-corrected gradients in the PNG, the focus of the radial gradient
    // and the gradient text in the PDF
    {"paints", kNeither},
};

// The comparison itself: a missing square of 24 pixels is found, and a
// drawing moved by one pixel is not.
TEST(ReaderBlocks, FindMissingShapesAndPassSmallShifts) {
    auto picture = [](int left, bool square) {
        vxDecodedPicture p;
        p.ok = true;
        p.width = 64;
        p.height = 48;
        p.samples.assign(64 * 48 * 3, 255);
        for (int y = 8; y < 40; ++y) {
            for (int x = left; x < left + 40; ++x) {
                const bool inSquare = square && x >= left + 8 && x < left + 32 && y >= 12 && y < 36;
                if (y == 8 || y == 39 || x == left || x == left + 39 || inSquare) {
                    p.samples[size_t(y * 64 + x) * 3] = 0;
                }
            }
        }
        return p;
    };
    const BlockPicture ours = blocksOf(picture(10, true), kBlock);
    EXPECT_TRUE(differingBlocks(ours, blocksOf(picture(11, true), kBlock), kTolerance).empty());
    const auto missing = differingBlocks(ours, blocksOf(picture(10, false), kBlock), kTolerance);
    EXPECT_GT(missing.size(), allowedBlocks(ours.means.size()));
    EXPECT_EQ(missing.front().difference, 255);
    EXPECT_EQ(missing.front().ours, (vxRGBA{0, 255, 255, 255}));
    const BlockPicture smaller = blocksOf(picture(10, true), 4);
    EXPECT_EQ(differingBlocks(ours, smaller, kTolerance).size(), 1u);
}

TEST_F(ReaderComparison, EveryExampleLooksAlikeInEveryReader) {
    const std::string folder = makeTempFolder("readers-examples");
    for (const auto& data : fs::directory_iterator(fs::path(VELARIX_EXAMPLES_DIR) / "data")) {
        fs::copy_file(data.path(), fs::path(folder) / data.path().filename());
    }
    long count = 0;
    for (const auto& entry : fs::recursive_directory_iterator(VELARIX_EXAMPLES_DIR)) {
        if (entry.path().extension() != ".vxs") continue;
        ++count;
        const std::string name = entry.path().stem().string();
        const auto known = kKnownDifferences.find(name);
        const CompareWith compare = known == kKnownDifferences.end() ? kBoth : known->second;
        expectTextComesBack(name, check(folder, name, readFile(entry.path().string()), compare));
    }
    EXPECT_GE(count, 14);
}

TEST_F(ReaderComparison, EveryShapePaintAndTextLooksAlikeInEveryReader) {
    const std::string folder = makeTempFolder("readers-scripts");
    fs::copy_file(fs::path(VELARIX_EXAMPLES_DIR) / "data" / "coin.png",
                  fs::path(folder) / "coin.png");
    for (const ReaderScript& script : kReaderScripts) {
        expectTextComesBack(script.name, check(folder, script.name, script.script, script.compare));
    }
}

}  // namespace
}  // namespace Velarix::test
