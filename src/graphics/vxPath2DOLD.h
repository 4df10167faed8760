// A free outline of straight and curved pieces: verbs with their points.
//
// Verb codes, the same as in the device interface, and the points each
// takes: 1 close (none), 2 move (1), 3 line (1), 4 quadratic (2), 5 cubic
// (3). x and y hold the points of all verbs in order.
//
// Line charts get their smooth, stepped and jumping curves here; the
// script's Add functions get rectangles, ovals, arcs, slices and free paths.
//
// Angles of the shape builders are radians, 0 at twelve o'clock and growing
// clockwise: a point at angle a on the ellipse of radii rx, ry about cx, cy
// is (cx + sin(a) rx, cy - cos(a) ry).
#pragma once

#include <ostream>
#include <vector>

#include "graphics/vxGObject2D.h"

namespace Velarix {

class vxAssign;
class vxLineShape;
class vxTransform2DOLD;

class vxPath2DOLD : public vxGObject2D {
public:
    enum Verb : short { kClose = 1, kMove = 2, kLine = 3, kQuad = 4, kCubic = 5 };
    enum WindingRule : short { kEvenOdd = 1, kNonZero = 2 };
    // Orientation of steps and jumps: 1 the flat pieces run along x, 2 along y.
    enum Orientation : short { kHorizontal = 1, kVertical = 2 };
    // Shapes that assignPath reads from a script's point list.
    enum AssignKind : short {
        kAssignPolygon = 1,
        kAssignSmoothClosed = 2,
        kAssignSmoothOpen = 3,
        kAssignStep = 4,
        kAssignJump = 5,
        kAssignMultigon = 6,
        kAssignPolyline = 7,
    };
    // Layout of a script's point list: all x then all y, or x, y pairs.
    enum PointLayout : short { kLayoutSeparate = 1, kLayoutInterleaved = 2 };

    explicit vxPath2DOLD(vxUserSettings* owner = nullptr);
    ~vxPath2DOLD() override;

    short getType() const override { return kTypePath; }

    // ---- building: verbs -------------------------------------------------
    // A move right after a move replaces that move's point; a move to the
    // current point is left out.
    void moveTo(float x, float y);
    // On an empty path these start with moveTo(0, 0).
    void lineTo(float x, float y);
    void quadTo(float x1, float y1, float x2, float y2);
    void cubicTo(float x1, float y1, float x2, float y2, float x3, float y3);
    // The first control point is the last control point mirrored through
    // the current point when the last verb is a curve, else the current
    // point itself.
    void smoothQuadTo(float x2, float y2);
    void smoothCubicTo(float x2, float y2, float x3, float y3);
    void hLineTo(float x);
    void vLineTo(float y);
    // Ends the current subpath; the current point goes back to its start.
    void close();

    // The same, with every point relative to the current point.
    void relMoveTo(float dx, float dy);
    void relLineTo(float dx, float dy);
    void relQuadTo(float dx1, float dy1, float dx2, float dy2);
    void relCubicTo(float dx1, float dy1, float dx2, float dy2, float dx3, float dy3);
    void relSmoothQuadTo(float dx2, float dy2);
    void relSmoothCubicTo(float dx2, float dy2, float dx3, float dy3);
    void relHLineTo(float dx);
    void relVLineTo(float dy);

    // An elliptic arc in the manner of SVG from the current point to x, y:
    // radii, rotation of the x axis (radians), which of the four arcs.
    // Ends too close together, radii below 0.0001 and very small arcs draw
    // nothing; radii too small to reach the end are enlarged.
    void arcTo(float rx, float ry, float rotation, bool largeArc, bool sweep, float x, float y);
    void relArcTo(float rx, float ry, float rotation, bool largeArc, bool sweep, float dx,
                  float dy);

    // ---- building: whole figures -----------------------------------------
    // Compound operations report a failed allocation as error 5000 and
    // leave what was built so far.

