// The pictures built into the program, addressed by resource number.
#pragma once

namespace Velarix {

// True for the number of a built-in picture resource.
bool vxResourceExists(long id);

}  // namespace Velarix
