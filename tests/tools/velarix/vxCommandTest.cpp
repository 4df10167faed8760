// The velarix command as a user meets it: arguments, exit codes, where the
// script comes from and where messages go.
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <sstream>

#include "host/vxLog.h"
#include "support/vxPictureFiles.h"
#include "support/vxTestRun.h"

namespace Velarix::test {
namespace {

namespace fs = std::filesystem;

const char* kRangeError = "OpenDrawing(400; 300)\nOpenChart(10; 10; 0; 280)\n";
const char* kRangeMessage =
    "1120: Line 2: Function \"OpenChart\": Argument # 3: Value out of range.\n"
    "OpenChart(10; 10; --->0<---; 280)\n";

TEST(VelarixCommand, UsageErrorsExitWithTwoAndOneLine) {
    const std::vector<std::vector<std::string>> cases = {
        {"--colour"}, {"--lang", "fr"}, {"--lang"}, {"a.vxs", "b.vxs"}, {"-x"}};
    for (const auto& args : cases) {
        RunResult r = runVelarix("", args);
        EXPECT_EQ(r.status, 2) << args[0];
        EXPECT_EQ(r.err.rfind("velarix: ", 0), 0u) << r.err;
        EXPECT_EQ(std::count(r.err.begin(), r.err.end(), '\n'), 1) << r.err;
        EXPECT_TRUE(r.out.empty());
    }
}

TEST(VelarixCommand, HelpAndVersion) {
    RunResult help = runVelarix("", {"--help"});
    EXPECT_EQ(help.status, 0);
    EXPECT_NE(help.out.find("usage: velarix [--base DIR]"), std::string::npos);
    RunResult version = runVelarix("", {"--version"});
    EXPECT_EQ(version.status, 0);
    EXPECT_EQ(version.out, "velarix 3.3.3\n");
}

TEST(VelarixCommand, UnreadableScriptFile) {
    RunResult r = runVelarix("", {"/no/such/folder/chart.vxs"});
    EXPECT_EQ(r.status, 2);
    EXPECT_EQ(r.err,
              "velarix: cannot read script '/no/such/folder/chart.vxs': No such file or "
              "directory\n");
}

TEST(VelarixCommand, ScriptFromFileWithByteOrderMark) {
    const std::string folder = makeTempFolder("bom");
    const std::string path = folder + "/chart.vxs";
    writeFile(path, std::string("\xEF\xBB\xBF") + kRangeError);
    RunResult r = runVelarix("", {path});
    EXPECT_EQ(r.status, 1);
    EXPECT_EQ(r.err, kRangeMessage);
}

TEST(VelarixCommand, OptionsMayBeWrittenWithEquals) {
    RunResult r = runVelarix(kRangeError, {"--flags=01", "--lang=de", "-"});
    EXPECT_EQ(r.status, 1);
    EXPECT_EQ(r.err, "Wert ausserhalb des gueltigen Bereichs.\n");
}

// A script without errors and without output functions succeeds silently
// and leaves the base folder as it was.
TEST(VelarixCommand, ScriptWithoutOutputWritesNothing) {
    const std::string folder = makeTempFolder("silent");
    RunResult r = runVelarix(
        "OpenDrawing(400; 300)\nAddRect(10; 10; 50; 50; red)\n"
        "CloseDrawing()\n",
        {"--base", folder});
    EXPECT_EQ(r.status, 0);
    EXPECT_TRUE(r.out.empty());
    EXPECT_TRUE(r.err.empty());
    EXPECT_TRUE(fs::is_empty(folder));
}

TEST(VelarixCommand, RelativeFileNamesResolveAgainstTheBase) {
    const std::string folder = makeTempFolder("base");
    fs::create_directories(folder + "/pictures");
    writeFile(folder + "/pictures/logo.png", test::encodePNG(test::makePicture(4, 4)));
    const std::string script =
        "OpenDrawing(400; 300)\nAddPicture(0; 0; 10; 10; file; \"pictures/logo.png\")\n";
    EXPECT_EQ(runVelarix(script, {"--base", folder}).status, 0);
    RunResult missing = runVelarix(script, {"--base", folder + "/pictures"});
    EXPECT_EQ(missing.status, 1);
    EXPECT_EQ(missing.err.substr(0, 5), "4000:");
}

// The built binary, as the shell runs it.
TEST(VelarixBinary, ReportsAScriptErrorOnStandardError) {
    RunResult r = runVelarixBinary("--flags 13", kRangeError);
    EXPECT_EQ(r.status, 1);
    EXPECT_EQ(r.err, kRangeMessage);
    EXPECT_TRUE(r.out.empty());
}

TEST(VelarixBinary, SucceedsSilently) {
    RunResult r = runVelarixBinary("-", "OpenDrawing(400; 300)\nCloseDrawing()\n");
    EXPECT_EQ(r.status, 0);
    EXPECT_TRUE(r.out.empty());
    EXPECT_TRUE(r.err.empty());
}

TEST(VelarixBinary, RendersEveryExample) {
    const std::string folder = makeTempFolder("examples");
    // The data files the examples read lie beside their output.
    for (const auto& data : fs::directory_iterator(fs::path(VELARIX_EXAMPLES_DIR) / "data")) {
        fs::copy_file(data.path(), fs::path(folder) / data.path().filename());
    }
    long count = 0;
    for (const auto& entry : fs::recursive_directory_iterator(VELARIX_EXAMPLES_DIR)) {
        if (entry.path().extension() != ".vxs") continue;
        ++count;
        RunResult r = runVelarixBinary("--base " + folder + " " + entry.path().string());
        EXPECT_EQ(r.status, 0) << entry.path() << "\n" << r.err;
    }
    EXPECT_GE(count, 14);  // the examples at the top and the charts
}

// The log records the stages of a run in their order.
TEST(VelarixCommand, LogRecordsTheStagesOfARun) {
    const std::string folder = makeTempFolder("log");
    const std::string saved = vxLog::fileName();
    vxLog::fileName() = folder + "/Velarix.txt";
    RunResult r = runVelarix("OpenDrawing(40; 30)\nCloseDrawing()\n", {"--log"});
    vxLog::setFlags(false, false);
    vxLog::fileName() = saved;
    ASSERT_EQ(r.status, 0);
    const std::string log = readFile(folder + "/Velarix.txt");
    const std::vector<std::string> stages = {"[vxCH_DrawChart] START",
                                             "PASSED: init()",
                                             "PASSED: script->tokenize(s)",
                                             "PASSED: view->setUp(bounds)",
                                             "PASSED: view->setUpLayers(layerMng)",
                                             "PASSED: output->setUp(drawingSpecs)",
                                             "PASSED: output->write(layerMng)",
                                             "[vxCH_DrawChart] FINISHED"};
    size_t at = 0;
    for (const std::string& stage : stages) {
        size_t found = log.find(stage, at);
        ASSERT_NE(found, std::string::npos) << stage << " missing or out of order in\n" << log;
        at = found;
    }
    EXPECT_NE(log.find("float width,height:  40, 30"), std::string::npos) << log;
}

// Ten megabytes of chart data are read in well under a second in a release
// build (bench/ measures it); the bound here leaves room for the sanitizers.
TEST(VelarixCommand, ReadsLargeScriptsQuickly) {
    std::string script = "OpenDrawing(400; 300)\nBarChart(label)\n";
    const std::string line =
        "ChartData(12.5 -3 4e2 null 7,25 1000 2 3 4 5 6 7 8 9 10 11 12; 1 2 3)  // data\n";
    while (script.size() < 10'000'000) script += line;
    auto start = std::chrono::steady_clock::now();
    RunResult r = runVelarix(script);
    double seconds =
        std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_LT(seconds, 30.0);
}

// A bad value among 100,000 is shown in a window of the line around it, so
// that the message stays short enough to read.
TEST(VelarixCommand, BadValueInHugeChartDataGivesAShortMessage) {
    std::string values;
    for (int i = 0; i < 50'000; ++i) values += std::to_string(i) + " ";
    const std::string script =
        "OpenDrawing(400; 300)\nBarChart()\nChartData(" + values + "1O1 " + values + ")\n";
    RunResult r = runVelarix(script);
    EXPECT_EQ(r.status, 1);
    const std::string first = "1140: Line 3: Function \"ChartData\": Argument # 1: Value error.\n";
    ASSERT_EQ(r.err.rfind(first, 0), 0u) << r.err.substr(0, 300);
    const std::string part = r.err.substr(first.size());
    EXPECT_LT(part.size(), 200u) << part;
    EXPECT_NE(part.find(" 49999 --->1O1<--- 0 1 2 "), std::string::npos) << part;
    EXPECT_EQ(part.rfind("\u2026", 0), 0u) << part;  // cut in front
}

}  // namespace
}  // namespace Velarix::test
