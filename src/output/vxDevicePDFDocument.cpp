// The PDF file: objects in their order, the resource dictionary, the info
// and catalog records, the cross-reference table and the trailer.
#include <zlib.h>

#include <cstdio>
#include <ctime>

#include "output/vxDevicePDF.h"
#include "output/vxNumberWriter.h"
#include "output/vxPDFText.h"

namespace Velarix {

namespace {

constexpr long kPagesObject = 1;
constexpr long kResourcesObject = 2;
constexpr long kPageObject = 3;
constexpr long kContentObject = 4;
constexpr long kFirstResourceObject = 5;

const char kEnd[] = "\r\n";

// The ProcSet names by the bits of a mask; the device gives them all.
std::string procSet(int mask) {
    static const char* const kNames[] = {"/PDF", "/Text", "/ImageB", "/ImageC", "/ImageI"};
    std::string s = "/ProcSet [";
    bool isFirst = true;
    for (int bit = 0; bit < 5; ++bit) {
        if ((mask & (1 << bit)) == 0) continue;
        if (!isFirst) s += " ";
        s += kNames[bit];
        isFirst = false;
    }
    return s + "]";
}

std::string hexString(const std::wstring& text) {
    return "<" + vxPDFText::hexOf(text) + ">";
}

}  // namespace

// The local time as YYYYMMDDHHmmSS and its difference to UTC as +HH'mm'.
std::string vxDevicePDF::dateText() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    std::tm utc{};
    localtime_r(&now, &local);
    gmtime_r(&now, &utc);
    utc.tm_isdst = local.tm_isdst;
    const long difference =
        static_cast<long>(std::difftime(std::mktime(&local), std::mktime(&utc)));
    const long minutes = (difference < 0 ? -difference : difference) / 60;
    char text[40];
    std::snprintf(text, sizeof text, "%04d%02d%02d%02d%02d%02d%c%02ld'%02ld'", local.tm_year + 1900,
                  local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec,
                  difference < 0 ? '-' : '+', minutes / 60, minutes % 60);
    return text;
}

void vxDevicePDF::append(const std::string& text) {
    file.insert(file.end(), text.begin(), text.end());
}

void vxDevicePDF::beginObject(long number) {
    if (static_cast<long>(offsets.size()) <= number) offsets.resize(number + 1, 0);
    offsets[number] = static_cast<long>(file.size());
    append(std::to_string(number) + " 0 obj" + kEnd);
}

void vxDevicePDF::writeObject(long number, const std::string& body) {
    beginObject(number);
    append(body + kEnd + "endobj" + kEnd);
}

void vxDevicePDF::writeFile() {
    file.clear();
    offsets.assign(1, 0);
    append(std::string("%PDF-1.3") + kEnd);
    writeObject(kPageObject, "<< /Type /Page /Parent 1 0 R /Resources 2 0 R /Contents 4 0 R >>");
    writeContentObject();
    if (isError()) return;
    writeObject(kPagesObject, "<< /Type /Pages /Kids [3 0 R] /Count 1 /MediaBox [0 0 " +
                                  vxNumberWriter::pdf(getWidth()) + " " +
                                  vxNumberWriter::pdf(getHeight()) + "] >>");
    writeResourceObjects();
    writeObject(kResourcesObject, resourceDictionary());
    const long info = kFirstResourceObject + resources.getNumOfEntries();
    writeObject(info, infoDictionary());
    writeObject(info + 1, catalogDictionary());
    writeCrossReference(info + 1);
}

// The content ends with its own line end, which the length counts; a
// deflated content gets one after it for the reader's sake.
void vxDevicePDF::writeContentObject() {
    std::vector<uint8_t> bytes(content.begin(), content.end());
    std::string filter;
    if (doCompress) {
        std::vector<uint8_t> packed;
        if (!deflate(bytes, packed)) return;
        bytes.swap(packed);
        filter = " /Filter /FlateDecode";
    }
    beginObject(kContentObject);
    append("<<" + filter + " /Length " + std::to_string(bytes.size()) + " >>" + kEnd + "stream" +
           kEnd);
    file.insert(file.end(), bytes.begin(), bytes.end());
    if (doCompress) append(kEnd);
    append(std::string("endstream") + kEnd + "endobj" + kEnd);
}

long vxDevicePDF::objectNumberOf(const std::string& name) const {
    long number = kFirstResourceObject;
    for (int t = 0; t < vxPDFResources::kNumOfTables; ++t) {
        for (const auto& entry : resources.getEntries(static_cast<vxPDFResources::Table>(t))) {
            if (entry.name == name) return number;
            ++number;
        }
    }
    return 0;
}

