// What a ranking adds up.
#pragma once

#include <array>

namespace scorvane {

/// The values are the ones the commands and the Custom Report dialog number them by.
enum class ScoreKind {
  overall = 0,    ///< placing, reasons and questions scores together
  placings = 1,   ///< placing scores
  reasons = 2,    ///< reasons scores
  questions = 3,  ///< questions scores
};

inline constexpr std::array kScoreKinds = {ScoreKind::overall, ScoreKind::placings,
                                           ScoreKind::reasons, ScoreKind::questions};

/// The kind's word in headings: "Overall", "Placings", "Reasons" or "Questions".
[[nodiscard]] constexpr const char* scoreKindWord(ScoreKind kind) {
  constexpr std::array kWords = {"Overall", "Placings", "Reasons", "Questions"};
  return kWords.at(static_cast<std::size_t>(kind));
}

}  // namespace scorvane
