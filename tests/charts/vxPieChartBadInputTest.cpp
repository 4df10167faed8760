// Pies of awkward data through the whole command: each either draws its
// slices, with every number of the SVG finite, or stops with the error
// that names the trouble and writes no file; none takes long.
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <string>

#include "support/vxTestRun.h"

namespace Velarix::test {
namespace {

struct BadPie {
    const char* name;
    const char* chart;  // the chart call and its options
    std::string data;   // the argument of ChartData
    int error;          // the code the run stops with; 0 when it draws
    const char* text;   // a part of the error's message
};

std::string manyValues(int count) {
    std::string data;
    for (int i = 0; i < count; ++i) data += std::to_string(i % 7 + 1) + " ";
    return data;
}

std::string lowerCase(std::string text) {
    for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return text;
}

TEST(PieChartBadInput, AwkwardDataDrawsOrNamesItsError) {
    const std::string folder = makeTempFolder("pie-bad-input");
    const BadPie cases[] = {
        {"all values zero", "PieChart()", "0 0 0", 1170, "less or equal zero"},
        {"all values negative", "PieChart()", "-1 -2 -3", 1170, "less or equal zero"},
        {"every value missing", "PieChart()", "null null", 2010, ""},
        {"negative values among positive ones", "PieChart(label)", "5 -3 8 -1 2", 0, ""},
        {"one value", "PieChart(label;20)", "42", 0, ""},
        {"a tiny value beside a huge one", "PieChart(label)", "1e300 1e-300 5", 0, ""},
        {"near the largest double", "PieChart(label)", "1e308 1e308", 1170, ""},
        {"10,000 wedges", "PieChart(label)", manyValues(10000), 0, ""},
        {"10,000 wedges with depth and a hole", "PieChart(;30;40)", manyValues(10000), 0, ""},
        {"a ring of zero width", "PieChart(;;100)", "1 2 3", 0, ""},
        {"a deep ring of zero width", "PieChart(;200;100)", "1 2 3", 0, ""},
        {"the deepest pie, exploded",
         "PieChart(oval;200)\nPieChartExplodes(100; all)\nPieChartExplodeDepths(100; all)", "1 2 3",
         0, ""},
        {"a sliver of an arc", "PieChart(label;;;10;1)", "1 2 3", 0, ""},
        {"labels of 10,000 wedges with aux lines", "PieChart(label)\nPieChartAuxLines()",
         manyValues(10000), 0, ""},
    };
    for (const BadPie& c : cases) {
        SCOPED_TRACE(c.name);
        const std::string svg = folder + "/a.svg";
        std::filesystem::remove(svg);
        const auto start = std::chrono::steady_clock::now();
        const RunResult r =
            runVelarix("OpenDrawing(400; 300)\n" + std::string(c.chart) + "\nChartData(" + c.data +
                           ")\nCloseDrawing()\nSaveAsSVGFile(\"a.svg\"; replace)\n",
                       {"--base", folder, "--flags", "15"});
        const double seconds =
            std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
        // Under the sanitizers, a generous bound of the release build's
        // fraction of a second.
        EXPECT_LT(seconds, 5.0);
        if (c.error != 0) {
            EXPECT_EQ(r.status, 1);
            EXPECT_EQ(r.err.rfind(std::to_string(c.error) + ":", 0), 0u) << r.err;
            EXPECT_NE(r.err.find(c.text), std::string::npos) << r.err;
            EXPECT_FALSE(std::filesystem::exists(svg));
            continue;
        }
        ASSERT_EQ(r.status, 0) << r.err;
        const std::string text = lowerCase(readFile(svg));
        EXPECT_EQ(text.find("nan"), std::string::npos);
        EXPECT_EQ(text.find("inf"), std::string::npos);
        EXPECT_NE(text.find("<path"), std::string::npos);
    }
}

}  // namespace
}  // namespace Velarix::test
