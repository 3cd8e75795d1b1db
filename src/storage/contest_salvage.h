// What can still be read of a contest file that was cut off or damaged.
#pragma once

#include <optional>
#include <string_view>

#include "model/contest.h"

namespace scorvane {

/// The contest of all lines that are whole: each record that has the shape of its section counts,
/// whatever number of them was promised. Nothing when not even that makes a contest.
[[nodiscard]] std::optional<Contest> salvageContest(std::string_view bytes);

}  // namespace scorvane
