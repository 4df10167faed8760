// Drawings of the Add... functions, backgrounds and clips as the command
// writes them to SVG, kept in golden files. A section's header names the
// file the script writes; its text is that file without the prolog (the
// lines up to the <svg> element) and without the closing </svg>.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/vxGoldenSections.h"
#include "support/vxTestRun.h"

namespace Velarix::test {
namespace {

std::string bodyOf(const std::string& svg) {
    const size_t open = svg.find("<svg ");
    if (open == std::string::npos) return svg;
    const size_t start = svg.find('\n', open);
    const size_t end = svg.rfind("</svg>");
    if (start == std::string::npos || end == std::string::npos || end < start) return svg;
    return svg.substr(start + 1, end - start - 1);
}

std::string actualText(const GoldenCase& c, std::vector<std::string>& failures) {
    std::string text = "## " + c.name + "\n" + c.script;
    const std::string folder = makeTempFolder("golden-drawings");
    const RunResult r = runVelarix(c.script, {"--base", folder});
    if (r.status != 0)
        failures.push_back(c.name + ": exit " + std::to_string(r.status) + ": " + r.err);
    for (const GoldenSection& section : c.sections) {
        const std::string body = bodyOf(readFile(folder + "/" + section.header));
        text += "--> " + section.header + "\n" + body;
        if (body != section.text) {
            failures.push_back(c.name + " [" + section.header + "]\n--- expected\n" + section.text +
                               "--- actual\n" + body);
        }
    }
    return text;
}

void checkGoldenFile(const std::string& name) {
    const std::string path = goldenPath("drawing", name);
    const std::vector<GoldenCase> cases = readGoldenCases(path);
    ASSERT_FALSE(cases.empty()) << "missing or empty golden file " << path;
    std::vector<std::string> failures;
    std::string actual;
    for (const GoldenCase& c : cases) actual += actualText(c, failures);
    offerUpdate(path, actual);
    for (const std::string& f : failures) ADD_FAILURE() << f;
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
