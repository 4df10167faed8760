// Where a picture comes from: a file, the clipboard, a picture built into
// the program, or a URL. A source is told its name (a path, a resource
// number as text, a URL) by setName, which also reads the picture's size;
// the pixels are read only when a device asks for them.
//
// Kind codes, as getType answers and the script gives them:
//   1 clipboard, 2 resource, 3 file, 5 URL.
#pragma once

#include <memory>
#include <ostream>
#include <string>

#include "output/vxExternal.h"

namespace Velarix {

class vxBitmap;
class vxGradientPaint;

enum vxSourceKind : short {
    kSourceClipboard = 1,
    kSourceResource = 2,
    kSourceFile = 3,
    kSourceURL = 5,
};

class vxReadExternal : public vxExternal {
public:
    explicit vxReadExternal(const wchar_t* name);
    ~vxReadExternal() override;

    // A new source of this platform for a kind code; null for a code that
    // names none. Only std::bad_alloc leaves it.
    static std::unique_ptr<vxReadExternal> makeSource(short kind);

    virtual short getType() const = 0;
    // A copy with the name and size, without reading anything again.
    // Throws std::bad_alloc.
    virtual std::unique_ptr<vxReadExternal> clone() const = 0;

    // Takes the name and reads the picture's size; false with the fault
    // recorded here when the picture can't be read.
    virtual bool setName(const std::wstring& name);
    const std::wstring& getName() const { return info; }

    long getWidth() const { return width; }
    long getHeight() const { return height; }
    // A picture with no pixels to show: zero width or height.
    bool isEmpty() const { return width < 1 || height < 1; }

    // Reads the pixels into `bitmap`; a fault is recorded in the bitmap,
    // which stays empty then. The base has no pixels to give.
    virtual bool read(vxBitmap& bitmap) const;
    // The gradient that a gradient resource stands for; null otherwise.
    virtual const vxGradientPaint* getGradient() const { return nullptr; }

protected:
    void dumpFields(std::ostream& out) const override;
    void setSize(long w, long h);
    // Copies the fields of this level into `to`.
    void copyTo(vxReadExternal& to) const;

private:
    long width = 0;
    long height = 0;
    std::wstring info;
};

}  // namespace Velarix
