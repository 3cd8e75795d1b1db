// Finding a line of a list by the key the operator types.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace scorvane {

/// The next line after `after` (from the first line on, if there is none), going round at the end,
/// whose first character that is not a blank is `typed`, in capitals or not; nothing if no line
/// begins so. Lines count from 0.
[[nodiscard]] std::optional<int> lineBeginningWith(const std::vector<std::string>& lines,
                                                   char typed, std::optional<int> after);

}  // namespace scorvane
