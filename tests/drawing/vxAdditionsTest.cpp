// Pictures and the limits of additions, through the command.
#include <gtest/gtest.h>

#include <regex>
#include <string>

#include "support/vxPictureFiles.h"
#include "support/vxTestRun.h"

namespace Velarix::test {
namespace {

size_t count(const std::string& text, const std::string& what) {
    size_t n = 0;
    for (size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + 1)) ++n;
    return n;
}

class AddPictureRun : public ::testing::Test {
protected:
    AddPictureRun() : folder(makeTempFolder("add-picture")) {
        writeFile(folder + "/p.png", encodePNG(makePicture(20, 10)));
    }

    // The SVG of a 200 by 100 drawing with the given lines.
    std::string svg(const std::string& lines) {
        last =
            runVelarix("OpenDrawing(200; 100)\n" + lines + "\nSaveAsSVGFile(\"a.svg\"; replace)\n",
                       {"--base", folder});
        return last.status == 0 ? readFile(folder + "/a.svg") : "";
    }

    std::string folder;
    RunResult last;
};

TEST_F(AddPictureRun, FillsItsBoxOrPlacesAndTilesThePicture) {
    const std::string href = "<image xlink:href=\"" + folder + "/p.png\"\n";
    std::string s = svg("AddPicture(10; 20; 80; 40; file; \"p.png\")");
    ASSERT_EQ(last.status, 0) << last.err;
    EXPECT_NE(s.find(href + "\tx=\"10\" y=\"20\" width=\"80\" height=\"40\""), std::string::npos)
        << s;

    // Kept at its own size in the centre of the box.
    s = svg("AddPicture(10; 20; 80; 40; file; \"p.png\"; centercenter; crop)");
    EXPECT_NE(s.find(href + "\tx=\"40\" y=\"35\" width=\"20\" height=\"10\""), std::string::npos)
        << s;

    // 80 by 40 takes four columns and four rows of 20 by 10.
    s = svg("AddPicture(10; 20; 80; 40; file; \"p.png\"; topleft; tile)");
    EXPECT_EQ(count(s, href), 16u) << s;
    EXPECT_NE(s.find(href + "\tx=\"70\" y=\"50\" width=\"20\" height=\"10\""), std::string::npos)
        << s;

    // A view moves the picture with its origin.
    s = svg("OpenView(100; 50; 100; 50)\nAddPicture(0; 0; 20; 10; file; \"p.png\")");
    EXPECT_NE(s.find(href + "\tx=\"100\" y=\"50\" width=\"20\" height=\"10\""), std::string::npos)
        << s;
}

TEST_F(AddPictureRun, BadPicturesAreErrorsNamingTheFault) {
    writeFile(folder + "/cut.png", encodePNG(makePicture(20, 10)).substr(0, 40));
    writeFile(folder + "/text.png", "just some text, not a picture");
    const struct {
        const char* name;
        const char* code;
    } cases[] = {{"missing.png", "4000:"}, {"cut.png", "4004:"}, {"text.png", "4013:"}};
    for (const auto& c : cases) {
        svg(std::string("AddPicture(0; 0; 10; 10; file; \"") + c.name + "\")");
        EXPECT_EQ(last.status, 1) << c.name;
        EXPECT_EQ(last.err.substr(0, 5), c.code) << c.name << ": " << last.err;
    }
    svg("BackgroundPict(file; \"missing.png\")");
    EXPECT_EQ(last.err.substr(0, 5), "4000:") << last.err;
}

TEST_F(AddPictureRun, BackgroundPictureCoversTheView) {
    const std::string s = svg("Background(white)\nBackgroundPict(file; \"p.png\")");
    ASSERT_EQ(last.status, 0) << last.err;
    EXPECT_NE(s.find("p.png\"\n\tx=\"0\" y=\"0\" width=\"200\" height=\"100\""), std::string::npos)
        << s;
}

// A nested view draws only inside its parent: its clip is its own frame cut
// to the parent's inside, one unit larger on each side.
TEST_F(AddPictureRun, NestedViewsClipToTheirParent) {
    const std::string s =
        svg("OpenView(0; 0; 50; 50)\nOpenView(25; 25; 50; 50)\nAddRect(0; 0; 50; 50)");
    ASSERT_EQ(last.status, 0) << last.err;
    EXPECT_NE(s.find("x=\"24\" y=\"24\" width=\"27\" height=\"27\""), std::string::npos) << s;
}

// The additions of a chart are cut to the chart's view, not to the clip of
// a view drawn before them.
TEST_F(AddPictureRun, ChartAdditionsKeepTheirViewsClip) {
    const std::string s =
        svg("OpenView(0; 0; 20; 20)\nAddRect(0; 0; 5; 5)\nCloseView()\n"
            "OpenChart(0; 0; 100; 50)\nAddRect(50; 10; 20; 20)\nCloseChart()");
    ASSERT_EQ(last.status, 0) << last.err;
    const size_t clip = s.find("<clipPath id=\"clipPath2\">");
    ASSERT_NE(clip, std::string::npos) << s;
    EXPECT_EQ(s.find("x=\"-1\" y=\"-1\" width=\"202\" height=\"102\"/>"),
              s.find("\t\tx=", clip) + 2)
        << s;
    EXPECT_NE(
        s.find("points=\"50 10 70 10 70 30 50 30 \" \n\tstyle=\"clip-path: url(#clipPath2); "),
        std::string::npos)
        << s;
}

// A view holds at most 100,000 objects; the next addition is refused with
// the place of the limit.
TEST(AdditionLimits, TheObjectAfterTheLastAllowedIsRefused) {
    std::string script = "OpenDrawing(100; 100)\n";
    script.reserve(2'000'000);
    for (int i = 0; i < 100'000; ++i) script += "AddLine(0; 0; 1; 1)\n";
    const std::string folder = makeTempFolder("limits");
    EXPECT_EQ(runVelarix(script, {"--base", folder}).status, 0);
    const RunResult r =
        runVelarix(script + "AddLine(0; 0; 1; 1)\n", {"--base", folder, "--flags", "15"});
    EXPECT_EQ(r.status, 1);
    EXPECT_EQ(r.err.substr(0, 5), "3000:") << r.err;
    EXPECT_NE(r.err.find("vxView/tooManyObjects/1"), std::string::npos) << r.err;
}

}  // namespace
}  // namespace Velarix::test
