// The clipboard target of this platform. A server has no clipboard, so
// every operation does nothing and reports no error: a script that asks
// for the clipboard still draws its other targets.
#pragma once

#include "output/vxWriteClipboard.h"

namespace Velarix {

class vxWriteClipboardWIN : public vxWriteClipboard {
public:
    vxWriteClipboardWIN();
    ~vxWriteClipboardWIN() override;

    void open() override {}
    void close() override {}
    void writeString(const std::wstring& text) override {}
    void writeBytes(const uint8_t* data, size_t size) override {}
};

}  // namespace Velarix
