// What the parts of an axis share: the look they start with, and the
// texts of a call that takes one text an argument.
#pragma once

#include <string>
#include <vector>

namespace Velarix {

class vxAssign;
class vxGObjectOLD;

// The texts from the argument offset on; a void argument is an empty text,
// and a call whose texts are all void gives none.
std::vector<std::wstring> vxStringArguments(const vxAssign& assign);

// Gives the object a solid black border stroke of `width`; false when the
// object failed, its error telling why.
bool vxSetAxisLineLook(vxGObjectOLD& object, float width);

}  // namespace Velarix
