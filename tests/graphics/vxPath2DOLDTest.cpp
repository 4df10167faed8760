// Building a path verb by verb, copying and appending paths, the script's
// verb and point lists, and what a path draws.
#include <gtest/gtest.h>

#include "graphics/vxBasicPaint.h"
#include "graphics/vxGObjectAppearanceOLD.h"
#include "graphics/vxLineShape.h"
#include "graphics/vxPathTestSupport.h"
#include "graphics/vxShadowOLD.h"
#include "graphics/vxTransform2DOLD.h"
#include "output/vxSVGTestSupport.h"
#include "script/vxAssign.h"
#include "support/vxRecordingDevice.h"

namespace Velarix::test {
namespace {

TEST(vxPath2DOLD, MoveToKeepsOneMoveAndSkipsTheCurrentPoint) {
    vxPath2DOLD path;
    path.moveTo(1, 2);
    path.moveTo(3, 4);
    EXPECT_EQ(path.getVerbs(), (Verbs{2}));
    EXPECT_TRUE(hasPoints(path, {{3, 4}}));

    path.lineTo(10, 4);
    path.moveTo(10.0005f, 4);  // the current point: no new subpath
    EXPECT_EQ(path.getVerbs(), (Verbs{2, 3}));
    EXPECT_EQ(path.getStartIndex(), 1);
    path.moveTo(20, 20);
    EXPECT_EQ(path.getVerbs(), (Verbs{2, 3, 2}));
    EXPECT_EQ(path.getStartIndex(), 2);

    // After a close the current point is the subpath's start, and a move
    // there adds nothing.
    path.lineTo(30, 20);
    path.close();
    path.close();
    path.moveTo(20, 20);
    EXPECT_EQ(path.getVerbs(), (Verbs{2, 3, 2, 3, 1}));
    path.relLineTo(0, 5);
    EXPECT_TRUE(hasPoints(path, {{3, 4}, {10, 4}, {20, 20}, {30, 20}, {20, 25}}));

    vxPath2DOLD curve;  // a path starts at the origin
    curve.cubicTo(1, 2, 3, 4, 5, 6);
    EXPECT_EQ(curve.getVerbs(), (Verbs{2, 5}));
    EXPECT_TRUE(hasPoints(curve, {{0, 0}, {1, 2}, {3, 4}, {5, 6}}));
}

TEST(vxPath2DOLD, SmoothCurvesMirrorTheLastControlPoint) {
    vxPath2DOLD path;
    path.moveTo(0, 0);
    path.smoothCubicTo(5, 10, 10, 10);  // after a move: the current point
    path.smoothCubicTo(20, 0, 30, 10);
    path.smoothQuadTo(50, 10);  // mirrors the cubic's second control point
    path.lineTo(60, 10);
    path.smoothQuadTo(70, 0);  // after a line: the current point
    EXPECT_EQ(path.getVerbs(), (Verbs{2, 5, 5, 4, 3, 4}));
    EXPECT_TRUE(hasPoints(path, {{0, 0},
                                 {0, 0},
                                 {5, 10},
                                 {10, 10},
                                 {15, 10},
                                 {20, 0},
                                 {30, 10},
                                 {40, 20},
                                 {50, 10},
                                 {60, 10},
                                 {60, 10},
                                 {70, 0}}));
}

TEST(vxPath2DOLD, RelativeFormsStartFromTheCurrentPoint) {
    vxPath2DOLD path;
    path.relMoveTo(10, 10);
    path.hLineTo(30);
    path.relVLineTo(-10);
    path.relCubicTo(1, 0, 2, 1, 3, 3);
    path.close();
    path.relHLineTo(-4);  // from the start of the closed subpath
    EXPECT_EQ(path.getVerbs(), (Verbs{2, 3, 3, 5, 1, 3}));
    EXPECT_TRUE(hasPoints(path, {{10, 10}, {30, 10}, {30, 0}, {31, 0}, {32, 1}, {33, 3}, {6, 10}}));
}

TEST(vxPath2DOLD, BoundsTakeAllPointsAndFollowTransforms) {
    vxPath2DOLD path;
    EXPECT_EQ(boundsOf(path), (std::vector<float>{0, 0, 0, 0}));
    path.moveTo(10, 10);
    path.cubicTo(0, 40, 50, -20, 30, 10);  // control points count too
    EXPECT_EQ(boundsOf(path), (std::vector<float>{0, -20, 50, 40}));
    path.shift(5.0f, 5.0f);
    EXPECT_EQ(boundsOf(path), (std::vector<float>{5, -15, 55, 45}));
    path.setWidth(100);
    EXPECT_EQ(boundsOf(path), (std::vector<float>{5, -15, 105, 45}));
    path.flip(2, 0, 0);
    EXPECT_EQ(boundsOf(path), (std::vector<float>{5, -45, 105, 15}));
    path.clear();
    EXPECT_TRUE(path.isEmpty());
    EXPECT_EQ(boundsOf(path), (std::vector<float>{0, 0, 0, 0}));
}

TEST(vxPath2DOLD, AddPathAndCopy) {
    vxPath2DOLD a, b;
    a.addRect(0, 0, 10, 10);
    b.moveTo(5, 5);
    b.addPath(a);
    EXPECT_EQ(b.getX(), a.getX());  // the move to the rectangle replaced 5, 5
    // Appended to itself the second rectangle starts where the closed one
    // left the current point, so it needs no move.
    b.addPath(b);
    EXPECT_EQ(b.getVerbs(), (Verbs{2, 3, 3, 3, 1, 3, 3, 3, 1}));
    EXPECT_EQ(b.getNumOfPoints(), 7);

    a.setWindingRule(vxPath2DOLD::kEvenOdd);
    a.getAppearance()->setFillPaint(vxBasicPaint(255, 0, 0));
    vxPath2DOLD c;
    c.copy(&a);
    EXPECT_EQ(c.getVerbs(), a.getVerbs());
    EXPECT_EQ(c.getX(), a.getX());
    EXPECT_EQ(c.getWindingRule(), vxPath2DOLD::kEvenOdd);
    EXPECT_TRUE(c.hasFill());
    c.copy(nullptr);
    EXPECT_TRUE(c.isEmpty());
    EXPECT_FALSE(c.hasFill());
    EXPECT_EQ(c.getWindingRule(), vxPath2DOLD::kNonZero);

    // A path grown piece by piece moves its points a few dozen times, not
    // once a piece.
    vxPath2DOLD many;
    int moves = 0;
    const float* points = nullptr;
    for (int i = 0; i < 10000; ++i) {
        many.addPath(a);
        if (many.getX().data() != points) ++moves;
        points = many.getX().data();
    }
    EXPECT_EQ(many.getNumOfPoints(), 30001);  // each rectangle starts where the last ended
    EXPECT_LT(moves, 40);
}

TEST(vxPath2DOLD, VerbListReadsUntilAnIncompleteOrUnknownCommand) {
    vxPath2DOLD path;
    path.addVerbList({2, 0, 0, 3, 10, 0, 4, 10, 10, 0, 10, 5, 1, 2, 3, 4, 5, 6, 1, 3, 9});
    EXPECT_EQ(path.getVerbs(), (Verbs{2, 3, 4, 5, 1}));
    EXPECT_TRUE(hasPoints(path, {{0, 0}, {10, 0}, {10, 10}, {0, 10}, {1, 2}, {3, 4}, {5, 6}}));

    vxPath2DOLD unknown;
    unknown.addVerbList({2, 1, 1, 7, 3, 5, 5});
    EXPECT_EQ(unknown.getVerbs(), (Verbs{2}));
    vxPath2DOLD short_;
    short_.addVerbList({2, 1});
    EXPECT_TRUE(short_.isEmpty());
}

// The layout code, then the numbers, read at the argument offset.
std::unique_ptr<vxAssign> pointList(short layout, const std::vector<float>& numbers) {
    auto assign = std::make_unique<vxAssign>();
    assign->addShort(layout);
    assign->addFloatArray(numbers);
    assign->addShort(99);
    return assign;
}

TEST(vxPath2DOLD, AssignPathReadsPointListsOfEachLayout) {
    vxPath2DOLD polygon;
    auto separate = pointList(vxPath2DOLD::kLayoutSeparate, {0, 10, 10, 0, 0, 10});
    EXPECT_TRUE(polygon.assignPath(vxPath2DOLD::kAssignPolygon, *separate));
    EXPECT_EQ(separate->getArgumentOffset(), 2);
    EXPECT_EQ(separate->getShort(0), 99);
    EXPECT_EQ(polygon.getVerbs(), (Verbs{2, 3, 3, 1}));
    EXPECT_TRUE(hasPoints(polygon, {{0, 0}, {10, 0}, {10, 10}}));

    vxPath2DOLD polyline;
    auto pairs = pointList(vxPath2DOLD::kLayoutInterleaved, {0, 0, 10, 0, 10, 10});
    polyline.assignPath(vxPath2DOLD::kAssignPolyline, *pairs);
    EXPECT_EQ(polyline.getVerbs(), (Verbs{2, 3, 3}));
    EXPECT_EQ(polyline.getX(), polygon.getX());
    EXPECT_EQ(polyline.getY(), polygon.getY());

    // Smooth shapes need three points, the others two.
    vxPath2DOLD smooth;
    smooth.assignPath(vxPath2DOLD::kAssignSmoothOpen, *pointList(2, {0, 0, 10, 10}));
    EXPECT_TRUE(smooth.isEmpty());
    smooth.assignPath(vxPath2DOLD::kAssignSmoothClosed, *pointList(2, {0, 0, 10, 0, 10, 10}));
    EXPECT_EQ(smooth.getVerbs(), (Verbs{2, 5, 5, 5, 1}));
    vxPath2DOLD step;
    step.assignPath(vxPath2DOLD::kAssignStep, *pointList(2, {0, 0}));
    EXPECT_TRUE(step.isEmpty());
    step.assignPath(vxPath2DOLD::kAssignStep, *pointList(2, {0, 0, 10, 10}));
    EXPECT_TRUE(hasPoints(step, {{0, 0}, {5, 0}, {5, 10}, {10, 10}}));
    vxPath2DOLD jump;
    jump.assignPath(vxPath2DOLD::kAssignJump, *pointList(2, {0, 0, 10, 10}));
    EXPECT_EQ(jump.getVerbs(), (Verbs{2, 3, 2, 3}));
    EXPECT_TRUE(hasPoints(jump, {{0, 0}, {5, 0}, {5, 10}, {10, 10}}));
}

TEST(vxPath2DOLD, AssignPathReadsAMultigonFromItsNumbers) {
    vxPath2DOLD square;
    square.assignPath(vxPath2DOLD::kAssignMultigon, *pointList(2, {4, 90, 50, 50, 10}));
    EXPECT_EQ(square.getVerbs(), (Verbs{2, 3, 3, 3, 1}));
    EXPECT_TRUE(hasPoints(square, {{60, 50}, {50, 60}, {40, 50}, {50, 40}}, 1e-3f));
    vxPath2DOLD tooFew;
    tooFew.assignPath(vxPath2DOLD::kAssignMultigon, *pointList(2, {4, 0, 50, 50}));
    EXPECT_TRUE(tooFew.isEmpty());
}

TEST(vxPath2DOLD, LineShapesPickTheirBuilder) {
    const std::vector<float> xs = {0, 10, 20}, ys = {0, 10, 0};
    vxLineShape shape;
    auto build = [&](short type) {
        shape.setType(type);
        vxPath2DOLD path;
        path.addLineShape(xs, ys, 1, 2, shape, vxPath2DOLD::kHorizontal);
        return path.getVerbs();
    };
    EXPECT_EQ(build(vxLineShape::kNone), Verbs{});
    EXPECT_EQ(build(vxLineShape::kStraight), (Verbs{2, 3}));
    EXPECT_EQ(build(vxLineShape::kStep), (Verbs{2, 3, 3, 3}));
    EXPECT_EQ(build(vxLineShape::kJump), (Verbs{2, 3, 2, 3}));
    EXPECT_EQ(build(vxLineShape::kSmooth), (Verbs{2, 3}));
}

// ---- drawing ------------------------------------------------------------------

TEST(vxPath2DOLD, DrawsThroughThePathOperations) {
    vxPath2DOLD path;
    path.addRect(10, 10, 60, 40);
    path.getAppearance()->setFillPaint(vxBasicPaint(255, 0, 0));
    path.getAppearance()->setBorderPaint(vxBasicPaint(0, 0, 0));
    path.getAppearance()->shadowPart();
    vxRecordingDevice recorder;
    path.draw(recorder);
    EXPECT_EQ(recorder.calls,
              (std::vector<std::string>{"fill path shadow", "path shadow", "fill path", "path"}));

    auto device = openDevice();
    path.getAppearance()->shadowPart()->setShow(false);
    path.getAppearance()->setBorderStroke(*plainStroke());
    path.setWindingRule(vxPath2DOLD::kEvenOdd);
    path.draw(*device);
    EXPECT_EQ(bodyOf(*device),
              "<path\n"
              "\td=\"M 10 10 H 60 V 40 H 10 Z\" \n"
              "\tstyle=\"fill: #ff0000; fill-rule: evenodd; \" />\n"
              "\n"
              "<path\n"
              "\td=\"M 10 10 H 60 V 40 H 10 Z\" \n"
              "\tstyle=\"stroke: #000000; fill: none;\" />\n"
              "\n");
}

}  // namespace
}  // namespace Velarix::test
