// The clipboard of this platform. The engine runs where there is no
// clipboard: asking it for a picture always fails with error 1150.
#pragma once

#include <memory>
#include <string>

#include "output/vxReadClipboard.h"

namespace Velarix {

class vxReadClipboardWIN : public vxReadClipboard {
public:
    vxReadClipboardWIN();
    ~vxReadClipboardWIN() override;

    std::unique_ptr<vxReadExternal> clone() const override;
    bool setName(const std::wstring& name) override;
    bool read(vxBitmap& bitmap) const override;
};

}  // namespace Velarix
