// Where the session keeps what belongs to the operator's work but not into the contest's file.
#pragma once

#include <string>
#include <string_view>

#include "storage/file.h"

namespace scorvane {

/// A folder of the operator's local application data, without the slash at its end.
[[nodiscard]] std::string recoveryFolder(FileSystem& files);
[[nodiscard]] std::string earlierSavesFolder(FileSystem& files);

/// A recovery copy's path; several running programs, or crashes, leave several of one contest.
[[nodiscard]] std::string copyPath(FileSystem& files, const std::string& key, int ordinal);
/// Whether a file of the recovery folder is a copy of the contest with that key.
[[nodiscard]] bool isCopyOf(std::string_view name, const std::string& key);

/// The full name of a contest's file, the path as given when it cannot be told.
[[nodiscard]] std::string fullPath(FileSystem& files, const std::string& contestPath);

/// Whether two paths reach the same file; capitals and small letters are one, as on Windows.
[[nodiscard]] bool reachesSameFile(FileSystem& files, const std::string& a, const std::string& b);

/// What the things kept of a contest are named by: its file's name and a hash of the full path, so
/// that an operator finds it and no two contests share it. "Untitled" for an empty path.
[[nodiscard]] std::string contestKey(FileSystem& files, const std::string& contestPath);

}  // namespace scorvane
