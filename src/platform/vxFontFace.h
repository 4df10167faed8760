// One opened font file (a FreeType face) with its vertical metrics and a
// cache of glyph advances.
//
// All measuring is done on unscaled outlines: the metrics and advances are
// read in font units and multiplied by size / units per em, so a size in
// points gives lengths in points (drawing units), widths are fractional,
// grow exactly in proportion to the size and owe nothing to hinting or to a
// device resolution. Because of that the advance cache is kept per face,
// not per size: one entry serves every size.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

// FreeType's handles, so that users of this header don't need its headers.
struct FT_FaceRec_;
struct FT_LibraryRec_;

namespace Velarix {

// Why a font could not be had. FreeType's own error codes are positive and
// pass through as they are; the font service's own causes are negative.
namespace vxFontStatus {
constexpr int kOk = 0;
constexpr int kNoFreeType = -1;    // the FreeType library could not start
constexpr int kNoFontconfig = -2;  // fontconfig could not load its configuration
constexpr int kNoMatch = -3;       // fontconfig knows no font at all
constexpr int kNoOutlines = -4;    // the file holds a bitmap font only
}  // namespace vxFontStatus

// The vertical metrics of a font at one size, in points.
struct vxFontMetrics {
    float ascent = 0.0f;        // cell ascent: baseline to the top of the cell
    float descent = 0.0f;       // cell descent: baseline to the bottom, positive
    float lineHeight = 0.0f;    // baseline to baseline
    float stringHeight = 0.0f;  // ascent + descent
    float leading = 0.0f;       // lineHeight - stringHeight
};

class vxFontFace {
public:
    // Opens face `index` of `file`. Answers null when FreeType can't open it
    // or the face has no outlines to scale; `status` then holds FreeType's
    // error code or vxFontStatus::kNoOutlines.
    static std::unique_ptr<vxFontFace> open(FT_LibraryRec_* library, const std::string& file,
                                            int index, bool syntheticBold, int& status);
    ~vxFontFace();

    vxFontFace(const vxFontFace&) = delete;
    vxFontFace& operator=(const vxFontFace&) = delete;

    // The FreeType face itself, for drawing with the face that measured.
    FT_FaceRec_* getFTFace() const { return face; }
    const std::string& getFile() const { return file; }
    int getFaceIndex() const { return faceIndex; }
    const std::string& getFamilyName() const { return familyName; }
    const std::string& getStyleName() const { return styleName; }
    const std::string& getPostScriptName() const { return postScriptName; }
    // True when the matched file lacks a bold weight and bold is simulated
    // by widening every glyph.
    bool isSyntheticBold() const { return syntheticBold; }

    // The font's design metrics in font units. The cell ascent and descent
    // are the Windows values of the OS/2 table, which bound every glyph, and
    // fall back to the horizontal header; the line spacing is the larger of
    // their sum and the header's ascender - descender + line gap.
    int getUnitsPerEm() const { return unitsPerEm; }
    int getCellAscent() const { return cellAscent; }
    int getCellDescent() const { return cellDescent; }
    int getLineSpacing() const { return lineSpacing; }

    vxFontMetrics getMetrics(float size) const;

    // The advance of one code point in font units. Control characters have
    // no width; a code point the font lacks takes the width of the font's
    // missing-glyph box, which is what gets drawn for it.
    int getAdvance(char32_t codePoint);
    // The summed advances of UTF-16 text in font units; a surrogate pair is
    // one code point, a lone surrogate counts as U+FFFD.
    double getAdvance(std::wstring_view text);
    // Widths in points at `size`.
    float getWidth(std::wstring_view text, float size);
    float getWidth(char32_t codePoint, float size);
    // The length in UTF-16 units of the longest start (or end) of `text`
    // that is at most `limit` points wide at `size`, measured as getWidth
    // measures it. A surrogate pair is never split.
    std::size_t getFittingLength(std::wstring_view text, float size, float limit);
    std::size_t getFittingTailLength(std::wstring_view text, float size, float limit);

private:
    vxFontFace() = default;
    int loadAdvance(char32_t codePoint);
    float widthOf(long long advance, float size) const;

    static constexpr std::size_t kPageSize = 256;
    static constexpr std::size_t kNumOfPages = 0x110000 / kPageSize;
    using Page = std::array<int32_t, kPageSize>;

    FT_FaceRec_* face = nullptr;
    std::string file;
    int faceIndex = 0;
    std::string familyName;
    std::string styleName;
    std::string postScriptName;
    bool syntheticBold = false;
    bool isSymbolFont = false;
    int unitsPerEm = 0;
    int cellAscent = 0;
    int cellDescent = 0;
    int lineSpacing = 0;
    int boldExtra = 0;
    // Advances by code point, in pages of 256 made on first use; -1 marks an
    // entry not yet read.
    std::vector<std::unique_ptr<Page>> pages;
};

}  // namespace Velarix
