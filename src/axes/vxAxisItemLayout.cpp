// Scaling an axis for its frame and placing its parts.
#include <algorithm>
#include <cmath>

#include "Utilities/Sources/vxDateTime.h"
#include "axes/vxAxisItem.h"
#include "axes/vxAxisLabel.h"
#include "axes/vxAxisScaling.h"
#include "axes/vxAxisTickMarkLabels.h"
#include "axes/vxAxisTickMarks.h"
#include "drawing/vxLayer.h"
#include "graphics/vxBoundsUnion.h"
#include "graphics/vxLine2DOLD.h"
#include "graphics/vxStrokeOLD.h"
#include "settings/vxFormatSettings.h"
#include "settings/vxUserSettings.h"

namespace Velarix {

namespace {

long decimalDigits(double count) {
    long digits = 1;
    for (double c = std::fabs(count); c >= 10.0 && digits < 20; c /= 10.0) ++digits;
    return digits;
}

}  // namespace

void vxAxisItem::setUpHScaling(const float frame[4], double min, double max, bool countAll,
                               bool hasDate, bool hasTime, short chartKind,
                               bool isBarOrAreaDateTime) {
    setUpScaling(frame, true, min, max, countAll, hasDate, hasTime, chartKind, isBarOrAreaDateTime);
}

void vxAxisItem::setUpVScaling(const float frame[4], double min, double max, bool countAll,
                               bool hasDate, bool hasTime, short chartKind,
                               bool isBarOrAreaDateTime) {
    setUpScaling(frame, false, min, max, countAll, hasDate, hasTime, chartKind,
                 isBarOrAreaDateTime);
}

void vxAxisItem::setUpScaling(const float frame[4], bool horizontal, double min, double max,
                              bool countAll, bool hasDate, bool hasTime, short chartKind,
                              bool isBarOrAreaDateTime) {
    if (!scaling) return;
    const float length = horizontal ? frame[2] - frame[0] : frame[3] - frame[1];
    if (!(length >= 1.0f)) {
        return setError(vxErrChart::kScaling,
                        where(horizontal ? L"setUpHScaling" : L"setUpVScaling"));
    }
    geometry.horizontal = horizontal;
    geometry.start = horizontal ? frame[0] : frame[3];
    geometry.end = horizontal ? frame[2] : frame[1];
    scaling->setMaxNumOfMajorIntervals(maxNumOfMajorIntervals(length, min, max, countAll));
    scaling->setUseIntegersOnly(axisType == vxAxisScaling::kCategoryAxis ||
                                scaling->getUseIntegersOnly());
    scaling->setMinDC(geometry.start);
    scaling->setMaxDC(geometry.end);
    if (axisType == vxAxisScaling::kDateTimeAxis) {
        const vxFormatSettings* formats = owner ? owner->getFormatSettings() : nullptr;
        if (formats) scaling->setWeekStartIndex(formats->getWeekStartIndex());
        scaling->setHasDateComponents(hasDate);
        scaling->setHasTimeComponents(hasTime);
        scaling->setIsBarOrAreaDateTimeChart(isBarOrAreaDateTime);
        min = vxDateTime::toPlainDays(min);
        max = vxDateTime::toPlainDays(max);
    }
    scaling->setMinDataUC(min);
    scaling->setMaxDataUC(max);
    scaling->setUp(chartKind, axisType);
    takeScalingError();
}

// The most major intervals the axis has room for.
long vxAxisItem::maxNumOfMajorIntervals(float length, double min, double max, bool countAll) const {
    const double categories = std::fabs(max - min) + 1.0;
    if (axisType == vxAxisScaling::kValueAxis) return std::max(1L, long(length / 24.0f));
    if (axisType == vxAxisScaling::kDateTimeAxis) return std::max(25L, long(length / 24.0f));
    if (countAll) return long(std::min(categories, 1.0e6));
    if (std::fabs(phi) < 0.01745f) {
        if (length > 12.0 * categories) return long(std::min(categories, 1.0e6));
        return std::max(1L, long(length / 12.0f));
    }
    const double d = double(decimalDigits(categories));
    if (length > 5.0 * categories * (d + 1.0)) return long(std::min(categories, 1.0e6));
    return std::max(1L, long(length / (5.0 * (d + 1.0))));
}

// The values of the tick lists are in the units of the scale: percent
// values on a percent scale, which map evenly, and plain days on a date
// axis, where the mapping takes dates in their stored form.
void vxAxisItem::tickPositions(const std::vector<double>& values, std::vector<float>& out) const {
    if (scaling->isPercent()) return percentPositions(values, out);
    if (axisType != vxAxisScaling::kDateTimeAxis) return scaling->toDC(values, out);
    std::vector<double> stored;
    stored.reserve(values.size());
    for (double day : values) stored.push_back(vxDateTime::toStoredForm(day));
    scaling->toDC(stored, out);
}

void vxAxisItem::setUpTickMarks(const float plot[4], float across) {
    (void)plot;
    if (!scaling || isError()) return;
    geometry.across = across;
    // The axis stands under or beside the plot; its outside is away from
    // the plot's centre.
    const float centre =
        geometry.horizontal ? (plot[1] + plot[3]) * 0.5f : (plot[0] + plot[2]) * 0.5f;
    geometry.outward = across >= centre ? 1.0f : -1.0f;
    const float from[2] = {geometry.start, geometry.end};
    if (geometry.horizontal) {
        axisLine->set(from[0], across, from[1], across);
    } else {
        axisLine->set(across, from[0], across, from[1]);
    }
    std::vector<float> positions;
    try {
        for (short order = 1; order <= 2; ++order) {
            vxAxisTickMarks* marks = getTickMarks(order);
            tickPositions(order == 1 ? scaling->getMajorValues() : scaling->getMinorValues(),
                          positions);
            if (!isShown()) positions.clear();
            marks->setUp(positions, across, -geometry.outward, geometry.horizontal);
            if (!takePartError(marks)) return;
        }
    } catch (const std::bad_alloc&) {
        return setError(vxErrRuntime::kOutOfMemory, where(L"setUpTickMarks"));
    }
    geometry.marksOutward =
        std::max(majorTicks->getOutwardExtent(), minorTicks->getOutwardExtent());
    const auto inward = [](const vxAxisTickMarks& m) {
        return m.isVisible() ? m.getLength() - m.getOutwardExtent() : 0.0f;
    };
    geometry.marksInward = std::max(inward(*majorTicks), inward(*minorTicks));
}

void vxAxisItem::setUpLabels(const vxFormatSettings* settings) {
    if (!scaling || isError()) return;
    std::vector<float> positions;
    vxAxisGeometry place = geometry;
    try {
        // The minor labels first: the major ones stand beyond their row.
        for (short order = 2; order >= 1; --order) {
            vxAxisTickMarkLabels* labels = getTickMarkLabels(order);
            if (order == 1 && !categoryValues.empty()) {
                labels->storeCategoryValues(*scaling, categoryValues);
            } else {
                labels->storeScalingValues(*scaling);
            }
            if (order == 1 && !categoryValues.empty() && categoryShift != 0.0) {
                std::vector<double> places = labels->getValues();
                for (double& place : places) place += categoryShift;
                tickPositions(places, positions);
            } else {
                tickPositions(labels->getValues(), positions);
            }
            if (!isShown()) positions.clear();
            labels->setUpLabels(*scaling, axisType, settings, positions, place);
            if (!takePartError(labels)) return;
            if (order == 2) rowBeyondMinorLabels(place);
        }
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"setUpLabels"));
    }
}

