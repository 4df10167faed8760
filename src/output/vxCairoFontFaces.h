// The faces that cairo draws text with: for a font name and style the
// FreeType face that the font service measured the text with, and a cairo
// face made on that very FreeType face, so that drawn glyphs and measured
// widths come from one font file.
//
// Each cairo face is made on the first use of its FreeType face and kept
// until the cache goes. The FreeType faces belong to the font service,
// which keeps them for the life of the process, longer than any cache.
#pragma once

#include <map>
#include <string>
#include <utility>

#include "output/vxCairoPointers.h"

namespace Velarix {

class vxFontFace;

class vxCairoFontFaces {
public:
    struct Entry {
        vxFontFace* face = nullptr;
        cairo_font_face_t* cairoFace = nullptr;  // owned by the cache
    };

    // The faces for a font name and style bits (bold 1, italic 2; other
    // bits don't change the face). Both members are null when no font can
    // be had or cairo can't take the face.
    Entry find(const std::wstring& name, short style);

private:
    cairo_font_face_t* cairoFaceOf(vxFontFace& face);

    using Key = std::pair<std::wstring, short>;
    std::map<Key, Entry> byName;
    std::map<const vxFontFace*, vxCairoFontFace> cairoFaces;
    // The latest lookup: text runs mostly repeat the font before.
    Key lastKey;
    Entry lastEntry;
    bool hasLast = false;
};

}  // namespace Velarix
