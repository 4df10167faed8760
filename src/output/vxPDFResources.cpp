#include "output/vxPDFResources.h"

namespace Velarix {

std::string vxPDFResources::add(Table table, const std::string& dictionary,
                                const std::vector<uint8_t>& stream) {
    std::vector<Entry>& entries = tables[table];
    for (const Entry& entry : entries) {
        if (entry.dictionary == dictionary && entry.stream == stream) return entry.name;
    }
    const std::string name = namePrefix(table) + std::to_string(entries.size() + 1);
    entries.push_back(Entry{name, dictionary, stream});
    return name;
}

void vxPDFResources::replace(Table table, const std::string& name, const std::string& dictionary) {
    for (Entry& entry : tables[table]) {
        if (entry.name == name) entry.dictionary = dictionary;
    }
}

long vxPDFResources::getNumOfEntries() const {
    size_t count = 0;
    for (const auto& entries : tables) count += entries.size();
    return static_cast<long>(count);
}

void vxPDFResources::clear() {
    for (auto& entries : tables) entries.clear();
}

const char* vxPDFResources::dictionaryKey(Table table) {
    static const char* const kKeys[kNumOfTables] = {"/ColorSpace", "/ExtGState", "/Font",   nullptr,
                                                    "/XObject",    "/Pattern",   "/Shading"};
    return kKeys[table];
}

const char* vxPDFResources::namePrefix(Table table) {
    static const char* const kPrefixes[kNumOfTables] = {"/Cs", "/Gs", "/F", "/Fd",
                                                        "/Im", "/Pa", "/Sh"};
    return kPrefixes[table];
}

std::string vxPDFResources::referenceTo(const std::string& name) {
    return "{{" + name + "}}";
}

}  // namespace Velarix