// The title stands beyond the line, the marks and the labels; only its
// distance from the plot counts, so the room is as long as the plot.
void vxAxisItem::placeTitle(const float plot[4]) {
    if (!axisLabel || !axisLabel->hasText() || !isShown()) return;
    axisLabel->setUp(axisIndex, geometry.horizontal);
    float outer[4];
    bool any = false;
    float part[4];
    getAxisEnds(part);
    const float line[4] = {std::min(part[0], part[2]), std::min(part[1], part[3]),
                           std::max(part[0], part[2]), std::max(part[1], part[3])};
    vxUniteBounds(outer, line, any);
    for (short order = 1; order <= 2; ++order) {
        if (getTickMarks(order)->getBounds(part)) vxUniteBounds(outer, part, any);
        if (getTickMarkLabels(order)->getBounds(part)) vxUniteBounds(outer, part, any);
    }
    if (geometry.horizontal) {
        outer[0] = plot[0];
        outer[2] = plot[2];
    } else {
        outer[1] = plot[1];
        outer[3] = plot[3];
    }
    axisLabel->place(outer, plot, geometry);
}

bool vxAxisItem::getBounds(float bounds[4]) const {
    if (!scaling || !isShown()) return false;
    bool any = false;
    float part[4];
    getAxisEnds(part);
    const vxStrokeOLD* stroke = axisLine->getBorderStroke();
    const float half = stroke && axisLine->hasBorder() ? stroke->getLineWidth() * 0.5f : 0.0f;
    const float line[4] = {std::min(part[0], part[2]) - half, std::min(part[1], part[3]) - half,
                           std::max(part[0], part[2]) + half, std::max(part[1], part[3]) + half};
    vxUniteBounds(bounds, line, any);
    for (short order = 1; order <= 2; ++order) {
        if (getTickMarks(order)->getBounds(part)) vxUniteBounds(bounds, part, any);
        if (getTickMarkLabels(order)->getBounds(part)) vxUniteBounds(bounds, part, any);
    }
    if (axisLabel->getBounds(part)) vxUniteBounds(bounds, part, any);
    return any;
}

