// Small bar charts with legends through the whole command, written as SVG
// and held against their expected text: beside the plot and inside it, in
// two columns, and reversed.
#include <gtest/gtest.h>

#include "support/vxGoldenSections.h"

namespace Velarix::test {
namespace {

TEST(LegendGolden, SmallChartsByTheCommand) {
    checkDrawingGoldenFile("furniture", "legend.txt");
}

}  // namespace
}  // namespace Velarix::test
