// Titles and backgrounds through the whole command, written as SVG and
// held against their expected text.
#include <gtest/gtest.h>

#include "support/vxGoldenSections.h"

namespace Velarix::test {
namespace {

TEST(FurnitureGolden, TitlesAndBackgrounds) {
    checkDrawingGoldenFile("furniture", "title-backgrounds.txt");
}

}  // namespace
}  // namespace Velarix::test
