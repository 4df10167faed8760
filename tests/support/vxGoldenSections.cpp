#include "support/vxGoldenSections.h"

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

}  // namespace Velarix::test
