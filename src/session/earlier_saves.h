// What saves have replaced, and unsaved work that was left: kept in the operator's own folder for
// application data, so that any save of the day can be gone back to.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "storage/file.h"

namespace scorvane {

struct EarlierSave {
  std::string path;            ///< of the kept copy itself, an ordinary contest file
  std::int64_t time = 0;       ///< when its content was saved or left, in seconds since 1970 (UTC)
  bool isUnsavedRest = false;  ///< work that was never saved, not what a save replaced
  std::string contestPath;     ///< whose content it was, empty for a contest that had no file
  std::uint64_t size = 0;
};

/// What is kept of a contest, newest first, also from the time before its file was renamed or
/// moved; an empty path asks for what was left of contests that had no file. The order is that of
/// keeping, whatever the clock said.
[[nodiscard]] std::vector<EarlierSave> earlierSaves(FileSystem& files,
                                                    const std::string& contestPath);

/// The bytes of the contest file that was kept; nothing when they cannot be read any more.
[[nodiscard]] std::optional<std::string> readEarlierSave(FileSystem& files,
                                                         const EarlierSave& save);

/// Whether something is among the earlier saves by now: not at all, already, or newly.
enum class Keeping { failed, known, kept };

/// Keeps the bytes of a contest file as of the time given in the file system's units, without one
/// the time of the contest's file, or for an unsaved rest now. What was kept last is not kept
/// again. Whatever goes wrong has no consequences but the answer.
Keeping keepEarlierSave(FileSystem& files, const std::string& contestPath, std::string_view bytes,
                        bool isUnsavedRest, std::optional<std::int64_t> time = std::nullopt);

/// Removes the newest save, to free its room on a disk that is full.
void forgetNewestSave(FileSystem& files, const std::string& contestPath);

/// Thins what is kept of a contest and notes its file's content by its hash, by which the file is
/// known again under another name. To be called when a save is done.
void tidyEarlierSaves(FileSystem& files, const std::string& contestPath, std::uint64_t hash);

/// Finds what is kept of a file that was renamed or moved, when there is nothing under its present
/// name. To be called when a contest was opened.
void followRenamedContest(FileSystem& files, const std::string& contestPath, std::uint64_t hash);

/// Which of the saves, newest first, thinning takes away. All of the last day of work stay, up to
/// 200, of the six days of work before the last of each hour, then the last of each day, and every
/// unsaved rest. Of more than 200 MB the oldest go, rests too, but never the newest.
[[nodiscard]] std::vector<std::size_t> superfluousSaves(const std::vector<EarlierSave>& saves);

}  // namespace scorvane
