// The script functions whose colour argument stands alone, with no fill
// pattern after it: the text styles and the colour lists of the grids.
#pragma once

namespace Velarix {

bool vxIsPlainColorFunction(long fnId);

}  // namespace Velarix
