// What somebody who mistyped a name may have meant.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace scorvane {

/// The name that `typed` is most like, capitals aside; "" when it is like none of them: more than a
/// third of its letters would have to be changed, left out or put in.
[[nodiscard]] std::string nearestName(std::string_view typed, std::span<const std::string> names);

}  // namespace scorvane
