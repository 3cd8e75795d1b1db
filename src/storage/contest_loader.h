// From a path to the contest in its file.
#pragma once

#include <string>
#include <variant>

#include "storage/contest_reader.h"
#include "storage/file.h"

namespace scorvane {

struct LoadedContest {
  Contest contest;
  std::string bytes;     ///< of the file, or of the copy
  std::string copy;      ///< the file of a copy that was read instead; empty for none
  std::string oddities;  ///< what contestOddities() tells
};

/// Reads a contest file. When a save of it in place was never finished, reads the copy that was
/// kept meanwhile. What is no contest is refused after its first lines, and a line without an end
/// soon after its beginning.
[[nodiscard]] std::variant<LoadedContest, ContestFault> loadContestFile(FileSystem& files,
                                                                        const std::string& path);

}  // namespace scorvane
