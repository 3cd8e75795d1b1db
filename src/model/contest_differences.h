// What differs between two contests: the present one and an earlier save, or one's own file and
// somebody else's.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

#include "model/contest.h"

namespace scorvane {

/// A value of this contest and of the other one.
template <typename Value>
struct Sides {
  Value here{};
  Value there{};
  friend bool operator==(const Sides&, const Sides&) = default;
};

/// A class by its index (from 0) in each contest; one of them can lack it.
using ClassMatch = Sides<std::optional<std::int32_t>>;

/// Which of two lists of names are the same: equal names in order; then, when asked for and both
/// lists are equally long, those without such a match at the same position. First all from here in
/// their order, then those that are only there.
[[nodiscard]] std::vector<ClassMatch> matchNames(const std::vector<std::string>& here,
                                                 const std::vector<std::string>& there,
                                                 bool byPosition);

/// Which classes are the same, by name and then by position.
[[nodiscard]] std::vector<ClassMatch> matchClasses(const JudgingClasses& here,
                                                   const JudgingClasses& there);

enum class DifferenceKind { setting, category, judgedClass, team, contestant, reasonsOrder };

/// The name of a number that is only reserved, and of a class that was given none.
inline constexpr const char* kNoName = "(no name)";

/// A value that differs, in words that follow each other: "class 3" "official placing".
struct Difference {
  DifferenceKind kind = DifferenceKind::setting;
  std::string subject;  ///< whose value: "class 3", "team Elm", "101 Ann Lee"; "" for a setting
  std::string value;    ///< "" when the subject as a whole is missing on one side
  Sides<std::string> sides;  ///< "" where there is nothing
};

/// The names of a list as one value, with commas between them.
[[nodiscard]] std::string joinedNames(const std::vector<std::string>& names);

enum class ScoreValue {
  letter,
  reasons,
  questions,
  placingScore,  ///< only where letter, official placing and cuts are the same
};

/// Whether a record holds such a score: no blank letter, no 0.
[[nodiscard]] bool isEntered(ScoreValue value, const ScoreRecord& record);

/// A record's score of such a kind as it is shown: "D (1,3,4,2)" for a letter; "" when it is not
/// entered.
[[nodiscard]] std::string scoreText(ScoreValue value, const ScoreRecord& record);

struct ScoreDifference {
  std::size_t classMatch = 0;  ///< position in ContestDifferences::classes
  ScoreValue value = ScoreValue::letter;
  ContestantNumber number = 0;
  Sides<ScoreRecord> records;  ///< blank where the contestant or the class is missing
};

/// Letters, reasons scores and questions scores, each counted for itself; blank letters and zeros
/// are no scores.
struct ScoreCounts {
  std::int64_t onBothSides = 0;  ///< those that differ included
  std::int64_t differing = 0;
  Sides<std::int64_t> onlyOn;
};

/// One score of one contest, and what two sides have for it.
struct ContestantScore {
  std::int32_t classIndex = 0;
  ScoreValue value = ScoreValue::letter;
  ContestantNumber number = 0;
  Sides<ScoreRecord> records;
};

/// Sorts scores of a contest in the order in which its cards lie.
void sortAsCardsLie(const Contest& contest, std::vector<ContestantScore>& scores);

/// Where a card lies in its pile: by group, for reasons scores by reasons group and position; then
/// by number.
struct CardPosition {
  std::int32_t group = 0;
  std::int32_t position = 0;
  ContestantNumber number = 0;
  friend bool operator<(const CardPosition& a, const CardPosition& b) {
    return std::tie(a.group, a.position, a.number) < std::tie(b.group, b.position, b.number);
  }
};
[[nodiscard]] CardPosition cardPosition(const Contest& contest, ScoreValue value,
                                        ContestantNumber number);

struct ContestDifferences {
  std::vector<Difference> values;  ///< in the order of DifferenceKind
  std::vector<ClassMatch> classes;
  /// In the order in which cards lie: by class, kind of score and group (the reasons group and
  /// position for reasons scores), then by number.
  std::vector<ScoreDifference> scores;
  ScoreCounts counts;

  [[nodiscard]] bool empty() const { return values.empty() && scores.empty(); }
};

/// All that would read differently in the files of the two contests. O(n log n) in contestants.
[[nodiscard]] ContestDifferences contestDifferences(const Contest& here, const Contest& there);

}  // namespace scorvane
