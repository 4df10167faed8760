// A line drawn as a wave. It has no fields of its own and answers the
// default line queries.
#pragma once

#include <memory>

#include "graphics/vxStrokeOLD.h"

namespace Velarix {

class vxWaveStroke : public vxStrokeOLD {
public:
    vxWaveStroke();
    ~vxWaveStroke() override;

    short getType() const override { return kOther; }
    bool isZeroWidth() const override { return getLineWidth() <= kMinWidth; }

    std::unique_ptr<vxStrokeOLD> clone() const override;

protected:
    void resetFields() override {}
    void copyFields(const vxAppearance&) override {}
};

}  // namespace Velarix
