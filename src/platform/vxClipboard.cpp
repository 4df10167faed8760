#include "platform/vxClipboard.h"

namespace Velarix {

bool vxClipboardHasPicture() {
    return false;
}

}  // namespace Velarix