void vxDevicePDF::writeResourceObjects() {
    long number = kFirstResourceObject;
    auto numberOf = [this](const std::string& name) { return objectNumberOf(name); };
    for (int t = 0; t < vxPDFResources::kNumOfTables; ++t) {
        for (const auto& entry : resources.getEntries(static_cast<vxPDFResources::Table>(t))) {
            beginObject(number++);
            append(vxPDFResources::resolve(entry.dictionary, numberOf));
            if (!entry.stream.empty()) {
                append(std::string(kEnd) + "stream" + kEnd);
                file.insert(file.end(), entry.stream.begin(), entry.stream.end());
                append(std::string(kEnd) + "endstream");
            }
            append(std::string(kEnd) + "endobj" + kEnd);
        }
    }
}

std::string vxDevicePDF::resourceDictionary() const {
    std::string s = std::string("<<") + kEnd + procSet(31) + kEnd;
    for (int t = 0; t < vxPDFResources::kNumOfTables; ++t) {
        const auto table = static_cast<vxPDFResources::Table>(t);
        const auto& entries = resources.getEntries(table);
        if (entries.empty() || vxPDFResources::dictionaryKey(table) == nullptr) continue;
        s += std::string(vxPDFResources::dictionaryKey(table)) + " <<";
        for (const auto& entry : entries) {
            s += " " + entry.name + " " + std::to_string(objectNumberOf(entry.name)) + " 0 R";
        }
        s += std::string(" >>") + kEnd;
    }
    return s + ">>";
}

std::string vxDevicePDF::infoDictionary() const {
    std::string s = "<< /CreationDate (D:" + creationDate + ") /ModDate (D:" + modDate + ")";
    s += " /Producer " + hexString(producer);
    if (!title.empty()) s += " /Title " + hexString(title);
    if (!subject.empty()) s += " /Subject " + hexString(subject);
    if (!author.empty()) s += " /Author " + hexString(author);
    if (!creator.empty()) s += " /Creator " + hexString(creator);
    if (!keywords.empty()) s += " /Keywords " + hexString(keywords);
    return s + " >>";
}

std::string vxDevicePDF::catalogDictionary() const {
    std::string s = "<< /Type /Catalog /Pages 1 0 R";
    switch (openAction) {
        case kFit:
            s += " /OpenAction [3 0 R /Fit]";
            break;
        case kFitWidth:
            s += " /OpenAction [3 0 R /FitH null]";
            break;
        case kActualSize:
            s += " /OpenAction [3 0 R /XYZ null null 1]";
            break;
        default:
            if (openAction > 0) {
                s += " /OpenAction [3 0 R /XYZ null null " +
                     vxNumberWriter::pdf(openAction * 0.01) + "]";
            }
            break;
    }
    if (pageLayout == kSinglePage) s += " /PageLayout /SinglePage";
    if (pageLayout == kOneColumn) s += " /PageLayout /OneColumn";
    if (pageLayout == kTwoColumnLeft) s += " /PageLayout /TwoColumnLeft";
    return s + " >>";
}

// Each entry is twenty bytes: ten digits of offset, the generation, the
// kind, and CR LF.
void vxDevicePDF::writeCrossReference(long highest) {
    const long start = static_cast<long>(file.size());
    append(std::string("xref") + kEnd + "0 " + std::to_string(highest + 1) + kEnd);
    append(std::string("0000000000 65535 f") + kEnd);
    char entry[32];
    for (long number = 1; number <= highest; ++number) {
        const long offset = number < static_cast<long>(offsets.size()) ? offsets[number] : 0;
        std::snprintf(entry, sizeof entry, "%010ld 00000 n\r\n", offset);
        append(entry);
    }
    append(std::string("trailer") + kEnd + "<< /Size " + std::to_string(highest + 1) + " /Root " +
           std::to_string(highest) + " 0 R /Info " + std::to_string(highest - 1) + " 0 R >>" +
           kEnd + "startxref" + kEnd + std::to_string(start) + kEnd + "%%EOF" + kEnd);
}

bool vxDevicePDF::deflate(const std::vector<uint8_t>& in, std::vector<uint8_t>& out) {
    uLongf length = compressBound(static_cast<uLong>(in.size()));
    out.resize(length);
    if (compress2(out.data(), &length, in.data(), static_cast<uLong>(in.size()),
                  Z_BEST_COMPRESSION) != Z_OK) {
        out.clear();
        setError(vxErrRuntime::kOutOfMemory, where(L"deflate"));
        return false;
    }
    out.resize(length);
    return true;
}

}  // namespace Velarix
