// What saves have replaced, and unsaved work that was left: kept in the operator's own folder for
// application data, so that any save of the day can be gone back to.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "storage/file.h"

namespace scorvane {

struct EarlierSave {
  std::string path;            ///< of the kept copy itself, an ordinary contest file
  std::int64_t time = 0;       ///< when it was kept, in seconds since the start of 1970 (UTC)
  bool isUnsavedRest = false;  ///< work that was never saved, not what a save replaced
  std::string contestPath;     ///< whose content it was, empty for a contest that had no file
};

/// What is kept of a contest, newest first; an empty path asks for what was left of contests that
/// had no file.
[[nodiscard]] std::vector<EarlierSave> earlierSaves(FileSystem& files,
                                                    const std::string& contestPath);

/// The bytes of the contest file that was kept; nothing when they cannot be read any more.
[[nodiscard]] std::optional<std::string> readEarlierSave(FileSystem& files,
                                                         const EarlierSave& save);

/// Keeps the bytes of a contest file, unless they are what was kept last. Whatever goes wrong is
/// swallowed: it must neither stop nor delay the save that it goes before.
void keepEarlierSave(FileSystem& files, const std::string& contestPath, std::string_view bytes,
                     bool isUnsavedRest);

}  // namespace scorvane
