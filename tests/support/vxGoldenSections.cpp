#include "support/vxGoldenSections.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <sstream>

#include "support/vxTestRun.h"

namespace Velarix::test {

std::vector<GoldenCase> readGoldenCases(const std::string& path) {
    std::vector<GoldenCase> cases;
    std::string* target = nullptr;
    std::istringstream in(readFile(path));
    std::string line;
    while (std::getline(in, line)) {
        if (line.rfind("## ", 0) == 0) {
            cases.push_back({line.substr(3), "", {}});
            target = &cases.back().script;
        } else if (line.rfind("--> ", 0) == 0 && !cases.empty()) {
            cases.back().sections.push_back({line.substr(4), ""});
            target = &cases.back().sections.back().text;
        } else if (target) {
            *target += line + "\n";
        }
    }
    return cases;
}

std::string goldenPath(const std::string& folder, const std::string& name) {
    return std::string(VELARIX_TEST_DATA_DIR) + "/" + folder + "/golden/" + name;
}

void offerUpdate(const std::string& path, const std::string& actual) {
    if (std::getenv("VELARIX_UPDATE_GOLDEN")) writeFile(path + ".new", actual);
}

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

}  // namespace

void checkDrawingGoldenFile(const std::string& folder, const std::string& name) {
    const std::string path = goldenPath(folder, name);
    const std::vector<GoldenCase> cases = readGoldenCases(path);
    ASSERT_FALSE(cases.empty()) << "missing or empty golden file " << path;
    std::vector<std::string> failures;
    std::string actual;
    for (const GoldenCase& c : cases) actual += actualText(c, failures);
    offerUpdate(path, actual);
    for (const std::string& f : failures) ADD_FAILURE() << f;
}

}  // namespace Velarix::test
