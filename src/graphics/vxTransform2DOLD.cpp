#include "graphics/vxTransform2DOLD.h"

#include <algorithm>
#include <cmath>

namespace Velarix {

void vxTransform2DOLD::setIdentity() {
    *this = vxTransform2DOLD();
}

void vxTransform2DOLD::updateType() {
    const bool linearIsIdentity = m00 == 1.0f && m01 == 0.0f && m10 == 0.0f && m11 == 1.0f;
    if (!linearIsIdentity) {
        type = kGeneral;
    } else {
        type = (m02 == 0.0f && m12 == 0.0f) ? kIdentity : kTranslation;
    }
}

void vxTransform2DOLD::concatenate(const vxTransform2DOLD& n) {
    vxTransform2DOLD r;
    r.m00 = n.m00 * m00 + n.m01 * m10;
    r.m01 = n.m00 * m01 + n.m01 * m11;
    r.m02 = n.m00 * m02 + n.m01 * m12 + n.m02;
    r.m10 = n.m10 * m00 + n.m11 * m10;
    r.m11 = n.m10 * m01 + n.m11 * m11;
    r.m12 = n.m10 * m02 + n.m11 * m12 + n.m12;
    *this = r;
    updateType();
}

void vxTransform2DOLD::translate(float dx, float dy) {
    vxTransform2DOLD t;
    t.m02 = dx;
    t.m12 = dy;
    concatenate(t);
}

void vxTransform2DOLD::scale(float sx, float sy) {
    vxTransform2DOLD t;
    t.m00 = sx;
    t.m11 = sy;
    concatenate(t);
}

void vxTransform2DOLD::rotate(float angle) {
    if (std::fabs(angle) <= 1e-10f) return;
    vxTransform2DOLD t;
    const float c = std::cos(angle);
    const float s = std::sin(angle);
    t.m00 = c;
    t.m01 = -s;
    t.m10 = s;
    t.m11 = c;
    concatenate(t);
}

void vxTransform2DOLD::rotate(float angle, float x, float y) {
    if (std::fabs(angle) <= 1e-10f) return;
    translate(-x, -y);
    rotate(angle);
    translate(x, y);
}

void vxTransform2DOLD::transform(float& x, float& y) const {
    if (type == kIdentity) return;
    const float tx = m00 * x + m01 * y + m02;
    const float ty = m10 * x + m11 * y + m12;
    x = tx;
    y = ty;
}

void vxTransform2DOLD::transform(std::vector<float>& x, std::vector<float>& y) const {
    if (type == kIdentity) return;
    const size_t n = std::min(x.size(), y.size());
    for (size_t i = 0; i < n; ++i) transform(x[i], y[i]);
}

}  // namespace Velarix
