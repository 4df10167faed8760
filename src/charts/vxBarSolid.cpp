#include "charts/vxBarSolid.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "charts/vxBarSolidFrame.h"
#include "charts/vxBarSolidProfile.h"
#include "charts/vxChartShapes.h"
#include "graphics/vxBasicPaint.h"
#include "graphics/vxColorOLD.h"
#include "graphics/vxGObjectAppearanceOLD.h"
#include "graphics/vxLinearGradient.h"
#include "graphics/vxPath2DOLD.h"
#include "styles/vxBarStyle.h"

namespace Velarix {

namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr float kSeenEndDarkening = 0.13f;
constexpr float kHiddenEndDarkening = 0.25f;
// Stops of a cylinder's shading, one every 15 degrees of its visible half.
constexpr int kShadingStops = 12;

using Path = std::unique_ptr<vxPath2DOLD>;

struct Face {
    Path path;
    double nearness;
};

// The faces of one solid, sorted into the groups they are painted in.
struct Faces {
    std::vector<Face> hidden;
    std::vector<Face> seen;
    Path seenEnd;
};

// The outward normal in the profile of the edge from corner i to the next.
void edgeNormal(const vxBarSolidProfile& p, int i, double& nu, double& nw) {
    const int j = (i + 1) % p.size();
    nu = double(p.getW(j)) - p.getW(i);
    nw = double(p.getU(i)) - p.getU(j);
}

void addPrismSides(const vxBarSolidFrame& frame, const vxBarSolidProfile& p,
                   const vxBaseChart::Look& look, bool all, Faces& faces) {
    for (int i = 0; i < p.size(); ++i) {
        const int j = (i + 1) % p.size();
        double nu, nw;
        edgeNormal(p, i, nu, nw);
        const bool seen = frame.facing(nu, nw, 0.0) > 0.0;
        if (!seen && !all) continue;
        float x[4], y[4];
        frame.point(p.getU(i), p.getW(i), 0.0, x[0], y[0]);
        frame.point(p.getU(j), p.getW(j), 0.0, x[1], y[1]);
        frame.point(p.getU(j), p.getW(j), 1.0, x[2], y[2]);
        frame.point(p.getU(i), p.getW(i), 1.0, x[3], y[3]);
        Face face{
            vxMakeLookedPolygon(x, y, nullptr, 4, look, frame.sideDarkening(nu, nw), true),
            frame.nearness(0.5 * (p.getU(i) + p.getU(j)), 0.5 * (p.getW(i) + p.getW(j)), 0.5)};
        (seen ? faces.seen : faces.hidden).push_back(std::move(face));
    }
}

// The base (h 0) and the far end (h 1).
void addEnds(const vxBarSolidFrame& frame, const vxBarSolidProfile& p,
             const vxBaseChart::Look& look, bool all, Faces& faces) {
    std::vector<float> x(size_t(p.size())), y(size_t(p.size()));
    for (const double h : {0.0, 1.0}) {
        const bool seen = frame.facing(0.0, 0.0, h > 0.5 ? 1.0 : -1.0) > 0.0;
        if (!seen && !all) continue;
        for (int i = 0; i < p.size(); ++i) frame.point(p.getU(i), p.getW(i), h, x[i], y[i]);
        Path end = vxMakeLookedPolygon(x.data(), y.data(), nullptr, p.size(), look,
                                       seen ? kSeenEndDarkening : kHiddenEndDarkening, true);
        if (seen) {
            faces.seenEnd = std::move(end);
        } else {
            faces.hidden.push_back({std::move(end), frame.nearness(0.5, 0.5, h)});
        }
    }
}

// Half the mantle of a cylinder, from angle `from` of the oval through a
// half turn: along the base, up the far silhouette line, back along the
// far end.
Path halfMantle(const vxBarSolidFrame& frame, double from, const vxBaseChart::Look& look) {
    constexpr int k = vxBarSolidProfile::kOvalPoints / 2;
    std::vector<float> x(2 * (k + 1)), y(2 * (k + 1));
    for (int i = 0; i <= k; ++i) {
        float u, w;
        vxBarSolidProfile::ovalPoint(from + kPi * i / k, u, w);
        frame.point(u, w, 0.0, x[size_t(i)], y[size_t(i)]);
        frame.point(u, w, 1.0, x[size_t(2 * k + 1 - i)], y[size_t(2 * k + 1 - i)]);
    }
    const double mid = from + kPi / 2.0;
    return vxMakeLookedPolygon(x.data(), y.data(), nullptr, int(x.size()), look,
                               frame.sideDarkening(std::cos(mid), std::sin(mid)), true);
}

// Shades the seen half of a cylinder from `from` across the drawing's x (y
// for bars along x), each stop darkened as a flat side of the same turn.
// The gradient's bands run along the bar; under a tilt the axis of a bar
// along x leans, and its bands lean a little less.
void shadeMantle(vxPath2DOLD& mantle, const vxBarSolidFrame& frame, double from,
                 const vxBaseChart::Look& look) {
    const auto* plain = dynamic_cast<const vxBasicPaint*>(look.fill);
    if (!plain || plain->isNone() || plain->hasPattern() || !plain->getColor()) return;
    const bool acrossX = frame.isUpright();
    const std::vector<float>& along = acrossX ? mantle.getX() : mantle.getY();
    const auto [lo, hi] = std::minmax_element(along.begin(), along.end());
    if (*hi - *lo < 1e-3f) return;
    vxLinearGradient shading;
    shading.setP1(acrossX ? 0.0f : 0.5f, acrossX ? 0.5f : 0.0f);
    shading.setP2(acrossX ? 1.0f : 0.5f, acrossX ? 0.5f : 1.0f);
    for (int i = 0; i <= kShadingStops; ++i) {
        const double a = from + kPi * i / kShadingStops;
        float u, w, x, y;
        vxBarSolidProfile::ovalPoint(a, u, w);
        frame.point(u, w, 0.5, x, y);
        vxColorOLD color(*plain->getColor());
        color.darken(frame.sideDarkening(std::cos(a), std::sin(a)));
        const float offset = ((acrossX ? x : y) - *lo) / (*hi - *lo);
        shading.addColor(color, std::clamp(offset, 0.0f, 1.0f));
    }
    mantle.getAppearance()->setFillPaint(shading);
}

void addCylinderSides(const vxBarSolidFrame& frame, const vxBaseChart::Look& look, bool all,
                      Faces& faces) {
    const double view = frame.viewAngle();
    if (all) {
        const double back = view + kPi / 2.0;
        faces.hidden.push_back({halfMantle(frame, back, look), frame.nearness(0.5, 0.5, 0.5)});
    }
    const double front = view - kPi / 2.0;
    Path mantle = halfMantle(frame, front, look);
    shadeMantle(*mantle, frame, front, look);
    faces.seen.push_back({std::move(mantle), frame.nearness(0.5, 0.5, 0.5)});
}

// A face whose look could not be copied lacks memory as much as one not
// made at all.
void checkLook(const Path& path) {
    if (path && path->getAppearance()->isError()) throw std::bad_alloc();
}

void paintInOrder(Faces& faces, std::vector<std::unique_ptr<vxGObjectOLD>>& out) {
    for (const std::vector<Face>* group : {&faces.hidden, &faces.seen}) {
        for (const Face& face : *group) checkLook(face.path);
    }
    checkLook(faces.seenEnd);
    const auto fromBack = [](const Face& a, const Face& b) { return a.nearness < b.nearness; };
    std::stable_sort(faces.hidden.begin(), faces.hidden.end(), fromBack);
    std::stable_sort(faces.seen.begin(), faces.seen.end(), fromBack);
    for (std::vector<Face>* group : {&faces.hidden, &faces.seen}) {
        for (Face& face : *group) out.push_back(std::move(face.path));
    }
    if (faces.seenEnd) out.push_back(std::move(faces.seenEnd));
}

double turn(const float* o, const float* a, const float* b) {
    return (double(a[0]) - o[0]) * (double(b[1]) - o[1]) -
           (double(a[1]) - o[1]) * (double(b[0]) - o[0]);
}

// The convex hull of the points by the monotone chain, counter-clockwise
// on the drawing's axes; points on its edges are left out.
std::vector<std::array<float, 2>> hullOf(std::vector<std::array<float, 2>> points) {
    std::sort(points.begin(), points.end());
    points.erase(std::unique(points.begin(), points.end()), points.end());
    if (points.size() < 3) return points;
    std::vector<std::array<float, 2>> hull(2 * points.size());
    size_t k = 0;
    for (int pass = 0; pass < 2; ++pass) {
        const size_t floor = k + 2;
        for (const auto& p : points) {
            while (k >= floor && turn(hull[k - 2].data(), hull[k - 1].data(), p.data()) <= 0.0) --k;
            hull[k++] = p;
        }
        --k;  // each chain's last point starts the other
        std::reverse(points.begin(), points.end());
    }
    hull.resize(k);
    return hull;
}

}  // namespace

