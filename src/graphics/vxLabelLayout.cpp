// The size of a label's box and its placing about a point and at a bar.
#include <algorithm>
#include <cmath>

#include "graphics/vxFontOLD.h"
#include "graphics/vxLabel.h"
#include "graphics/vxPath2DOLD.h"
#include "graphics/vxStrokeOLD.h"
#include "graphics/vxText.h"
#include "graphics/vxTransform2DOLD.h"

namespace Velarix {

namespace {

// The gaps between a label and what it labels, in percent of a font
// measure: across x and across y.
constexpr float kHorizontalGap = 30.0f;
constexpr float kVerticalGap = 15.0f;

const float kFrame[4] = {0.0f, 0.0f, vxLabel::kFrameSize, vxLabel::kFrameSize};

}  // namespace

float vxLabel::fontStringHeight() const {
    return text && text->getFont() ? text->getFont()->getStringHeight() : 0.0f;
}

float vxLabel::fontSize() const {
    return text && text->getFont() ? text->getFont()->getSize() : 0.0f;
}

void vxLabel::getMargins(float m[4]) const {
    std::copy(margins, margins + 4, m);
}

void vxLabel::setMargins(float left, float top, float right, float bottom) {
    margins[0] = left;
    margins[1] = top;
    margins[2] = right;
    margins[3] = bottom;
}

void vxLabel::getMarginsDC(float m[4]) const {
    const float factor = useRelativeMargins ? 0.01f * fontStringHeight() : 1.0f;
    for (int i = 0; i < 4; ++i) m[i] = std::round(margins[i] * factor);
}

float vxLabel::getBorderWidth() const {
    if (!background) return 0.0f;
    // The border's width counts whether or not its paint shows, so that a
    // label keeps its size when only the border's colour changes. A
    // background without a stroke of its own draws with the default one.
    const vxStrokeOLD* stroke = background->getBorderStroke();
    return stroke ? stroke->getLineWidth() : 1.0f;
}

void vxLabel::getLabelBounds(float b[4]) const {
    float t[4] = {0.0f, 0.0f, 0.0f, 0.0f};
    if (useContentBounds) {
        std::copy(contentBounds, contentBounds + 4, t);
    } else if (text) {
        text->getBounds(t);
    }
    float m[4];
    getMarginsDC(m);
    const float border = getBorderWidth();
    const float halfWidth = (m[0] + m[2] + border + t[2] - t[0]) / 2.0f;
    const float halfHeight = (m[1] + m[3] + border + t[3] - t[1]) / 2.0f;
    const float cx = (t[0] + t[2]) / 2.0f, cy = (t[1] + t[3]) / 2.0f;
    b[0] = cx - halfWidth;
    b[1] = cy - halfHeight;
    b[2] = cx + halfWidth;
    b[3] = cy + halfHeight;
}

void vxLabel::getLabelSize(float size[2]) const {
    float b[4];
    getLabelBounds(b);
    size[0] = b[2] - b[0];
    size[1] = b[3] - b[1];
}

void vxLabel::setUpBackground() {
    invalidateBounds();
    if (!background) return;
    float box[4];
    getLabelBounds(box);
    if (!takeError(text.get())) return;
    if (mBackgroundShape == kGivenShape) {
        float from[4];
        background->getBounds(from);
        mapBackground(from, box);
        return;
    }
    background->clear();
    buildBackgroundShape();
    mapBackground(kFrame, box);
}

void vxLabel::mapBackground(const float from[4], const float to[4]) {
    const float w = from[2] - from[0], h = from[3] - from[1];
    vxTransform2DOLD t;
    t.translate(-from[0], -from[1]);
    t.scale(w < 0.0001f ? 1.0f : (to[2] - to[0]) / w, h < 0.0001f ? 1.0f : (to[3] - to[1]) / h);
    t.translate(to[0], to[1]);
    background->transform(t);
    invalidateBounds();
}

// ---- placing -----------------------------------------------------------------------

void vxLabel::setLocation(float left, float top) {
    float box[4];
    getLabelBounds(box);
    if (useContentBounds) {
        for (int i = 0; i < 4; ++i) contentBounds[i] += i % 2 == 0 ? left - box[0] : top - box[1];
    } else if (text) {
        text->shift(left - box[0], top - box[1]);
    }
    setUpBackground();
}

void vxLabel::setContentBounds(const float bounds[4]) {
    std::copy(bounds, bounds + 4, contentBounds);
    useContentBounds = true;
    setUpBackground();
}

bool vxLabel::setPosition(short code, const float anchor[2], const float offset[2]) {
    if (code < kTopLeft || code > kBottomRight) return false;
    float size[2];
    getLabelSize(size);
    const float h = fontStringHeight() * 0.01f * kHorizontalGap;
    const float v = fontStringHeight() * 0.01f * kVerticalGap;
    const int column = (code - 1) % 3, row = (code - 1) / 3;
    float x = anchor[0] - size[0] / 2.0f + offset[0];
    if (column == 0) x = anchor[0] - h - size[0] - offset[0];
    if (column == 2) x = anchor[0] + h + offset[0];
    float y = anchor[1] - size[1] / 2.0f + offset[1];
    if (row == 0) y = anchor[1] - v - size[1] - offset[1];
    if (row == 2) y = anchor[1] + v + offset[1];
    setLocation(x, y);
    return !isError();
}

// Along the bar the label's centre is worked out on one axis: lo and hi
// are the bar's edges on it, `grow` is +1 when the bar grows towards hi,
// `length` is the label's extent and `gap` its distance from an edge.
bool vxLabel::placeBarLabel(short location, short direction, const float rect[4],
                            const float limits[4], float gap, const float depth[2],
                            const float offset[2]) {
    if (location < kSmartBegin || location > kOut || direction < kUp || direction > kToRight) {
        return false;
    }
    float size[2];
    getLabelSize(size);
    const float gx = fontSize() * 0.01f * kHorizontalGap;
    const float gy = fontSize() * 0.01f * kVerticalGap;
    const float ox = offset[0], oy = offset[1];
    const bool isVertical = direction == kUp || direction == kDown;
    const float length = isVertical ? size[1] : size[0];
    const float inside = isVertical ? rect[3] - rect[1] - gy - oy : rect[2] - rect[0] - gx - ox;
    float outside = 0.0f;
    switch (direction) {
        case kUp:
            outside = rect[1] - limits[1] - gap - gy - oy;
            break;
        case kDown:
            outside = limits[3] - rect[3] - gap - gy - oy;
            break;
        case kToLeft:
            outside = rect[0] - limits[0] - gap - gx - ox;
            break;
        default:
            outside = limits[2] - rect[2] - gap - gx - ox;
            break;
    }

    short place = location;
    if (location <= kSmartEnd) {
        const bool staysInside = length <= inside || outside <= length;
        place = static_cast<short>(staysInside ? location + 3 : kOut);
    } else if (location == kSmartOut) {
        place = length <= outside || inside <= length ? kOut : kEnd;
    }

    const float grow = direction == kDown || direction == kToRight ? 1.0f : -1.0f;
    const float lo = isVertical ? rect[1] : rect[0];
    const float hi = isVertical ? rect[3] : rect[2];
    const float far = grow > 0.0f ? hi : lo;
    const float base = grow > 0.0f ? lo : hi;
    const float edgeGap = isVertical ? gy : gx;
    float along = (lo + hi) / 2.0f;
    switch (place) {
        case kBegin:
            along = base + grow * (edgeGap + length / 2.0f);
            break;
        case kEnd:
            along = far - grow * (edgeGap + length / 2.0f);
            break;
        case kOut:
            along = far + grow * (gap + edgeGap + length / 2.0f);
            break;
        case kEdge:
            along = far + grow * gap / 2.0f;
            break;
        default:
            break;
    }
    const float acrossLength = isVertical ? size[0] : size[1];
    const float across = isVertical ? (rect[0] + rect[2]) / 2.0f : (rect[1] + rect[3]) / 2.0f;
    float x = isVertical ? across - acrossLength / 2.0f : along - length / 2.0f;
    float y = isVertical ? along - length / 2.0f : across - acrossLength / 2.0f;

    // The front face of a 3D bar lies against the depth; beyond the far
    // ends of bars growing down or to the left it reaches past the bar.
    const bool isWithin = place == kBegin || place == kCenter || place == kEnd;
    const bool isFrontOutside = place == kOut && (direction == kDown || direction == kToLeft);
    if (isWithin || isFrontOutside) {
        x -= depth[0];
        y += depth[1];
    }
    x += isVertical ? ox : grow * ox;
    y += isVertical ? grow * oy : oy;
    setLocation(std::round(x), std::round(y));
    return !isError();
}

}  // namespace Velarix
