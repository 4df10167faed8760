// What the plug-in keeps between the host's calls, from its init message
// to its shutdown message: the last error and the flags it is composed
// with, the last curve-fit results, the language and what the host told
// about itself.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "host/vxFMXInterface.h"

namespace Velarix {

class vxError;
class vxCurveFittingData;

class vxPluginState {
public:
    vxPluginState();
    ~vxPluginState();
    vxPluginState(const vxPluginState&) = delete;
    vxPluginState& operator=(const vxPluginState&) = delete;

    // The state between init and shutdown; null outside.
    static vxPluginState* get();
    // Makes the state anew; false when it can't be made.
    static bool create();
    static void destroy();

    // The call block of the host's last message.
    static FMX_ExternCallPtr& callBlock();

    std::unique_ptr<vxError> lastError;
    std::wstring lastErrorFlags;
    std::unique_ptr<vxCurveFittingData> lastCurveFittingData;
    short languageID = 1;
    short appType = 0;
    std::wstring fmVersion;
    std::wstring filePath;
    // The ids registered with the host, in the order of registration.
    std::vector<short> registered;
};

}  // namespace Velarix
