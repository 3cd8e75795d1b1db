// What can still be read of a contest file that was cut off or damaged.
#pragma once

#include <optional>
#include <string_view>

#include "model/contest.h"

namespace scorvane {

/// The contest of all lines that are whole. No score comes under another contestant or class than
/// it was stored for: a damaged class keeps its number under a name that says so, and so do all
/// classes where lines were lost. Nothing when what is left makes no contest.
[[nodiscard]] std::optional<Contest> salvageContest(std::string_view bytes);

}  // namespace scorvane
