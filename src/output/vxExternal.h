// The root of everything that moves a picture across the engine's border:
// the targets that write a finished drawing and the sources that read
// pictures in. It knows whether it is open and which format it carries.
#pragma once

#include <ostream>
#include <string>

#include "settings/vxErrorHolder.h"

namespace Velarix {

// Picture formats, as the SaveAs functions of a script ask for them.
enum vxTargetFormat : short {
    kFormatGIF = 2,
    kFormatJPEG = 3,
    kFormatTIFF = 4,
    kFormatPNG = 5,
    kFormatBMP = 6,
    kFormatPICT = 7,
    kFormatEMF = 8,
    kFormatPDF = 9,
    kFormatSVG = 10,
    kFormatSWF = 11,
};

// The format of a target that no SaveAs function has set yet: 65535 in
// the 16 bits of the format field.
constexpr short kFormatNone = static_cast<short>(65535 - 65536);

class vxExternal : public vxErrorHolder {
public:
    explicit vxExternal(const wchar_t* name);
    ~vxExternal() override;

    bool isOpen() const { return mIsOpen; }
    short getFormat() const { return mFormatID; }
    void setFormat(short format) { mFormatID = format; }

    // The class name as header, the fields of every level, the error record.
    void dump(short depth, std::ostream& out) const;

protected:
    // Each level writes its own fields after those of its base.
    virtual void dumpFields(std::ostream& out) const;
    void setIsOpen(bool value) { mIsOpen = value; }

private:
    bool mIsOpen = false;
    short mFormatID = 0;
};

}  // namespace Velarix
