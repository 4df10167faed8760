// Error codes of the engine, grouped by subject. The numbers are part of the
// user-visible messages and of the host's result texts: never renumber them.
#pragma once

namespace Velarix {

// Special record whose message is its additional information alone.
constexpr short kErrPlainText = static_cast<short>(32768 - 65536);

// Platform and legacy host codes (negative: not errors for isError).
namespace vxErrPlatform {
constexpr short kOutOfHostMemory = -7000;
constexpr short kATSU = -6014;
constexpr short kImageCompression = -6013;
constexpr short kQuickTimeMissing = -6012;
constexpr short kOutOfHostMemory2 = -6002;
constexpr short kQuickTime = -6001;
constexpr short kQuickDraw = -6000;
constexpr short kUnknown = -1;
}  // namespace vxErrPlatform

constexpr short kNoError = 0;

// Script syntax and values.
namespace vxErrScript {
constexpr short kSyntax = 1000;
constexpr short kComment = 1001;
constexpr short kFunctionName = 1010;
constexpr short kFontName = 1020;
constexpr short kTooFewArguments = 1100;
constexpr short kTooManyArguments = 1101;
constexpr short kTooFewElements = 1110;
constexpr short kTooManyElements = 1111;
constexpr short kNumberOfElements = 1112;
constexpr short kOutOfRange = 1120;
constexpr short kString = 1130;
constexpr short kStringTooShort = 1131;
constexpr short kStringTooLong = 1132;
constexpr short kValue = 1140;
constexpr short kClipboard = 1150;
constexpr short kConstant = 1160;
constexpr short kNotEnoughData = 1170;
constexpr short kResource = 1180;
}  // namespace vxErrScript

// Order of the layout functions.
namespace vxErrLayout {
constexpr short kOpenDrawingMissing = 1200;
constexpr short kOpenDrawingTwice = 1201;
constexpr short kCloseDrawingMissing = 1210;
constexpr short kCloseDrawingTwice = 1211;
constexpr short kAfterCloseDrawing = 1212;
constexpr short kNestedComponents = 1219;
constexpr short kCannotOpenView = 1220;
constexpr short kOpenViewMissing = 1230;
constexpr short kNestedChart = 1240;
constexpr short kOpenChartMissing = 1241;
constexpr short kNoChartFunction = 1242;
constexpr short kNestedTable = 1250;
constexpr short kOpenTableMissing = 1251;
constexpr short kTable = 1252;
constexpr short kNestedCalendar = 1260;
constexpr short kOpenCalendarMissing = 1261;
constexpr short kCalendar = 1262;
}  // namespace vxErrLayout

namespace vxErrAxis {
constexpr short kAxisIndex = 1300;
}

namespace vxErrFormat {
constexpr short kFormat = 2000;
constexpr short kNumberFormat = 2001;
constexpr short kDateTimeFormat = 2002;
}  // namespace vxErrFormat

namespace vxErrChart {
constexpr short kChartDataValue = 2010;
constexpr short kImageDimension = 2020;
constexpr short kScaling = 2100;
constexpr short kFrameTooSmall = 2200;
constexpr short kCurveFittingData = 2300;
constexpr short kMovingAverageData = 2350;
constexpr short kPath = 2400;
}  // namespace vxErrChart

namespace vxErrLimits {
constexpr short kTooManyObjects = 3000;
constexpr short kTooManyOutputFiles = 3001;
constexpr short kTooManySubViews = 3002;
constexpr short kTooManyAdditions = 3003;
constexpr short kTooManyBackgrounds = 3004;
constexpr short kTooManyStyles = 3005;
}  // namespace vxErrLimits

namespace vxErrFile {
constexpr short kNotFound = 4000;
constexpr short kExists = 4001;
constexpr short kCreate = 4002;
constexpr short kOpen = 4003;
constexpr short kRead = 4004;
constexpr short kWrite = 4005;
constexpr short kClose = 4006;
constexpr short kExchange = 4007;
constexpr short kDelete = 4008;
constexpr short kSearch = 4009;
constexpr short kNoVolume = 4010;
constexpr short kName = 4011;
constexpr short kSize = 4012;
constexpr short kUnknownFormat = 4013;
constexpr short kDirectoryNotFound = 4014;
}  // namespace vxErrFile

namespace vxErrRuntime {
constexpr short kOutOfMemory = 5000;
constexpr short kDivisionByZero = 5010;
constexpr short kLogarithm = 5011;
constexpr short kIndexOutOfRange = 5012;
}  // namespace vxErrRuntime

}  // namespace Velarix
