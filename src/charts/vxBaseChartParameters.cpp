#include "charts/vxBaseChartParameters.h"

#include <cmath>

#include "host/vxLog.h"
#include "script/vxAssign.h"

namespace Velarix {

void vxBaseChartParameters::setDefaults() {
    chartType = 0;
    coordinateSystem = 1;
    numOfDimensions = 1;
    numOfIntervalAxes = 1;
    minNumOfDataSeries = 1;
    numOfSubValues = 1;
    shiftIntervalValues = false;
    showOneSeriesPerInterval = false;
    startAngle = 0.0f;
    arcAngle = 360.0f;
    innerRadiusPercent = 0.0f;
    wedge = false;
    referenceValueShown = false;
    referenceValue = 0.0;
    splitStackedValues = true;
    for (bool& flag : flags) flag = false;
}

void vxBaseChartParameters::copyFrom(const vxBaseChartParameters* other) {
    if (!other) return setDefaults();
    if (other != this) *this = *other;
}

void vxBaseChartParameters::assignFlags(vxAssign& assign) {
    const short bits = assign.getShort(assign.getArgumentOffset(), 0);
    for (int i = 0; i < kNumOfFlags; ++i) flags[i] = (bits >> i) & 1;
    if (flags[kProportional]) flags[kStacked] = true;
    assign.addToArgumentOffset(1);
}

void vxBaseChartParameters::maskFlags(const bool mask[kNumOfFlags]) {
    for (int i = 0; i < kNumOfFlags; ++i) flags[i] = flags[i] && mask[i];
}

void vxBaseChartParameters::setStartAngle(float degrees) {
    startAngle = std::fmod(degrees + 360.0f, 360.0f);
}

bool vxBaseChartParameters::isReferenceValueSet() const {
    return referenceValueShown && referenceValue != kNoReferenceValue;
}

void vxBaseChartParameters::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, "vxBaseChartParameters");
    vxDumpLine(out, "short chartType: ", chartType);
    vxDumpLine(out, "short coordinateSystem: ", coordinateSystem);
    vxDumpLine(out, "long numOfDimensions: ", numOfDimensions);
    vxDumpLine(out, "long numOfIntervalAxes: ", numOfIntervalAxes);
    vxDumpLine(out, "long minNumOfDataSeries: ", minNumOfDataSeries);
    vxDumpLine(out, "long numOfSubValues: ", numOfSubValues);
    vxDumpLine(out, "bool doShiftIntervalValues: ", shiftIntervalValues);
    vxDumpLine(out, "bool doShowOneSeriesPerInterval: ", showOneSeriesPerInterval);
    vxDumpLine(out, "float startAngle: ", startAngle);
    vxDumpLine(out, "float arcAngle: ", arcAngle);
    vxDumpLine(out, "float innerRadiusPercent: ", innerRadiusPercent);
    vxDumpLine(out, "bool isWedge: ", wedge);
    vxDumpLine(out, "bool hasReferenceValue: ", referenceValueShown);
    vxDumpLine(out, "double referenceValue: ", referenceValue);
    vxDumpLine(out, "bool doSplitStackedValues: ", splitStackedValues);
    static const char* const kFlagLabels[kNumOfFlags] = {
        "bool appearanceFlags[0]: ", "bool appearanceFlags[1]: ", "bool appearanceFlags[2]: ",
        "bool appearanceFlags[3]: ", "bool appearanceFlags[4]: ", "bool appearanceFlags[5]: ",
        "bool appearanceFlags[6]: "};
    for (int i = 0; i < kNumOfFlags; ++i) vxDumpLine(out, kFlagLabels[i], flags[i]);
    vxDumpEnd(out);
}

}  // namespace Velarix
