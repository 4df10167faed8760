// The plug-in's string resources and the table of its external functions.
#pragma once

#include <span>

namespace Velarix {

// The plug-in's four-character identifier.
constexpr const char* kPluginID = "vxCH";
// The options string's id; the host's id for it (131) is read as this one.
constexpr short kOptionsStringID = 1;
// The signature of function n is the string n + kSignatureBaseID.
constexpr short kSignatureBaseID = 102;
// Every device, the server included, may evaluate the functions.
constexpr unsigned kFunctionFlags = 0xFF01;

struct vxPluginString {
    short id;
    const wchar_t* text;
};

struct vxPluginFunction {
    short id;
    short minArgs;
    short maxArgs;
};

// The texts by id: 1, 102 to 108, 128 and 129.
std::span<const vxPluginString> vxPluginStrings();
// The text of an id, with 131 read as 1; null for an id without a text.
const wchar_t* vxPluginStringText(short id);

// The external functions in the order of registration.
std::span<const vxPluginFunction> vxPluginFunctions();

}  // namespace Velarix
