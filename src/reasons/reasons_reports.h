// The reasons order on paper: the report of who speaks when to which official, and the sheets on
// which the officials write scores.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "model/contest.h"

namespace scorvane {

/// Reasons groups printed side by side: from `first` up to, but not including, `end`, from 0.
struct ReasonsBand {
  std::int32_t first = 0;
  std::int32_t end = 0;
  [[nodiscard]] std::int32_t width() const { return end - first; }
};

/// Splits the groups evenly into as few bands of at most eight as possible, the last band taking
/// what is left: 10 into 5 and 5, 17 into 6, 6 and 5. Always at least one band, an empty one
/// without groups.
[[nodiscard]] std::vector<ReasonsBand> reasonsBands(std::int32_t groups);

enum class ReasonsOrderForm {
  plain,
  room,  ///< with a box per group for the room number, and the class order side by side
};

/// Who speaks when in which reasons group, who has no place yet, and in which order each group
/// hears the reasons classes.
[[nodiscard]] std::string reasonsOrderReport(const Contest& contest, ReasonsOrderForm form);

enum class ReasonsSheet {
  order,         ///< speakers in order, with a blank for each score
  verification,  ///< the scores entered
};

/// The sheet of one class (index from 0): the reasons groups side by side, in bands. Nothing when
/// the class does not exist or has no reasons, or when the reasons order has no rows.
[[nodiscard]] std::optional<std::string> reasonsSheet(const Contest& contest, ReasonsSheet sheet,
                                                      std::int32_t classIndex);

}  // namespace scorvane
