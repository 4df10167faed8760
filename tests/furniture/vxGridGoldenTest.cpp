// Small bar charts with grids through the whole command, written as SVG
// and held against their expected text: lines, stripes, minor lines with a
// frame, a grid in front of the bars, horizontal bars and bars with depth.
#include <gtest/gtest.h>

#include "support/vxGoldenSections.h"

namespace Velarix::test {
namespace {

TEST(GridGolden, SmallChartsByTheCommand) {
    checkDrawingGoldenFile("furniture", "grids.txt");
}

}  // namespace
}  // namespace Velarix::test
