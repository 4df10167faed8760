// The vocabulary of the chart language: the names of the functions, their
// groups and the descriptors of their arguments, all indexed by function id.
#pragma once

#include <span>
#include <string>

#include "script/vxFunctionIds.h"

namespace Velarix {

// One argument descriptor as it stands in the catalogue.
struct vxArgumentRow {
    long id;
    short type;
    double minValue;
    double maxValue;
    long maxRepeat;
    bool isRequired;
    short constantType;
};

// The name as the script writes it, or null for an id out of range.
const wchar_t* vxFunctionName(long id);

// The id of a function name in any case mix, or kUnknown.
long vxFindFunction(const std::wstring& name);

// The group number of a function, or -1 for an id out of range.
short getFunctionGroup(long id);

// The descriptors of a function in argument order; empty for a function
// without arguments and for an id out of range.
std::span<const vxArgumentRow> vxFunctionArguments(long id);

}  // namespace Velarix
