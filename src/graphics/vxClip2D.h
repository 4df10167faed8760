// A clip set on the device when a layer draws it: a rectangle or a path,
// combined with the clip in force by its mode (1 intersect, 2 exclude,
// 3 union, any other value replace). A clip without a shape resets the
// device's clip. It draws nothing of its own; moving, turning and
// mirroring it moves its shape.
#pragma once

#include <memory>
#include <ostream>

#include "graphics/vxGObject2D.h"

namespace Velarix {

class vxPath2DOLD;
class vxQuad2D;

class vxClip2D : public vxGObject2D {
public:
    enum ClipMode : short { kReplace = 0, kIntersect = 1, kExclude = 2, kUnion = 3 };

    explicit vxClip2D(vxUserSettings* owner = nullptr, short mode = kReplace);
    ~vxClip2D() override;

    short getType() const override { return kTypeClip; }

    short getMode() const { return mode; }
    void setMode(short value) { mode = value; }

    // The rectangle left, top, right, bottom, in place of any shape. False
    // with error 5000 when it can't be made.
    bool setRect(float l, float t, float r, float b);
    // An empty path in place of any shape, to be built by the caller before
    // the bounds are read; null with error 5000 when it can't be made.
    vxPath2DOLD* createPath();
    // A copy of `from` in place of any shape.
    bool setPath(const vxPath2DOLD& from);
    // No shape: drawing resets the clip.
    void removeShape();
    bool hasShape() const { return rect || path; }
    const vxQuad2D* getRect() const { return rect.get(); }
    const vxPath2DOLD* getPath() const { return path.get(); }

    // Sets the device's clip: a rectangle still upright by x, y, w, h, a
    // turned one or a path by its outline.
    void draw(vxDevice& device) override;

    void copy(const vxClip2D* from);
    void setDefaults() override;
    void dump(short depth, std::ostream& out) const override;

protected:
    void transformGeometry(const vxTransform2DOLD& transform) override;
    void calculateBounds(float bounds[4]) const override;

private:
    short mode = kReplace;
    std::unique_ptr<vxQuad2D> rect;
    std::unique_ptr<vxPath2DOLD> path;
};

}  // namespace Velarix
