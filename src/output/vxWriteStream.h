// A memory target: the picture goes back to the host instead of a file.
// It carries the drawing's size along with the data.
#pragma once

#include "output/vxWriteExternal.h"

namespace Velarix {

class vxWriteStream : public vxWriteExternal {
public:
    explicit vxWriteStream(const wchar_t* name);
    ~vxWriteStream() override;

    short getType() const override { return kTargetStream; }

    float getWidth() const { return mWidth; }
    float getHeight() const { return mHeight; }
    void setSize(float width, float height) {
        mWidth = width;
        mHeight = height;
    }

protected:
    void dumpFields(std::ostream& out) const override;

private:
    float mWidth = 0.0f;
    float mHeight = 0.0f;
};

}  // namespace Velarix
