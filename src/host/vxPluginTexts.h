// The texts the plug-in's external functions answer with, worked out apart
// from the host: the error message with its flags, the value of a curve
// fit, the database's folder and the mouse position's format.
#pragma once

#include <string>

namespace Velarix {

class vxError;
class vxCurveFittingData;

namespace vxPluginTexts {

// The flags the error result of a drawing is composed with until the host
// asks for a message with flags of its own: no alert; the code first, then
// the description with the place in the script.
constexpr const wchar_t* kDefaultErrorFlags = L"013";
constexpr const wchar_t* kMissingScript = L"Missing Velarix script.";
constexpr const wchar_t* kStreamError = L"Velarix: Stream error.";
constexpr const wchar_t* kNoInterface = L"Can't create vxInterface instance.";
constexpr const wchar_t* kInvalidType = L"Invalid Type.";
constexpr const wchar_t* kInvalidCoefficient = L"Invalid coefficient index.";
constexpr const wchar_t* kDefaultPositionFormat = L"%1 %2";

// Whether the record holds an error; a plain text (a negative code) counts.
bool holdsError(const vxError* error);

// The answer to a request for the last error with the host's flags: the
// first flag "1" sounds the alert, the rest composes the message. Without
// an error: "0" when the second flag is "1" (the caller asked for the
// code), else the empty text. Line ends are U+000D.
std::wstring errorMessage(const vxError* error, short languageID, const std::wstring& flags,
                          bool& alert);

// The result text of a drawing that failed, by the flags kept from the last
// request: the same as errorMessage with those flags, an error held.
std::wstring drawingErrorText(const vxError* error, short languageID,
                              const std::wstring& lastErrorFlags, bool& alert);

// One number of a fit of the last drawing as text: valueID 1 is the number
// of coefficients, 2 to 12 the coefficients from index 0. `format` is a
// number format text; an empty store answers as a fit that wasn't made.
std::wstring curveFitValue(const vxCurveFittingData* data, long chartID, long seriesID,
                           long curveFittingID, long valueID, const std::wstring& format);

// The major number of the host's version text, as 21 of "Server 21.0.1";
// 0 when the text has no number.
int majorVersion(const std::wstring& hostVersion);

// The folder of the database from the host's path of the file, such as
// "file:/C:/Data/Sales.fmp12" (then "C:/Data/") or, on Linux,
// "filelinux:/opt/Data/Sales.fmp12" (then "/opt/Data/"). Hosts of major
// version 3 and 4 put one more part in front. Empty when there is no "/".
std::wstring databaseFolder(const std::wstring& hostPath, int hostMajor);

// The position's format with x and y put in for "%1" and "%2".
std::wstring position(const std::wstring& format, const std::wstring& x, const std::wstring& y);

}  // namespace vxPluginTexts

}  // namespace Velarix
