// The plug-in's external functions, with the host's signature. Each one
// answers 0, or -1 when the host or the memory failed it; nothing is thrown
// back into the host. Called outside init and shutdown, a function works on
// a state of its own for the one call, as before any drawing.
#pragma once

#include "host/vxFMXInterface.h"

namespace Velarix {

class vxPluginState;

// The function registered under an id; null for an unknown id.
vxfmx::ExternalFunction vxExternalFunctionFor(short functionID);

// The drawing call: runs the script and gives the picture or the message.
void vxDrawChart(vxPluginState& state, const vxfmx::ExprEnv& env, const vxfmx::DataVect& args,
                 vxfmx::Data& result);

// The alert sound of an error; there is none on this platform.
void vxAlertSound();

}  // namespace Velarix
