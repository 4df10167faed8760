// Small pies through the whole command, written as SVG and held against
// their expected text: a flat pie with a slice pulled out, and a doughnut
// with depth.
#include <gtest/gtest.h>

#include "support/vxGoldenSections.h"

namespace Velarix::test {
namespace {

TEST(PieChartGolden, SmallPiesByTheCommand) {
    checkDrawingGoldenFile("charts", "pie-charts.txt");
}

}  // namespace
}  // namespace Velarix::test
