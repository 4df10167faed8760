#include "output/vxFileType.h"

namespace Velarix {

namespace {

struct Extension {
    const wchar_t* name;
    vxFileType type;
};

constexpr Extension kExtensions[] = {
    {L"txt", kFileTypeTXT},   {L"gif", kFileTypeGIF},  {L"jpg", kFileTypeJPEG},
    {L"jpeg", kFileTypeJPEG}, {L"tif", kFileTypeTIFF}, {L"tiff", kFileTypeTIFF},
    {L"png", kFileTypePNG},   {L"bmp", kFileTypeBMP},  {L"pct", kFileTypePICT},
    {L"pict", kFileTypePICT}, {L"wmf", kFileTypeWMF},  {L"emf", kFileTypeEMF},
    {L"pdf", kFileTypePDF},   {L"svg", kFileTypeSVG},  {L"swf", kFileTypeSWF},
    {L"dwg", kFileTypeDWG},
};

}  // namespace

vxFileType vxFileTypeOf(const std::wstring& path) {
    const size_t dot = path.rfind(L'.');
    const size_t separator = path.find_last_of(L"/\\");
    if (dot == std::wstring::npos) return kFileTypeUnknown;
    if (separator != std::wstring::npos && separator > dot) return kFileTypeUnknown;
    std::wstring extension = path.substr(dot + 1);
    for (wchar_t& c : extension) {
        // Only ASCII letters are folded: no locale decides what an
        // extension means.
        if (c >= L'A' && c <= L'Z') c = static_cast<wchar_t>(c - L'A' + L'a');
    }
    for (const Extension& known : kExtensions) {
        if (extension == known.name) return known.type;
    }
    return kFileTypeUnknown;
}

}  // namespace Velarix
