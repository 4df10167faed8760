#include "platform/vxPictureLibraries.h"

#include <dlfcn.h>

namespace Velarix {

namespace {

template <typename Calls>
struct Table {
    std::once_flag once;
    bool complete = false;
    Calls calls;
};

template <typename Function>
bool lookUp(void* handle, Function& function, const char* name) {
    function = reinterpret_cast<Function>(dlsym(handle, name));
    return function != nullptr;
}

// Each looks every call of its table up; false when one is missing.
#define VX_FIND_CALL(name) complete = lookUp(handle, calls.name, #name) && complete;
#define VX_DEFINE_FILL(Calls, LIST)          \
    bool fill(void* handle, Calls& calls) {  \
        if (handle == nullptr) return false; \
        bool complete = true;                \
        LIST(VX_FIND_CALL)                   \
        return complete;                     \
    }

VX_DEFINE_FILL(vxTIFFCalls, VX_TIFF_CALLS)
VX_DEFINE_FILL(vxGIFCalls, VX_GIF_CALLS)
VX_DEFINE_FILL(vxImageQuantCalls, VX_IMAGEQUANT_CALLS)

#undef VX_DEFINE_FILL
#undef VX_FIND_CALL

}  // namespace

struct vxPictureLibraries::Opened {
    std::array<std::once_flag, 3> once;
    std::array<void*, 3> handles{};
    Table<vxTIFFCalls> tiff;
    Table<vxGIFCalls> gif;
    Table<vxImageQuantCalls> imageQuant;
};

vxPictureLibraries::vxPictureLibraries(const Sonames& sonames)
    : sonames_(sonames), opened_(std::make_unique<Opened>()) {}

// The handles are never closed: see the header.
vxPictureLibraries::~vxPictureLibraries() = default;

vxPictureLibraries& vxPictureLibraries::shared() {
    static vxPictureLibraries libraries;
    return libraries;
}

const char* vxPictureLibraries::soname(vxPictureLibrary library) const {
    return sonames_[static_cast<size_t>(library)];
}

std::string vxPictureLibraries::missingText(vxPictureLibrary library) const {
    return std::string(soname(library)) + " is missing";
}

void* vxPictureLibraries::handle(vxPictureLibrary library) {
    const auto index = static_cast<size_t>(library);
    std::call_once(opened_->once[index], [&] {
        opened_->handles[index] = dlopen(sonames_[index], RTLD_NOW | RTLD_LOCAL);
    });
    return opened_->handles[index];
}

void* vxPictureLibraries::find(vxPictureLibrary library, const char* name) {
    void* opened = handle(library);
    return opened ? dlsym(opened, name) : nullptr;
}

namespace {

template <typename Calls>
const Calls* tableOf(Table<Calls>& table, void* handle) {
    std::call_once(table.once, [&] { table.complete = fill(handle, table.calls); });
    return table.complete ? &table.calls : nullptr;
}

}  // namespace

const vxTIFFCalls* vxPictureLibraries::tiff() {
    return tableOf(opened_->tiff, handle(vxPictureLibrary::kTIFF));
}

const vxGIFCalls* vxPictureLibraries::gif() {
    return tableOf(opened_->gif, handle(vxPictureLibrary::kGIF));
}

const vxImageQuantCalls* vxPictureLibraries::imageQuant() {
    return tableOf(opened_->imageQuant, handle(vxPictureLibrary::kImageQuant));
}

}  // namespace Velarix
