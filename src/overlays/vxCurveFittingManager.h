// The curve fits of one chart. The script's calls are kept as requests:
// CurveFitting(series; type) asks for a fit of a series, or of every series
// ("all"), and the type "none" takes back what was asked for the series.
// A new request copies the options and styles of the default item, which
// calls for all series and type "none" change. CurveFittingOptions and the
// two style calls go to the requests of their series and type ("all": of
// that type in every series); a call for one series of an "all" request
// makes that series a request of its own first.
//
// At set-up the requests become one item per fitted series, in the order
// of the series, and every item computes its coefficients; the first
// failure stops the chart.
#pragma once

#include <memory>
#include <ostream>
#include <vector>

#include "settings/vxErrorHolder.h"

namespace Velarix {

class vxAssign;
class vxBaseChart;
class vxCurveFittingData;
class vxCurveFittingItem;
class vxDataManager;
class vxLayer;
class vxLayerManager;
class vxShadowOLD;
class vxUserSettings;

class vxCurveFittingManager : public vxErrorHolder {
public:
    explicit vxCurveFittingManager(vxUserSettings* owner);
    ~vxCurveFittingManager() override;

    // No requests and a default of type linear with the default styles.
    void setDefaults();
    // A call of the curve-fitting group. Series "stacked" is error 1120.
    void assign(vxAssign& assign);
    long getNumOfRequests() const { return static_cast<long>(requests.size()); }

    // Makes the items and fits them; once only.
    void setUp(const vxDataManager& data);
    bool isSetUp() const { return setUpDone; }
    long getNumOfItems() const { return static_cast<long>(items.size()); }
    // Null out of range.
    const vxCurveFittingItem* getItem(long index) const;

    // The curves and marks of chart series `series` (from 0), on a line
    // and a symbol layer of that subtype.
    void addCurveFitting(vxLayerManager& layerMng, const vxBaseChart& chart, long series);
    // The curves of the series moved by the shadow and in its paint.
    void addCurveFittingShadow(vxLayerManager& layerMng, const vxBaseChart& chart, long series,
                               const vxShadowOLD& shadow);
    // Widens the limits of the axes (min and max per axis, x first) for the
    // extrapolated curves.
    void getYLimits(std::vector<double>& minValues, std::vector<double>& maxValues) const;
    // Adds the results of every fitted item under the chart's index.
    void addResults(vxCurveFittingData& data, long chartIndex);

    void dump(short depth, std::ostream& out) const;

private:
    using ItemList = std::vector<std::unique_ptr<vxCurveFittingItem>>;

    // False for a number that is no fit type.
    bool addCurveFitting(long series, short type);
    void removeCurveFittings(long series);
    // The requests a call for (series, type) goes to; a call for one
    // series of an "all" request splits it off first.
    std::vector<vxCurveFittingItem*> selectRequests(long series, short type);
    vxCurveFittingItem* findRequest(long series, short type) const;
    vxCurveFittingItem* addRequest(long series, short type, const vxCurveFittingItem& base);
    bool assignTo(vxCurveFittingItem& item, long function, vxAssign& assign);
    void raiseOutOfRange(const vxAssign& assign, const wchar_t* method);
    bool makeItems(long numOfSeries);
    // Hands a layer over unless it holds only its clip.
    void handOver(vxLayerManager& layerMng, std::unique_ptr<vxLayer> layer);
    bool takeError(const vxErrorHolder& from);

    vxUserSettings* owner;
    std::unique_ptr<vxCurveFittingItem> defaultItem;
    ItemList requests;
    ItemList items;
    // Series that "none" took out of the "all" requests.
    std::vector<long> excluded;
    bool setUpDone = false;
};

}  // namespace Velarix
