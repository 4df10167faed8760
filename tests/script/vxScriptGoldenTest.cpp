// Scripts with the exact messages the command prints for them, kept in
// golden files. A section's header is "LANG FLAGS exit N" and its text the
// expected standard error.
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>

#include "support/vxGoldenSections.h"
#include "support/vxTestRun.h"

namespace Velarix::test {
namespace {

struct Expectation {
    std::string header;  // "en 13 exit 1"
    std::string lang, flags;
    int status = 0;
    std::string err;
};

Expectation parseHeader(const GoldenSection& section) {
    Expectation e;
    e.header = section.header;
    e.err = section.text;
    std::istringstream in(section.header);
    std::string exitWord;
    in >> e.lang >> e.flags >> exitWord >> e.status;
    return e;
}

std::string actualText(const GoldenCase& c, std::vector<std::string>& failures) {
    std::string text = "## " + c.name + "\n" + c.script;
    // Files the scripts write go to a folder of their own.
    const std::string folder = makeTempFolder("golden-scripts");
    for (const GoldenSection& section : c.sections) {
        const Expectation e = parseHeader(section);
        RunResult r =
            runVelarix(c.script, {"--base", folder, "--lang", e.lang, "--flags", e.flags});
        text +=
            "--> " + e.lang + " " + e.flags + " exit " + std::to_string(r.status) + "\n" + r.err;
        if (r.status != e.status || r.err != e.err) {
            failures.push_back(c.name + " [" + e.header + "]\n  expected: " + e.err +
                               "  actual (exit " + std::to_string(r.status) + "): " + r.err);
        }
    }
    return text;
}

void checkGoldenFile(const std::string& name) {
    const std::string path = goldenPath("script", name);
    const std::vector<GoldenCase> cases = readGoldenCases(path);
    ASSERT_FALSE(cases.empty()) << "missing or empty golden file " << path;
    std::vector<std::string> failures;
    std::string actual;
    for (const GoldenCase& c : cases) {
        EXPECT_FALSE(c.sections.empty()) << c.name;
        actual += actualText(c, failures);
    }
    offerUpdate(path, actual);
    for (const std::string& f : failures) ADD_FAILURE() << f;
}

TEST(ScriptGolden, SyntaxErrors) {
    checkGoldenFile("syntax-errors.txt");
}
TEST(ScriptGolden, ValueErrors) {
    checkGoldenFile("value-errors.txt");
}
TEST(ScriptGolden, MessageLevels) {
    checkGoldenFile("message-levels.txt");
}
TEST(ScriptGolden, LayoutErrors) {
    checkGoldenFile("layout-errors.txt");
}
TEST(ScriptGolden, DataErrors) {
    checkGoldenFile("data-errors.txt");
}
TEST(ScriptGolden, AxisErrors) {
    checkGoldenFile("axis-errors.txt");
}

}  // namespace
}  // namespace Velarix::test
