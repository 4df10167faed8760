// Output functions from a script through the velarix command: file names,
// file flags, counters and the limits of targets.
#include <gtest/gtest.h>

#include <filesystem>

#include "support/vxTestRun.h"

namespace Velarix::test {
namespace {

namespace fs = std::filesystem;

const std::string kEmptySVG =
    "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n"
    "<!DOCTYPE svg PUBLIC \"-//W3C//DTD SVG 1.1//EN\"\n"
    "\t\"http://www.w3.org/Graphics/SVG/1.1/DTD/svg11.dtd\">\n"
    "\n"
    "<svg xmlns=\"http://www.w3.org/2000/svg\" "
    "xmlns:xlink=\"http://www.w3.org/1999/xlink\" width=\"100\" height=\"50\">\n"
    "</svg>\n"
    "\n";

RunResult runIn(const std::string& folder, const std::string& script) {
    return runVelarix(script, {"--base", folder});
}

TEST(OutputCommand, EmptyDrawingWritesPrologAndEpilog) {
    const std::string folder = makeTempFolder("svg-empty");
    RunResult r = runIn(folder, "OpenDrawing(100; 50)\nSaveAsSVGFile(\"a.svg\")\n");
    ASSERT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(readFile(folder + "/a.svg"), kEmptySVG);
}

// An existing file gets a counter by default, is replaced with "replace"
// and is an error with "throwerror".
TEST(OutputCommand, FileFlags) {
    const std::string folder = makeTempFolder("svg-flags");
    const std::string script = "OpenDrawing(100; 50)\nSaveAsSVGFile(\"a.svg\")\n";
    for (int i = 0; i < 3; ++i) ASSERT_EQ(runIn(folder, script).status, 0);
    EXPECT_TRUE(fs::exists(folder + "/a.svg"));
    EXPECT_TRUE(fs::exists(folder + "/a-1.svg"));
    EXPECT_TRUE(fs::exists(folder + "/a-2.svg"));

    writeFile(folder + "/b.svg", "old");
    EXPECT_EQ(runIn(folder, "OpenDrawing(100; 50)\nSaveAsSVGFile(\"b.svg\"; replace)\n").status, 0);
    EXPECT_EQ(readFile(folder + "/b.svg"), kEmptySVG);

    RunResult refused =
        runIn(folder, "OpenDrawing(100; 50)\nSaveAsSVGFile(\"b.svg\"; throwerror)\n");
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.err, "4001: File exist error.\n");
    EXPECT_EQ(readFile(folder + "/b.svg"), kEmptySVG);
    EXPECT_FALSE(fs::exists(folder + "/b-1.svg"));
}

TEST(OutputCommand, OutputFunctionsBeforeAndAfterTheDrawing) {
    const std::string folder = makeTempFolder("svg-order");
    RunResult r = runIn(folder,
                        "SaveAsSVGFile(\"before.svg\")\nOpenDrawing(100; 50)\nCloseDrawing()\n"
                        "SaveAsSVGFile(\"after.svg\")\nSaveAsPICTFile(\"ignored.pct\")\n");
    ASSERT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(readFile(folder + "/before.svg"), kEmptySVG);
    EXPECT_EQ(readFile(folder + "/after.svg"), kEmptySVG);
    EXPECT_FALSE(fs::exists(folder + "/ignored.pct"));
}

TEST(OutputCommand, OneHundredTargetsAndNoMore) {
    const std::string folder = makeTempFolder("svg-limit");
    std::string script = "OpenDrawing(10; 10)\n";
    for (int i = 0; i < 100; ++i) script += "SaveAsSVGFile(\"t.svg\")\n";
    RunResult hundred = runIn(folder, script);
    ASSERT_EQ(hundred.status, 0) << hundred.err;
    EXPECT_TRUE(fs::exists(folder + "/t-99.svg"));
    RunResult more = runIn(folder, script + "SaveAsSVGFile(\"t.svg\")\n");
    EXPECT_EQ(more.status, 1);
    EXPECT_EQ(more.err.substr(0, 35), "3001: Too many output files defined");
}

TEST(OutputCommand, BadFileNamesWriteNothing) {
    const std::string folder = makeTempFolder("svg-names");
    const std::string longName(300, 'x');
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"SaveAsSVGFile(\"" + longName + ".svg\")", "4011"},
        {"SaveAsSVGFile(\"a<b.svg\")", "4011"},
        {"SaveAsSVGFile(\"missing/a.svg\")", "4014"},
    };
    for (const auto& [call, code] : cases) {
        RunResult r = runIn(folder, "OpenDrawing(10; 10)\n" + call + "\n");
        EXPECT_EQ(r.status, 1) << call;
        EXPECT_EQ(r.err.substr(0, 4), code) << call << "\n" << r.err;
    }
    EXPECT_TRUE(fs::is_empty(folder));
}

}  // namespace
}  // namespace Velarix::test