    void addPolygon(const std::vector<float>& xs, const std::vector<float>& ys, bool doClose);
    void addPolygon(const std::vector<float>& xs, const std::vector<float>& ys, long start,
                    long count, bool doClose);

    // A cubic spline through the points (at least two), from a fixed table
    // of coefficients. First and last point within 0.001 of each other make
    // the curve closed. Fewer than three distinct points give one straight
    // segment. Tension scales the tangents.
    void addSmoothPolygon(const std::vector<float>& xs, const std::vector<float>& ys, bool doClose,
                          float tension = 1.0f);
    void addSmoothPolygon(const std::vector<float>& xs, const std::vector<float>& ys, long start,
                          long count, bool doClose, float tension = 1.0f);

    // Steps between the points: along the orientation to the step position
    // (a fraction of the gap), then across to the next point. The outdents
    // reach past the first and last point by that fraction of the first and
    // last gap, never beyond the first and last step. A lone point gets a
    // horizontal line, whatever the orientation, from x - startOutdent to
    // x + endOutdent (the outdents as distances, each at least 0).
    void addStepPolygon(const std::vector<float>& xs, const std::vector<float>& ys,
                        short orientation, float startOutdent, float endOutdent,
                        float stepPosition);
    void addStepPolygon(const std::vector<float>& xs, const std::vector<float>& ys, long start,
                        long count, short orientation, float startOutdent, float endOutdent,
                        float stepPosition);

    // A separate flat piece through each point, reaching back by
    // (1 - shiftFactor) * lengthFactor of the gap to the previous point and
    // forward by shiftFactor * lengthFactor of the gap to the next; the outer
    // ends of the first and last piece follow the outdents as with steps.
    // Each piece, one of no length too, starts with a move; a lone point is
    // drawn as with steps.
    void addJumpPolygon(const std::vector<float>& xs, const std::vector<float>& ys,
                        short orientation, float startOutdent, float endOutdent, float shiftFactor,
                        float lengthFactor);
    void addJumpPolygon(const std::vector<float>& xs, const std::vector<float>& ys, long start,
                        long count, short orientation, float startOutdent, float endOutdent,
                        float shiftFactor, float lengthFactor);

    // The points from `start`, `count` of them, in the line shape of a
    // series: jump, step, straight or smooth; none adds nothing.
    void addLineShape(const std::vector<float>& xs, const std::vector<float>& ys, long start,
                      long count, const vxLineShape& shape, short orientation);

    // n corners on the ellipse, the first at startAngle. An innerRatio of 1
    // gives a polygon; another positive ratio a star, whose inner corners
    // lie innerOffset of a step after each outer one on the ellipse scaled
    // by the ratio; a ratio below 0.0001 gives spokes from the corners in
    // to the ellipse scaled by its absolute value.
    void addMultigon(long n, float startAngle, float cx, float cy, float rx, float ry,
                     float innerRatio, float innerOffset);

    // Shapes in the box left, top, right, bottom, each closed but the arc.
    void addRect(float l, float t, float r, float b);
    void addOval(float l, float t, float r, float b);
    // Corner radii are limited to half the sides; a radius of 0 gives a
    // plain rectangle.
    void addRoundRect(float l, float t, float r, float b, float rx, float ry);
    // An open arc of the box's ellipse, one cubic for each quarter turn or
    // less; a negative arcAngle runs counter-clockwise, and one of a full
    // turn or more is the whole ellipse.
    void addArc(float l, float t, float r, float b, float startAngle, float arcAngle);
    // A pie slice: centre, arc, back to the centre. With innerRatio above 0
    // a ring segment instead, whose inner edge lies on the ellipse scaled by
    // the ratio; a whole ring is two closed subpaths under the even-odd rule.
    void addSlice(float l, float t, float r, float b, float startAngle, float arcAngle,
                  float innerRatio);

    // Appends the verbs and points of another path.
    void addPath(const vxPath2DOLD& from);
    // A flat list of verb codes, each followed by its numbers (close none,
    // move and line 2, quadratic 4, cubic 6). An unknown code or a command
    // short of numbers ends the list.
    void addVerbList(const std::vector<float>& list);

