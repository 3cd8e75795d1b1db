// From the bytes of a contest file to the contest.
#pragma once

#include <string_view>
#include <variant>

#include "model/contest.h"
#include "storage/file.h"

namespace scorvane {

/// Why bytes are not taken for a contest.
enum class ContestFault {
  notAContest,         ///< sections missing or cut off, or counts that no file could keep
  scoreCountMismatch,  ///< the number of score lines is not classes times contestants
  unreadable,          ///< the medium gave only a part of the file
};

/// Reads a contest file. Any bytes are safe: a count promises, the lines decide, and memory stays
/// within a small multiple of the size of the input. Values that the file leaves out get their
/// defaults; group letters, the next number and the reasons order are worked out. A reasons place
/// outside the table, or one that a later contestant holds too, reads as unassigned. Linear in the
/// size of the input when records come in ascending order, as they are written.
[[nodiscard]] std::variant<Contest, ContestFault> readContest(std::string_view bytes);

/// The same from a file, which is never in memory as a whole.
[[nodiscard]] std::variant<Contest, ContestFault> readContest(InputFile& file);

}  // namespace scorvane
