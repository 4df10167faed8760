// The targets of a device: where the finished document goes. Every device
// keeps its targets in one of these and drives them through it, so that
// adding a target and writing a document to one are the same on all of
// them.
//
// A document is written to a target in three steps, open, write and close,
// each followed by the test of the target's error; the first fault is
// copied to the device and ends the writing.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <ostream>
#include <vector>

#include "output/vxWriteExternal.h"

namespace Velarix {

class vxErrorHolder;

class vxDeviceTargets {
public:
    using List = std::vector<std::unique_ptr<vxWriteExternal>>;

    vxDeviceTargets();
    ~vxDeviceTargets();

    // Appends a new target of the type. A fault of the new target is copied
    // to `device`; otherwise the target's format is set to none. A failed
    // allocation is error 5000 of the device at "/addTarget/1".
    void add(short targetType, vxErrorHolder& device);

    long size() const { return static_cast<long>(targets.size()); }
    vxWriteExternal* last() const { return targets.empty() ? nullptr : targets.back().get(); }
    List::const_iterator begin() const { return targets.begin(); }
    List::const_iterator end() const { return targets.end(); }

    // Opens the target, lets `write` put the document into it and closes
    // it; false after copying the target's first fault to `device`.
    static bool writeTo(vxWriteExternal& target, vxErrorHolder& device,
                        const std::function<void(vxWriteExternal&)>& write);
    // The same for a text and for bytes.
    static bool writeText(vxWriteExternal& target, vxErrorHolder& device, const std::wstring& text);
    static bool writeBytes(vxWriteExternal& target, vxErrorHolder& device,
                           const std::vector<uint8_t>& bytes);
    // Whether the target has a fault, which is then copied to `device`.
    static bool takeFault(const vxWriteExternal& target, vxErrorHolder& device);

    void dump(short depth, std::ostream& out) const;

private:
    List targets;
};

}  // namespace Velarix
