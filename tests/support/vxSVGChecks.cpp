#include "support/vxSVGChecks.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdlib>
#include <set>

namespace Velarix::test {

namespace {

// A coordinate that no layout of a page makes.
constexpr double kAbsurd = 1e7;

// The attributes that hold coordinates and lengths.
const std::set<std::string> kGeometry = {"x",  "y", "x1",    "y1",     "x2", "y2",     "cx",
                                         "cy", "r", "width", "height", "d",  "points", "transform"};

// The words of a value that are no numbers: path commands and transforms.
bool isCommand(const std::string& token) {
    static const std::set<std::string> words = {"rotate", "translate", "matrix", "scale"};
    const bool letters = !token.empty() && std::all_of(token.begin(), token.end(), [](char c) {
        return std::isalpha(static_cast<unsigned char>(c)) != 0;
    });
    return (letters && token.size() <= 2) || words.count(token) > 0;
}

}  // namespace

// The first token of a geometry attribute that isn't a finite number within
// the absurd bound, or an empty text.
std::string firstBadCoordinate(const std::string& svg) {
    for (size_t at = svg.find("=\""); at != std::string::npos; at = svg.find("=\"", at + 2)) {
        size_t begin = at;
        while (begin > 0 && !std::isspace(static_cast<unsigned char>(svg[begin - 1]))) --begin;
        if (!kGeometry.count(svg.substr(begin, at - begin))) continue;
        const size_t end = svg.find('"', at + 2);
        std::string value = svg.substr(at + 2, end - at - 2);
        for (char& c : value) {
            if (c == ',' || c == '(' || c == ')') c = ' ';
        }
        size_t p = 0;
        while ((p = value.find_first_not_of(' ', p)) != std::string::npos) {
            const size_t q = std::min(value.find(' ', p), value.size());
            const std::string token = value.substr(p, q - p);
            p = q;
            if (isCommand(token)) continue;
            char* stop = nullptr;
            const double v = std::strtod(token.c_str(), &stop);
            if (*stop != '\0' || !std::isfinite(v) || std::fabs(v) > kAbsurd) return token;
        }
    }
    return "";
}

size_t countOf(const std::string& text, const std::string& what) {
    size_t n = 0;
    for (size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + 1)) ++n;
    return n;
}

std::string lowerCase(std::string text) {
    for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return text;
}

void expectOnlyFiniteCoordinates(const std::string& svg) {
    EXPECT_EQ(lowerCase(svg).find("nan"), std::string::npos);
    EXPECT_EQ(lowerCase(svg).find("inf"), std::string::npos);
    EXPECT_EQ(firstBadCoordinate(svg), "");
}

}  // namespace Velarix::test
