// One plane behind a view or a chart: a filled and framed path, and
// optionally a picture placed in it. The script gives its paints with
// Background or ChartBackground (fill, border and shadow) and its picture
// with BackgroundPict or ChartBackgroundPict; setUp puts the plane on a
// rectangle, or on the four corners of a wall of a chart with depth, and
// setUpLayer hands it to the layers. A wall with a thickness shows it as a
// slab behind the plane, `thickness` deep along the wall's normal. A
// picture is placed in the plane's bounds and clipped to the plane.
#pragma once

#include <memory>
#include <ostream>

#include "settings/vxErrorHolder.h"

namespace Velarix {

class vxAssign;
class vxChart;
class vxClip2D;
class vxLayerManager;
class vxPath2DOLD;
class vxQuad2D;
class vxUserSettings;

class vxBackground : public vxErrorHolder {
public:
    // Layer type of backgrounds.
    static constexpr long kLayerType = 60;

    explicit vxBackground(vxUserSettings* owner, vxChart* chart = nullptr);
    ~vxBackground() override;

    void assign(vxAssign& assign);
    // Places the plane on left, top, right, bottom.
    void setUp(const float rect[4]);
    // Places the plane on four corners, and its slab, when it has a
    // thickness, `thickness` along the unit vector (nx, ny).
    void setUp(const float xs[4], const float ys[4], float nx, float ny);
    // A layer of type 60 with the plane and its picture, clipped to `clip`.
    void setUpLayer(vxLayerManager* layerMng, const float clip[4]);

    // The width of the border when one shows, else 0.
    float getBorderWidth() const;
    vxPath2DOLD* getQuad() const { return quad.get(); }
    vxQuad2D* getPicture() const { return picture.get(); }
    vxPath2DOLD* getSlab() const { return slab.get(); }
    short getPlaneIndex() const { return planeIndex; }
    void setPlaneIndex(short value) { planeIndex = value; }
    float getThickness() const { return thickness; }
    void setThickness(float value) { thickness = value; }
    // Whether the plane has anything to draw.
    bool isEmpty() const { return !quad && !picture; }

    void dump(short depth, std::ostream& out) const;

private:
    bool createQuad();
    bool setUpPictureClip(const float xs[4], const float ys[4]);
    void setUpSlab(const float xs[4], const float ys[4], float nx, float ny);

    vxUserSettings* ownerSettings;  // not owned
    vxChart* chart;                 // not owned; null behind a view
    std::unique_ptr<vxPath2DOLD> quad;
    std::unique_ptr<vxQuad2D> picture;
    std::unique_ptr<vxPath2DOLD> slab;
    // A picture on a wall that isn't upright stands in the wall's bounds,
    // clipped to the wall; the second clip lifts the first.
    std::unique_ptr<vxClip2D> pictureClip;
    std::unique_ptr<vxClip2D> clipReset;
    short planeIndex = 1;
    float thickness = 0.0f;
    float xDepth = 0.0f;
    float yDepth = 0.0f;
};

}  // namespace Velarix
