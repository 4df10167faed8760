// Scales set up as a value axis of 300 device units would set them up.
#pragma once

#include <cmath>
#include <limits>
#include <memory>
#include <string>

#include "axes/vxAxisScaling.h"
#include "settings/vxError.h"

namespace Velarix {

constexpr double kNone = std::numeric_limits<double>::quiet_NaN();

struct vxScaleSpec {
    short type = vxAxisScaling::kLinear;
    double minData = 0.0, maxData = 0.0;
    double min = kNone, max = kNone;  // predefined limits
    long count = 0, minor = 0, maxN = 12;
    bool equidistant = false, integers = false;
    double basis = 0.0;  // base or power; 0 for the default
};

inline std::unique_ptr<vxAxisScaling> vxMakeScale(const vxScaleSpec& s, short dataType = 2) {
    auto scale = std::make_unique<vxAxisScaling>();
    scale->setType(s.type);
    scale->setMinDataUC(s.minData);
    scale->setMaxDataUC(s.maxData);
    scale->setOrigHasPredefinedMinUC(!std::isnan(s.min));
    scale->setOrigMinUC(std::isnan(s.min) ? 0.0 : s.min);
    scale->setOrigHasPredefinedMaxUC(!std::isnan(s.max));
    scale->setOrigMaxUC(std::isnan(s.max) ? 0.0 : s.max);
    scale->setOrigNumOfMajorIntervals(s.count);
    scale->setOrigNumOfMinorIntervals(s.minor);
    scale->setMaxNumOfMajorIntervals(s.maxN);
    scale->setUseEquidistantLogScaling(s.equidistant);
    scale->setUseIntegersOnly(s.integers);
    if (s.basis != 0.0)
        (s.type == vxAxisScaling::kPower ? scale->setPower(s.basis) : scale->setBase(s.basis));
    scale->setMinDC(0.0f);
    scale->setMaxDC(300.0f);
    scale->setUp(1, dataType);
    return scale;
}

// "" without an error, else the location of the error.
inline std::wstring vxErrorAt(const vxAxisScaling& scale) {
    if (!scale.isError()) return L"";
    return std::to_wstring(scale.getError()->getErrorCode()) + L" " +
           scale.getError()->getLocation();
}

}  // namespace Velarix
