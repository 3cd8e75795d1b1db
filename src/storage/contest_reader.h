// From the bytes of a contest file to the contest.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <variant>

#include "model/contest.h"

namespace scorvane {

/// Why there is no contest.
struct ContestFault {
  enum Kind {
    unreadable,          ///< the file does not exist, cannot be opened or cannot be read to its end
    notAContest,         ///< sections missing or cut off, or lines that do not fit together
    scoreCountMismatch,  ///< the number of score lines is not classes times contestants
  };
  Kind kind = unreadable;
  std::int64_t line = 0;  ///< the first that does not fit, counted from 1; 0 when it is none
};

/// Reads a contest out of any bytes. Counts in the file are never trusted, and memory stays within
/// a small multiple of the size of the input. Values that the file leaves out get their defaults;
/// group letters, the next number and the reasons order are worked out. A reasons place outside the
/// table, or one that a later contestant holds too, reads as unassigned. A file in which a record
/// is missing, comes twice or was cut off is no contest. Linear in the size of the input when
/// records come in ascending order, as they are written.
[[nodiscard]] std::variant<Contest, ContestFault> readContest(std::string_view bytes);

/// Reads what is left of a damaged contest, once the counts were made to fit: records may be short,
/// and of several of one contestant, or of one contestant and class, the last one counts.
[[nodiscard]] std::optional<Contest> readRemains(std::string_view bytes);

}  // namespace scorvane
