#include "platform/vxTrueTypeFile.h"

#include <algorithm>
#include <cstring>
#include <fstream>
#include <iterator>
#include <new>

namespace Velarix {

namespace {

// Big-endian reads that answer 0 beyond the end of the bytes, so that a
// damaged table gives nonsense values but never a read out of bounds.
uint32_t u8At(const std::vector<uint8_t>& b, size_t at) {
    return at < b.size() ? b[at] : 0;
}
uint32_t u16At(const std::vector<uint8_t>& b, size_t at) {
    return (u8At(b, at) << 8) | u8At(b, at + 1);
}
int s16At(const std::vector<uint8_t>& b, size_t at) {
    return static_cast<int16_t>(u16At(b, at));
}
uint32_t u32At(const std::vector<uint8_t>& b, size_t at) {
    return (u16At(b, at) << 16) | u16At(b, at + 2);
}

std::string tagAt(const std::vector<uint8_t>& b, size_t at) {
    std::string tag;
    for (size_t i = 0; i < 4; ++i) tag += static_cast<char>(u8At(b, at + i));
    return tag;
}

const char* const kUsableTables[] = {"head", "hhea", "hmtx", "maxp", "cmap", "name", "OS/2"};
const char* const kEmbeddingTables[] = {"head", "hhea", "loca", "maxp", "cvt ",
                                        "prep", "glyf", "hmtx", "fpgm"};

}  // namespace

std::unique_ptr<vxTrueTypeFile> vxTrueTypeFile::read(const std::string& path, int index,
                                                     std::string& failure) {
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        failure = "Unable to open font file: " + path;
        return nullptr;
    }
    std::vector<uint8_t> data((std::istreambuf_iterator<char>(in)),
                              std::istreambuf_iterator<char>());
    std::unique_ptr<vxTrueTypeFile> font = parse(std::move(data), index, failure);
    if (!font) failure = "Invalid font file: " + path;
    return font;
}

std::unique_ptr<vxTrueTypeFile> vxTrueTypeFile::parse(std::vector<uint8_t> data, int index,
                                                      std::string& failure) {
    std::unique_ptr<vxTrueTypeFile> font(new vxTrueTypeFile());
    font->bytes = std::move(data);
    bool isValid = font->readDirectory(index);
    for (const char* tag : kUsableTables) isValid = isValid && font->hasTable(tag);
    if (!isValid || !font->readHead() || !font->readHorizontal() || !font->readOS2() ||
        !font->readName() || !font->readCmap()) {
        failure = "Invalid font file";
        return nullptr;
    }
    font->readPost();
    return font;
}

bool vxTrueTypeFile::readDirectory(int index) {
    size_t start = 0;
    if (tagAt(bytes, 0) == "ttcf") {
        if (index < 0 || static_cast<uint32_t>(index) >= u32At(bytes, 8)) return false;
        start = u32At(bytes, 12 + 4 * static_cast<size_t>(index));
        collection = true;
    }
    const uint32_t count = u16At(bytes, start + 4);
    if (start + 12 + count * 16ul > bytes.size()) return false;
    for (uint32_t i = 0; i < count; ++i) {
        const size_t at = start + 12 + i * 16ul;
        Table t{u32At(bytes, at + 8), u32At(bytes, at + 12)};
        if (t.offset > bytes.size() || t.length > bytes.size() - t.offset) return false;
        tables.emplace_back(tagAt(bytes, at), t);
    }
    return true;
}

const vxTrueTypeFile::Table* vxTrueTypeFile::table(const char* tag) const {
    for (const auto& [name, t] : tables) {
        if (name == tag) return &t;
    }
    return nullptr;
}

bool vxTrueTypeFile::hasTable(const char* tag) const {
    return table(tag) != nullptr;
}

bool vxTrueTypeFile::readHead() {
    const uint32_t at = table("head")->offset;
    metrics.unitsPerEm = static_cast<int>(u16At(bytes, at + 18));
    if (metrics.unitsPerEm < 16) return false;
    for (size_t i = 0; i < 4; ++i) metrics.box[i] = s16At(bytes, at + 36 + 2 * i);
    metrics.macStyle = static_cast<int>(u16At(bytes, at + 44));
    return true;
}

