// The platform's start-up and shutdown for drawing, at the plug-in's init
// and shutdown: fonts are found and opened from the start on.
#pragma once

namespace Velarix {

void vxPlatformStartup();
void vxPlatformShutdown();

}  // namespace Velarix
