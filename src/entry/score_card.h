// Entering one score of 0 to 50 for the contestant shown.
#pragma once

#include "entry/entry_choice.h"

namespace scorvane {

/// Highest reasons or questions score.
inline constexpr std::int32_t kTopNumberScore = 50;

struct NumericScoreField {
  const char* name;          ///< what the range message calls the score
  ControlId field;           ///< where the operator types
  ScoreField score;          ///< where it is stored
  const char* noContestant;  ///< message without a current contestant
};

/// Stores the number typed for the chosen class and contestant, and empties the field; an empty
/// field, or a number too large to be one, stores nothing. False when it was refused, with a
/// message: above 50, or no contestant.
bool enterScore(Dialog& dialog, const NumericScoreField& card, const EntryChoice& choice);

}  // namespace scorvane
