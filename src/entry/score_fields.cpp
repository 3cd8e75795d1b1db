#include "entry/score_fields.h"

#include "session/recovery.h"
#include "text/format.h"

namespace scorvane {

std::optional<std::string> readLetter(const std::string& text,
                                      std::optional<PlacingLetter>& letter) {
  if (text.empty()) return std::nullopt;
  if (text.size() > 1) return "Error:  too many letters entered for score.";
  const char typed = text.front();
  // Odd but required, docs/required-behaviour.md: z-passes-as-a-letter
  if (typed == 'Y' || typed < 'A' || typed > 'Z') {
    return formatText("Error:  score must be between A and X <%s> (Z=zero).", text.c_str());
  }
  letter = typed;
  return std::nullopt;
}

void storeScores(Contest& contest, ContestantNumber number, std::int32_t classIndex,
                 const TypedScores& typed) {
  if (!typed.letter && !typed.reasons && !typed.questions) return;
  ScoreRecord& record = contest.scores[number][classIndex];
  if (typed.letter) {
    const JudgingClasses& classes = contest.classes;
    record.letter = *typed.letter;
    record.placingScore =
        placingScore(record.letter, classes.official(classIndex), classes.cuts(classIndex));
  }
  if (typed.reasons) record.reasonsScore = *typed.reasons;
  if (typed.questions) record.questionsScore = *typed.questions;
  scoreStored({{number, classIndex, record},
               {typed.letter.has_value(), typed.reasons.has_value(), typed.questions.has_value()}});
}

}  // namespace scorvane
