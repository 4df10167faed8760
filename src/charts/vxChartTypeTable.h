// What each chart function makes: the chart type with its fixed
// parameters, and where the function's arguments change them.
#pragma once

namespace Velarix {

class vxAssign;
class vxBaseChartParameters;

struct vxChartTypeEntry {
    enum Choice : short { kNo = 0, kYes = 1, kFromScript = 2, kFromStacked = 3 };

    long functionId;
    short chartType;
    short coordinateSystem;
    long numOfDimensions;
    long numOfIntervalAxes;
    long minNumOfDataSeries;  // 0: from the high-low type argument
    long numOfSubValues;
    Choice shiftIntervalValues;
    bool showOneSeriesPerInterval;
    Choice referenceValue;
    // The flags the chart class allows, bit i for flag i.
    unsigned char flagMask;
    // Argument positions after the flags, -1 for none: the shift flag, the
    // high-low type, the start and arc angles.
    short shiftArgument;
    short highLowTypeArgument;
    short angleArgument;
};

// The entry of a chart function; null for any other function.
const vxChartTypeEntry* vxChartTypeOf(long functionId);

// Fills the parameters from the chart function's entry and arguments.
// Returns false for a function that makes no chart type. The assign's
// argument cursor is left where it was.
bool vxSetUpChartParameters(long functionId, vxAssign& assign, vxBaseChartParameters& parameters);

}  // namespace Velarix