bool vxAxisItem::addTo(vxLayer& layer) const {
    if (!scaling || !isShown()) return true;
    if (axisLine->hasBorder() && !layer.addShape(axisLine.get())) return false;
    for (short order = 2; order >= 1; --order) {
        if (!getTickMarks(order)->addTo(layer)) return false;
    }
    for (short order = 2; order >= 1; --order) {
        if (!getTickMarkLabels(order)->addTo(layer)) return false;
    }
    return axisLabel->addTo(layer);
}

void vxAxisItem::getAxisEnds(float ends[4]) const {
    ends[0] = axisLine->getX1();
    ends[1] = axisLine->getY1();
    ends[2] = axisLine->getX2();
    ends[3] = axisLine->getY2();
}

bool vxAxisItem::getTickPoint(long index, float point[2]) const {
    if (!scaling || index < 0 || index >= scaling->getNumOfMajorValues()) return false;
    std::vector<float> along;
    tickPositions({scaling->getMajorValue(index)}, along);
    if (along.empty()) return false;
    point[0] = geometry.horizontal ? along[0] : geometry.across;
    point[1] = geometry.horizontal ? geometry.across : along[0];
    return true;
}

void vxAxisItem::getTickPositions(short order, std::vector<float>& positions) const {
    positions.clear();
    if (!scaling) return;
    tickPositions(order == 2 ? scaling->getMinorValues() : scaling->getMajorValues(), positions);
}

// The room the minor labels take across the axis, with the gap the major
// labels keep to them.
void vxAxisItem::rowBeyondMinorLabels(vxAxisGeometry& place) const {
    float box[4];
    if (!minorLabels->getBounds(box)) return;
    const float across = geometry.horizontal ? box[3] - box[1] : box[2] - box[0];
    const float row = across + minorLabels->getGapDC();
    if (minorLabels->getLocation() == vxAxisGeometry::kIn) {
        place.labelsInward = row;
    } else if (minorLabels->getLocation() == vxAxisGeometry::kOut) {
        place.labelsOutward = row;
    }
}

void vxAxisItem::percentPositions(const std::vector<double>& values,
                                  std::vector<float>& out) const {
    const vxAxisScaling& s = *scaling;
    const double span = s.getMaxUC() - s.getMinUC();
    const double factor = span != 0.0 ? double(s.getMaxDC() - s.getMinDC()) / span : 0.0;
    out.clear();
    for (double p : values) {
        const double d = factor * (p - s.getMinUC());
        out.push_back(float(s.getDoReverseScaling() ? s.getMaxDC() - d : s.getMinDC() + d));
    }
}

long vxAxisItem::getNumOfMajorTicks() const {
    return scaling ? scaling->getNumOfMajorValues() : 0;
}

long vxAxisItem::getNumOfMinorTicks() const {
    return scaling ? scaling->getNumOfMinorValues() : 0;
}

float vxAxisItem::toDC(double value) const {
    return scaling ? scaling->toDC(value) : 0.0f;
}

}  // namespace Velarix
