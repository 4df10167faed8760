// Drawings of the Add... functions, backgrounds and clips as the command
// writes them to SVG, kept in golden files.
#include <gtest/gtest.h>

#include <string>

#include "support/vxGoldenSections.h"

namespace Velarix::test {
namespace {

void checkGoldenFile(const std::string& name) {
    checkDrawingGoldenFile("drawing", name);
}

TEST(DrawingGolden, Boxes) {
    checkGoldenFile("boxes.txt");
}
TEST(DrawingGolden, LinesAndPointLists) {
    checkGoldenFile("lines.txt");
}
TEST(DrawingGolden, SymbolsAndText) {
    checkGoldenFile("symbols-text.txt");
}
TEST(DrawingGolden, ClipsBackgroundsAndViews) {
    checkGoldenFile("views.txt");
}
TEST(DrawingGolden, DashesPatternsShadowsAndGradients) {
    checkGoldenFile("styles.txt");
}

}  // namespace
}  // namespace Velarix::test
