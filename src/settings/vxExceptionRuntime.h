// A failure that can't be handled where it occurs. Its message is the
// English exception text of the code; it names the source file and line.
#pragma once

#include <exception>

namespace Velarix {

class vxExceptionRuntime : public std::exception {
public:
    static constexpr int kFileNameSize = 80;
    static constexpr int kMessageSize = 100;
    static constexpr int kLocationTextSize = 128;

    // `file` may carry a path: only the part behind the last "/" is kept.
    vxExceptionRuntime(long code, long line, const char* file);

    const char* what() const noexcept override { return message; }

    long getCode() const { return code; }
    long getLine() const { return line; }
    const char* getFileName() const { return fileName; }
    const char* getMessage() const { return message; }
    // "File: <file name>, Line: <line>".
    const char* getLocationText() const { return locationText; }

private:
    long code;
    long line;
    char fileName[kFileNameSize];
    char message[kMessageSize];
    char locationText[kLocationTextSize];
};

}  // namespace Velarix
