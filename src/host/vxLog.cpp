#include "host/vxLog.h"

#include <chrono>
#include <cstdio>
#include <ctime>
#include <fstream>
#include <locale>
#include <sstream>

#include "platform/vxTextCodec.h"

namespace Velarix {

namespace {

// The log's flags are process-wide: the host calls one function at a time.
struct LogState {
    bool log = false;
    bool detail = false;
    bool pending = false;
    int indent = 0;
    std::string fileName = "Velarix.txt";
    std::chrono::steady_clock::time_point start = std::chrono::steady_clock::now();
};

LogState& state() {
    static LogState s;
    return s;
}

void appendToFile(const std::string& text, bool truncate) {
    std::ofstream file(state().fileName,
                       truncate ? std::ios::out | std::ios::trunc : std::ios::out | std::ios::app);
    if (file) file << text;
}

std::string indent() {
    return std::string(static_cast<size_t>(state().indent) * 2, ' ');
}

std::string formatNumber(double v) {
    std::ostringstream s;
    s.imbue(std::locale::classic());
    s.precision(10);
    s << v;
    return s.str();
}

}  // namespace

namespace vxLog {

void setFlags(bool log, bool detail) {
    LogState& s = state();
    bool turnedOn = (log && !s.log) || (detail && !s.detail);
    s.log = log;
    s.detail = detail;
    if (turnedOn) appendToFile(timeLine() + "\n", true);
}

bool isOn() {
    return state().log;
}
bool isDetailOn() {
    return state().detail;
}

void reset() {
    state().pending = false;
    state().indent = 0;
    if (state().log) appendToFile("", true);
}

void beginRun() {
    bool detail = state().detail;
    if (!state().log) return;
    state().log = false;
    setFlags(true, detail);
    write(timestamp());
    write("[vxCH_DrawChart] START -------------------------------");
}

void endRun() {
    write("[vxCH_DrawChart] FINISHED --------------------------------");
}

void write(const std::string& line) {
    if (!state().log) return;
    appendToFile(indent() + line + "\n", false);
}

void withStream(const std::function<void(std::ostream&)>& fn) {
    if (!state().log) return;
    std::ostringstream out;
    out.imbue(std::locale::classic());
    fn(out);
    appendToFile(out.str(), false);
}

std::string timeLine() {
    std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    char buffer[50];
    size_t n = std::strftime(buffer, sizeof buffer, "%a, %Y-%m-%d %H:%M:%S", &local);
    return std::string(buffer, n);
}

std::string timestamp() {
    auto elapsed = std::chrono::steady_clock::now() - state().start;
    double ms = std::chrono::duration<double, std::milli>(elapsed).count();
    return "TIMESTAMP: " + formatNumber(ms * 0.001) + " [sec]";
}

std::string& fileName() {
    return state().fileName;
}

}  // namespace vxLog

void vxDumpHeader(std::ostream& out, const std::string& title, const std::string& subtitle) {
    std::string dashes(title.size() < 10 ? 10 : title.size(), '-');
    out << indent() << dashes << "\n" << indent() << title;
    if (!subtitle.empty()) out << " (" << subtitle << ")";
    out << "\n" << indent() << dashes << "\n";
    ++state().indent;
}

void vxDumpEnd(std::ostream&) {
    if (state().indent > 0) --state().indent;
}

void vxDumpSeparator(std::ostream& out) {
    out << "\n";
}

void vxDumpLine(std::ostream& out, const char* label, bool value) {
    out << indent() << label << (value ? "true" : "false") << "\n";
}

void vxDumpLine(std::ostream& out, const char* label, short value) {
    out << indent() << label << value << "\n";
}

void vxDumpLine(std::ostream& out, const char* label, long value) {
    out << indent() << label << value << "\n";
}

void vxDumpLine(std::ostream& out, const char* label, float value) {
    out << indent() << label << formatNumber(value) << "\n";
}

void vxDumpLine(std::ostream& out, const char* label, double value) {
    out << indent() << label << formatNumber(value) << "\n";
}

void vxDumpLine(std::ostream& out, const char* label, float a, float b) {
    out << indent() << label << formatNumber(a) << ", " << formatNumber(b) << "\n";
}

void vxDumpLine(std::ostream& out, const char* label, const float* values, size_t count) {
    out << indent() << label;
    for (size_t i = 0; i < count; ++i) out << (i ? ", " : "") << formatNumber(values[i]);
    out << "\n";
}

void vxDumpLine(std::ostream& out, const char* label, const std::wstring& value) {
    out << indent() << label << vxNarrow(value) << "\n";
}

void vxDumpLine(std::ostream& out, const char* label, const std::string& value) {
    out << indent() << label << value << "\n";
}

void vxDumpLine(std::ostream& out, const char* label, const std::vector<std::wstring>& values) {
    out << indent() << label;
    for (const auto& v : values) out << " \"" << vxNarrow(v) << "\"";
    out << "\n";
}

void vxDumpLine(std::ostream& out, const char* label, const std::vector<long>& values) {
    out << indent() << label;
    for (long v : values) out << " " << v;
    out << "\n";
}

void vxDumpLine(std::ostream& out, const char* label, const std::vector<short>& values) {
    out << indent() << label;
    for (short v : values) out << " " << v;
    out << "\n";
}

std::string vxNarrow(const std::wstring& text) {
    return vxToUtf8(text);
}

}  // namespace Velarix
