// Separate straight lines from pairs of points: 0-1, 2-3, and so on. An odd
// last point draws nothing. Like a line it has no fill.
#pragma once

#include <algorithm>
#include <ostream>
#include <vector>

#include "graphics/vxGObject2D.h"

namespace Velarix {

class vxLineArray2DOLD : public vxGObject2D {
public:
    explicit vxLineArray2DOLD(vxUserSettings* owner = nullptr);
    ~vxLineArray2DOLD() override;

    short getType() const override { return kTypeLineArray; }

    // Each setter and adder reports a failed allocation as error 5000 and
    // answers false.
    bool set(const std::vector<float>& xs, const std::vector<float>& ys);
    bool set(long count, const float* xs, const float* ys);
    // x, y, x, y, ...
    bool set(const std::vector<float>& xy);
    // Moves the point at `index`; false for an index out of range.
    bool setPoint(long index, float px, float py);
    bool addX(float value);
    bool addX(const std::vector<float>& values);
    bool addY(float value);
    bool addY(const std::vector<float>& values);
    bool addPoint(float px, float py);
    bool addPoint(const std::vector<float>& xs, const std::vector<float>& ys);
    bool addLine(float x1, float y1, float x2, float y2);
    bool addLine(const float line[4]);  // x1, y1, x2, y2

    void clear();
    long getNumOfPoints() const { return static_cast<long>(std::min(x.size(), y.size())); }
    long getNumOfLines() const { return getNumOfPoints() / 2; }
    const std::vector<float>& getX() const { return x; }
    const std::vector<float>& getY() const { return y; }

    void copy(const vxLineArray2DOLD* from);
    void setDefaults() override;
    void dump(short depth, std::ostream& out) const override;

protected:
    void transformGeometry(const vxTransform2DOLD& transform) override;
    void calculateBounds(float bounds[4]) const override;
    void outlineShape(vxDevice& device, const vxStrokeOLD& stroke, const vxPaintOLD& paint,
                      const float bounds[4]) override;
    void outlineShape(vxDevice& device, const vxStrokeOLD& stroke, const vxShadowOLD& shadow,
                      const float bounds[4]) override;

private:
    template <class F>
    bool change(const wchar_t* method, int number, F&& step);

    std::vector<float> x;
    std::vector<float> y;
};

}  // namespace Velarix
