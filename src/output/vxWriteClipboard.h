// A clipboard target: the picture is put on the system's clipboard, in the
// format that the script's clipboard function names.
#pragma once

#include "output/vxWriteExternal.h"

namespace Velarix {

class vxWriteClipboard : public vxWriteExternal {
public:
    explicit vxWriteClipboard(const wchar_t* name);
    ~vxWriteClipboard() override;

    short getType() const override { return kTargetClipboard; }
};

}  // namespace Velarix
