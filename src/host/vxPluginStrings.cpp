#include "host/vxPluginStrings.h"

namespace Velarix {

namespace {

constexpr vxPluginString kStrings[] = {
    {1, L"vxCH1YnYYnn"},
    {102, L"vxCH_SetLanguage( id )"},
    {103, L"vxCH_GetVersion( type )"},
    {105, L"vxCH_DrawChart( source )"},
    {106, L"vxCH_GetErrorMessage( flags )"},
    {107, L"vxCH_GetCFValue( chartID; seriesID; curveFittingID; valueID; format )"},
    {108, L"vxCH_GetMouse( format )"},
    {128, L"Velarix " VELARIX_VERSION_TEXT},
    {129,
     L"Velarix draws charts, graphs and diagrams from chart scripts: "
     L"vxCH_DrawChart( source ) gives the picture into a container field."},
};

constexpr vxPluginFunction kFunctions[] = {
    {0, 1, 1},  // vxCH_SetLanguage
    {1, 1, 1},  // vxCH_GetVersion
    {3, 1, 1},  // vxCH_DrawChart
    {4, 1, 1},  // vxCH_GetErrorMessage
    {5, 4, 5},  // vxCH_GetCFValue
    {6, 1, 1},  // vxCH_GetMouse
};

}  // namespace

std::span<const vxPluginString> vxPluginStrings() {
    return kStrings;
}

const wchar_t* vxPluginStringText(short id) {
    if (id == 131) id = kOptionsStringID;
    for (const vxPluginString& entry : kStrings) {
        if (entry.id == id) return entry.text;
    }
    return nullptr;
}

std::span<const vxPluginFunction> vxPluginFunctions() {
    return kFunctions;
}

}  // namespace Velarix
