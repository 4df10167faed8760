// Where in a script a parsing error was found.
#pragma once

#include <ostream>
#include <string>

namespace Velarix {

class vxParsingError {
public:
    vxParsingError() = default;
    virtual ~vxParsingError() = default;

    void clear();
    void copy(const vxParsingError* from);  // null clears
    void dump(short depth, std::ostream& out) const;

    long lineNumber = -1;  // -1: none
    long argIndex = -1;    // one-based in the record, -1: none
    std::wstring fnName;
    std::wstring errScriptPart;
};

}  // namespace Velarix
