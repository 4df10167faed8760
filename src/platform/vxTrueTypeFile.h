// A TrueType font file read for what a PDF needs of it: the PostScript
// name, the design metrics, the advance of each glyph, the glyph of a
// character, the licence flags, and the file's bytes for embedding.
//
// The reader works on the bytes in big-endian order through the table
// directory; a collection (".ttc") is read at the face asked for. A file
// is usable only with all of the tables "head", "hhea", "hmtx", "maxp",
// "cmap", "name" and "OS/2". Characters are looked up in the Unicode
// subtable of the cmap (format 4 or 12, platform 3 or 0); a font with only
// a symbol subtable keeps the codes 0x20 to 0xFF at U+F020 to U+F0FF.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace Velarix {

// The design metrics in font units, as the tables give them.
struct vxTrueTypeMetrics {
    int unitsPerEm = 1000;
    std::array<int, 4> box{};  // xMin, yMin, xMax, yMax
    int macStyle = 0;
    int ascender = 0;  // of the horizontal header
    int descender = 0;
    int lineGap = 0;
    int os2Version = 0;
    int avgCharWidth = 0;
    int weightClass = 400;
    int fsType = 0;
    int typoAscender = 0;
    int typoDescender = 0;
    int winAscent = 0;
    int winDescent = 0;
    int xHeight = 0;    // 0 before version 2 of the OS/2 table
    int capHeight = 0;  // 0 before version 2 of the OS/2 table
    double italicAngle = 0.0;
    int underlinePosition = 0;
    int underlineThickness = 0;
    bool isFixedPitch = false;
};

class vxTrueTypeFile {
public:
    // Reads face `index` of the file; null with the reason in `failure`
    // ("Unable to open font file: " or "Invalid font file: " and the path).
    static std::unique_ptr<vxTrueTypeFile> read(const std::string& path, int index,
                                                std::string& failure);
    // The same for bytes in memory; `failure` is then "Invalid font file".
    static std::unique_ptr<vxTrueTypeFile> parse(std::vector<uint8_t> bytes, int index,
                                                 std::string& failure);

    const std::vector<uint8_t>& getBytes() const { return bytes; }
    const std::string& getPostScriptName() const { return postScriptName; }
    const vxTrueTypeMetrics& getMetrics() const { return metrics; }
    long getNumOfGlyphs() const { return static_cast<long>(advances.size()); }
    bool isSymbolic() const { return isSymbolCmap; }
    // A collection is embedded whole, which no PDF reader takes.
    bool isCollection() const { return collection; }

    bool hasTable(const char* tag) const;
    // Embedding is allowed unless the font asks for restricted licence
    // embedding alone (bit 2 of fsType without bit 4 or bit 8).
    bool isEmbeddingAllowed() const;
    // The tables a TrueType program needs to be drawn from an embedded file.
    bool hasAllRequiredTablesForFontEmbedding() const;

    // The glyph of a character, 0 (the missing glyph) when there is none.
    uint16_t getGlyph(char32_t c) const;
    // The advance of a glyph in font units; glyphs beyond the metrics take
    // the last advance, as the format says.
    int getAdvance(uint16_t glyph) const;

private:
    struct Table {
        uint32_t offset = 0;
        uint32_t length = 0;
    };
    vxTrueTypeFile() = default;
    bool readDirectory(int index);
    const Table* table(const char* tag) const;
    bool readHead();
    bool readHorizontal();
    bool readOS2();
    bool readName();
    bool readCmap();
    void readPost();
    uint16_t lookUp(char32_t c) const;
    uint16_t lookUpFormat4(char32_t c) const;
    uint16_t lookUpFormat12(char32_t c) const;

    std::vector<uint8_t> bytes;
    std::vector<std::pair<std::string, Table>> tables;
    std::string postScriptName;
    vxTrueTypeMetrics metrics;
    std::vector<uint16_t> advances;
    uint32_t cmapOffset = 0;  // of the chosen subtable, 0 for none
    int cmapFormat = 0;
    bool isSymbolCmap = false;
    bool collection = false;
};

}  // namespace Velarix
