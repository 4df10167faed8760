// The geometry a grid is drawn on: one plane of a chart with its two axes.
//
// A Cartesian plane is the parallelogram of two straight axes that cross.
// Each axis is the segment it spans with its ticks, given as distances
// from the segment's start toward its end. A grid line runs parallel to
// one axis, as long as it, through a tick of the other; a plane of a chart
// with depth has the depth as one of its axes, a segment without ticks.
//
// A polar plane is a centre with spokes and rings: the ticks of the
// angular axis are the angles of spokes (radians, 0 at twelve o'clock,
// growing clockwise, as paths take them), those of the radial axis radii.
#pragma once

#include <cmath>
#include <vector>

namespace Velarix {

struct vxGridAxis {
    float ends[4] = {};  // x1, y1, x2, y2
    std::vector<float> major;
    std::vector<float> minor;

    // Order 2 the minor ticks, otherwise the major ones.
    const std::vector<float>& ticks(short order) const { return order == 2 ? minor : major; }
    float length() const { return std::hypot(ends[2] - ends[0], ends[3] - ends[1]); }
    // The point `distance` along the axis from its start.
    void pointAt(float distance, float point[2]) const {
        const float l = length();
        const float f = l > 0.0f ? distance / l : 0.0f;
        point[0] = ends[0] + f * (ends[2] - ends[0]);
        point[1] = ends[1] + f * (ends[3] - ends[1]);
    }
};

struct vxGridRectPlane {
    vxGridAxis axes[2];
    // Where the lines of the two axes meet.
    float crossing[2] = {};
};

struct vxGridPolarPlane {
    float centre[2] = {};
    // The y radius of the outlines over their x radius: 1 for circles.
    float yRatio = 1.0f;
    // The spokes run from the inner radius to the outer one.
    float innerRadius = 0.0f;
    float outerRadius = 0.0f;
    std::vector<float> majorAngles;
    std::vector<float> minorAngles;
    std::vector<float> majorRadii;
    std::vector<float> minorRadii;

    const std::vector<float>& angles(short order) const {
        return order == 2 ? minorAngles : majorAngles;
    }
    const std::vector<float>& radii(short order) const {
        return order == 2 ? minorRadii : majorRadii;
    }
    // The point at `angle` on the outline of `radius`.
    void pointAt(float angle, float radius, float point[2]) const {
        point[0] = centre[0] + std::sin(angle) * radius;
        point[1] = centre[1] - std::cos(angle) * radius * yRatio;
    }
};

// A plane of either kind: grids of rectangles take the Cartesian part,
// grids of polygons and ovals the polar part.
struct vxGridPlane {
    vxGridRectPlane rect;
    vxGridPolarPlane polar;
};

}  // namespace Velarix
