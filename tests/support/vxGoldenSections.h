// Golden files of cases, each a script with the texts expected of it:
//
//   ## name
//   the script, any number of lines
//   --> header
//   the expected text, any number of lines
//   (more "-->" sections)
//
// What a header says is up to the test that reads the file.
#pragma once

#include <string>
#include <vector>

namespace Velarix::test {

struct GoldenSection {
    std::string header;
    std::string text;
};

struct GoldenCase {
    std::string name;
    std::string script;
    std::vector<GoldenSection> sections;
};

std::vector<GoldenCase> readGoldenCases(const std::string& path);

// The folder of the golden files of a test folder ("script", "drawing").
std::string goldenPath(const std::string& folder, const std::string& name);

// With VELARIX_UPDATE_GOLDEN set, writes the actual text beside the golden
// file as NAME.new, for review.
void offerUpdate(const std::string& path, const std::string& actual);

// Runs each case of folder/golden/name through the command and compares the
// files it writes with the case's sections: a section's header names the
// file, its text is that file without the prolog (the lines up to the <svg>
// element) and without the closing </svg>.
void checkDrawingGoldenFile(const std::string& folder, const std::string& name);

}  // namespace Velarix::test
