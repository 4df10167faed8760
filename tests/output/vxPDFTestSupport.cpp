#include "output/vxPDFTestSupport.h"

#include <zlib.h>

#include <algorithm>
#include <cstdlib>
#include <string>

namespace Velarix::test::pdf {

namespace {

long numberAfter(const std::string& text, const std::string& key) {
    const size_t at = text.find(key);
    return at == std::string::npos ? -1 : std::atol(text.c_str() + at + key.size());
}

std::string inflated(const std::string& data) {
    std::string out(data.size() * 20 + 1024, '\0');
    uLongf length = out.size();
    if (uncompress(reinterpret_cast<Bytef*>(out.data()), &length,
                   reinterpret_cast<const Bytef*>(data.data()), data.size()) != Z_OK) {
        return "(inflate failed)";
    }
    out.resize(length);
    return out;
}

// Reads the table's entries into offsets; a fault text or "".
std::string readTable(const std::string& file, long start, long count, std::vector<long>& offsets) {
    size_t at = file.find("\r\n", file.find("\r\n", start) + 2) + 2;
    for (long i = 0; i < count; ++i, at += 20) {
        if (at + 20 > file.size()) return "table ends early";
        const std::string entry = file.substr(at, 20);
        if (entry.substr(10, 1) != " " || entry.substr(18, 2) != "\r\n")
            return "bad entry " + entry;
        offsets.push_back(std::atol(entry.substr(0, 10).c_str()));
    }
    return "";
}

}  // namespace

ParsedPDF parsePDF(const std::string& file) {
    ParsedPDF pdf;
    const size_t startxref = file.rfind("startxref\r\n");
    if (file.rfind("%PDF-1.3\r\n", 0) != 0) pdf.fault = "no header";
    if (startxref == std::string::npos || file.substr(file.size() - 7) != "%%EOF\r\n")
        pdf.fault = "no end";
    if (!pdf.fault.empty()) return pdf;
    const long xref = std::atol(file.c_str() + startxref + 11);
    if (file.compare(static_cast<size_t>(xref), 6, "xref\r\n") != 0) {
        pdf.fault = "startxref misses the table";
        return pdf;
    }
    const std::string trailer = file.substr(file.find("trailer\r\n", xref));
    pdf.size = numberAfter(trailer, "/Size ");
    pdf.root = numberAfter(trailer, "/Root ");
    pdf.info = numberAfter(trailer, "/Info ");
    std::vector<long> offsets;
    pdf.fault = readTable(file, xref, pdf.size, offsets);
    for (long number = 1; pdf.fault.empty() && number < pdf.size; ++number) {
        const std::string head = std::to_string(number) + " 0 obj\r\n";
        const size_t at = static_cast<size_t>(offsets[static_cast<size_t>(number)]);
        if (file.compare(at, head.size(), head) != 0) {
            pdf.fault = "object " + std::to_string(number) + " isn't at its offset";
            break;
        }
        const size_t end = file.find("endobj\r\n", at);
        pdf.objects[number] = file.substr(at, end + 6 - at);
    }
    std::vector<std::pair<long, long>> byOffset;
    for (long n = 1; n < static_cast<long>(offsets.size()); ++n)
        byOffset.push_back({offsets[n], n});
    std::sort(byOffset.begin(), byOffset.end());
    for (const auto& entry : byOffset) pdf.order.push_back(entry.second);
    return pdf;
}

std::string streamOf(const std::string& object) {
    const long length = numberAfter(object, "/Length ");
    const size_t start = object.find(">>\r\nstream\r\n");
    if (length < 0 || start == std::string::npos) return "";
    const std::string data = object.substr(start + 12, static_cast<size_t>(length));
    if (object.find("/FlateDecode") < start) return inflated(data);
    return data;
}

bool hasProgram(const std::string& name) {
    return std::system(("command -v " + name + " > /dev/null 2>&1").c_str()) == 0;
}

}  // namespace Velarix::test::pdf