// The header's ascender, descender and line gap, and the advances of the
// glyphs that the maxp table counts.
bool vxTrueTypeFile::readHorizontal() {
    const uint32_t hhea = table("hhea")->offset;
    metrics.ascender = s16At(bytes, hhea + 4);
    metrics.descender = s16At(bytes, hhea + 6);
    metrics.lineGap = s16At(bytes, hhea + 8);
    const uint32_t numOfMetrics = u16At(bytes, hhea + 34);
    const uint32_t numOfGlyphs = u16At(bytes, table("maxp")->offset + 4);
    const Table* hmtx = table("hmtx");
    if (numOfMetrics == 0 || numOfMetrics * 4ul > hmtx->length) return false;
    advances.resize(numOfGlyphs > numOfMetrics ? numOfGlyphs : numOfMetrics);
    for (uint32_t g = 0; g < advances.size(); ++g) {
        const uint32_t m = g < numOfMetrics ? g : numOfMetrics - 1;
        advances[g] = static_cast<uint16_t>(u16At(bytes, hmtx->offset + 4ul * m));
    }
    return true;
}

bool vxTrueTypeFile::readOS2() {
    const uint32_t at = table("OS/2")->offset;
    metrics.os2Version = static_cast<int>(u16At(bytes, at));
    metrics.avgCharWidth = s16At(bytes, at + 2);
    metrics.weightClass = static_cast<int>(u16At(bytes, at + 4));
    metrics.fsType = static_cast<int>(u16At(bytes, at + 8));
    metrics.typoAscender = s16At(bytes, at + 68);
    metrics.typoDescender = s16At(bytes, at + 70);
    metrics.winAscent = static_cast<int>(u16At(bytes, at + 74));
    metrics.winDescent = static_cast<int>(u16At(bytes, at + 76));
    if (metrics.os2Version >= 2) {
        metrics.xHeight = s16At(bytes, at + 86);
        metrics.capHeight = s16At(bytes, at + 88);
    }
    return true;
}

// The PostScript name (name ID 6): the Windows Unicode record in US
// English, or the Macintosh Roman one, whichever comes first.
bool vxTrueTypeFile::readName() {
    const uint32_t at = table("name")->offset;
    const uint32_t count = u16At(bytes, at + 2);
    const uint32_t strings = at + u16At(bytes, at + 4);
    for (uint32_t i = 0; i < count && postScriptName.empty(); ++i) {
        const size_t r = at + 6 + 12ul * i;
        const uint32_t platform = u16At(bytes, r), encoding = u16At(bytes, r + 2);
        const uint32_t language = u16At(bytes, r + 4), id = u16At(bytes, r + 6);
        const uint32_t length = u16At(bytes, r + 8), offset = strings + u16At(bytes, r + 10);
        if (id != 6) continue;
        const bool isWindows = platform == 3 && encoding == 1 && language == 0x409;
        const bool isMac = platform == 1 && encoding == 0 && language == 0;
        const uint32_t step = isWindows ? 2 : 1;
        for (uint32_t k = 0; (isWindows || isMac) && k + step <= length; k += step) {
            const uint32_t c = isWindows ? u16At(bytes, offset + k) : u8At(bytes, offset + k);
            // Only the printable ASCII that a PDF name takes without escapes.
            if (c > 32 && c < 127 && std::strchr("()<>[]{}/%#", static_cast<int>(c)) == nullptr) {
                postScriptName += static_cast<char>(c);
            }
        }
    }
    return !postScriptName.empty();
}

