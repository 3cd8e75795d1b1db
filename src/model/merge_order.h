// The order of what two sides added, removed and moved.
#pragma once

#include <cstddef>
#include <functional>
#include <vector>

#include "model/merge_identity.h"

namespace scorvane {

struct MergedOrder {
  std::vector<std::size_t> elements;  ///< positions in the list of elements
  bool differs = false;               ///< both sides moved elements, and differently
};

/// Orders the elements that stay as both sides have them. Where the sides contradict each other the
/// one that differs from the ancestor counts, or else ours. Of elements that only one side has, and
/// that could come first, the one for which `isBefore` is first.
[[nodiscard]] MergedOrder mergedOrder(
    const std::vector<Three<std::int32_t>>& elements, const std::vector<bool>& stays,
    const std::function<bool(std::size_t, std::size_t)>& isBefore);

}  // namespace scorvane
