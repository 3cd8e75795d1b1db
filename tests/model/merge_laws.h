// What must hold of every merge, and contests that an operator could have made.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "model/contest.h"

namespace scorvane {

/// A number from 0 on below the argument, which is not 0.
using Choose = std::function<std::uint32_t(std::uint32_t)>;

/// Does to a contest what some action of a dialog does.
void editAtRandom(Contest& contest, const Choose& choose);

/// The contest as it is after saving and loading.
[[nodiscard]] Contest savedAndLoaded(Contest contest);

/// What a merge of three loaded contests breaks; empty when it breaks nothing.
[[nodiscard]] std::string brokenMergeLaw(const Contest& base, const Contest& ours,
                                         const Contest& theirs);

}  // namespace scorvane
