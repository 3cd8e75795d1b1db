// The scores of one card: how they are typed, and how they get into the contest.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "model/contest.h"

namespace scorvane {

enum class EntryKind { placings, reasons, questions };

/// Highest reasons or questions score.
inline constexpr std::int32_t kTopNumberScore = 50;

/// The scores typed for one contestant and class; what was left empty has no value.
struct TypedScores {
  std::optional<PlacingLetter> letter;
  std::optional<std::int32_t> reasons;
  std::optional<std::int32_t> questions;
};

/// Reads the text of a letter field: one placing letter or "Z", or empty for none. Returns why it
/// is refused, or nothing.
[[nodiscard]] std::optional<std::string> readLetter(const std::string& text,
                                                    std::optional<PlacingLetter>& letter);

/// Stores what was typed in a contestant's record of a class (index from 0), a letter with its
/// placing score, and returns when the recovery copy has it. All scores typed into dialogs pass
/// through here. Without any the contest stays as it is; a missing record is not created then.
void storeScores(Contest& contest, ContestantNumber number, std::int32_t classIndex,
                 const TypedScores& typed);

}  // namespace scorvane
