#include "output/vxPDFFonts.h"

#include <zlib.h>

#include "graphics/vxFontOLD.h"
#include "host/vxLog.h"
#include "output/vxPDFFontComposite.h"
#include "output/vxPDFFontKey.h"
#include "output/vxPDFFontStandard.h"
#include "output/vxPDFFontTrueType.h"
#include "platform/vxFontFiles.h"
#include "platform/vxFontService.h"
#include "platform/vxTrueTypeFile.h"

namespace Velarix {

namespace {

// A font file as read once for the process: null after a failure, so that
// a bad file isn't read again; its program deflated on first need.
struct Program {
    std::shared_ptr<const vxTrueTypeFile> file;
    std::shared_ptr<const std::vector<uint8_t>> deflated;
};

std::map<std::string, Program>& programs() {
    static std::map<std::string, Program> cache;
    return cache;
}

long& filesRead() {
    static long count = 0;
    return count;
}

Program& programOf(const vxFontFileMatch& match) {
    const std::string key = match.file + "#" + std::to_string(match.index);
    if (auto found = programs().find(key); found != programs().end()) return found->second;
    Program& program = programs()[key];
    ++filesRead();
    std::string failure;
    program.file = vxTrueTypeFile::read(match.file, match.index, failure);
    if (!program.file) vxLog::write(failure);
    return program;
}

// Deterministic: the same bytes always deflate to the same stream.
std::shared_ptr<const std::vector<uint8_t>> deflated(const std::vector<uint8_t>& in) {
    uLongf length = compressBound(static_cast<uLong>(in.size()));
    auto out = std::make_shared<std::vector<uint8_t>>(length);
    if (compress2(out->data(), &length, in.data(), static_cast<uLong>(in.size()),
                  Z_BEST_COMPRESSION) != Z_OK) {
        return nullptr;
    }
    out->resize(length);
    return out;
}

// A whole file goes into a document as the program of its one font: a
// collection can't, nor a file whose licence (its fsType) forbids it or
// that lacks a table of the program.
bool isEmbeddable(const vxTrueTypeFile& file) {
    return file.isEmbeddingAllowed() && file.hasAllRequiredTablesForFontEmbedding() &&
           !file.isCollection();
}

}  // namespace

vxPDFFonts::vxPDFFonts() = default;
vxPDFFonts::~vxPDFFonts() = default;

long vxPDFFonts::getNumOfFilesRead() {
    return filesRead();
}

void vxPDFFonts::clear() {
    composites.clear();
    names.clear();
    fonts.clear();
}

vxPDFFonts::Use vxPDFFonts::use(const vxFontOLD& font, vxPDFResources& resources) {
    const vxPDFFontABC& chosen = fontFor(font.getName(), font.isBold(), font.isItalic());
    std::string& name = names[&chosen];
    if (name.empty()) name = chosen.addTo(resources);
    return Use{&chosen, name};
}

// The reserved names stand for Arial here as in the layout.
const vxPDFFontABC& vxPDFFonts::fontFor(const std::wstring& name, bool isBold, bool isItalic) {
    const std::wstring family = vxFontService::platformName(name);
    const vxPDFFontKey key(family, isBold, isItalic);
    std::unique_ptr<vxPDFFontABC>& font = fonts[key.getFontKey()];
    if (!font) font = makeFont(family, isBold, isItalic);
    return *font;
}

std::unique_ptr<vxPDFFontABC> vxPDFFonts::makeFont(const std::wstring& family, bool isBold,
                                                   bool isItalic) const {
    const vxPDFFontKey key(family, isBold, isItalic);
    if (const vxPDFStandardFont* standard = vxFindStandardFont(key.getFontKey())) {
        return std::make_unique<vxPDFFontStandard>(*standard);
    }
    if (auto trueType = makeTrueType(family, isBold, isItalic)) {
        return trueType;
    }
    const vxPDFFontKey helvetica(L"Helvetica", isBold, isItalic);
    return std::make_unique<vxPDFFontStandard>(*vxFindStandardFont(helvetica.getFontKey()));
}

vxPDFFontComposite* vxPDFFonts::compositeFor(const vxFontOLD& font) {
    vxFontFileMatch match;
    if (!vxFindLayoutFontFile(font.getName(), font.getStyle() & 3, match)) return nullptr;
    std::unique_ptr<vxPDFFontComposite>& composite =
        composites[match.file + "#" + std::to_string(match.index) + "+" +
                   std::to_string(match.boldExtra)];
    if (composite) return composite.get();
    Program& program = programOf(match);
    if (!program.file || !isEmbeddable(*program.file)) return nullptr;
    if (!program.deflated) program.deflated = deflated(program.file->getBytes());
    if (!program.deflated) return nullptr;
    composite =
        std::make_unique<vxPDFFontComposite>(program.file, program.deflated, match.boldExtra);
    return composite.get();
}

void vxPDFFonts::finish(vxPDFResources& resources) const {
    for (const auto& [key, composite] : composites) {
        if (composite) composite->finish(resources);
    }
}

// The program is deflated only where the font's licence lets it be
// embedded and the file holds all a reader needs to draw it.
std::unique_ptr<vxPDFFontABC> vxPDFFonts::makeTrueType(const std::wstring& family, bool isBold,
                                                       bool isItalic) const {
    vxFontFileMatch match;
    const short style = static_cast<short>((isBold ? 1 : 0) | (isItalic ? 2 : 0));
    if (!vxFindFontFile(family, style, match)) return nullptr;
    Program& program = programOf(match);
    if (!program.file) return nullptr;
    if (!program.deflated && isEmbeddable(*program.file)) {
        program.deflated = deflated(program.file->getBytes());
    }
    return std::make_unique<vxPDFFontTrueType>(program.file, isBold, isItalic, match.boldExtra,
                                               program.deflated);
}

}  // namespace Velarix
