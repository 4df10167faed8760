#include "output/vxReadResourceWIN.h"

#include "output/vxBitmap.h"
#include "platform/vxResources.h"

namespace Velarix {

vxReadResourceWIN::vxReadResourceWIN() : vxReadResource(L"vxReadResourceWIN") {}

vxReadResourceWIN::~vxReadResourceWIN() = default;

std::unique_ptr<vxReadExternal> vxReadResourceWIN::clone() const {
    auto copy = std::make_unique<vxReadResourceWIN>();
    copyTo(*copy);
    return copy;
}

bool vxReadResourceWIN::read(vxBitmap& bitmap) const {
    bitmap.clear();
    if (isGradient() || getResourceID() == 0) return true;
    if (vxResources::makePicture(getResourceID(), bitmap)) return true;
    if (!bitmap.isError()) bitmap.setError(vxErrScript::kResource, where(L"read"));
    return false;
}

}  // namespace Velarix
