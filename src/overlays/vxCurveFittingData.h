// The results of the curve fits of one drawing, kept for the host to read
// back after the run.
#pragma once

#include <ostream>

#include "settings/vxErrorHolder.h"

namespace Velarix {

class vxCurveFittingData : public vxErrorHolder {
public:
    vxCurveFittingData();
    ~vxCurveFittingData() override;

    virtual void clear() {}
    virtual bool isEmpty() const { return true; }
    virtual void copy(const vxCurveFittingData* from);
    virtual void dump(short depth, std::ostream& out) const;
};

}  // namespace Velarix
