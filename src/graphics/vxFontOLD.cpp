#include "graphics/vxFontOLD.h"

#include <algorithm>
#include <new>
#include <string_view>

#include "host/vxLog.h"
#include "platform/vxFontFace.h"
#include "platform/vxFontService.h"

namespace Velarix {

namespace {

constexpr wchar_t kLineEnd = 13;

}  // namespace

vxFontOLD::vxFontOLD() : vxErrorHolder(L"vxFontOLD") {}

vxFontOLD::vxFontOLD(const std::wstring& name, float size, short style)
    : vxErrorHolder(L"vxFontOLD") {
    setName(name);
    setSize(size);
    setStyle(style);
}

vxFontOLD::~vxFontOLD() = default;

vxFontOLD::vxFontOLD(const vxFontOLD& other) : vxErrorHolder(L"vxFontOLD") {
    copyFields(other);
}

vxFontOLD& vxFontOLD::operator=(const vxFontOLD& other) {
    if (this != &other) copyFields(other);
    return *this;
}

void vxFontOLD::copyFields(const vxFontOLD& from) {
    try {
        defaultName = from.defaultName;
        name = from.name;
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"setName"));
        forgetMetrics();
        return;
    }
    defaultSize = from.defaultSize;
    defaultStyle = from.defaultStyle;
    size = from.size;
    style = from.style;
    // Metrics depend on name, size and style only, so measured ones stay valid.
    hasMetrics = from.hasMetrics;
    ascent = from.ascent;
    descent = from.descent;
    leading = from.leading;
    stringHeight = from.stringHeight;
    lineHeight = from.lineHeight;
    face = from.face;
    mMissingFontFlag = from.mMissingFontFlag;
    mEmbedPDFFontFlag = from.mEmbedPDFFontFlag;
}

void vxFontOLD::forgetMetrics() {
    hasMetrics = false;
    face = nullptr;
}

void vxFontOLD::setName(const std::wstring& value) {
    try {
        name = value;
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"setName"));
    }
    forgetMetrics();
}

void vxFontOLD::setSize(float value) {
    size = value;
    forgetMetrics();
}

void vxFontOLD::setStyle(short value) {
    style = value;
    forgetMetrics();
}

void vxFontOLD::setUpMetrics() const {
    vxFontService& service = vxFontService::get();
    face = service.findFace(name, style);
    if (face == nullptr) {
        ascent = descent = leading = stringHeight = lineHeight = 0.0f;
        if (vxError* record = getError(); record != nullptr && !record->isError()) {
            record->setRuntimeError(
                vxErrScript::kFontName, static_cast<short>(service.getLastStatus()),
                where(L"setUpMetrics"), name + L": " + service.getLastFailure());
        }
        return;
    }
    const vxFontMetrics metrics = face->getMetrics(size);
    ascent = metrics.ascent;
    descent = metrics.descent;
    lineHeight = metrics.lineHeight;
    stringHeight = metrics.stringHeight;
    leading = metrics.leading;
    hasMetrics = true;
}

float vxFontOLD::getAscent() const {
    if (!hasMetrics) setUpMetrics();
    return ascent;
}

float vxFontOLD::getDescent() const {
    if (!hasMetrics) setUpMetrics();
    return descent;
}

float vxFontOLD::getLeading() const {
    if (!hasMetrics) setUpMetrics();
    return leading;
}

float vxFontOLD::getStringHeight() const {
    if (!hasMetrics) setUpMetrics();
    return stringHeight;
}

float vxFontOLD::getLineHeight() const {
    if (!hasMetrics) setUpMetrics();
    return lineHeight;
}

float vxFontOLD::getWidth(std::wstring_view text) const {
    if (text.empty()) return 0.0f;
    if (!hasMetrics) setUpMetrics();
    return face != nullptr ? face->getWidth(text, size) : 0.0f;
}

float vxFontOLD::getWidth(wchar_t character) const {
    if (!hasMetrics) setUpMetrics();
    return face != nullptr ? face->getWidth(static_cast<char32_t>(character), size) : 0.0f;
}

std::size_t vxFontOLD::getFittingLength(std::wstring_view text, float limit) const {
    if (!hasMetrics) setUpMetrics();
    return face != nullptr ? face->getFittingLength(text, size, limit) : text.size();
}

std::size_t vxFontOLD::getFittingTailLength(std::wstring_view text, float limit) const {
    if (!hasMetrics) setUpMetrics();
    return face != nullptr ? face->getFittingTailLength(text, size, limit) : text.size();
}

long vxFontOLD::getDimensions(const std::wstring& text, float dimensions[2]) const {
    dimensions[0] = 0.0f;
    dimensions[1] = 0.0f;
    if (text.empty()) return 0;
    if (!hasMetrics) setUpMetrics();

    const std::wstring_view all(text);
    long lines = 0;
    float widest = 0.0f;
    std::size_t start = 0;
    while (true) {
        const std::size_t end = all.find(kLineEnd, start);
        const std::wstring_view line = all.substr(
            start, end == std::wstring_view::npos ? std::wstring_view::npos : end - start);
        ++lines;
        if (face != nullptr && !line.empty()) widest = std::max(widest, face->getWidth(line, size));
        if (end == std::wstring_view::npos) break;
        start = end + 1;
    }
    dimensions[0] = widest;
    dimensions[1] =
        static_cast<float>(lines) * stringHeight + static_cast<float>(lines - 1) * leading;
    return lines;
}

void vxFontOLD::dump(short depth, std::ostream& out) const {
    vxDumpHeader(out, vxNarrow(getClassName()));
    vxDumpLine(out, "wstring defaultName:  ", defaultName);
    vxDumpLine(out, "float defaultSize:  ", defaultSize);
    vxDumpLine(out, "short defaultStyle:  ", defaultStyle);
    vxDumpLine(out, "wstring name:  ", name);
    vxDumpLine(out, "float size:  ", size);
    vxDumpLine(out, "short style:  ", style);
    vxDumpLine(out, "bool  hasMetrics:  ", hasMetrics);
    vxDumpLine(out, "float ascent:  ", ascent);
    vxDumpLine(out, "float descent:  ", descent);
    vxDumpLine(out, "float leading:  ", leading);
    vxDumpLine(out, "float stringHeight:  ", stringHeight);
    vxDumpLine(out, "float lineHeight:  ", lineHeight);
    vxDumpLine(out, "short mMissingFontFlag:  ", mMissingFontFlag);
    vxDumpLine(out, "short mEmbedPDFFontFlag:  ", mEmbedPDFFontFlag);
    vxDumpEnd(out);
}

}  // namespace Velarix
