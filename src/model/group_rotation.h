// Which group judges which class in which round.
#pragma once

#include <cstdint>
#include <optional>

#include "model/contest.h"

namespace scorvane {

/// The rotation table: a row for each class, a column for each of as many rounds. In round r
/// group g judges class (r + g) mod n, all counted from 0. With more groups than classes only the
/// first n groups judge: a class holds one group at a time, so the others have no cell.
///
/// Cells are computed when asked for, so a contest file with absurdly many classes costs nothing.
class Rotation {
 public:
  Rotation(std::int32_t numClasses, std::int32_t numGroups);

  /// Number of classes, and of rounds.
  [[nodiscard]] std::int32_t rounds() const { return classes_; }
  /// Number of groups that judge, each in every round; those after them never do.
  [[nodiscard]] std::int32_t judgingGroups() const { return groups_; }

  /// Letter of the group that judges a class in a round; ' ' when none does or the table has no
  /// such class or round.
  [[nodiscard]] char groupAt(std::int32_t classIndex, std::int32_t round) const;
  /// The class that a group judges in a round; nothing when it judges none or there is no such
  /// round.
  [[nodiscard]] std::optional<std::int32_t> classOf(char group, std::int32_t round) const;
  /// The round in which a group judges a class; rounds() when there is none.
  [[nodiscard]] std::int32_t roundOf(char group, std::int32_t classIndex) const;

 private:
  [[nodiscard]] bool isInside(std::int32_t index) const { return index >= 0 && index < classes_; }

  std::int32_t classes_;
  std::int32_t groups_;
};

/// The rotation for the contest's classes and numGroups as they are now.
[[nodiscard]] Rotation rotationOf(const Contest& contest);

}  // namespace scorvane
