// One part of the grid of a plane: lines, stripes or the frame, of one
// order (1 major, 2 minor) and one direction.
//
// Direction 1 (radial) runs along the plane's first axis: its lines pass
// through the ticks of the second axis, so that on the xy plane they are
// the lines across the y axis; on a polar plane they are the spokes.
// Direction 2 (tangential) exchanges the axes: the lines through the ticks
// of the first axis, the rings of a polar plane.
//
// Lines and stripes take their looks from lists that cycle: the element at
// index i takes, from each list, the entry i modulo the list's length.
// Elements of one look are drawn as one shape, so that a grid of thousands
// of lines is a few shapes on its layer.
#pragma once

#include <array>
#include <map>
#include <memory>
#include <new>
#include <ostream>
#include <vector>

#include "furniture/vxGridPlane.h"
#include "settings/vxErrorHolder.h"

namespace Velarix {

class vxAssign;
class vxBasicPaint;
class vxColorOLD;
class vxGObjectOLD;
class vxLayer;
class vxPath2DOLD;
class vxUserSettings;

class vxGridItem : public vxErrorHolder {
public:
    enum Direction : short { kRadial = 1, kTangential = 2 };
    enum Order : short { kMajor = 1, kMinor = 2 };
    enum Shape : short { kNoShape = 0, kRect = 1, kPolygon = 2, kOval = 3 };

    // `className` is a literal that outlives the item.
    vxGridItem(const wchar_t* className, vxUserSettings* owner, short planeIndex, short direction,
               short order);
    ~vxGridItem() override;

    virtual void setDefaults() = 0;
    // Puts the item's shapes for the plane in a shape of the grid (1 rect,
    // 2 polygon, 3 oval) on the layer; false on an error. A plane without
    // room draws nothing.
    bool add(vxLayer& layer, const vxGridPlane& plane, short shape);

    short getPlaneIndex() const { return planeIndex; }
    short getGridDirection() const { return gridDirection; }
    short getGridOrder() const { return gridOrder; }

    // A device position of a line along x or y such that the line covers
    // whole pixels: an odd width centred on a pixel, an even one on the
    // edge between two, and the pixels within [low, high] where they fit,
    // so that lines on the edges of a plane stay on it.
    static float alignLine(float position, float width, float low, float high);
    // The ends of a line (x1, y1, x2, y2) that runs along x or y, aligned
    // within `extent` (left, top, right, bottom); other lines stay.
    static void alignLine(float line[4], float width, const float extent[4]);
    // The rectangle that holds a Cartesian plane.
    static void getExtent(const vxGridRectPlane& plane, float extent[4]);
    // Edges of fills lie between pixels.
    static float alignEdge(float position);

    virtual void dump(short depth, std::ostream& out) const;

protected:
    virtual bool setUpRects(vxLayer& layer, const vxGridRectPlane& plane) = 0;
    virtual bool setUpOvals(vxLayer& layer, const vxGridPolarPlane& plane) = 0;
    virtual bool setUpPolygons(vxLayer& layer, const vxGridPolarPlane& plane) = 0;

    // The axis the item's lines run along (0 or 1), and the other one,
    // whose ticks place them.
    int alongAxis() const { return gridDirection == kTangential ? 1 : 0; }
    int acrossAxis() const { return 1 - alongAxis(); }

    // ---- the lists of looks ----------------------------------------------
    // Which entry of each list (at most three) element i takes.
    virtual std::array<long, 3> lookKey(long index) const = 0;
    // Gives a new shape the look of element i; false, with the error
    // taken over, when it fails.
    virtual bool applyLook(vxGObjectOLD& shape, long index) = 0;
    // The colours from the argument offset on, one paint each; a colour
    // left empty is the default one. False (error 5000) when memory runs
    // out; an empty list leaves `paints` empty.
    bool readColors(vxAssign& assign, std::vector<std::unique_ptr<vxBasicPaint>>& paints);
    // Pattern numbers from the argument offset on; an empty one is solid.
    bool readPatterns(vxAssign& assign, std::vector<short>& patterns);
    // The colour of the order when the script gave none: 136 for major
    // parts, 221 for minor ones.
    vxColorOLD defaultColor() const;
    // A paint of the default colour, as the only entry of `paints`.
    bool setDefaultPaints(std::vector<std::unique_ptr<vxBasicPaint>>& paints);
    // The paint of element i: entry i of the colours with entry i of the
    // patterns; null when memory runs out.
    std::unique_ptr<vxBasicPaint> paintAt(const std::vector<std::unique_ptr<vxBasicPaint>>& paints,
                                          const std::vector<short>& patterns, long index) const;

    // ---- polar outlines (vxGridItemPolar.cpp) -----------------------------
    // Rings of the polygon shape are polygons with their corners on the
    // major spokes: the corners' angles, from 0 up to a full turn, each
    // once. Empty for ovals, and for fewer than three spokes, whose rings
    // are ovals too.
    static std::vector<float> cornerAngles(const vxGridPolarPlane& plane, bool polygonShape);
    // The point at `angle` on the ring of `radius`: on its polygon, or on
    // its oval when `corners` is empty.
    static void outlinePoint(const vxGridPolarPlane& plane, const std::vector<float>& corners,
                             float angle, float radius, float point[2]);
    // A closed ring of `radius`, clockwise or, `reversed`, the other way.
    static void addRing(vxPath2DOLD& path, const vxGridPolarPlane& plane,
                        const std::vector<float>& corners, float radius, bool reversed);
    // The band between two rings, one path under the even-odd rule.
    static void addBand(vxPath2DOLD& path, const vxGridPolarPlane& plane,
                        const std::vector<float>& corners, float radius1, float radius2);
    // The piece of the band between two radii from angle `from` clockwise
    // to `to`; a piece of no angle adds nothing.
    static void addWedge(vxPath2DOLD& path, const vxGridPolarPlane& plane,
                         const std::vector<float>& corners, float from, float to, float inner,
                         float outer);

    // The shapes of one item, one per look.
    template <class Shape>
    struct LookGroups {
        std::map<std::array<long, 3>, size_t> byLook;
        std::vector<std::unique_ptr<Shape>> shapes;
    };
    // The shape of element i's look, made on first use; null on an error.
    template <class Shape>
    Shape* shapeFor(LookGroups<Shape>& groups, long index) {
        const std::array<long, 3> key = lookKey(index);
        const auto found = groups.byLook.find(key);
        if (found != groups.byLook.end()) return groups.shapes[found->second].get();
        try {
            groups.shapes.push_back(std::make_unique<Shape>(owner));
            groups.byLook.emplace(key, groups.shapes.size() - 1);
        } catch (const std::bad_alloc&) {
            setError(vxErrRuntime::kOutOfMemory, where(L"add"));
            return nullptr;
        }
        Shape* shape = groups.shapes.back().get();
        return applyLook(*shape, index) ? shape : nullptr;
    }
    // Hands the shapes that show something to the layer.
    template <class Shape>
    bool handOver(vxLayer& layer, LookGroups<Shape>& groups) {
        for (auto& shape : groups.shapes) {
            if (!handOverShape(layer, std::move(shape))) return false;
        }
        groups.shapes.clear();
        groups.byLook.clear();
        return true;
    }
    bool handOverShape(vxLayer& layer, std::unique_ptr<vxGObjectOLD> shape);
    // Takes the error of a part and answers false.
    bool takeError(const vxErrorHolder& part);

    vxUserSettings* owner;
    short planeIndex;
    short gridDirection;
    short gridOrder;
};

}  // namespace Velarix
