// Scores that were typed for the wrong class or the wrong contestant, put where they belong: what
// that changes is worked out first, to be seen, and then done.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "model/contest.h"
#include "model/contest_differences.h"

namespace scorvane {

/// One contestant's score of a class as it is and as it will be.
struct CardChange {
  ContestantNumber number = 0;
  std::int32_t classIndex = 0;
  ScoreRecord before;
  ScoreRecord after;
};

/// Each works out what changes when scores of one kind (no placing score) are put elsewhere. Blank
/// letters and zeros stay where they are, and so does all that is not of the kind. Placing scores
/// come out by the official placing of the class that a letter comes to.

/// Scores of some contestants go from one class to another, over those that are there.
[[nodiscard]] std::vector<CardChange> movedCards(const Contest& contest, ScoreValue kind,
                                                 const std::vector<ContestantNumber>& contestants,
                                                 std::int32_t from, std::int32_t to);
/// Two contestants exchange their scores, in one class or in all.
[[nodiscard]] std::vector<CardChange> exchangedCards(const Contest& contest, ScoreValue kind,
                                                     ContestantNumber one, ContestantNumber other,
                                                     std::optional<std::int32_t> classIndex);
/// Scores of some contestants in a class become as if they had never been typed.
[[nodiscard]] std::vector<CardChange> clearedCards(const Contest& contest, ScoreValue kind,
                                                   const std::vector<ContestantNumber>& contestants,
                                                   std::int32_t classIndex);

/// Stores what the changes say.
void applyCardChanges(Contest& contest, const std::vector<CardChange>& changes);

/// Whether a change takes a score away that is nowhere else afterwards: it is typed over.
[[nodiscard]] bool isTypedOver(ScoreValue kind, const CardChange& change);

/// A change in columns: number, name, class, score before and after.
[[nodiscard]] std::string cardChangeLine(const Contest& contest, ScoreValue kind,
                                         const CardChange& change);

}  // namespace scorvane
