// The system clipboard as a source of pictures.
#pragma once

namespace Velarix {

// Whether the clipboard holds a picture. The engine runs on a server, which
// has no clipboard, so the answer is always no.
bool vxClipboardHasPicture();

}  // namespace Velarix
