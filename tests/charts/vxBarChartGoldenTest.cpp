// Small bar charts through the whole command, written as SVG and held
// against their expected text: upright, stacked, horizontal, with depth,
// with labels, at numeric interval values, and with caps, symbols, lines
// and shadows.
#include <gtest/gtest.h>

#include "support/vxGoldenSections.h"

namespace Velarix::test {
namespace {

TEST(BarChartGolden, SmallChartsByTheCommand) {
    checkDrawingGoldenFile("charts", "bar-charts.txt");
}

}  // namespace
}  // namespace Velarix::test
