// Runs a building step of a graphic object and turns a failed allocation
// into error 5000 at "className/method/number" of its holder.
#pragma once

#include <new>

#include "settings/vxErrorHolder.h"

namespace Velarix {

template <class F>
bool vxGuardAllocation(vxErrorHolder& holder, const wchar_t* method, int number, F&& build) {
    try {
        build();
    } catch (const std::bad_alloc&) {
        holder.setError(vxErrRuntime::kOutOfMemory, holder.where(method, number));
        return false;
    }
    return true;
}

}  // namespace Velarix
