// The diagnostics log, Velarix.txt in the current folder: a developer's
// record of a run and of the model's fields. Nothing reads it back.
//
// Every function first tests the log flag and returns at once when it is
// off, so a run without a log pays one test per call. Each write opens the
// file, appends and closes it; a file that can't be opened is ignored.
#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace Velarix {

namespace vxLog {

// On a change from off to on the file is created anew with a time line.
void setFlags(bool log, bool detail);
bool isOn();
bool isDetailOn();
// Clears the pending flag; truncates the file when the log is on.
void reset();
// The start of an external call: the log is switched off and on, then the
// run's timestamp and the START line are written.
void beginRun();
void endRun();

// Appends one line (UTF-8) when the log is on.
void write(const std::string& line);
// Appends what `fn` writes into the stream, when the log is on.
void withStream(const std::function<void(std::ostream&)>& fn);

// "Sat, 2026-11-22 10:15:00": local time, the form of the time lines.
std::string timeLine();
// "TIMESTAMP: 12.345 [sec]": seconds since the process started.
std::string timestamp();

std::string& fileName();  // "Velarix.txt"; tests may point it elsewhere

}  // namespace vxLog

// Dump helpers: each class writes a header with its name, its fields with
// their labels, then tells its members to dump at depth minus one.
void vxDumpHeader(std::ostream& out, const std::string& title, const std::string& subtitle = "");
void vxDumpEnd(std::ostream& out);
void vxDumpSeparator(std::ostream& out);
void vxDumpLine(std::ostream& out, const char* label, bool value);
void vxDumpLine(std::ostream& out, const char* label, short value);
void vxDumpLine(std::ostream& out, const char* label, long value);
void vxDumpLine(std::ostream& out, const char* label, float value);
void vxDumpLine(std::ostream& out, const char* label, double value);
void vxDumpLine(std::ostream& out, const char* label, float a, float b);
// A row of floats separated by commas, such as a rectangle's four sides.
void vxDumpLine(std::ostream& out, const char* label, const float* values, size_t count);
void vxDumpLine(std::ostream& out, const char* label, const std::wstring& value);
void vxDumpLine(std::ostream& out, const char* label, const std::vector<std::wstring>& values);
void vxDumpLine(std::ostream& out, const char* label, const std::vector<long>& values);
void vxDumpLine(std::ostream& out, const char* label, const std::vector<short>& values);
void vxDumpLine(std::ostream& out, const char* label, const std::string& value);

// The narrow form of a wide text for the log (UTF-8).
std::string vxNarrow(const std::wstring& text);

}  // namespace Velarix