// The best subtable: Unicode full repertoire (format 12), then Unicode
// BMP (format 4), then the symbol subtable.
bool vxTrueTypeFile::readCmap() {
    const uint32_t at = table("cmap")->offset;
    const uint32_t count = u16At(bytes, at + 2);
    int best = 0;
    for (uint32_t i = 0; i < count; ++i) {
        const size_t r = at + 4 + 8ul * i;
        const uint32_t platform = u16At(bytes, r), encoding = u16At(bytes, r + 2);
        const uint32_t offset = at + u32At(bytes, r + 4);
        const int format = static_cast<int>(u16At(bytes, offset));
        const bool isUnicode =
            platform == 0 || (platform == 3 && (encoding == 1 || encoding == 10));
        const bool isSymbol = platform == 3 && encoding == 0;
        int rank = 0;
        if (isUnicode && format == 12) rank = 3;
        if (isUnicode && format == 4) rank = 2;
        if (isSymbol && format == 4) rank = 1;
        if (rank <= best) continue;
        best = rank;
        cmapOffset = offset;
        cmapFormat = format;
        isSymbolCmap = rank == 1;
    }
    return best > 0;
}

void vxTrueTypeFile::readPost() {
    const Table* post = table("post");
    if (post == nullptr || post->length < 16) return;
    metrics.italicAngle = static_cast<int32_t>(u32At(bytes, post->offset + 4)) / 65536.0;
    metrics.underlinePosition = s16At(bytes, post->offset + 8);
    metrics.underlineThickness = s16At(bytes, post->offset + 10);
    metrics.isFixedPitch = u32At(bytes, post->offset + 12) != 0;
}

bool vxTrueTypeFile::isEmbeddingAllowed() const {
    const int fsType = metrics.fsType;
    return (fsType & 2) == 0 || (fsType & 4) != 0 || (fsType & 8) != 0;
}

bool vxTrueTypeFile::hasAllRequiredTablesForFontEmbedding() const {
    for (const char* tag : kEmbeddingTables) {
        if (!hasTable(tag)) return false;
    }
    return true;
}

uint16_t vxTrueTypeFile::getGlyph(char32_t c) const {
    if (isSymbolCmap && c >= 0x20 && c <= 0xFF) return lookUp(c | 0xF000);
    return lookUp(c);
}

uint16_t vxTrueTypeFile::lookUp(char32_t c) const {
    const uint16_t glyph = cmapFormat == 12 ? lookUpFormat12(c) : lookUpFormat4(c);
    return glyph < advances.size() ? glyph : 0;
}

uint16_t vxTrueTypeFile::lookUpFormat4(char32_t c) const {
    if (c > 0xFFFF) return 0;
    const uint32_t segX2 = u16At(bytes, cmapOffset + 6);
    const size_t ends = cmapOffset + 14, starts = ends + segX2 + 2;
    const size_t deltas = starts + segX2, rangeOffsets = deltas + segX2;
    for (uint32_t s = 0; s < segX2; s += 2) {
        if (c > u16At(bytes, ends + s)) continue;
        const uint32_t first = u16At(bytes, starts + s);
        if (c < first) return 0;
        const uint32_t delta = u16At(bytes, deltas + s);
        const uint32_t rangeOffset = u16At(bytes, rangeOffsets + s);
        if (rangeOffset == 0) return static_cast<uint16_t>(c + delta);
        const uint32_t glyph = u16At(bytes, rangeOffsets + s + rangeOffset + 2 * (c - first));
        return glyph == 0 ? 0 : static_cast<uint16_t>(glyph + delta);
    }
    return 0;
}

uint16_t vxTrueTypeFile::lookUpFormat12(char32_t c) const {
    // The count is bounded by the bytes there are, whatever the file says.
    const size_t count =
        std::min<size_t>(u32At(bytes, cmapOffset + 12),
                         (bytes.size() - std::min<size_t>(bytes.size(), cmapOffset)) / 12);
    for (size_t i = 0; i < count; ++i) {
        const size_t g = cmapOffset + 16 + 12ul * i;
        const uint32_t first = u32At(bytes, g), last = u32At(bytes, g + 4);
        if (c >= first && c <= last) return static_cast<uint16_t>(u32At(bytes, g + 8) + c - first);
        if (first > c) break;
    }
    return 0;
}

int vxTrueTypeFile::getAdvance(uint16_t glyph) const {
    if (advances.empty()) return 0;
    return glyph < advances.size() ? advances[glyph] : advances.back();
}

}  // namespace Velarix
