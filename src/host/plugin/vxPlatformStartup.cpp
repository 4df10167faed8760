#include "host/plugin/vxPlatformStartup.h"

#include "platform/vxFontService.h"

namespace Velarix {

void vxPlatformStartup() {
    // The default text font of a drawing: the match loads the platform's
    // font configuration, so the first drawing doesn't pay for it.
    vxFontService::get().isInstalled(L"Verdana");
}

// The fonts stay with the library until it is unloaded.
void vxPlatformShutdown() {}

}  // namespace Velarix
