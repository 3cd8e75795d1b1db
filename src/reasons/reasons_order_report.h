// The reasons order on paper: who speaks when to which official, who has no place yet, and in
// which order each reasons group hears the reasons classes.
#pragma once

#include <string>

#include "model/contest.h"

namespace scorvane {

enum class ReasonsOrderForm {
  plain,
  room,  ///< with a box per group for the room number, and the class order side by side
};

[[nodiscard]] std::string reasonsOrderReport(const Contest& contest, ReasonsOrderForm form);

}  // namespace scorvane
