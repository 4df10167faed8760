#include "platform/vxFontService.h"

#include <fontconfig/fontconfig.h>

#include <ft2build.h>
#include FT_FREETYPE_H

#include <algorithm>
#include <tuple>

// fontconfig's configuration parser keeps a few blocks it never frees; the
// leak checker is told to look away while it runs.
#if defined(__SANITIZE_ADDRESS__)
#define VX_LEAK_CHECKED 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define VX_LEAK_CHECKED 1
#endif
#endif
#ifdef VX_LEAK_CHECKED
#include <sanitizer/lsan_interface.h>
#endif

#include "platform/vxFontSubstitutes.h"
#include "platform/vxTextCodec.h"

namespace Velarix {

namespace {

std::wstring lowerAscii(const std::wstring& text) {
    std::wstring result = text;
    for (wchar_t& c : result) {
        if (c >= L'A' && c <= L'Z') c = static_cast<wchar_t>(c - L'A' + L'a');
    }
    return result;
}

const FcChar8* fcText(const std::string& text) {
    return reinterpret_cast<const FcChar8*>(text.c_str());
}

// A pattern for fontconfig with the configuration's and the default
// substitutions applied, ready for matching.
FcPattern* makePattern(FcConfig* config, const std::string& family, bool bold, bool italic) {
    FcPattern* pattern = FcPatternCreate();
    if (pattern == nullptr) return nullptr;
    if (!family.empty()) FcPatternAddString(pattern, FC_FAMILY, fcText(family));
    FcPatternAddInteger(pattern, FC_WEIGHT, bold ? FC_WEIGHT_BOLD : FC_WEIGHT_REGULAR);
    FcPatternAddInteger(pattern, FC_SLANT, italic ? FC_SLANT_ITALIC : FC_SLANT_ROMAN);
    FcPatternAddBool(pattern, FC_SCALABLE, FcTrue);
    FcConfigSubstitute(config, pattern, FcMatchPattern);
    FcDefaultSubstitute(pattern);
    return pattern;
}

std::wstring stringOf(FcPattern* pattern, const char* object) {
    FcChar8* value = nullptr;
    if (FcPatternGetString(pattern, object, 0, &value) != FcResultMatch || value == nullptr) {
        return std::wstring();
    }
    return vxFromUtf8(reinterpret_cast<const char*>(value));
}

// A font's file, face, family and display name. Without a full name the
// display name is the family and the style, unless the style is the
// regular one.
bool readFileInfo(FcPattern* font, vxFontFileInfo& info) {
    FcChar8* file = nullptr;
    if (FcPatternGetString(font, FC_FILE, 0, &file) != FcResultMatch || file == nullptr) {
        return false;
    }
    info.file = reinterpret_cast<const char*>(file);
    FcPatternGetInteger(font, FC_INDEX, 0, &info.index);
    info.family = stringOf(font, FC_FAMILY);
    info.fullName = stringOf(font, FC_FULLNAME);
    if (info.fullName.empty()) {
        const std::wstring style = stringOf(font, FC_STYLE);
        const std::wstring lower = lowerAscii(style);
        info.fullName = info.family;
        if (!style.empty() && lower != L"regular" && lower != L"book" && lower != L"normal" &&
            lower != L"roman") {
            info.fullName += L" " + style;
        }
    }
    return !info.family.empty();
}

}  // namespace

// The service is never destroyed: at the end of the process, taking
// fontconfig's configuration and FreeType apart again would only cost time.
// Under the leak checker it is, since fontconfig links its blocks by offsets
// that the checker can't follow.
vxFontService& vxFontService::get() {
#ifdef VX_LEAK_CHECKED
    static vxFontService service;
    return service;
#else
    static vxFontService* service = new vxFontService;
    return *service;
#endif
}

void vxFontService::PatternFree::operator()(FcPattern* pattern) const {
    FcPatternDestroy(pattern);
}

vxFontService::vxFontService() = default;

vxFontService::~vxFontService() {
    resolved.clear();
    matches.clear();
    faces.clear();
    if (library != nullptr) FT_Done_FreeType(library);
    if (config != nullptr) FcConfigDestroy(config);
}

std::wstring vxFontService::platformName(const std::wstring& name) {
    const std::wstring lower = lowerAscii(name);
    if (lower == L"systemfont" || lower == L"applfont") return L"Arial";
    return name;
}

void vxFontService::fail(int status, const std::wstring& text) {
    lastStatus = status;
    lastFailure = text;
}

bool vxFontService::start() {
    if (started) return usable;
    started = true;
    FT_Library ftLibrary = nullptr;
    if (FT_Init_FreeType(&ftLibrary) != 0) {
        fail(vxFontStatus::kNoFreeType, L"FreeType could not start");
        return false;
    }
    library = ftLibrary;
    {
#ifdef VX_LEAK_CHECKED
        __lsan::ScopedDisabler lookAway;
#endif
        config = FcInitLoadConfigAndFonts();
    }
    if (config == nullptr) {
        fail(vxFontStatus::kNoFontconfig, L"fontconfig could not load its configuration");
        return false;
    }
    usable = true;
    return true;
}

vxFontFace* vxFontService::findFace(const std::wstring& name, short style) {
    const bool bold = (style & kBold) != 0;
    const bool italic = (style & kItalic) != 0;
    const std::wstring asked = platformName(name);
    std::wstring key = lowerAscii(asked);
    key += bold ? L"|b" : L"|";
    key += italic ? L"i" : L"";
    if (const auto found = resolved.find(key); found != resolved.end()) return found->second;

    vxFontFace* face = start() ? matchFace(vxToUtf8(asked), bold, italic) : nullptr;
    resolved[key] = face;
    return face;
}

FcPattern* vxFontService::bestMatch(const std::string& family, bool bold, bool italic) {
    std::string key = family + (bold ? "|b" : "|") + (italic ? "i" : "");
    if (const auto found = matches.find(key); found != matches.end()) return found->second.get();
    FcPattern* match = nullptr;
    // The match is kept for the run; its values hang on it by offsets.
#ifdef VX_LEAK_CHECKED
    __lsan::ScopedDisabler lookAway;
#endif
    if (FcPattern* pattern = makePattern(config, family, bold, italic); pattern != nullptr) {
        FcResult result = FcResultNoMatch;
        match = FcFontMatch(config, pattern, &result);
        FcPatternDestroy(pattern);
    }
    matches.emplace(std::move(key), PatternPointer(match));
    return match;
}

vxFontFace* vxFontService::openMatch(FcPattern* match, bool bold) {
    FcChar8* file = nullptr;
    int index = 0;
    FcBool embolden = FcFalse;
    if (FcPatternGetString(match, FC_FILE, 0, &file) != FcResultMatch) return nullptr;
    FcPatternGetInteger(match, FC_INDEX, 0, &index);
    FcPatternGetBool(match, FC_EMBOLDEN, 0, &embolden);
    return openFace(reinterpret_cast<const char*>(file), index, bold && embolden);
}

// The best match couldn't be opened: the next font in fontconfig's order of
// preference that can.
vxFontFace* vxFontService::openNextBest(const std::string& family, bool bold, bool italic) {
    FcPattern* pattern = makePattern(config, family, bold, italic);
    if (pattern == nullptr) return nullptr;
    vxFontFace* face = nullptr;
    FcResult result = FcResultNoMatch;
    if (FcFontSet* sorted = FcFontSort(config, pattern, FcTrue, nullptr, &result);
        sorted != nullptr) {
        for (int i = 0; i < sorted->nfont && face == nullptr; ++i) {
            FcChar8* file = nullptr;
            int index = 0;
            int weight = FC_WEIGHT_REGULAR;
            if (FcPatternGetString(sorted->fonts[i], FC_FILE, 0, &file) != FcResultMatch) {
                continue;
            }
            FcPatternGetInteger(sorted->fonts[i], FC_INDEX, 0, &index);
            FcPatternGetInteger(sorted->fonts[i], FC_WEIGHT, 0, &weight);
            face = openFace(reinterpret_cast<const char*>(file), index,
                            bold && weight < FC_WEIGHT_DEMIBOLD);
        }
        FcFontSetDestroy(sorted);
    }
    FcPatternDestroy(pattern);
    return face;
}

vxFontFace* vxFontService::matchFace(const std::string& family, bool bold, bool italic) {
    fail(vxFontStatus::kOk, L"");
    FcPattern* match = bestMatch(family, bold, italic);
    vxFontFace* face = match != nullptr ? openMatch(match, bold) : nullptr;
    if (face == nullptr) face = openNextBest(family, bold, italic);
    if (face == nullptr && lastStatus == vxFontStatus::kOk) {
        fail(vxFontStatus::kNoMatch, L"no font found");
    } else if (face != nullptr) {
        fail(vxFontStatus::kOk, L"");
    }
    return face;
}

vxFontFace* vxFontService::openFace(const std::string& file, int index, bool syntheticBold) {
    std::string key = file + "#" + std::to_string(index) + (syntheticBold ? "+bold" : "");
    if (const auto found = faces.find(key); found != faces.end()) return found->second.get();
    int status = vxFontStatus::kOk;
    std::unique_ptr<vxFontFace> face =
        vxFontFace::open(library, file, index, syntheticBold, status);
    if (!face) {
        fail(status, L"cannot open " + vxFromUtf8(file));
        return nullptr;
    }
    vxFontFace* result = face.get();
    faces.emplace(std::move(key), std::move(face));
    return result;
}

bool vxFontService::isInstalled(const std::wstring& name) {
    const std::wstring lower = lowerAscii(name);
    if (lower == L"systemfont" || lower == L"applfont") return true;
    if (name.empty()) return false;
    if (const auto found = installed.find(lower); found != installed.end()) return found->second;

    bool result = false;
    const std::string family = vxToUtf8(name);
    if (FcPattern* match = start() ? bestMatch(family, false, false) : nullptr) {
        FcChar8* matched = nullptr;
        for (int i = 0;
             !result && FcPatternGetString(match, FC_FAMILY, i, &matched) == FcResultMatch; ++i) {
            result = FcStrCmpIgnoreCase(matched, fcText(family)) == 0;
        }
    }
    installed[lower] = result;
    return result;
}

bool vxFontService::hasFont(const std::wstring& name) {
    if (isInstalled(name)) return true;
    for (const std::wstring& family : vxMetricCompatibleFamilies(lowerAscii(name))) {
        if (isInstalled(family)) return true;
    }
    return false;
}

std::vector<vxFontFileInfo> vxFontService::listFontFiles() {
    std::vector<vxFontFileInfo> list;
    if (!start()) return list;
    FcPattern* pattern = FcPatternCreate();
    FcObjectSet* objects =
        FcObjectSetBuild(FC_FILE, FC_INDEX, FC_FULLNAME, FC_FAMILY, FC_STYLE, FC_SCALABLE, nullptr);
    FcFontSet* fonts = nullptr;
    if (pattern != nullptr && objects != nullptr) {
        FcPatternAddBool(pattern, FC_SCALABLE, FcTrue);
        fonts = FcFontList(config, pattern, objects);
    }
    for (int i = 0; fonts != nullptr && i < fonts->nfont; ++i) {
        vxFontFileInfo info;
        if (readFileInfo(fonts->fonts[i], info)) list.push_back(std::move(info));
    }
    if (fonts != nullptr) FcFontSetDestroy(fonts);
    if (objects != nullptr) FcObjectSetDestroy(objects);
    if (pattern != nullptr) FcPatternDestroy(pattern);
    std::sort(list.begin(), list.end(), [](const vxFontFileInfo& a, const vxFontFileInfo& b) {
        return std::tie(a.file, a.index) < std::tie(b.file, b.index);
    });
    return list;
}

bool vxFontService::getMetrics(const std::wstring& name, short style, float size,
                               vxFontMetrics& metrics) {
    vxFontFace* face = findFace(name, style);
    if (face == nullptr) return false;
    metrics = face->getMetrics(size);
    return true;
}

float vxFontService::getWidth(const std::wstring& name, short style, float size,
                              const std::wstring& text) {
    vxFontFace* face = findFace(name, style);
    return face != nullptr ? face->getWidth(text, size) : 0.0f;
}

}  // namespace Velarix
