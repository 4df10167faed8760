#include "settings/vxExceptionRuntime.h"

#include <cstdio>
#include <cstring>

#include "settings/vxMessageTable.h"

namespace Velarix {

namespace {

// Copies at most size - 1 characters and always ends the text.
void copyCut(char* dest, const char* source, std::size_t size) {
    std::strncpy(dest, source, size - 1);
    dest[size - 1] = '\0';
}

const char* withoutPath(const char* file) {
    if (!file) return "";
    const char* slash = std::strrchr(file, '/');
    return slash ? slash + 1 : file;
}

}  // namespace

vxExceptionRuntime::vxExceptionRuntime(long code, long line, const char* file)
    : code(code), line(line) {
    copyCut(fileName, withoutPath(file), sizeof fileName);
    copyCut(message, vxExceptionText(code), sizeof message);
    std::snprintf(locationText, sizeof locationText, "File: %s, Line: %li", fileName, line);
}

}  // namespace Velarix
