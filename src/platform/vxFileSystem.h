// The file services that script arguments need: name checks, joining a
// script's relative paths to the database's folder, and existence tests.
// Paths are wide texts; the system calls see them as UTF-8.
#pragma once

#include <string>

namespace Velarix {

// True when a name part of the path holds a character that a file name may
// not hold on any platform the scripts run on: a control character below
// U+0020, or one of < > " | ? *. The separators "/" and "\" and the colon
// (a drive letter) are allowed.
bool vxHasForbiddenFileNameChars(const std::wstring& path);

// A path starting with "/".
bool vxIsAbsolutePath(const std::wstring& path);

// The relative path appended to the folder; an absolute path, or any path
// with an empty folder, stands as it is.
std::wstring vxJoinPath(const std::wstring& folder, const std::wstring& relative);

// Everything before the last "/"; "/" for a file in the root and an empty
// text for a bare name.
std::wstring vxFolderOf(const std::wstring& path);

// A regular file (or a link to one) exists at the path.
bool vxFileExists(const std::wstring& path);

// The folder of the path exists; a bare name lies in the current folder,
// which always does.
bool vxFolderExists(const std::wstring& path);

}  // namespace Velarix
