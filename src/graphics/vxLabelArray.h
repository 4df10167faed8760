// A list of labels, as the points of a series or the items of an axis have
// them. The array owns its labels and draws them in order: the shadows of
// all labels first, then their bodies, so that no shadow falls on a label.
//
// Its bounds are the union of the bounds of its labels, zero when it has
// none; every geometric change is passed on to each label.
#pragma once

#include <memory>
#include <ostream>
#include <vector>

#include "graphics/vxGObjectOLD.h"

namespace Velarix {

class vxLabel;

class vxLabelArray : public vxGObjectOLD {
public:
    explicit vxLabelArray(vxUserSettings* owner = nullptr);
    ~vxLabelArray() override;
    vxLabelArray(const vxLabelArray&) = delete;
    vxLabelArray& operator=(const vxLabelArray&) = delete;

    short getType() const override { return kTypeLabelArray; }
    // When the array is visible: each label's step in order, stopping at
    // the first label that reports an error.
    void drawShadow(vxDevice& device) override;
    void drawBody(vxDevice& device) override;

    using vxGObjectOLD::flip;
    using vxGObjectOLD::rotate;
    void rotate(float angle, float x, float y) override;
    void flip(short mode, float x, float y) override;
    void transform(const vxTransform2DOLD& transform);

    long getNumOfLabels() const { return static_cast<long>(labels.size()); }
    // Null for an index out of range. A label handed out for change marks
    // the bounds for recalculation.
    vxLabel* getLabel(long index);
    const vxLabel* getLabel(long index) const;
    // A new label: a copy of the last one, or one with the defaults when
    // the array is empty. Null, with error 5000 at "vxLabelArray/addLabel/1",
    // when memory runs out.
    vxLabel* addLabel();
    // A copy of `from`; error 5000 at "vxLabelArray/addLabel/2".
    vxLabel* addLabel(const vxLabel& from);
    void removeAll();

    void setDefaults() override;
    // Resets, then takes state, appearance and copies of the labels of
    // `from`; null only resets.
    bool set(const vxLabelArray* from);
    void dump(short depth, std::ostream& out) const override;

protected:
    void transformGeometry(const vxTransform2DOLD& transform) override;
    void calculateBounds(float bounds[4]) const override;

private:
    vxLabel* append(const vxLabel* from, int number);

    std::vector<std::unique_ptr<vxLabel>> labels;
};

}  // namespace Velarix