bool vxBarSolid::addFaces(std::vector<std::unique_ptr<vxGObjectOLD>>& out, const float rect[4],
                          short direction, const vxBarStyle& style, const vxBaseChart::Look& look,
                          const vxBaseChartDepthInfo& depth) {
    try {
        const vxBarSolidFrame frame(rect, direction, depth);
        const vxBarSolidProfile profile(style.getBarShape(), style.getProfileAngle());
        const bool all = !(look.fill && look.fill->isOpaque());
        Faces faces;
        if (profile.isRound()) {
            addCylinderSides(frame, look, all, faces);
        } else {
            addPrismSides(frame, profile, look, all, faces);
        }
        addEnds(frame, profile, look, all, faces);
        paintInOrder(faces, out);
        return true;
    } catch (const std::bad_alloc&) {
        return false;
    }
}

// A prism's silhouette is the hull of its two ends.
std::unique_ptr<vxPath2DOLD> vxBarSolid::outline(const float rect[4], short direction,
                                                 const vxBarStyle& style,
                                                 const vxBaseChartDepthInfo& depth) {
    try {
        const vxBarSolidFrame frame(rect, direction, depth);
        const vxBarSolidProfile profile(style.getBarShape(), style.getProfileAngle());
        std::vector<std::array<float, 2>> points;
        points.reserve(2 * size_t(profile.size()));
        for (int i = 0; i < profile.size(); ++i) {
            for (const double h : {0.0, 1.0}) {
                std::array<float, 2> p;
                frame.point(profile.getU(i), profile.getW(i), h, p[0], p[1]);
                points.push_back(p);
            }
        }
        const std::vector<std::array<float, 2>> hull = hullOf(std::move(points));
        auto path = std::make_unique<vxPath2DOLD>();
        for (size_t i = 0; i < hull.size(); ++i) {
            if (i == 0) {
                path->moveTo(hull[i][0], hull[i][1]);
            } else {
                path->lineTo(hull[i][0], hull[i][1]);
            }
        }
        path->close();
        return path;
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

}  // namespace Velarix
