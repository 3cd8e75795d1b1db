// Assigning the contestants to the reasons groups, and their speaking order at random.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "model/contest.h"

namespace scorvane {

/// The classic linear congruential generator: the same seed always makes the same reasons order.
class ReasonsRandom {
 public:
  explicit ReasonsRandom(std::uint32_t seed) : state_(seed) {}
  /// The next number, 0 to 32767.
  std::int32_t draw();

 private:
  std::uint32_t state_;
};

/// How far the group advances after the first, third, fifth ... contestant (after the others by 1):
/// the number of reasons classes when the reasons groups are a multiple of it (twice or more),
/// otherwise 1.
[[nodiscard]] std::int32_t reasonsGroupStep(std::int32_t groups, std::int32_t classes);

/// Replaces the reasons order and all places by new ones: contestants with a name, in number
/// order, go to the groups in a fixed pattern and to random rows; the order is compacted. Returns
/// the message for the operator when no order can be made; nothing has changed then.
[[nodiscard]] std::optional<std::string> generateReasonsOrder(Contest& contest, std::uint32_t seed);

}  // namespace scorvane
