// Dealing the contestants out to the reasons groups, and their speaking order by chance.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "model/contest.h"

namespace scorvane {

/// The classic linear congruential generator; one seed always gives one reasons order.
class ReasonsRandom {
 public:
  explicit ReasonsRandom(std::uint32_t seed) : state_(seed) {}
  /// The next number, 0 to 32767.
  std::int32_t draw();

 private:
  std::uint32_t state_;
};

/// How far the group advances after every contestant at an odd place of the count, from the
/// number of reasons groups and of reasons classes: the number of classes when the groups are a
/// multiple of them (twice or more), otherwise 1.
[[nodiscard]] std::int32_t reasonsGroupStep(std::int32_t groups, std::int32_t classes);

/// Replaces the reasons order and all places by new ones: contestants with a name, in number
/// order, go to the groups in a fixed pattern and to rows by chance; the order is compacted.
/// Gives the message for the operator when no order can be made; nothing is changed then.
[[nodiscard]] std::optional<std::string> generateReasonsOrder(Contest& contest, std::uint32_t seed);

}  // namespace scorvane
