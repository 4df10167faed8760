// A polygon of straight sides, closed or open. It fills under its winding
// rule (1 even-odd, else non-zero) and outlines as a polygon or, when not
// closed, a polyline.
#pragma once

#include <algorithm>
#include <ostream>
#include <vector>

#include "graphics/vxGObject2D.h"

namespace Velarix {

class vxPolygon2D : public vxGObject2D {
public:
    enum WindingRule : short { kEvenOdd = 1, kNonZero = 2 };

    explicit vxPolygon2D(vxUserSettings* owner = nullptr);
    ~vxPolygon2D() override;

    short getType() const override { return kTypePolygon; }

    // Each setter and adder reports a failed allocation as error 5000 and
    // answers false.
    bool set(const std::vector<float>& xs, const std::vector<float>& ys);
    bool set(long count, const float* xs, const float* ys);
    bool addX(float value);
    bool addY(float value);
    bool addPoint(float px, float py);
    bool addPoint(const std::vector<float>& xs, const std::vector<float>& ys);
    // Reserves room for this many points.
    bool setCapacity(long numOfPoints);

    void clear();
    long getNumOfPoints() const { return static_cast<long>(std::min(x.size(), y.size())); }
    const std::vector<float>& getX() const { return x; }
    const std::vector<float>& getY() const { return y; }

    short getWindingRule() const { return windingRule; }
    void setWindingRule(short value) { windingRule = value; }
    bool getDoClose() const { return doClose; }
    void setDoClose(bool value) { doClose = value; }

    void copy(const vxPolygon2D* from);
    void setDefaults() override;
    void dump(short depth, std::ostream& out) const override;

protected:
    void transformGeometry(const vxTransform2DOLD& transform) override;
    void calculateBounds(float bounds[4]) const override;
    void fillShape(vxDevice& device, const vxPaintOLD& paint, const float bounds[4]) override;
    void fillShape(vxDevice& device, const vxShadowOLD& shadow, const float bounds[4]) override;
    void outlineShape(vxDevice& device, const vxStrokeOLD& stroke, const vxPaintOLD& paint,
                      const float bounds[4]) override;
    void outlineShape(vxDevice& device, const vxStrokeOLD& stroke, const vxShadowOLD& shadow,
                      const float bounds[4]) override;

private:
    template <class F>
    bool change(const wchar_t* method, int number, F&& step);

    short windingRule = kNonZero;
    bool doClose = true;
    std::vector<float> x;
    std::vector<float> y;
};

}  // namespace Velarix
