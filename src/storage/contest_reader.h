// From the bytes of a contest file to the contest.
#pragma once

#include <string>
#include <string_view>
#include <variant>

#include "model/contest.h"
#include "storage/file.h"

namespace scorvane {

/// Why there is no contest.
enum class ContestFault {
  unreadable,          ///< the file does not exist, cannot be opened or cannot be read to its end
  notAContest,         ///< sections missing or cut off, or counts that no file could keep
  scoreCountMismatch,  ///< the number of score lines is not classes times contestants
};

/// Reads a contest out of any bytes. Counts in the file are never trusted, and memory stays within
/// a small multiple of the size of the input. Values that the file leaves out get their defaults;
/// group letters, the next number and the reasons order are worked out. A reasons place outside the
/// table, or one that a later contestant holds too, reads as unassigned. Linear in the size of the
/// input when records come in ascending order, as they are written.
[[nodiscard]] std::variant<Contest, ContestFault> readContest(std::string_view bytes);

struct LoadedContest {
  Contest contest;
  std::string bytes;  ///< of the file
};

/// Reads a contest file.
[[nodiscard]] std::variant<LoadedContest, ContestFault> loadContestFile(FileSystem& files,
                                                                        const std::string& path);

}  // namespace scorvane
