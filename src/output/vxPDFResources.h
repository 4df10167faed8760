// The resources of a PDF page, in typed tables that each give every
// distinct resource one name: /Cs1, /Cs2 ... for colour spaces, /Gs for
// graphics states, /F for fonts, /Im for images, /Pa for patterns and /Sh
// for shadings. The parts of a font (its descriptor and its program) sit
// in a table of their own that the page doesn't list. Asking for a resource equal to one already
// there (same dictionary, same stream) gives the existing name.
//
// A resource is its dictionary text and, for a stream, its bytes. The
// object numbers aren't known until the file is written, so a dictionary
// refers to another resource by the token that referenceTo makes, which
// the writer replaces with "N 0 R".
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace Velarix {

class vxPDFResources {
public:
    // The tables in the order of their objects in the file.
    enum Table : int {
        kColorSpace,
        kGraphicsState,
        kFont,
        kFontPart,
        kImage,
        kPattern,
        kShading,
        kNumOfTables
    };

    struct Entry {
        std::string name;  // with its slash, "/Gs1"
        std::string dictionary;
        std::vector<uint8_t> stream;
    };

    // The name of the resource, added when it is new. Throws
    // std::bad_alloc.
    std::string add(Table table, const std::string& dictionary,
                    const std::vector<uint8_t>& stream = {});
    // Gives a named resource a new dictionary, for one that is complete
    // only at the end of the document. Throws std::bad_alloc.
    void replace(Table table, const std::string& name, const std::string& dictionary);
    const std::vector<Entry>& getEntries(Table table) const { return tables[table]; }
    long getNumOfEntries() const;
    void clear();

    // The name of a table's resources in the page's resource dictionary
    // ("/ColorSpace"; null for the font parts, which aren't listed), and the prefix of their names
    // ("/Cs").
    static const char* dictionaryKey(Table table);
    static const char* namePrefix(Table table);
    // The token that stands for "N 0 R" of the named resource.
    static std::string referenceTo(const std::string& name);
    // The dictionary with every token replaced by the object number that
    // `numberOf` gives for the name it holds.
    template <class NumberOf>
    static std::string resolve(const std::string& dictionary, NumberOf numberOf);

private:
    std::vector<Entry> tables[kNumOfTables];
};

template <class NumberOf>
std::string vxPDFResources::resolve(const std::string& dictionary, NumberOf numberOf) {
    std::string out;
    size_t from = 0;
    for (;;) {
        const size_t open = dictionary.find("{{", from);
        const size_t close = open == std::string::npos ? open : dictionary.find("}}", open);
        if (close == std::string::npos) break;
        out.append(dictionary, from, open - from);
        out += std::to_string(numberOf(dictionary.substr(open + 2, close - open - 2))) + " 0 R";
        from = close + 2;
    }
    out.append(dictionary, from, std::string::npos);
    return out;
}

}  // namespace Velarix
