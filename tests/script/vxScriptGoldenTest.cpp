// Scripts with the exact messages the command prints for them, kept in
// golden files. A case is
//
//   ## name
//   the script, any number of lines
//   --> LANG FLAGS exit N
//   the expected standard error, any number of lines
//   (more "-->" sections for other languages and flags)
//
// With VELARIX_UPDATE_GOLDEN set, the actual texts are written beside the
// golden file as NAME.new for review.
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>

#include "support/vxTestRun.h"

namespace Velarix::test {
namespace {

struct Expectation {
    std::string header;  // "en 13 exit 1"
    std::string lang, flags;
    int status = 0;
    std::string err;
};

struct GoldenCase {
    std::string name;
    std::string script;
    std::vector<Expectation> expectations;
};

std::vector<std::string> splitLines(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream in(text);
    std::string line;
    while (std::getline(in, line)) lines.push_back(line);
    return lines;
}

Expectation parseHeader(const std::string& header) {
    Expectation e;
    e.header = header;
    std::istringstream in(header);
    std::string exitWord;
    in >> e.lang >> e.flags >> exitWord >> e.status;
    return e;
}

std::vector<GoldenCase> readGolden(const std::string& path) {
    std::vector<GoldenCase> cases;
    std::string* target = nullptr;
    for (const std::string& line : splitLines(readFile(path))) {
        if (line.rfind("## ", 0) == 0) {
            cases.push_back({line.substr(3), "", {}});
            target = &cases.back().script;
        } else if (line.rfind("--> ", 0) == 0 && !cases.empty()) {
            cases.back().expectations.push_back(parseHeader(line.substr(4)));
            target = &cases.back().expectations.back().err;
        } else if (target) {
            *target += line + "\n";
        }
    }
    return cases;
}

std::string actualText(const GoldenCase& c, std::vector<std::string>& failures) {
    std::string text = "## " + c.name + "\n" + c.script;
    // Files the scripts write go to a folder of their own.
    const std::string folder = makeTempFolder("golden-scripts");
    for (const Expectation& e : c.expectations) {
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
    const std::string path = std::string(VELARIX_TEST_DATA_DIR) + "/script/golden/" + name;
    const std::vector<GoldenCase> cases = readGolden(path);
    ASSERT_FALSE(cases.empty()) << "missing or empty golden file " << path;
    std::vector<std::string> failures;
    std::string actual;
    for (const GoldenCase& c : cases) {
        EXPECT_FALSE(c.expectations.empty()) << c.name;
        actual += actualText(c, failures);
    }
    if (std::getenv("VELARIX_UPDATE_GOLDEN")) writeFile(path + ".new", actual);
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

}  // namespace
}  // namespace Velarix::test
