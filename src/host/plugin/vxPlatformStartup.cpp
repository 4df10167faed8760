#include "host/plugin/vxPlatformStartup.h"

#include <dlfcn.h>

#include "platform/vxFontService.h"

namespace Velarix {

namespace {

// The drawing library, whose dependencies (pixman among them) allocate for
// the life of the process when they are loaded and never free it.
constexpr const char* kDrawingLibrary = "libcairo.so.2";

// As the plug-in is loaded, whether or not the host's init follows: the
// drawing library stays for the rest of the process, so a host that unloads
// and loads the plug-in again reuses it instead of losing its blocks each
// time.
[[gnu::constructor]] void holdDrawingLibrary() {
    dlopen(kDrawingLibrary, RTLD_LAZY | RTLD_NOLOAD | RTLD_NODELETE);
}

}  // namespace

void vxPlatformStartup() {
    // The default text font of a drawing: the match loads the platform's
    // font configuration, so the first drawing doesn't pay for it.
    vxFontService::get().isInstalled(L"Verdana");
}

// The fonts stay with the library until it is unloaded.
void vxPlatformShutdown() {}

}  // namespace Velarix
