#include "charts/vxChartShapes.h"

#include "graphics/vxBasicStroke.h"
#include "graphics/vxGObjectAppearanceOLD.h"
#include "graphics/vxGObjectOLD.h"
#include "graphics/vxPaintOLD.h"
#include "graphics/vxPath2DOLD.h"

namespace Velarix {

namespace {

constexpr short kRoundJoin = 2;
constexpr short kRoundCap = 3;

}  // namespace

void vxApplyLook(vxGObjectOLD& shape, const vxBaseChart::Look& look, float darkening, bool isFace) {
    vxGObjectAppearanceOLD& appearance = *shape.getAppearance();
    if (look.fill) {
        std::unique_ptr<vxPaintOLD> fill = look.fill->clone();
        if (darkening > 0.0f) fill->darken(darkening);
        appearance.setFillPaint(*fill);
    }
    if (!look.border || !look.stroke) return;
    std::unique_ptr<vxPaintOLD> border = look.border->clone();
    if (darkening > 0.0f) border->darken(darkening);
    appearance.setBorderPaint(*border);
    auto* basic = dynamic_cast<const vxBasicStroke*>(look.stroke);
    if (isFace && basic) {
        std::unique_ptr<vxStrokeOLD> stroke = basic->clone();
        auto* faceStroke = static_cast<vxBasicStroke*>(stroke.get());
        faceStroke->setLineJoin(kRoundJoin);
        faceStroke->setLineCap(kRoundCap);
        appearance.setBorderStroke(*faceStroke);
    } else {
        appearance.setBorderStroke(*look.stroke);
    }
}

std::unique_ptr<vxPath2DOLD> vxMakeLookedPolygon(const float* x, const float* y, const int* corners,
                                                 int n, const vxBaseChart::Look& look,
                                                 float darkening, bool isFace) {
    auto path = std::make_unique<vxPath2DOLD>();
    for (int i = 0; i < n; ++i) {
        const int k = corners ? corners[i] : i;
        if (i == 0) {
            path->moveTo(x[k], y[k]);
        } else {
            path->lineTo(x[k], y[k]);
        }
    }
    path->close();
    vxApplyLook(*path, look, darkening, isFace);
    return path;
}

}  // namespace Velarix
