// The texts of the error codes: the English and German descriptions, and the
// English text of vxExceptionRuntime where it differs from the description.
#pragma once

#include <span>

namespace Velarix {

struct vxMessageText {
    short code;
    const wchar_t* english;  // null: the code has no description of its own
    const wchar_t* german;
    const char* exception;  // null: the English description
};

// All entries, ordered by code.
std::span<const vxMessageText> vxMessageTexts();

}  // namespace Velarix
