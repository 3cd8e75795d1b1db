#include "model/group_rotation.h"

#include <algorithm>

#include "model/numbering.h"

namespace scorvane {

namespace {

// (a - b) mod n for a and b from 0 to n - 1.
std::int32_t modDifference(std::int32_t a, std::int32_t b, std::int32_t n) {
  return a >= b ? a - b : a - b + n;
}

}  // namespace

Rotation::Rotation(std::int32_t numClasses, std::int32_t numGroups)
    : classes_(std::max(numClasses, 0)), groups_(std::min(letteredGroups(numGroups), classes_)) {}

char Rotation::groupAt(std::int32_t classIndex, std::int32_t round) const {
  if (!isInside(classIndex) || !isInside(round)) return ' ';
  const std::int32_t group = modDifference(classIndex, round, classes_);
  return group < groups_ ? letterOfGroup(group) : ' ';
}

std::optional<std::int32_t> Rotation::classOf(char group, std::int32_t round) const {
  const std::int32_t index = groupOfLetter(group);
  if (index < 0 || index >= groups_ || !isInside(round)) return std::nullopt;
  return static_cast<std::int32_t>((std::int64_t{round} + index) % classes_);
}

std::int32_t Rotation::roundOf(char group, std::int32_t classIndex) const {
  const std::int32_t index = groupOfLetter(group);
  if (index < 0 || index >= groups_ || !isInside(classIndex)) return classes_;
  return modDifference(classIndex, index, classes_);
}

Rotation rotationOf(const Contest& contest) {
  return {contest.classes.count(), contest.settings.numGroups};
}

}  // namespace scorvane
