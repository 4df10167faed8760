// Checks of SVG files that charts write: every coordinate a finite number
// on the scale of a page, and counts of what the file holds.
#pragma once

#include <cstddef>
#include <string>

namespace Velarix::test {

// The first token of a geometry attribute that isn't a finite number within
// a bound no page layout reaches (1e7), or an empty text.
std::string firstBadCoordinate(const std::string& svg);

// No "nan" or "inf" anywhere, in any case, and no bad coordinate.
void expectOnlyFiniteCoordinates(const std::string& svg);

size_t countOf(const std::string& text, const std::string& what);

std::string lowerCase(std::string text);

}  // namespace Velarix::test
