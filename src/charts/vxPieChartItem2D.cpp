#include "charts/vxPieChartItem2D.h"

#include "charts/vxChartShapes.h"
#include "graphics/vxGObjectAppearanceOLD.h"
#include "graphics/vxPath2DOLD.h"

namespace Velarix {

bool vxPieChartItem2D::addShapes(Shapes& out, const vxBaseChart::Look& look) const {
    try {
        std::unique_ptr<vxPath2DOLD> path = makeSilhouette();
        vxApplyLook(*path, look);
        if (path->isError() || path->getAppearance()->isError()) return false;
        out.push_back(std::move(path));
        return true;
    } catch (const std::bad_alloc&) {
        return false;
    }
}

std::unique_ptr<vxPath2DOLD> vxPieChartItem2D::makeSilhouette() const {
    auto path = std::make_unique<vxPath2DOLD>();
    outline(*path);
    return path;
}

}  // namespace Velarix
