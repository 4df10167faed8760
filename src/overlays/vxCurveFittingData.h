// The results of the curve fits of one drawing, kept for the host to read
// back after the run: one item per fitted series, found by the chart's
// index, the series' index (one-based) and the fit type.
#pragma once

#include <ostream>
#include <vector>

#include "settings/vxErrorHolder.h"

namespace Velarix {

struct vxCurveFittingDataItem {
    long chartIndex = 0;
    long seriesIndex = 0;
    short type = 0;
    double corrCoefficient = 0.0;
    long numOfCoefficients = 0;
    double c[11] = {};
};

class vxCurveFittingData : public vxErrorHolder {
public:
    vxCurveFittingData();
    ~vxCurveFittingData() override;

    virtual void clear();
    virtual bool isEmpty() const { return items.empty(); }
    virtual void copy(const vxCurveFittingData* from);
    // Error 5000 at "/addItem/1" when the store can't grow.
    bool addItem(const vxCurveFittingDataItem& item);
    long getNumOfItems() const { return static_cast<long>(items.size()); }
    const vxCurveFittingDataItem& getItem(long index) const { return items[index]; }
    // The fit of a chart's series by type; null when the run made none.
    const vxCurveFittingDataItem* find(long chartIndex, long seriesIndex, short type) const;
    // The number of coefficients, or coefficient `index`; 0 for a fit the
    // run didn't make or an index out of range.
    double getNumOfCoefficients(long chartIndex, long seriesIndex, short type) const;
    double getCoefficient(long chartIndex, long seriesIndex, short type, long index) const;
    virtual void dump(short depth, std::ostream& out) const;

private:
    std::vector<vxCurveFittingDataItem> items;
};

}  // namespace Velarix
