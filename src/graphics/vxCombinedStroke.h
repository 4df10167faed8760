// A line drawn as several basic strokes laid over each other, for example
// a wide light line under a thin dark one. It draws when any of them does.
#pragma once

#include <memory>
#include <ostream>
#include <vector>

#include "graphics/vxBasicStroke.h"
#include "graphics/vxStrokeOLD.h"

namespace Velarix {

class vxCombinedStroke : public vxStrokeOLD {
public:
    vxCombinedStroke();
    ~vxCombinedStroke() override;

    short getType() const override { return kOther; }
    bool isZeroWidth() const override;

    // Adds a copy; false, with nothing added, when memory runs out.
    bool addStroke(const vxBasicStroke& stroke);
    void clearStrokes() { strokes.clear(); }
    long getNumOfStrokes() const { return static_cast<long>(strokes.size()); }
    const vxBasicStroke* getStroke(long index) const;  // null out of range

    std::unique_ptr<vxStrokeOLD> clone() const override;

protected:
    void resetFields() override;
    void copyFields(const vxAppearance& from) override;
    void dumpFields(short depth, std::ostream& out) const override;

private:
    std::vector<std::unique_ptr<vxBasicStroke>> strokes;
};

}  // namespace Velarix
