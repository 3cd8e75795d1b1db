// Which classes, teams and people of three contests are the same: the common ancestor, ours and
// theirs. The ancestor is matched with either side first, and what it lacks with each other.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "model/contest.h"

namespace scorvane {

enum Side : std::size_t { kBase, kOurs, kTheirs };

using ThreeContests = std::array<const Contest*, 3>;

/// One thing by its key in each of three contests; nothing where it is missing.
template <typename Key>
using Three = std::array<std::optional<Key>, 3>;

/// The elements of three lists of names. The ancestor's are those of the same name, or else at the
/// same position of a list as long; elements that the ancestor lacks are the same by name only.
[[nodiscard]] std::vector<Three<std::int32_t>> sameNames(
    const std::array<const std::vector<std::string>*, 3>& lists);

/// Three lists of names made into one: what becomes of each element.
struct MergedList {
  std::vector<Three<std::int32_t>> elements;
  std::vector<bool> stays;
  std::vector<std::size_t> order;                     ///< of those that stay
  std::vector<std::optional<std::int32_t>> indexOf;   ///< in the merged list
  std::array<std::vector<std::size_t>, 3> elementOf;  ///< of each index of a side

  explicit MergedList(const std::array<const std::vector<std::string>*, 3>& lists);
  /// Stores the order, and the index of each element in it.
  void arrange(std::vector<std::size_t> elementsInOrder);
};

/// Between the name of a team and the number of another one that is called after it.
inline constexpr const char* kSecondTeam = " (";

/// People by number, teams by name. What the ancestor has comes first.
struct SameRoster {
  std::vector<Three<ContestantNumber>> people;
  std::vector<Three<std::string>> teams;
  std::array<FlatMap<ContestantNumber, std::size_t>, 3> personOf;  ///< position in people
  std::array<std::map<std::string, std::size_t>, 3> teamOf;        ///< position in teams
};

/// A team is the same by its name, also when only its members were given other numbers; one that
/// was renamed, by a member of the same number and name. People are the same by number and name,
/// then within a team by name, then by number; those without a team by number alone.
///
/// Two teams of one name that the ancestor lacks are one team; people who are only on one side fill
/// the numbers that are merely reserved on the other.
[[nodiscard]] SameRoster sameRoster(const ThreeContests& contests);

}  // namespace scorvane
