#include "output/vxDeviceTargets.h"

#include <new>

#include "settings/vxErrorHolder.h"

namespace Velarix {

vxDeviceTargets::vxDeviceTargets() = default;

vxDeviceTargets::~vxDeviceTargets() = default;

void vxDeviceTargets::add(short targetType, vxErrorHolder& device) {
    std::unique_ptr<vxWriteExternal> target;
    try {
        target = vxWriteExternal::makeTarget(targetType);
        if (!target) return;
        targets.push_back(std::move(target));
    } catch (const std::bad_alloc&) {
        device.setError(vxErrRuntime::kOutOfMemory, device.where(L"addTarget"));
        return;
    }
    vxWriteExternal& added = *targets.back();
    if (!takeFault(added, device)) added.setFormat(kFormatNone);
}

bool vxDeviceTargets::takeFault(const vxWriteExternal& target, vxErrorHolder& device) {
    if (!target.isError()) return false;
    device.copyError(target.getError());
    return true;
}

bool vxDeviceTargets::writeTo(vxWriteExternal& target, vxErrorHolder& device,
                              const std::function<void(vxWriteExternal&)>& write) {
    target.open();
    if (takeFault(target, device)) return false;
    write(target);
    if (takeFault(target, device)) return false;
    target.close();
    return !takeFault(target, device);
}

bool vxDeviceTargets::writeText(vxWriteExternal& target, vxErrorHolder& device,
                                const std::wstring& text) {
    return writeTo(target, device, [&](vxWriteExternal& t) { t.writeString(text); });
}

bool vxDeviceTargets::writeBytes(vxWriteExternal& target, vxErrorHolder& device,
                                 const std::vector<uint8_t>& bytes) {
    return writeTo(target, device,
                   [&](vxWriteExternal& t) { t.writeBytes(bytes.data(), bytes.size()); });
}

void vxDeviceTargets::dump(short depth, std::ostream& out) const {
    for (const auto& target : targets) target->dump(depth, out);
}

}  // namespace Velarix
