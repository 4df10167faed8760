// The size of the picture in drawing units and the rendering flags that
// OpenDrawing gives. A fresh object is cleared: a script that never opens a
// drawing has a width of 0.
#pragma once

#include <memory>
#include <ostream>
#include <string>

namespace Velarix {

class vxDrawingSpecs {
public:
    vxDrawingSpecs() = default;
    virtual ~vxDrawingSpecs() = default;

    virtual std::unique_ptr<vxDrawingSpecs> clone() const;
    virtual const std::wstring& getClassName() const { return className; }
    virtual void getSize(float size[2]) const;
    virtual void clear();
    virtual void copy(const vxDrawingSpecs* from);  // null clears
    virtual void setWidth(float w) { width = w; }
    virtual void setHeight(float h) { height = h; }
    virtual void setSize(float w, float h);
    virtual void setRenderingInfo(short info) { renderingInfo = info; }
    virtual void dump(short depth, std::ostream& out) const;

    float getWidth() const { return width; }
    float getHeight() const { return height; }
    short getRenderingInfo() const { return renderingInfo; }

private:
    std::wstring className = L"vxDrawingSpecs";
    float width = 0.0f;
    float height = 0.0f;
    short renderingInfo = 0;
};

}  // namespace Velarix
