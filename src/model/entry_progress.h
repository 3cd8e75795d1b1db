// How far score entry has come: what was entered, and what is still missing.
//
// Entered is what a card says: a letter (a zero card's "Z" is one), a reasons or questions score
// other than 0. Expected is it of every contestant with a name, but not of those who have nothing
// entered in any class: they did not come.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "model/class_statistics.h"
#include "model/contest.h"
#include "model/contest_differences.h"

namespace scorvane {

inline constexpr std::array kEnteredValues = {ScoreValue::letter, ScoreValue::reasons,
                                              ScoreValue::questions};

/// Whether the cards of a class have something of a kind to enter.
[[nodiscard]] bool isAsked(const JudgingClasses& classes, std::int32_t classIndex, ScoreValue kind);

/// Looks through the contest once and refers to it.
class EntryProgress {
 public:
  struct Person {
    ContestantNumber number = 0;
    const std::string* name = nullptr;
    std::size_t group = 0;  ///< position in groups()
  };

  explicit EntryProgress(const Contest& contest);

  /// Letters of the groups that somebody is expected of, in ascending order.
  [[nodiscard]] const std::vector<char>& groups() const { return groups_; }
  /// Who is expected, and who has nothing entered in any class, in ascending number order.
  [[nodiscard]] const std::vector<Person>& expected() const { return expected_; }
  [[nodiscard]] const std::vector<Person>& noShows() const { return noShows_; }
  /// How many are expected of each group: the same for every class.
  [[nodiscard]] const std::vector<std::int32_t>& expectedByGroup() const {
    return expectedByGroup_;
  }
  /// How many of them have a kind entered in a class.
  [[nodiscard]] std::vector<std::int32_t> enteredByGroup(std::int32_t classIndex,
                                                         ScoreValue kind) const;
  /// Who has not, in ascending number order.
  [[nodiscard]] std::vector<Person> missing(std::int32_t classIndex, ScoreValue kind) const;

 private:
  CardsByClass cards_;
  std::vector<char> groups_;
  std::vector<Person> expected_;
  std::vector<Person> noShows_;
  std::vector<std::int32_t> expectedByGroup_;
};

}  // namespace scorvane
