// Calls of the picture libraries that the engine opens at run time, for
// test helpers that write and read pictures with the libraries themselves.
// The helpers declare a call by its library's name, which then hides the
// library's own declaration:
//     VX_LIBRARY_CALL(kTIFF, TIFFOpen);
// The function is looked up at its first call; a missing one fails the test
// program at once.
#pragma once

#include <cstdio>
#include <cstdlib>

#include "platform/vxPictureLibraries.h"

namespace Velarix::test {

template <typename Function>
class LibraryCall {
public:
    constexpr LibraryCall(vxPictureLibrary library, const char* name)
        : library_(library), name_(name) {}

    template <typename... Args>
    auto operator()(Args... args) const {
        return function()(args...);
    }

private:
    Function function() const {
        void* found = vxPictureLibraries::shared().find(library_, name_);
        if (found == nullptr) {
            std::fprintf(stderr, "test helpers: %s not found\n", name_);
            std::abort();
        }
        return reinterpret_cast<Function>(found);
    }

    vxPictureLibrary library_;
    const char* name_;
};

#define VX_LIBRARY_CALL(library, name)                              \
    constexpr ::Velarix::test::LibraryCall<decltype(&::name)> name( \
        ::Velarix::vxPictureLibrary::library, #name)

}  // namespace Velarix::test
