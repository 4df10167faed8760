// The plug-in library as a host meets it: fmhost loads Velarix.fmx64, sends
// its messages and calls its external functions by name.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdio>
#include <filesystem>
#include <set>
#include <sstream>

#include "platform/vxTextCodec.h"
#include "settings/vxMessageTable.h"
#include "support/vxTestRun.h"

namespace Velarix::test {
namespace {

namespace fs = std::filesystem;

const char* kPDFScript = "OpenDrawing(400; 300; -1)\nBarChart(label)\nChartData(10 20 30)\n";
const char* kRangeScript = "OpenDrawing(400; 300)\nOpenChart(10; 10; 0; 280)\n";

struct HostRun {
    int status = -1;
    std::string out;
    std::string err;
    std::vector<std::string> lines() const {
        std::vector<std::string> result;
        std::istringstream in(out);
        for (std::string line; std::getline(in, line);) result.push_back(line);
        return result;
    }
};

std::string quoted(const std::string& text) {
    std::string result = "'";
    for (char c : text) result += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return result + "'";
}

// Runs a command line and keeps what it writes.
HostRun runCommand(const std::string& line) {
    const std::string errPath = makeTempFolder("host-err") + "/err";
    HostRun run;
    FILE* pipe = popen((line + " 2> " + errPath).c_str(), "r");
    if (!pipe) return run;
    char buffer[4096];
    for (size_t n; (n = fread(buffer, 1, sizeof buffer, pipe)) > 0;) run.out.append(buffer, n);
    const int status = pclose(pipe);
    run.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    run.err = readFile(errPath);
    return run;
}

// fmhost with options, the plug-in, then the steps.
HostRun host(const std::vector<std::string>& options, const std::vector<std::string>& steps) {
    std::string line = VELARIX_FMHOST;
    for (const std::string& option : options) line += " " + quoted(option);
    line += " " + quoted(VELARIX_PLUGIN);
    for (const std::string& step : steps) line += " " + quoted(step);
    return runCommand(line);
}

// Steps written as one text, split at blanks.
std::vector<std::string> words(const std::string& text) {
    std::vector<std::string> result;
    std::istringstream in(text);
    for (std::string word; in >> word;) result.push_back(word);
    return result;
}

bool contains(const HostRun& run, const std::string& line) {
    const auto lines = run.lines();
    return std::find(lines.begin(), lines.end(), line) != lines.end();
}

::testing::AssertionResult cleanEnd(const HostRun& run) {
    if (run.status == 0 && contains(run, "host objects left: 0")) {
        return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure() << "status " << run.status << "\n"
                                         << run.out << "\n"
                                         << run.err;
}

TEST(VelarixPlugin, ExportsOnlyItsEntryAndNeedsTheHostsLibrary) {
    const HostRun symbols = runCommand(std::string("nm -D --defined-only ") + VELARIX_PLUGIN);
    ASSERT_EQ(symbols.status, 0) << symbols.err;
    std::set<std::string> names;
    for (const std::string& line : symbols.lines()) names.insert(line.substr(line.rfind(' ') + 1));
    EXPECT_EQ(names, std::set<std::string>{"FMExternCallProc"}) << symbols.out;
    const HostRun dynamic = runCommand(std::string("readelf -d ") + VELARIX_PLUGIN);
    EXPECT_NE(dynamic.out.find("Shared library: [libFMWrapper.so]"), std::string::npos);
    EXPECT_EQ(fs::path(VELARIX_PLUGIN).filename(), "Velarix.fmx64");
    EXPECT_EQ(fs::path(VELARIX_PLUGIN).parent_path(), fs::path(VELARIX_BINARY).parent_path());
}

TEST(VelarixPlugin, InitRegistersSixFunctionsAndShutdownTakesThemBackInReverse) {
    const HostRun run = host({}, {"functions"});
    ASSERT_TRUE(cleanEnd(run));
    const auto lines = run.lines();
    ASSERT_GE(lines.size(), 8u);
    EXPECT_EQ(lines[0], "init: 51; registered: 6");
    EXPECT_EQ(lines[1], "function vxCH 0 vxCH_SetLanguage 1..1 0xFF01 vxCH_SetLanguage( id )");
    EXPECT_EQ(lines[5],
              "function vxCH 5 vxCH_GetCFValue 4..5 0xFF01 "
              "vxCH_GetCFValue( chartID; seriesID; curveFittingID; valueID; format )");
    EXPECT_EQ(lines[6], "function vxCH 6 vxCH_GetMouse 1..1 0xFF01 vxCH_GetMouse( format )");
    EXPECT_EQ(lines[7], "shutdown: registered 0; unregistered 6 5 4 3 1 0");
}

TEST(VelarixPlugin, HostVersionsOutsideFiftyTo255AreDeclined) {
    for (const char* version : {"49", "256", "4", "-1"}) {
        const HostRun run = host({"--api", version}, {"call", "vxCH_GetVersion", "-n", "1"});
        ASSERT_TRUE(cleanEnd(run)) << version;
        EXPECT_TRUE(contains(run, "init: -1; registered: 0")) << version;
        EXPECT_TRUE(contains(run, "call vxCH_GetVersion: not registered"));
    }
    for (const char* version : {"50", "255"}) {
        EXPECT_TRUE(contains(host({"--api", version}, {}), "init: 51; registered: 6"));
    }
}

TEST(VelarixPlugin, FailedRegistrationTakesBackTheEarlierOnes) {
    const HostRun refused = host({"--refuse", "FM_ExprEnv_RegisterExternalFunction@4"}, {});
    ASSERT_TRUE(cleanEnd(refused));
    EXPECT_TRUE(contains(refused, "init: -1; registered: 0; unregistered 3 1 0"));
    EXPECT_TRUE(contains(refused, "shutdown: registered 0"));
    const HostRun thrown = host({"--fault", "FM_Text_Constructor1@2=1"}, {});
    ASSERT_TRUE(cleanEnd(thrown));
    EXPECT_TRUE(contains(thrown, "init: -1; registered: 0"));
}

TEST(VelarixPlugin, StringsFillTheBufferOnlyWhenTheyFit) {
    const HostRun run =
        host({}, {"string", "128", "string", "131", "string", "105", "string", "129", "string",
                  "200", "string", "128", "14", "string", "128", "15"});
    ASSERT_TRUE(cleanEnd(run));
    const auto lines = run.lines();
    EXPECT_EQ(lines[1], "string 128: Velarix " VELARIX_VERSION_TEXT);
    EXPECT_EQ(lines[2], "string 131: vxCH1YnYYnn");
    EXPECT_EQ(lines[3], "string 105: vxCH_DrawChart( source )");
    EXPECT_EQ(lines[4].rfind("string 129: Velarix draws charts", 0), 0u);
    EXPECT_EQ(lines[5], "string 200: untouched");
    EXPECT_EQ(lines[6], "string 128: untouched");  // 13 units need a buffer of 15
    EXPECT_EQ(lines[7], "string 128: Velarix " VELARIX_VERSION_TEXT);
}

TEST(VelarixPlugin, DrawingForTheHostGivesAPDFStreamWithItsSize) {
    const std::string out = makeTempFolder("plugin-pdf");
    const HostRun run = host({"--out", out}, {"call", "vxCH_DrawChart", "-t", kPDFScript, "call",
                                              "vxCH_GetErrorMessage", "-t", "01"});
    ASSERT_TRUE(cleanEnd(run));
    const auto lines = run.lines();
    const std::string pdf = out + "/call-1-1.pdf";
    ASSERT_EQ(lines[1].rfind("call vxCH_DrawChart: 0: container: PDF  ", 0), 0u) << lines[1];
    EXPECT_NE(lines[1].find(pdf + " SIZE 4 400x300"), std::string::npos) << lines[1];
    EXPECT_EQ(readFile(pdf).rfind("%PDF-", 0), 0u);
    EXPECT_EQ(lines[2], "call vxCH_GetErrorMessage: 0: text: 0");
}

TEST(VelarixPlugin, PictureFileGoesBesideTheDatabaseAndTheResultIsEmpty) {
    const std::string folder = makeTempFolder("plugin-png");
    const std::string script =
        "OpenDrawing(200; 100)\nBarChart(label)\nChartData(1 2 3)\nSaveAsPNGFile(\"c.png\")\n";
    const HostRun run = host({"--file-path", "filelinux:" + folder + "/Sales.fmp12"},
                             {"call", "vxCH_DrawChart", "-t", script});
    ASSERT_TRUE(cleanEnd(run));
    EXPECT_TRUE(contains(run, "call vxCH_DrawChart: 0: text: "));
    EXPECT_EQ(readFile(folder + "/c.png").substr(1, 3), "PNG");
}

TEST(VelarixPlugin, ScriptErrorIsTheResultAndStaysForTheMessageCall) {
    const HostRun run = host({}, {"call", "vxCH_DrawChart",       "-t", kRangeScript,
                                  "call", "vxCH_GetErrorMessage", "-t", "012",
                                  "call", "vxCH_GetErrorMessage", "-t", "012",
                                  "call", "vxCH_GetErrorMessage", "-t", "002",
                                  "call", "vxCH_DrawChart",       "-t", kRangeScript});
    ASSERT_TRUE(cleanEnd(run));
    const std::string out = run.out;
    const std::string line = "Line 2: Function \"OpenChart\": Argument # 3: Value out of range.\n";
    const std::string excerpt = "OpenChart(10; 10; --->0<---; 280)\n";
    // The default flags: the code, then the description with the excerpt.
    EXPECT_EQ(out.find("call vxCH_DrawChart: 0: text: 1120: " + line + excerpt),
              out.find("call vxCH_DrawChart"))
        << out;
    const std::string level2 = "call vxCH_GetErrorMessage: 0: text: 1120: " + line + "\n";
    const size_t first = out.find(level2);
    ASSERT_NE(first, std::string::npos) << out;
    EXPECT_NE(out.find(level2, first + 1), std::string::npos) << "asked twice, same text";
    // The flags of the last request compose the next drawing's error.
    const std::string plain = "text: " + line + "\n";
    EXPECT_NE(out.find("call vxCH_GetErrorMessage: 0: " + plain), std::string::npos) << out;
    EXPECT_NE(out.find("call vxCH_DrawChart: 0: " + plain), std::string::npos) << out;
}

TEST(VelarixPlugin, LanguageSwitchesTheMessagesAndAnswersItsArgument) {
    const HostRun run = host(
        {}, {"call", "vxCH_SetLanguage", "-n", "1", "call", "vxCH_DrawChart", "-t", kRangeScript,
             "call", "vxCH_SetLanguage", "-t", "0", "call", "vxCH_GetErrorMessage", "-t", "002"});
    ASSERT_TRUE(cleanEnd(run));
    const std::string german = vxToUtf8(vxErrorDescription(1120, kLanguageGerman));
    const size_t one = run.out.find("call vxCH_SetLanguage: 0: number: 1\n");
    const size_t drawn = run.out.find(german);
    const size_t zero = run.out.find("call vxCH_SetLanguage: 0: number: 0\n");
    const size_t english = run.out.find("Value out of range.");
    EXPECT_LT(one, drawn) << run.out;
    EXPECT_LT(drawn, zero) << run.out;
    EXPECT_LT(zero, english) << run.out;
    EXPECT_NE(english, std::string::npos);
}

TEST(VelarixPlugin, VersionTypes) {
    const HostRun run = host({"--app", "4"}, {"call",
                                              "vxCH_GetVersion",
                                              "-n",
                                              "1",
                                              "call",
                                              "vxCH_GetVersion",
                                              "-t",
                                              "2",
                                              "call",
                                              "vxCH_GetVersion",
                                              "-n",
                                              "-1",
                                              "call",
                                              "vxCH_GetVersion",
                                              "-n",
                                              "-2",
                                              "call",
                                              "vxCH_GetVersion",
                                              "-n",
                                              "-4",
                                              "call",
                                              "vxCH_GetVersion",
                                              "-e",
                                              "call",
                                              "vxCH_GetVersion",
                                              "-c"});
    ASSERT_TRUE(cleanEnd(run));
    const auto lines = run.lines();
    EXPECT_EQ(lines[1], "call vxCH_GetVersion: 0: text: Velarix " VELARIX_VERSION_TEXT);
    EXPECT_EQ(lines[2], "call vxCH_GetVersion: 0: text: " VELARIX_VERSION_TEXT);
    EXPECT_EQ(lines[3],
              "call vxCH_GetVersion: 0: text: fmVersion: Server 21.0.1; major: 21; "
              "appType: 4; language: 1");
    EXPECT_EQ(lines[4], "call vxCH_GetVersion: 0: text: Server 21.0.1");
    EXPECT_EQ(lines[5], "call vxCH_GetVersion: 0: text: ");  // the host can't evaluate it
    EXPECT_EQ(lines[6], "call vxCH_GetVersion: 0: text: ");
    EXPECT_EQ(lines[7], "call vxCH_GetVersion: 0: text: ");
}

TEST(VelarixPlugin, EmptyScriptIsAMessageOnlyForWebPublishing) {
    const std::vector<std::string> steps = {
        "call", "vxCH_DrawChart", "-e", "call", "vxCH_GetErrorMessage", "-t", "01"};
    const HostRun server = host({}, steps);
    ASSERT_TRUE(cleanEnd(server));
    EXPECT_TRUE(contains(server, "call vxCH_DrawChart: 0: nothing"));
    EXPECT_TRUE(contains(server, "call vxCH_GetErrorMessage: 0: text: 0"));
    const HostRun web = host({"--app", "4"}, steps);
    ASSERT_TRUE(cleanEnd(web));
    EXPECT_TRUE(contains(web, "call vxCH_DrawChart: 0: text: Missing Velarix script."));
    EXPECT_TRUE(contains(web, "call vxCH_GetErrorMessage: 0: text: Missing Velarix script."));
}

TEST(VelarixPlugin, CurveFitValueAndMouseBeforeAnyDrawing) {
    const HostRun run =
        host({"--lenient"},
             words("call vxCH_GetCFValue -n 1 -n 1 -n 2 -n 1 "
                   "call vxCH_GetCFValue -n 1 -n 1 -n 2 -n 2 -t f2 "
                   "call vxCH_GetCFValue -n 1 -n 1 -n 11 -n 1 call vxCH_GetCFValue -n 1 -t x "
                   "call vxCH_GetMouse -e call vxCH_GetMouse -t x=%1;y=%2 call vxCH_GetMouse"));
    ASSERT_TRUE(cleanEnd(run));
    const auto lines = run.lines();
    EXPECT_EQ(lines[1], "call vxCH_GetCFValue: 0: text: 0");
    EXPECT_EQ(lines[2], "call vxCH_GetCFValue: 0: text: 0.00");
    EXPECT_EQ(lines[3], "call vxCH_GetCFValue: 0: text: Invalid Type.");
    EXPECT_EQ(lines[4], "call vxCH_GetCFValue: 0: text: Invalid coefficient index.");
    EXPECT_EQ(lines[5], "call vxCH_GetMouse: 0: text:    ");
    EXPECT_EQ(lines[6], "call vxCH_GetMouse: 0: text: x= ;y= ");
    EXPECT_EQ(lines[7], "call vxCH_GetMouse: 0: text:    ");
}

TEST(VelarixPlugin, HostRefusesWrongArgumentCountsUnlessLenient) {
    const HostRun run =
        host({}, {"call", "vxCH_GetCFValue", "-n", "1", "call", "vxCH_SetLanguage"});
    ASSERT_TRUE(cleanEnd(run));
    EXPECT_TRUE(contains(run, "call vxCH_GetCFValue: argument count 1 outside 4..5"));
    const HostRun lenient =
        host({"--lenient"}, {"call", "vxCH_SetLanguage", "call", "vxCH_DrawChart"});
    ASSERT_TRUE(cleanEnd(lenient));
    EXPECT_TRUE(contains(lenient, "call vxCH_SetLanguage: 0: number: 0"));
    EXPECT_TRUE(contains(lenient, "call vxCH_DrawChart: 0: nothing"));
}

TEST(VelarixPlugin, FunctionsCalledAfterShutdownWorkWithoutState) {
    const HostRun run = host({}, {"shutdown", "stale", "vxCH_GetErrorMessage", "-t", "01", "stale",
                                  "vxCH_DrawChart", "-t", kRangeScript, "stale", "vxCH_SetLanguage",
                                  "-n", "1", "init", "call", "vxCH_GetErrorMessage", "-t", "01"});
    ASSERT_TRUE(cleanEnd(run));
    const auto lines = run.lines();
    EXPECT_EQ(lines[2], "call vxCH_GetErrorMessage: 0: text: 0");
    EXPECT_EQ(lines[3].rfind("call vxCH_DrawChart: 0: text: 1120: Line 2", 0), 0u) << lines[3];
    EXPECT_TRUE(contains(run, "call vxCH_SetLanguage: 0: number: 1"));
    EXPECT_EQ(run.lines().back(), "host objects left: 0");
    EXPECT_TRUE(contains(run, "call vxCH_GetErrorMessage: 0: text: 0"));
}

TEST(VelarixPlugin, HostFailuresEndTheCallNotTheHost) {
    const std::vector<std::string> draw = {"call", "vxCH_DrawChart",       "-t", kPDFScript,
                                           "call", "vxCH_GetErrorMessage", "-t", "0"};
    const HostRun refused = host({"--refuse", "FM_BinaryData_Add"}, draw);
    ASSERT_TRUE(cleanEnd(refused));
    EXPECT_TRUE(contains(refused, "call vxCH_DrawChart: 0: text: Velarix: Stream error."));
    EXPECT_TRUE(contains(refused, "call vxCH_GetErrorMessage: 0: text: Velarix: Stream error."));
    for (const char* fault : {"FM_BinaryData_Add=1", "FM_BinaryData_AddSIZEData=2",
                              "FM_DataVect_AtAsText@1=2", "FM_Data_SetBinaryData=1"}) {
        const HostRun thrown = host({"--fault", fault}, draw);
        ASSERT_TRUE(cleanEnd(thrown)) << fault;
        EXPECT_NE(thrown.out.find("call vxCH_DrawChart: -1: "), std::string::npos) << fault;
    }
}

TEST(VelarixPlugin, LoadsAndUnloadsAHundredTimes) {
    const std::string out = makeTempFolder("plugin-cycles");
    const HostRun run = host(
        {"--cycles", "100", "--out", out},
        {"call", "vxCH_DrawChart", "-t", kPDFScript, "call", "vxCH_DrawChart", "-t", kRangeScript});
    ASSERT_TRUE(cleanEnd(run));
    const std::string out2 = run.out;
    size_t inits = 0;
    for (size_t at = out2.find("init: 51"); at != std::string::npos;
         at = out2.find("init: 51", at + 1))
        ++inits;
    EXPECT_EQ(inits, 100u);
    EXPECT_EQ(run.err, "");
}

// The fit of a drawing is read back by chart, series, fit type and value:
// the count of coefficients, then c0 and c1 of y = 2x + 1.
TEST(VelarixPlugin, CurveFitValuesOfTheLastDrawing) {
    std::vector<std::string> steps = {
        "call", "vxCH_DrawChart", "-t",
        "OpenDrawing(400; 300)\nLineChart2D()\nChartData(0 1 2 3; 1 3 5 7)\n"
        "CurveFitting(1; linear)\n"};
    for (const char* value : {"1", "2", "3"}) {
        for (std::string& word : words("call vxCH_GetCFValue -n 0 -n 1 -n 1 -n")) {
            steps.push_back(word);
        }
        steps.push_back(value);
    }
    const HostRun run = host({"--lenient"}, steps);
    ASSERT_TRUE(cleanEnd(run));
    const auto lines = run.lines();
    ASSERT_GE(lines.size(), 5u) << run.out;
    EXPECT_EQ(lines[1], "call vxCH_DrawChart: 0: text: ");
    EXPECT_EQ(lines[2], "call vxCH_GetCFValue: 0: text: 2");
    EXPECT_EQ(lines[3], "call vxCH_GetCFValue: 0: text: 1");
    EXPECT_EQ(lines[4], "call vxCH_GetCFValue: 0: text: 2");
}

}  // namespace
}  // namespace Velarix::test
