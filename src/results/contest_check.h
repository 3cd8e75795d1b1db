// What has to be looked at before the awards: what is missing, what contradicts itself, and ties
// that nobody breaks.
#pragma once

#include <string>
#include <string_view>

#include "model/contest.h"

namespace scorvane {

/// The verdict in the first line, then one line a thing under headings, then who did not come,
/// which is no thing. No line is longer than 80 characters.
[[nodiscard]] std::string contestCheckReport(const Contest& contest);

/// Whether such a report tells of things.
[[nodiscard]] bool tellsOfThings(std::string_view contestCheck);

}  // namespace scorvane
