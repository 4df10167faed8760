#include "graphics/vxCombinedStroke.h"

#include <algorithm>
#include <new>

#include "host/vxLog.h"

namespace Velarix {

vxCombinedStroke::vxCombinedStroke() : vxStrokeOLD(L"vxCombinedStroke") {}

vxCombinedStroke::~vxCombinedStroke() = default;

bool vxCombinedStroke::isZeroWidth() const {
    return std::all_of(strokes.begin(), strokes.end(),
                       [](const auto& stroke) { return stroke->isZeroWidth(); });
}

bool vxCombinedStroke::addStroke(const vxBasicStroke& stroke) {
    try {
        auto added = std::make_unique<vxBasicStroke>();
        added->copy(&stroke);
        strokes.push_back(std::move(added));
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"addStroke"));
        return false;
    }
    return true;
}

const vxBasicStroke* vxCombinedStroke::getStroke(long index) const {
    if (index < 0 || index >= getNumOfStrokes()) return nullptr;
    return strokes[static_cast<size_t>(index)].get();
}

std::unique_ptr<vxStrokeOLD> vxCombinedStroke::clone() const {
    return cloneOf<vxStrokeOLD>(*this);
}

void vxCombinedStroke::resetFields() {
    clearStrokes();
}

void vxCombinedStroke::copyFields(const vxAppearance& from) {
    for (const auto& stroke : static_cast<const vxCombinedStroke&>(from).strokes) {
        if (!addStroke(*stroke)) return;
    }
}

void vxCombinedStroke::dumpFields(short depth, std::ostream& out) const {
    vxStrokeOLD::dumpFields(depth, out);
    vxDumpLine(out, "long numOfStrokes:  ", getNumOfStrokes());
    if (depth <= 0) return;
    for (const auto& stroke : strokes) stroke->dump(static_cast<short>(depth - 1), out);
}

}  // namespace Velarix
