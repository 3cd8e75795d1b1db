// How the field judged each class.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "model/contest.h"

namespace scorvane {

/// A placing that was given, by how many, and its score.
struct GivenPlacing {
  PlacingLetter letter = kNoLetter;
  std::int32_t count = 0;
  std::int32_t score = 0;
};

/// Two animals that the officials placed one after the other, and how many cards have `first` above
/// `second` too.
struct NeighbourPair {
  std::int32_t first = 0;
  std::int32_t second = 0;
  std::int32_t right = 0;
};

/// Scores added up, of those only who have one.
struct ScoreSum {
  std::int32_t count = 0;
  std::int64_t sum = 0;

  void add(std::int32_t score) {
    ++count;
    sum += score;
  }
  /// The average in tenths, rounded half away from 0; 0 when there is none.
  [[nodiscard]] std::int64_t averageInTenths() const {
    if (count == 0) return 0;
    const std::int64_t half = sum < 0 ? -count : count;
    return (20 * sum + half) / (std::int64_t{2} * count);
  }
};

struct ClassStatistics {
  std::int32_t classIndex = 0;
  ScoreSum placings;         ///< of the cards in: a zero card ("Z") is one, with score 0
  std::int32_t placed = 0;   ///< cards with an order of the animals: zero cards are none
  std::int32_t highest = 0;  ///< placing scores; both 0 without cards
  std::int32_t lowest = 0;
  std::int32_t perfect = 0;          ///< cards that scored 50
  std::vector<GivenPlacing> given;   ///< most frequent first, then by letter
  std::vector<NeighbourPair> pairs;  ///< in the officials' order; none without an official placing
  ScoreSum reasons;                  ///< scores other than 0: a 0 was not entered
  ScoreSum questions;
};

/// The cards of every contestant with a name, sorted out by class once. Refers to the contest.
class CardsByClass {
 public:
  explicit CardsByClass(const Contest& contest);

  struct Card {
    ContestantNumber number = 0;
    const ScoreRecord* record = nullptr;
  };
  /// The records of a class (index from 0, below the number of classes) in ascending order of
  /// contestants, also those with nothing entered.
  [[nodiscard]] std::span<const Card> of(std::int32_t classIndex) const;
  [[nodiscard]] ClassStatistics statistics(std::int32_t classIndex) const;

 private:
  const Contest& contest_;
  std::vector<std::size_t>
      ends_;  ///< by class, of its cards; they begin where the class before ends
  std::vector<Card> cards_;
};

/// An official placing under which most cards would score higher than under the one that was
/// typed: was a key pressed beside the right one?
struct LikelierPlacing {
  PlacingLetter letter = kNoLetter;
  std::int32_t better = 0;  ///< cards that would score higher
};

/// With at least ten cards (zero cards aside), the placing under which more than half of them would
/// score higher with the same cuts; of several the one with the highest sum of scores, then the
/// first.
[[nodiscard]] std::optional<LikelierPlacing> likelierPlacing(const ClassStatistics& statistics,
                                                             PlacingLetter official,
                                                             const Cuts& cuts);

}  // namespace scorvane
