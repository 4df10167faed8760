// Small line and area charts through the whole command, written as SVG
// and held against their expected text: a line cut at a gap, steps, a
// stacked area whose series changes sign, an area closed to an axis and
// labels beside symbols.
#include <gtest/gtest.h>

#include "support/vxGoldenSections.h"

namespace Velarix::test {
namespace {

TEST(LineAreaGolden, SmallChartsByTheCommand) {
    checkDrawingGoldenFile("charts", "line-area-charts.txt");
}

}  // namespace
}  // namespace Velarix::test
