// The platform's fonts: finds the font file for a name and style through
// fontconfig, opens it with FreeType, and measures with the opened face.
//
// One service serves the whole process. It is made on first use and keeps
// what it has found until the process ends: fontconfig's configuration is
// loaded once, each name and style is matched once (the check whether a
// family is installed and the face for its regular style share the match),
// each font file opened once, and each glyph advance read once.
//
// A name that isn't installed is no error: fontconfig's substitution picks
// the nearest font (its aliases map Arial, Helvetica, Verdana and the like
// to metric-compatible or default faces), and that font is used. The names
// "systemfont" and "applfont" stand for Arial. Only a platform without any
// usable font makes findFace fail.
//
// Sizes are in points, which are drawing units; see vxFontFace for how
// lengths are scaled. The service is not meant for use from more than one
// thread.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/vxFontFace.h"

struct _FcConfig;
struct _FcPattern;

namespace Velarix {

// One font file as the platform lists it.
struct vxFontFileInfo {
    std::string file;       // the path
    int index = 0;          // the face within the file
    std::wstring fullName;  // the display name, as "DejaVu Sans Bold Oblique"
    std::wstring family;    // as "DejaVu Sans"
};

class vxFontService {
public:
    enum StyleBits : short { kBold = 1, kItalic = 2 };

    static vxFontService& get();

    vxFontService(const vxFontService&) = delete;
    vxFontService& operator=(const vxFontService&) = delete;

    // The name given to the platform: "systemfont" and "applfont", in any
    // case, become "Arial"; other names pass unchanged.
    static std::wstring platformName(const std::wstring& name);

    // The face for a font name and style bits (kBold, kItalic; the others,
    // as underline, don't change the face). The face lives as long as the
    // process. Null only when no font can be had; getLastStatus tells why.
    vxFontFace* findFace(const std::wstring& name, short style);

    // Whether a family of this name is installed: fontconfig's best match
    // for the name carries it among its family names (case is ignored).
    // The reserved names always exist; an empty name doesn't.
    bool isInstalled(const std::wstring& name);
    // Whether text in the family comes out as the family's own: it is
    // installed, or a family of the same metrics stands in for it (as
    // Liberation Sans for Arial and Helvetica).
    bool hasFont(const std::wstring& name);

    // The scalable fonts of the platform, ordered by file and face index.
    std::vector<vxFontFileInfo> listFontFiles();

    // Metrics and widths in points through findFace; false, or a width of
    // 0, when no face can be had.
    bool getMetrics(const std::wstring& name, short style, float size, vxFontMetrics& metrics);
    float getWidth(const std::wstring& name, short style, float size, const std::wstring& text);

    // The outcome of the latest match of a new name and style
    // (vxFontStatus, kOk after a success), and its text.
    int getLastStatus() const { return lastStatus; }
    const std::wstring& getLastFailure() const { return lastFailure; }

private:
    vxFontService();
    ~vxFontService();

    struct PatternFree {
        void operator()(_FcPattern* pattern) const;
    };
    using PatternPointer = std::unique_ptr<_FcPattern, PatternFree>;

    bool start();
    // fontconfig's best match for a family and style, made once for each
    // exact name; null when there is none.
    _FcPattern* bestMatch(const std::string& family, bool bold, bool italic);
    vxFontFace* openMatch(_FcPattern* match, bool bold);
    vxFontFace* openNextBest(const std::string& family, bool bold, bool italic);
    vxFontFace* matchFace(const std::string& family, bool bold, bool italic);
    vxFontFace* openFace(const std::string& file, int index, bool syntheticBold);
    void fail(int status, const std::wstring& text);

    bool started = false;
    bool usable = false;
    struct FT_LibraryRec_* library = nullptr;
    _FcConfig* config = nullptr;
    int lastStatus = vxFontStatus::kOk;
    std::wstring lastFailure;
    // Opened faces by file, face index and simulated bold.
    std::map<std::string, std::unique_ptr<vxFontFace>> faces;
    // The face found for a lower-case name with the style bits appended.
    std::map<std::wstring, vxFontFace*> resolved;
    std::map<std::wstring, bool> installed;
    // fontconfig's matches by family text with the style bits appended.
    std::map<std::string, PatternPointer> matches;
};

}  // namespace Velarix
