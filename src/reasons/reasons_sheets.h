// The sheets on which the reasons officials write scores, and against which they are checked.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "model/contest.h"

namespace scorvane {

enum class ReasonsSheet {
  order,         ///< speakers in order, with a blank for each score
  verification,  ///< the scores entered
};

/// The sheet of one class (index from 0): the reasons groups side by side, in bands. Nothing when
/// the class does not exist or has no reasons, or when the reasons order has no rows.
[[nodiscard]] std::optional<std::string> reasonsSheet(const Contest& contest, ReasonsSheet sheet,
                                                      std::int32_t classIndex);

}  // namespace scorvane
