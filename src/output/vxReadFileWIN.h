// A picture file read through the platform's picture reader: setName takes
// the path, checks that its type has a reader and decodes the picture once
// to learn its size and to find damage early; read decodes the pixels again
// when a device needs them.
#pragma once

#include <memory>
#include <string>

#include "output/vxReadFile.h"

namespace Velarix {

class vxReadFileWIN : public vxReadFile {
public:
    vxReadFileWIN();
    ~vxReadFileWIN() override;

    std::unique_ptr<vxReadExternal> clone() const override;

    // Faults: the path's own (createFName), a type with no reader (4013 at
    // "/setImageType/1"), those of reading the file, and those of the
    // picture reader.
    bool setName(const std::wstring& name) override;
    // Error 4013 when the file's type has no picture reader.
    bool setImageType();
    bool read(vxBitmap& bitmap) const override;
};

}  // namespace Velarix
