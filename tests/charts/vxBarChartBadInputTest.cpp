// Bar charts of awkward data through the whole command, read back from the
// SVG. Each case either draws its bars, with every coordinate of the file a
// finite number on the scale of the page, or stops with the error that
// names the trouble and writes no file.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <set>
#include <string>

#include "support/vxSVGChecks.h"
#include "support/vxTestRun.h"

namespace Velarix::test {
namespace {

struct BadInput {
    const char* name;
    const char* chart;  // the chart call
    std::string data;   // the argument of ChartData
    int error;          // the code the run stops with; 0 when it draws
    int bars;           // the bars drawn
    int facesPerBar;    // 1 flat; 3 a box with an opaque fill
};

// The filled figures of the file: the subpaths of every filled path (the
// bars of a series may share one path).
size_t filledFigures(const std::string& svg) {
    size_t n = 0;
    for (size_t at = svg.find("<path"); at != std::string::npos; at = svg.find("<path", at + 1)) {
        const size_t end = svg.find("/>", at);
        const std::string element = svg.substr(at, end - at);
        if (element.find("fill-rule") == std::string::npos) continue;
        n += countOf(element, "M ");
    }
    return n;
}

// 100,000 categories, a bar in every thousandth of heights 1 to 100 and
// values of 0, drawn as nothing, between them.
std::string hundredThousandCategories() {
    std::string data;
    for (int c = 0; c < 100000; ++c) {
        if (c > 0) data += ' ';
        data += c % 1000 == 0 ? std::to_string(c / 1000 + 1) : "0";
    }
    return data;
}

class BarChartBadInput : public ::testing::Test {
protected:
    void SetUp() override { folder = makeTempFolder("bar-bad-input"); }

    void check(const BadInput& c) {
        SCOPED_TRACE(c.name);
        const std::string svg = folder + "/a.svg";
        std::filesystem::remove(svg);
        const RunResult r =
            runVelarix(std::string("OpenDrawing(400; 300)\n") + c.chart + "\nChartData(" + c.data +
                           ")\nCloseDrawing()\nSaveAsSVGFile(\"a.svg\"; replace)\n",
                       {"--base", folder});
        if (c.error != 0) {
            EXPECT_EQ(r.status, 1);
            EXPECT_EQ(r.err.rfind(std::to_string(c.error) + ":", 0), 0u) << r.err;
            EXPECT_FALSE(std::filesystem::exists(svg));
            return;
        }
        ASSERT_EQ(r.status, 0) << r.err;
        const std::string text = readFile(svg);
        expectOnlyFiniteCoordinates(text);
        // Each face of a bar is one filled figure; the axes fill nothing.
        EXPECT_EQ(filledFigures(text), size_t(c.bars * c.facesPerBar));
    }

    std::string folder;
};

// The reader of coordinates itself: a path of plain numbers passes, and
// each kind of bad number is caught wherever it stands.
TEST(BarChartBadInputCheck, CoordinatesAreReadFromEveryGeometryAttribute) {
    EXPECT_EQ(firstBadCoordinate("<path d=\"M 1 2 H 3.5 V -4e2 Z\" style=\"fill: #ff0000\"/>"), "");
    EXPECT_EQ(firstBadCoordinate("<rect x=\"0\" width=\"nan\"/>"), "nan");
    EXPECT_EQ(firstBadCoordinate("<line x1=\"1\" y2=\"-inf\"/>"), "-inf");
    EXPECT_EQ(firstBadCoordinate("<path d=\"M 0 0 L 2e7 1\"/>"), "2e7");
    EXPECT_EQ(firstBadCoordinate("<text transform=\"rotate(-90,1e9,5)\"/>"), "1e9");
}

// What a correct chart shows: the bars of the valid values that aren't
// zero (a value within 1e-10 of zero is no bar), on axes that hold them.
TEST_F(BarChartBadInput, AwkwardDataDrawsOrNamesItsError) {
    const BadInput cases[] = {
        {"every value missing", "BarChart()", "null null; null null", 2010, 0, 0},
        {"a single value", "BarChart()", "42", 0, 1, 1},
        {"all values equal", "BarChart()", "3 3 3", 0, 3, 1},
        {"all values zero", "BarChart()", "0 0 0", 0, 0, 1},
        {"near the largest double", "BarChart()", "1e308 2e307", 0, 2, 1},
        {"near the lowest double", "BarChart()", "-1e308 -2e307", 0, 2, 1},
        {"the smallest normal doubles are zero", "BarChart()", "1e-308 2e-308", 0, 0, 1},
        {"beyond the doubles' largest value", "BarChart()", "1.7976931348623157e308 5", 0, 1, 1},
        // The axis from -1e308 to 1e308 is longer than any double.
        {"both ends of the doubles", "BarChart()", "1e308 -1e308", 2100, 0, 0},
        {"huge, tiny and plain", "BarChart()", "1e300 1e-300 5", 0, 2, 1},
        // Values apart by less than the scales' fixed tolerance, but not
        // close enough to count as equal.
        {"a span below the tolerance", "BarChart()", "1e-12 3e-12", 2100, 0, 0},
        {"negative values", "BarChart()", "-5 -3 -8; -1 -2 -4", 0, 6, 1},
        {"stacked, mixed signs", "BarChart(stacked)", "5 -3 8; -4 6 -2; 3 3 -9", 0, 9, 1},
        {"stacked, huge and mixed", "BarChart(stacked)", "1e300 1e300; 1e300 -1e300", 0, 4, 1},
        {"stacked beyond the doubles", "BarChart(stacked)", "1e308 1e308; 1e308 1e308", 2100, 0, 0},
        {"horizontal, huge and tiny", "BarChart(horizontal)", "5 -3 8; 1e-308 1e308 2", 0, 5, 1},
        {"depth", "BarChart(;;;60)", "5 -3 8; 1 7 2", 0, 6, 3},
        {"depth, stacked and horizontal, huge", "BarChart(24;;;60)", "1e300 -1e300; 3e299 -4e299",
         0, 4, 3},
        // A depth beyond the frame leaves no room for the plot.
        {"boxes deeper than the frame", "BarChart(;;;1000 1000 30;0)", "1e300 -1e300", 2200, 0, 0},
        {"deep boxes of absolute depth", "BarChart(;;;100 80 30;0)", "1e300 -1e300", 0, 2, 3},
        {"100,000 categories", "BarChart()", hundredThousandCategories(), 0, 100, 1},
    };
    for (const BadInput& c : cases) check(c);
}

}  // namespace
}  // namespace Velarix::test
