#include "host/plugin/vxPluginState.h"

#include <new>

#include "host/vxPluginTexts.h"
#include "overlays/vxCurveFittingData.h"
#include "settings/vxError.h"

// The host's plug-in headers name the pointer to the last call block so.
extern "C" {
FMX_ExternCallPtr gFMX_ExternCallPtr = nullptr;
}

namespace Velarix {

namespace {

std::unique_ptr<vxPluginState>& instance() {
    static std::unique_ptr<vxPluginState> state;
    return state;
}

}  // namespace

vxPluginState::vxPluginState()
    : lastError(std::make_unique<vxError>()), lastErrorFlags(vxPluginTexts::kDefaultErrorFlags) {}

vxPluginState::~vxPluginState() = default;

vxPluginState* vxPluginState::get() {
    return instance().get();
}

bool vxPluginState::create() {
    instance().reset();
    try {
        instance() = std::make_unique<vxPluginState>();
    } catch (const std::bad_alloc&) {
        return false;
    }
    return true;
}

void vxPluginState::destroy() {
    instance().reset();
}

FMX_ExternCallPtr& vxPluginState::callBlock() {
    return gFMX_ExternCallPtr;
}

}  // namespace Velarix
