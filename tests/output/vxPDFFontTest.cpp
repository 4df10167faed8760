// PDF fonts: which font a family and style get, the widths they give a
// text against the layout's measure, the objects of an embedded font, and
// the files as real readers see them.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <iterator>
#include <regex>
#include <string>

#include "graphics/vxFontOLD.h"
#include "output/vxPDFFontKey.h"
#include "output/vxPDFFontTrueType.h"
#include "output/vxPDFFonts.h"
#include "output/vxPDFTestSupport.h"
#include "output/vxPDFText.h"
#include "platform/vxFontFiles.h"
#include "platform/vxFontService.h"
#include "platform/vxTrueTypeFile.h"
#include "support/vxTestRun.h"

namespace Velarix::test {
namespace {

using namespace pdf;

const std::wstring kTexts[] = {L"Label 42", L"Caf\u00e9 \u20ac \u2014 \u00c5\u00df\u00ff",
                               L"WWW iii", L"\u201cQuoted\u201d \u2026 \u0152\u0161"};

// The object of a file that holds the text.
std::string objectWith(const ParsedPDF& pdf, const std::string& text) {
    for (const auto& [number, object] : pdf.objects) {
        if (object.find(text) != std::string::npos) return object;
    }
    return "";
}

// The object that "/Key N 0 R" in `object` refers to.
std::string referred(const ParsedPDF& pdf, const std::string& object, const std::string& key) {
    std::smatch m;
    if (!std::regex_search(object, m, std::regex(key + " ?(\\d+) 0 R"))) return "";
    return pdf.objects.at(std::stol(m[1]));
}

std::unique_ptr<vxDevicePDF> drawText(const std::wstring& family, short style,
                                      const std::wstring& text = L"Caf\u00e9 \u20ac 42") {
    const vxFontOLD font(family, 12, style);
    return drawPDF(200, 50, [&](vxDevicePDF& d) {
        const float bounds[4] = {10, 10, 190, 40};
        d.drawString2D(text, font, *rgba(0, 0, 0), bounds, 2, 1, 0.0f);
    });
}

TEST(PDFFontKey, FamiliesBecomeKeysAndStandInForTheStandardFonts) {
    const struct {
        const wchar_t* family;
        bool bold, italic;
        const char *base, *key, *key2;
    } cases[] = {
        {L"Arial", true, true, "helvetica", "helveticaBI", "arialBI"},
        {L"ArialMT", false, false, "helvetica", "helvetica", "arialmt"},
        {L"Courier New", false, true, "courier", "courierI", "couriernewI"},
        {L"Times New Roman", true, false, "times", "timesB", "timesnewromanB"},
        {L"TimesNewRomanPSMT", false, false, "times", "times", "timesnewromanpsmt"},
        {L"DejaVu Sans", false, true, "dejavusans", "dejavusansI", "dejavusansI"},
    };
    for (const auto& c : cases) {
        const vxPDFFontKey key(c.family, c.bold, c.italic);
        EXPECT_EQ(key.getFontKeyBase(), c.base);
        EXPECT_EQ(key.getFontKey(), c.key);
        EXPECT_EQ(key.getFontKey2(), c.key2);
    }
}

TEST(PDFFonts, StandardFontsByKeyAndHelveticaForWhatIsMissing) {
    vxPDFFonts fonts;
    const struct {
        const wchar_t* family;
        bool bold, italic;
        const char* name;
    } cases[] = {
        {L"Arial", true, true, "Helvetica-BoldOblique"},
        {L"SystemFont", true, false, "Helvetica-Bold"},
        {L"helvetica", false, false, "Helvetica"},
        {L"Courier New", true, false, "Courier-Bold"},
        {L"Times New Roman", false, true, "Times-Italic"},
        {L"Symbol", false, false, "Symbol"},
        {L"No Such Font 77", true, false, "Helvetica-Bold"},
        {L"DejaVu Sans", false, true, "DejaVuSans-Oblique"},
        {L"Liberation Serif", true, false, "LiberationSerif-Bold"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(fonts.fontFor(c.family, c.bold, c.italic).getBaseFontName(), c.name);
    }
    // A family the platform only substitutes is missing too.
    if (!vxFontService::get().hasFont(L"Verdana")) {
        EXPECT_EQ(fonts.fontFor(L"Verdana", false, false).getBaseFontName(), "Helvetica");
    }
    // One font object per key and intent.
    EXPECT_EQ(&fonts.fontFor(L"DejaVu Sans", false, true),
              &fonts.fontFor(L"dejavusans", false, true));
}

// The layout measures with the font service; the PDF's widths of the same
// text agree to rounding, in every style, with simulated bold too.
TEST(PDFFonts, TrueTypeWidthsEqualTheLayoutsMeasure) {
    vxPDFFonts fonts;
    for (const wchar_t* family :
         {L"DejaVu Sans", L"Liberation Serif", L"DejaVu Sans Mono", L"cmr10"}) {
        if (!vxFontService::get().hasFont(family)) continue;
        for (short style : {0, 1, 2, 3}) {
            const vxPDFFontABC& pdfFont = fonts.fontFor(family, style & 1, style & 2);
            ASSERT_TRUE(pdfFont.hasWidths());
            const vxFontOLD font(family, 11, style);
            for (const std::wstring& text : kTexts) {
                const float layout = font.getWidth(text);
                EXPECT_NEAR(pdfFont.getWidth(vxPDFText::codesOf(text), 11), layout, layout * 1e-5f)
                    << pdfFont.getBaseFontName();
            }
        }
    }
}

// The standard fonts' widths against the layout's measure where the
// platform has fonts of the same metrics: Times in every style to rounding,
// and Times New Roman, whose own metrics stand close to Times', to half
// a thousandth of the width. Symbol and ZapfDingbats read their
// codes in their own encoding, so only ASCII text measures alike.
TEST(PDFFonts, StandardWidthsEqualTheMeasureOfFontsWithTheSameMetrics) {
    if (!vxFontService::get().hasFont(L"Nimbus Roman")) GTEST_SKIP() << "no URW fonts";
    vxPDFFonts fonts;
    const struct {
        const wchar_t* family;
        short styles;
        float tolerance;
        bool isAsciiOnly;
    } cases[] = {{L"Times", 4, 1e-5f, false},
                 {L"Times New Roman", 4, 5e-4f, false},
                 {L"Symbol", 1, 1e-5f, true},
                 {L"ZapfDingbats", 1, 1e-5f, true}};
    for (const auto& c : cases) {
        for (short style = 0; style < c.styles; ++style) {
            const vxPDFFontABC& pdfFont = fonts.fontFor(c.family, style & 1, style & 2);
            const vxFontOLD font(c.family, 11, style);
            for (const std::wstring& text : kTexts) {
                if (c.isAsciiOnly &&
                    !std::all_of(text.begin(), text.end(), [](wchar_t ch) { return ch < 128; }))
                    continue;
                const float layout = font.getWidth(text);
                EXPECT_NEAR(pdfFont.getWidth(vxPDFText::codesOf(text), 11), layout,
                            layout * c.tolerance)
                    << pdfFont.getBaseFontName() << " " << style;
            }
        }
    }
}

TEST(PDFFonts, AFileWithoutTheStyleImitatesIt) {
    if (!vxFontService::get().hasFont(L"cmr10")) GTEST_SKIP() << "cmr10 is not installed";
    vxPDFFonts fonts;
    EXPECT_EQ(fonts.fontFor(L"cmr10", true, false).getBaseFontName(), "cmr10,Bold");
    EXPECT_EQ(fonts.fontFor(L"cmr10", true, true).getBaseFontName(), "cmr10,BoldItalic");
}

// Right, centred and left lines sit where the layout's widths put them.
TEST(DevicePDFFonts, LinesArePlacedByTheLayoutsWidths) {
    const vxFontOLD font(L"DejaVu Sans", 12, vxFontOLD::kBold);
    const std::wstring text = L"Total \u20ac 1.234";
    const float width = font.getWidth(text);
    for (short alignment : {1, 2, 3}) {
        auto device = drawPDF(200, 50, [&](vxDevicePDF& d) {
            const float bounds[4] = {10, 10, 190, 40};
            d.drawString2D(text, font, *rgba(0, 0, 0), bounds, alignment, 1, 0.0f);
        });
        std::smatch m;
        const std::string content = blocksOf(*device);
        ASSERT_TRUE(std::regex_search(content, m, std::regex("BT (\\S+) 0 Td")));
        const float x = std::stof(m[1]);
        const float expected = alignment == 1 ? 10 : alignment == 3 ? 190 - width : 100 - width / 2;
        EXPECT_NEAR(x, expected, 0.001f) << "alignment " << alignment;
    }
}

TEST(DevicePDFFonts, AnEmbeddedFontCarriesItsProgramDescriptorAndWidths) {
    const auto device = drawText(L"DejaVu Sans", vxFontOLD::kPlain);
    const ParsedPDF pdf = parsePDF(textOf(device->getFile()));
    ASSERT_EQ(pdf.fault, "");
    const std::string font = objectWith(pdf, "/Subtype /TrueType");
    EXPECT_NE(font.find("/BaseFont /DejaVuSans /FirstChar 32 /LastChar 255 /Widths ["),
              std::string::npos)
        << font;
    EXPECT_NE(font.find("/Encoding /WinAnsiEncoding"), std::string::npos);
    const std::string descriptor = referred(pdf, font, "/FontDescriptor");
    EXPECT_NE(descriptor.find("/Type /FontDescriptor /FontName /DejaVuSans /Flags 32 "),
              std::string::npos)
        << descriptor;
    const std::string program = referred(pdf, descriptor, "/FontFile2");
    vxFontFileMatch match;
    ASSERT_TRUE(vxFindFontFile(L"DejaVu Sans", 0, match));
    const std::string bytes = readFile(match.file);
    EXPECT_NE(program.find("/Length1 " + std::to_string(bytes.size())), std::string::npos);
    EXPECT_TRUE(streamOf(program) == bytes) << "the program is not the font file";
    // The page lists the font alone; its parts are no resources of the page.
    EXPECT_NE(pdf.objects.at(2).find("/Font << /F1 "), std::string::npos);
    EXPECT_EQ(pdf.objects.at(2).find("/F2"), std::string::npos) << pdf.objects.at(2);
}

// A font file is embedded unasked where its licence allows; the standard
// fonts never are, nor is a file whose licence allows restricted embedding
// alone: it keeps its widths and descriptor.
TEST(DevicePDFFonts, FontsAreEmbeddedWhereTheLicenceAllows) {
    const ParsedPDF standard = parsePDF(textOf(drawText(L"Times New Roman", 0)->getFile()));
    EXPECT_EQ(objectWith(standard, "/Type /FontDescriptor"), "");
    EXPECT_EQ(objectWith(standard, "/Length1"), "");

    vxFontFileMatch match;
    ASSERT_TRUE(vxFindFontFile(L"DejaVu Sans", 0, match));
    const std::string file = readFile(match.file);
    std::vector<uint8_t> bytes(file.begin(), file.end());
    std::string failure;
    auto original = vxTrueTypeFile::parse(bytes, 0, failure);
    ASSERT_TRUE(original);
    const uint8_t* os2 =
        std::search(bytes.data(), bytes.data() + 400, reinterpret_cast<const uint8_t*>("OS/2"),
                    reinterpret_cast<const uint8_t*>("OS/2") + 4);
    const size_t fsType =
        ((size_t(os2[8]) << 24) | (size_t(os2[9]) << 16) | (size_t(os2[10]) << 8) | os2[11]) + 8;
    bytes[fsType] = 0;
    bytes[fsType + 1] = 2;
    auto restricted = vxTrueTypeFile::parse(bytes, 0, failure);
    ASSERT_TRUE(restricted);
    auto program = std::make_shared<const std::vector<uint8_t>>(bytes);
    vxPDFResources resources;
    const vxPDFFontTrueType forbidden(std::move(restricted), false, false, 0, program);
    EXPECT_FALSE(forbidden.isEmbedded());
    forbidden.addTo(resources);
    ASSERT_EQ(resources.getEntries(vxPDFResources::kFontPart).size(), 1u);
    EXPECT_EQ(resources.getEntries(vxPDFResources::kFontPart)[0].dictionary.find("/FontFile2"),
              std::string::npos);
    const vxPDFFontTrueType allowed(std::move(original), false, false, 0, program);
    EXPECT_TRUE(allowed.isEmbedded());
}

// Fonts don't make a document differ from the next of the same drawing.
TEST(DevicePDFFonts, DocumentsOfOneDrawingAreAlike) {
    const ParsedPDF a = parsePDF(textOf(drawText(L"Liberation Serif", 1)->getFile()));
    const ParsedPDF b = parsePDF(textOf(drawText(L"Liberation Serif", 1)->getFile()));
    ASSERT_EQ(a.objects.size(), b.objects.size());
    for (const auto& [number, object] : a.objects) {
        if (number != a.info) {
            EXPECT_EQ(object, b.objects.at(number)) << "object " << number;
        }
    }
}

class DevicePDFFontsRead : public ::testing::Test {
protected:
    DevicePDFFontsRead() : folder(makeTempFolder("pdf-fonts")) {}

    int shell(const std::string& command) {
        return std::system(("cd '" + folder + "' && " + command + " > out.txt 2>&1").c_str());
    }
    std::string output() { return readFile(folder + "/out.txt"); }

    // A line in each of three fonts: two files, embedded, and one missing.
    void writeDocument(bool compress) {
        const vxFontOLD embedded(L"DejaVu Sans", 12, vxFontOLD::kItalic);
        const vxFontOLD plain(L"Liberation Serif", 12, vxFontOLD::kBold);
        const vxFontOLD missing(L"No Such Font 77", 12, vxFontOLD::kPlain);
        auto device = drawPDF(
            300, 100,
            [&](vxDevicePDF& d) {
                const float first[4] = {10, 10, 290, 30}, second[4] = {10, 40, 290, 60},
                            third[4] = {10, 70, 290, 90};
                d.drawString2D(L"Caf\u00e9 \u20ac 42", embedded, *rgba(0, 0, 0), first, 1, 1, 0);
                d.drawString2D(L"Na\u00efve \u201cquote\u201d", plain, *rgba(0, 0, 0), second, 3, 1,
                               0);
                d.drawString2D(L"Fallback", missing, *rgba(0, 0, 0), third, 2, 1, 0);
            },
            compress);
        writeFile(folder + "/a.pdf", textOf(device->getFile()));
    }

    std::string folder;
};

TEST_F(DevicePDFFontsRead, QpdfAcceptsTheFontsPlainOrCompressed) {
    if (!hasProgram("qpdf")) GTEST_SKIP() << "qpdf is not installed";
    for (bool compress : {false, true}) {
        writeDocument(compress);
        EXPECT_EQ(shell("qpdf --check a.pdf"), 0) << output();
    }
}

TEST_F(DevicePDFFontsRead, PdffontsListsTheEmbeddedFont) {
    if (!hasProgram("pdffonts")) GTEST_SKIP() << "pdffonts is not installed";
    writeDocument(false);
    ASSERT_EQ(shell("pdffonts a.pdf"), 0) << output();
    const std::string list = output();
    // name, type, encoding, emb, sub, uni
    EXPECT_TRUE(std::regex_search(list, std::regex("DejaVuSans-Oblique +TrueType +WinAnsi +yes")))
        << list;
    EXPECT_TRUE(std::regex_search(list, std::regex("LiberationSerif-Bold +TrueType +WinAnsi +yes")))
        << list;
    EXPECT_TRUE(std::regex_search(list, std::regex("\nHelvetica +Type 1 +WinAnsi +no"))) << list;
}

TEST_F(DevicePDFFontsRead, PdftotextGivesTheTextBack) {
    if (!hasProgram("pdftotext")) GTEST_SKIP() << "pdftotext is not installed";
    writeDocument(true);
    ASSERT_EQ(shell("pdftotext -enc UTF-8 a.pdf a.txt"), 0) << output();
    const std::string text = readFile(folder + "/a.txt");
    for (const char* line : {"Caf\xc3\xa9 \xe2\x82\xac 42",
                             "Na\xc3\xafve \xe2\x80\x9cquote\xe2\x80\x9d", "Fallback"}) {
        EXPECT_NE(text.find(line), std::string::npos) << line << " in " << text;
    }
}

}  // namespace
}  // namespace Velarix::test

namespace Velarix::test {
namespace {

using namespace pdf;

const std::wstring kGreek = L"\u0391\u03b8\u03ae\u03bd\u03b1 \u039c\u03bf\u03c3\u03ba\u03b2\u03b1";
const char kGreekUtf8[] =
    "\xce\x91\xce\xb8\xce\xae\xce\xbd\xce\xb1 \xce\x9c\xce\xbf\xcf\x83\xce\xba\xce\xb2\xce\xb1";

// Lines beyond Windows-1252 go into the composite font of the file the
// layout measured with, also for a family that falls back to Helvetica.
TEST(DevicePDFFonts, TextBeyondTheCodePageIsPlacedByTheLayoutsGlyphWidths) {
    for (const wchar_t* family : {L"DejaVu Sans", L"No Such Font 77", L"Arial"}) {
        const vxFontOLD font(family, 12, vxFontOLD::kBold);
        const std::wstring text = L"\u0416\u0438\u0437\u043d\u044c " + kGreek;
        auto device = drawPDF(300, 50, [&](vxDevicePDF& d) {
            const float bounds[4] = {10, 10, 290, 40};
            d.drawString2D(L"Latin\r" + text, font, *rgba(0, 0, 0), bounds, 3, 1, 0.0f);
        });
        std::smatch m;
        const std::string content = blocksOf(*device);
        ASSERT_TRUE(std::regex_search(content, m, std::regex("BT /F2 12 Tf (\\S+) \\S+ Td <")))
            << content;
        EXPECT_NEAR(std::stof(m[1]), 290 - font.getWidth(text), 0.001f) << content;
        // The text's own font is selected again for what follows.
        EXPECT_NE(content.find("Tj ET /F1 12 Tf Q"), std::string::npos) << content;
    }
}

TEST(DevicePDFFonts, ACompositeFontMapsItsGlyphsBackToUnicode) {
    const vxFontOLD font(L"DejaVu Sans", 12, vxFontOLD::kPlain);
    auto device = drawPDF(300, 50, [&](vxDevicePDF& d) {
        const float bounds[4] = {10, 10, 290, 40};
        d.drawString2D(L"\u03b1\u03b2\u03b1 \U0001F600", font, *rgba(0, 0, 0), bounds, 1, 1, 0);
    });
    const ParsedPDF pdf = parsePDF(textOf(device->getFile()));
    ASSERT_EQ(pdf.fault, "");
    const std::string type0 = objectWith(pdf, "/Subtype /Type0");
    EXPECT_NE(type0.find("/BaseFont /DejaVuSans /Encoding /Identity-H"), std::string::npos)
        << type0;
    const std::string cidFont = referred(pdf, type0, "/DescendantFonts \\[");
    EXPECT_NE(cidFont.find("/Subtype /CIDFontType2"), std::string::npos) << cidFont;
    EXPECT_NE(cidFont.find("/CIDToGIDMap /Identity"), std::string::npos);
    EXPECT_NE(referred(pdf, referred(pdf, cidFont, "/FontDescriptor"), "/FontFile2"), "");
    // Alpha, beta and the space: three glyphs, each once; a glyph the font
    // lacks has no character to give back.
    const std::string map = streamOf(referred(pdf, type0, "/ToUnicode"));
    EXPECT_NE(map.find("3 beginbfchar\n"), std::string::npos) << map;
    EXPECT_NE(map.find("> <03B1>\n"), std::string::npos) << map;
    EXPECT_NE(map.find("> <0020>\n"), std::string::npos) << map;
}

TEST(DevicePDFFonts, AFontFileIsReadOncePerProcess) {
    const vxFontOLD font(L"DejaVu Serif", 12, vxFontOLD::kItalic);
    auto draw = [&](vxDevicePDF& d) {
        const float bounds[4] = {10, 10, 290, 40};
        for (int i = 0; i < 20; ++i) {
            d.drawString2D(L"Line " + std::to_wstring(i), font, *rgba(0, 0, 0), bounds, 1, 1, 0);
            d.drawString2D(kGreek, font, *rgba(0, 0, 0), bounds, 1, 1, 0);
        }
    };
    drawPDF(300, 50, draw);
    const long read = vxPDFFonts::getNumOfFilesRead();
    const ParsedPDF pdf = parsePDF(textOf(drawPDF(300, 50, draw)->getFile()));
    EXPECT_EQ(vxPDFFonts::getNumOfFilesRead(), read);
    EXPECT_NE(objectWith(pdf, "/BaseFont /DejaVuSerif-Italic"), "");
}

TEST_F(DevicePDFFontsRead, TextBeyondTheCodePageShowsAndCanBeCopied) {
    if (!hasProgram("pdffonts") || !hasProgram("pdftotext") || !hasProgram("qpdf")) {
        GTEST_SKIP() << "poppler's tools or qpdf are not installed";
    }
    const vxFontOLD font(L"Liberation Sans", 12, vxFontOLD::kPlain);
    auto device = drawPDF(300, 50, [&](vxDevicePDF& d) {
        const float bounds[4] = {10, 10, 290, 40};
        d.drawString2D(L"Caf\u00e9 " + kGreek, font, *rgba(0, 0, 0), bounds, 2, 1, 0.0f);
    });
    writeFile(folder + "/a.pdf", textOf(device->getFile()));
    EXPECT_EQ(shell("qpdf --check a.pdf"), 0) << output();
    ASSERT_EQ(shell("pdffonts a.pdf"), 0);
    EXPECT_TRUE(std::regex_search(
        output(), std::regex("LiberationSans +CID TrueType +Identity-H +yes +no +yes")))
        << output();
    ASSERT_EQ(shell("pdftotext -enc UTF-8 a.pdf a.txt"), 0) << output();
    EXPECT_NE(readFile(folder + "/a.txt").find(std::string("Caf\xc3\xa9 ") + kGreekUtf8),
              std::string::npos)
        << readFile(folder + "/a.txt");
}

}  // namespace
}  // namespace Velarix::test
