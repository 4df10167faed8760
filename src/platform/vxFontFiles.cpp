#include "platform/vxFontFiles.h"

#include "platform/vxFontFace.h"
#include "platform/vxFontService.h"

namespace Velarix {

bool vxFindFontFile(const std::wstring& family, short style, vxFontFileMatch& match) {
    const std::wstring name = vxFontService::platformName(family);
    return vxFontService::get().hasFont(name) && vxFindLayoutFontFile(name, style, match);
}

bool vxFindLayoutFontFile(const std::wstring& family, short style, vxFontFileMatch& match) {
    vxFontFace* face = vxFontService::get().findFace(family, style);
    if (face == nullptr) return false;
    match.file = face->getFile();
    match.index = face->getFaceIndex();
    match.isSyntheticBold = face->isSyntheticBold();
    // The same widening as the face's own measuring.
    match.boldExtra = match.isSyntheticBold ? (face->getUnitsPerEm() + 12) / 24 : 0;
    return true;
}

}  // namespace Velarix
