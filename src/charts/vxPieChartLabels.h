// The labels of a pie: outer labels beside the slices, inner labels on
// them and one label in the centre, with their looks and their places.
//
// Outer labels take their look and texts from the series' label style; by
// default they stand off the arc at their slice's middle, by
// `outerLabelOffset` (percent of the radius when relative). With aux lines
// they stand in a column on each side of the pie, `auxLineHLength` beyond
// it, and a line runs from the slice's arc out by `auxLineExtLength` and
// across to the label. Either way the labels of a side are spread apart,
// from the one nearest the pie's middle height up and down, so that no two
// overlap; they keep within the bounds while there is room.
//
// Inner labels lie on their slices, `innerLabelOffset` inside the arc (in a
// ring no nearer the hole than their own half extent), with the texts of
// PieChartInnerLabelTexts. The centre label stands in the middle of the
// pie, moved by its offsets.
//
// PieChartOptions chooses the value labels: 0 none, 1 outer (the default),
// 2 inner, 3 both. PieChartLabelOptions gives percent mode (labels show and
// test a slice's share in percent) and the range of what is labelled.
// PieChartInnerLabelOptions gives the inner and the outer offset.
#pragma once

#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "settings/vxErrorHolder.h"

namespace Velarix {

class vxAssign;
class vxAuxiliaryLine2D;
class vxLabel;
class vxUserSettings;

class vxPieChartLabels : public vxErrorHolder {
public:
    enum Kind : short { kNoLabels = 0, kOuterLabels = 1, kInnerLabels = 2, kBothLabels = 3 };
    // Where a label stands on its aux line.
    enum Alignment : short { kAboveLine = 1, kOnLine = 2, kBelowLine = 3 };

    // The pie the labels are placed at: the ellipse of its top, its depth,
    // the share of its hole, and the bounds labels keep within.
    struct Pie {
        float cx = 0.0f, cy = 0.0f, rx = 0.0f, ry = 0.0f;
        float depth = 0.0f;
        float innerFraction = 0.0f;
        float bounds[4] = {};
    };
    // One labelled slice: its middle angle in degrees and the move of its
    // explode.
    struct Slice {
        float midAngle = 0.0f;
        float offset[2] = {};
    };

    explicit vxPieChartLabels(vxUserSettings* owner);
    ~vxPieChartLabels() override;

    // Any of the label calls of the pie, by the call's function.
    void assign(vxAssign& assign);

    // labelFlags[i]: slice i shows its value labels, its value (its share
    // in percent mode) lying in the range.
    void setUpLabelFlags(const std::vector<double>& values, double total);
    bool showsLabel(long slice) const;
    // What a label of the value shows: the value, or its share in percent.
    double labelValue(double value, double total) const;
    bool doShowOuterLabels() const { return (kind & kOuterLabels) != 0; }
    bool doShowInnerLabels() const { return (kind & kInnerLabels) != 0; }
    bool hasAuxLines() const { return auxLines; }
    // The format of slice i's inner label; empty for none.
    const std::wstring& getInnerLabelText(long slice) const;
    const std::wstring& getCenterLabelText() const { return centerText; }
    const vxLabel* getInnerLabel() const { return innerLabel.get(); }
    const vxLabel* getCenterLabel() const { return centerLabel.get(); }

    // The room the outer labels of the given sizes (width, height pairs)
    // take beside a pie of half width `radius`: across and up and down.
    void getOuterRoom(const std::vector<float>& sizes, float radius, float room[2]) const;

    void placeOuterLabels(const std::vector<vxLabel*>& labels, const std::vector<Slice>& slices,
                          const Pie& pie);
    void placeInnerLabels(const std::vector<vxLabel*>& labels, const std::vector<Slice>& slices,
                          const Pie& pie) const;
    void placeCenterLabel(vxLabel& label, const Pie& pie) const;

    // Spreads boxes along one axis so that no two overlap: `tops` are their
    // ideal starts in ascending order, `heights` their extents. From box
    // `start` on, each box above it keeps its place unless it would
    // overlap the one below, and then moves just clear of it by `gap`; the
    // same downward. A run that leaves [upper, lower] is moved back in as
    // far as the room allows; where there is no room the boxes overflow
    // below, still apart.
    static void spreadApart(std::vector<float>& tops, const std::vector<float>& heights, float gap,
                            float upper, float lower, size_t start);

    void dump(short depth, std::ostream& out) const;

private:
    bool createLabels();
    void assignStyle(vxLabel& label, vxAssign& a);
    void assignAuxLines(vxAssign& a);
    void assignTexts(vxAssign& a);
    // Places the labels of one side (right or left of the pie).
    void placeSide(const std::vector<vxLabel*>& labels, const std::vector<Slice>& slices,
                   const Pie& pie, bool right);
    void placeBeside(vxLabel& label, const Slice& slice, const Pie& pie, bool right,
                     float box[4]) const;
    void addAuxLine(vxLabel& label, const Slice& slice, const Pie& pie, bool right,
                    const float box[4]);
    // A point of the pie's rim at an angle, `grow` beyond it, moved by the
    // slice's explode, below the wall when it is on the near side.
    void rimPoint(const Slice& slice, const Pie& pie, float grow, float point[2]) const;
    float relative(float value, bool isRelative, float base) const;

    vxUserSettings* owner;  // not owned
    short kind = kOuterLabels;
    bool percentMode = false;
    double lowerLimit, upperLimit;
    std::vector<std::wstring> outerLabelTexts;
    std::vector<std::wstring> innerLabelTexts;
    std::wstring centerText;
    std::vector<short> labelFlags;
    std::vector<short> indexFlags;
    bool useRelativeLimits = false;
    bool useRelativeOuterLabelOffset = true;
    bool useRelativeInnerLabelOffset = true;
    float outerLabelOffset = 5.0f;
    float innerLabelOffset = 5.0f;
    float centerLabelHOffset = 0.0f;
    float centerLabelVOffset = 0.0f;
    bool auxLines = false;
    float auxLineHLength = 10.0f;
    float auxLineExtLength = 5.0f;
    float auxLineLabelGap = 10.0f;
    float auxLineLabelOffset = 0.0f;
    short auxLineAlignment = kOnLine;
    bool useRelativeAuxLineHLength = true;
    bool useRelativeAuxLineExtLength = false;
    bool useRelativeAuxLineLabelGap = true;
    bool useRelativeAuxLineLabelOffset = false;
    std::unique_ptr<vxLabel> innerLabel;
    std::unique_ptr<vxLabel> centerLabel;
    std::unique_ptr<vxAuxiliaryLine2D> auxLine;
    float bounds[4] = {};
};

}  // namespace Velarix
