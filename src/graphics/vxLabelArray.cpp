#include "graphics/vxLabelArray.h"

#include <algorithm>
#include <new>

#include "graphics/vxBoundsUnion.h"
#include "graphics/vxGObjectAppearanceOLD.h"
#include "graphics/vxGObjectState.h"
#include "graphics/vxLabel.h"
#include "host/vxLog.h"
#include "settings/vxExceptionRuntime.h"

namespace Velarix {

vxLabelArray::vxLabelArray(vxUserSettings* owner) : vxGObjectOLD(L"vxLabelArray", owner) {}

vxLabelArray::~vxLabelArray() = default;

void vxLabelArray::drawShadow(vxDevice& device) {
    if (!isVisible()) return;
    for (const auto& label : labels) {
        label->drawShadow(device);
        if (label->isError()) return copyError(label->getError());
    }
}

void vxLabelArray::drawBody(vxDevice& device) {
    if (!isVisible()) return;
    for (const auto& label : labels) {
        label->drawBody(device);
        if (label->isError()) return copyError(label->getError());
    }
}

void vxLabelArray::transform(const vxTransform2DOLD& t) {
    applyTransform(t);
}

void vxLabelArray::transformGeometry(const vxTransform2DOLD& t) {
    for (const auto& label : labels) label->transform(t);
}

void vxLabelArray::rotate(float angle, float x, float y) {
    for (const auto& label : labels) label->rotate(angle, x, y);
    invalidateBounds();
}

void vxLabelArray::flip(short mode, float x, float y) {
    for (const auto& label : labels) label->flip(mode, x, y);
    invalidateBounds();
}

void vxLabelArray::calculateBounds(float b[4]) const {
    std::fill(b, b + 4, 0.0f);
    bool hasBounds = false;
    for (const auto& label : labels) {
        float l[4];
        label->getBounds(l);
        vxUniteBounds(b, l, hasBounds);
    }
}

vxLabel* vxLabelArray::getLabel(long index) {
    if (index < 0 || index >= getNumOfLabels()) return nullptr;
    invalidateBounds();
    return labels[static_cast<size_t>(index)].get();
}

const vxLabel* vxLabelArray::getLabel(long index) const {
    if (index < 0 || index >= getNumOfLabels()) return nullptr;
    return labels[static_cast<size_t>(index)].get();
}

vxLabel* vxLabelArray::addLabel() {
    return append(labels.empty() ? nullptr : labels.back().get(), 1);
}

vxLabel* vxLabelArray::addLabel(const vxLabel& from) {
    return append(&from, 2);
}

// A label that can't be made or copied is not added.
vxLabel* vxLabelArray::append(const vxLabel* from, int number) {
    try {
        auto label = std::make_unique<vxLabel>(getOwnerSettings());
        if (!label->set(from)) {
            copyError(label->getError());
            return nullptr;
        }
        labels.push_back(std::move(label));
        invalidateBounds();
        return labels.back().get();
    } catch (const std::bad_alloc&) {
    } catch (const vxExceptionRuntime&) {
    }
    setError(vxErrRuntime::kOutOfMemory, where(L"addLabel", number));
    return nullptr;
}

void vxLabelArray::removeAll() {
    labels.clear();
    invalidateBounds();
}

void vxLabelArray::setDefaults() {
    vxGObjectOLD::setDefaults();
    removeAll();
}

bool vxLabelArray::set(const vxLabelArray* from) {
    if (from == this) return true;
    setDefaults();
    if (!from) return true;
    getState()->copy(from->getState());
    getAppearance()->copy(from->getAppearance());
    if (getAppearance()->isError()) {
        copyError(getAppearance()->getError());
        return false;
    }
    for (const auto& label : from->labels) {
        if (!addLabel(*label)) return false;
    }
    return true;
}

void vxLabelArray::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, "vxLabelArray");
    vxDumpLine(out, "Num of labels: ", getNumOfLabels());
    const auto below = static_cast<short>(depth - 1);
    vxGObjectOLD::dump(below, out);
    for (const auto& label : labels) label->dump(below, out);
    vxDumpEnd(out);
}

}  // namespace Velarix
