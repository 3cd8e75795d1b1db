// Where the session keeps what belongs to the operator's work but not into the contest's file.
#pragma once

#include <string>

#include "storage/file.h"

namespace scorvane {

/// A folder of the operator's local application data, without the slash at its end.
[[nodiscard]] std::string recoveryFolder(FileSystem& files);
[[nodiscard]] std::string earlierSavesFolder(FileSystem& files);

/// The full name of a contest's file, the path as given when it cannot be told.
[[nodiscard]] std::string fullPath(FileSystem& files, const std::string& contestPath);

/// What the things kept of a contest are named by: its file's name and a hash of the full path, so
/// that an operator finds it and no two contests share it. "Untitled" for an empty path.
[[nodiscard]] std::string contestKey(FileSystem& files, const std::string& contestPath);

}  // namespace scorvane