    // Reads a script's point list at the argument offset: the layout code,
    // then the numbers; the offset moves past both. Smooth kinds need three
    // points and take `tension`, the others two; fewer leave the path as it
    // is. Steps and jumps take the default line shape's factors. A multigon
    // reads n (at most 10000), start angle in degrees, cx, cy, rx, [ry,
    // innerRatio, innerOffset] from the numbers. Returns false on an error.
    bool assignPath(short kind, vxAssign& assign, float tension = 1.0f);

    // ---- contents --------------------------------------------------------
    // Reserves room for this many points in all.
    void setCapacity(long numOfPoints);
    void clear();
    bool isEmpty() const { return verbs.empty(); }
    long getNumOfVerbs() const { return static_cast<long>(verbs.size()); }
    long getNumOfPoints() const { return static_cast<long>(x.size()); }
    const std::vector<short>& getVerbs() const { return verbs; }
    const std::vector<float>& getX() const { return x; }
    const std::vector<float>& getY() const { return y; }
    // The point the next verb starts from (0, 0 on an empty path).
    void getCurrentPoint(float& cx, float& cy) const;
    long getStartIndex() const { return startIndex; }

    short getWindingRule() const { return windingRule; }
    void setWindingRule(short value) { windingRule = value; }

    // Applies a map to all points.
    void transform(const vxTransform2DOLD& transform);

    // Resets and takes geometry, winding rule, state and look of `from`;
    // null only resets.
    void copy(const vxPath2DOLD* from);
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
    // The end of the range of `count` points from `start` within both lists;
    // `start` itself when the range is empty.
    static long endOfRange(long start, long count, const std::vector<float>& xs,
                           const std::vector<float>& ys);
    void append(short verb, float px, float py);
    // Adds the verbs and points through the building operations.
    void replay(const std::vector<short>& verbs, const std::vector<float>& xs,
                const std::vector<float>& ys);
    void appendPoint(float px, float py);
    // The first control point of a smooth curve.
    void reflectedControl(float& cx, float& cy) const;

    // Bodies of the compound operations, without the allocation guard.
    void buildPolygon(const std::vector<float>& xs, const std::vector<float>& ys, long start,
                      long count, bool doClose);
    void buildSmooth(const std::vector<float>& xs, const std::vector<float>& ys, long start,
                     long count, bool doClose, float tension);
    void buildSteps(const std::vector<float>& xs, const std::vector<float>& ys, long start,
                    long count, short orientation, float startOutdent, float endOutdent,
                    float stepPosition);
    void buildJumps(const std::vector<float>& xs, const std::vector<float>& ys, long start,
                    long count, short orientation, float startOutdent, float endOutdent,
                    float shiftFactor, float lengthFactor);
    void buildMultigon(long n, float startAngle, float cx, float cy, float rx, float ry,
                       float innerRatio, float innerOffset);
    // Cubics along the ellipse from angle a0 through `sweep`, each of at
    // most a quarter turn, starting at the current point.
    void arcSegments(double cx, double cy, double rx, double ry, double a0, double sweep);
    // A piece of a step or jump line: u runs along the orientation.
    void orientedMove(short orientation, float u, float v);
    // A line to where the path already is adds nothing.
    void lineToIfMoved(float px, float py);
    void orientedLine(short orientation, float u, float v);
    // The lone point of a step or jump line: a flat line through it, with
    // the outdents as distances; nothing when both are none.
    void addLonePoint(float px, float py, float startOutdent, float endOutdent);
    // n, start angle in degrees, cx, cy, rx and optionally ry, inner ratio
    // and inner offset.
    void assignMultigon(const std::vector<float>& numbers);

    short windingRule = kNonZero;
    long startIndex = 0;  // the first point of the current subpath
    std::vector<short> verbs;
    std::vector<float> x;
    std::vector<float> y;
};

}  // namespace Velarix
