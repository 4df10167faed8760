#include "output/vxReadResource.h"

#include <new>

#include "graphics/vxGradientPaint.h"
#include "host/vxLog.h"
#include "platform/vxResources.h"

namespace Velarix {

namespace {

// A whole number with an optional sign and nothing else.
bool toNumber(const std::wstring& text, long& value) {
    if (text.empty()) return false;
    size_t i = (text[0] == L'-' || text[0] == L'+') ? 1 : 0;
    if (i == text.size() || text.size() - i > 9) return false;
    long n = 0;
    for (; i < text.size(); ++i) {
        if (text[i] < L'0' || text[i] > L'9') return false;
        n = n * 10 + (text[i] - L'0');
    }
    value = text[0] == L'-' ? -n : n;
    return true;
}

}  // namespace

vxReadResource::vxReadResource() : vxReadResource(L"vxReadResource") {}

vxReadResource::vxReadResource(const wchar_t* name) : vxReadExternal(name) {}

vxReadResource::~vxReadResource() = default;

std::unique_ptr<vxReadExternal> vxReadResource::clone() const {
    auto copy = std::make_unique<vxReadResource>();
    copyTo(*copy);
    return copy;
}

void vxReadResource::copyTo(vxReadResource& to) const {
    vxReadExternal::copyTo(to);
    to.resourceID = resourceID;
    to.kind = kind;
    to.gradient = vxResources::makeGradient(resourceID);
}

bool vxReadResource::setName(const std::wstring& name) {
    vxReadExternal::setName(name);
    resourceID = 0;
    kind = vxResources::kKindImage;
    gradient.reset();
    long id = 0;
    if (!toNumber(name, id)) {
        setError(vxErrScript::kSyntax, where(L"setName", 1), name);
        return false;
    }
    if (!vxResources::exists(id)) {
        setError(vxErrScript::kResource, where(L"setName", 2), name);
        return false;
    }
    return setResource(id);
}

bool vxReadResource::setResource(long id) {
    try {
        gradient = vxResources::makeGradient(id);
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"setName", 3));
        return false;
    }
    resourceID = id;
    kind = vxResources::getKind(vxResources::getIndexCode(id));
    const long side = vxResources::getPictureSize(id);
    setSize(side, side);
    return true;
}

const vxGradientPaint* vxReadResource::getGradient() const {
    return gradient.get();
}

void vxReadResource::dumpFields(std::ostream& out) const {
    vxReadExternal::dumpFields(out);
    vxDumpLine(out, "long resourceID: ", resourceID);
    vxDumpLine(out, "short kind:      ", kind);
}

}  // namespace Velarix
