// The clipboard as a source of a picture: a bitmap or a metafile, which
// then goes the same way as a picture file. The name is not used.
#pragma once

#include <memory>

#include "output/vxReadExternal.h"

namespace Velarix {

class vxReadClipboard : public vxReadExternal {
public:
    vxReadClipboard();
    ~vxReadClipboard() override;

    short getType() const override { return kSourceClipboard; }
    std::unique_ptr<vxReadExternal> clone() const override;

protected:
    explicit vxReadClipboard(const wchar_t* name);
};

}  // namespace Velarix
