#include "host/vxPluginTexts.h"

#include <algorithm>
#include <cwctype>

#include "Utilities/Sources/vxFormat.h"
#include "Utilities/Sources/vxFormatNumber.h"
#include "overlays/vxCurveFittingData.h"
#include "settings/vxError.h"

namespace Velarix::vxPluginTexts {

namespace {

std::wstring composed(const vxError* error, short languageID, const std::wstring& flags) {
    std::wstring text;
    error->getMessage(text, languageID, flags);
    std::replace(text.begin(), text.end(), L'\n', L'\r');
    return text;
}

void replaceAll(std::wstring& text, const std::wstring& what, const std::wstring& with) {
    for (size_t at = text.find(what); at != std::wstring::npos;
         at = text.find(what, at + with.size())) {
        text.replace(at, what.size(), with);
    }
}

}  // namespace

bool holdsError(const vxError* error) {
    return error != nullptr && error->getErrorCode() != 0;
}

std::wstring errorMessage(const vxError* error, short languageID, const std::wstring& flags,
                          bool& alert) {
    alert = false;
    if (!holdsError(error)) {
        if (flags.size() < 2) return L"";
        return flags[1] == L'1' ? L"0" : L"";
    }
    if (flags.empty()) {
        alert = true;
        return composed(error, languageID, flags);
    }
    alert = flags[0] == L'1';
    return composed(error, languageID, flags.substr(1));
}

std::wstring drawingErrorText(const vxError* error, short languageID,
                              const std::wstring& lastErrorFlags, bool& alert) {
    alert = !lastErrorFlags.empty() && lastErrorFlags[0] == L'1';
    const std::wstring rest = lastErrorFlags.empty() ? L"" : lastErrorFlags.substr(1);
    return error ? composed(error, languageID, rest) : L"";
}

std::wstring curveFitValue(const vxCurveFittingData* data, long chartID, long seriesID,
                           long curveFittingID, long valueID, const std::wstring& format) {
    if (curveFittingID <= -5 || curveFittingID >= 11) return kInvalidType;
    if (valueID < 1 || valueID > 12) return kInvalidCoefficient;
    double value = 0.0;
    if (data) {
        const short type = static_cast<short>(curveFittingID);
        value = valueID == 1 ? data->getNumOfCoefficients(chartID, seriesID, type)
                             : data->getCoefficient(chartID, seriesID, type, valueID - 2);
    }
    vxFormatNumber number;
    return number.toString(value, format);
}

int majorVersion(const std::wstring& hostVersion) {
    const auto digit = std::find_if(hostVersion.begin(), hostVersion.end(),
                                    [](wchar_t c) { return c >= L'0' && c <= L'9'; });
    int major = 0;
    for (auto it = digit; it != hostVersion.end() && *it >= L'0' && *it <= L'9'; ++it) {
        if (major > 100000) break;
        major = major * 10 + (*it - L'0');
    }
    return major;
}

std::wstring databaseFolder(const std::wstring& hostPath, int hostMajor) {
    size_t slash = hostPath.find(L'/');
    if (slash != std::wstring::npos && (hostMajor == 3 || hostMajor == 4)) {
        slash = hostPath.find(L'/', slash + 1);
    }
    if (slash == std::wstring::npos) return L"";
    // A Linux path keeps the slash that makes it absolute.
    const bool posix = hostPath.rfind(L"filelinux:", 0) == 0;
    std::wstring path = hostPath.substr(posix ? slash : slash + 1);
    const size_t last = path.rfind(L'/');
    path.erase(last == std::wstring::npos ? 0 : last + 1);
    return path;
}

std::wstring position(const std::wstring& format, const std::wstring& x, const std::wstring& y) {
    std::wstring text = format;
    replaceAll(text, L"%1", x);
    replaceAll(text, L"%2", y);
    return text;
}

}  // namespace Velarix::vxPluginTexts
