#include "entry/typed_letter.h"

#include "text/format.h"

namespace scorvane {

std::optional<std::string> letterError(const std::string& typed) {
  if (typed.empty()) return std::nullopt;
  if (typed.size() > 1) return "Error:  too many letters entered for score.";
  // Signed, so that a byte beyond ASCII counts as below "A". "Z", a zero, is deliberately let
  // through, though the message speaks of A to X.
  const auto letter = static_cast<signed char>(typed.front());
  if (letter != 'Y' && letter >= 'A' && letter <= 'Z') return std::nullopt;
  return formatText("Error:  score must be between A and X <%s> (Z=zero).", typed.c_str());
}

void storeLetter(Contest& contest, ContestantNumber number, std::int32_t classIndex,
                 const std::string& typed) {
  if (typed.empty()) return;
  const JudgingClasses& classes = contest.classes;
  ScoreRecord& record = contest.scores[number][classIndex];
  record.letter = typed.front();
  record.placingScore =
      placingScore(record.letter, classes.official(classIndex), classes.cuts(classIndex));
}

}  // namespace scorvane
