#include "entry/questions_dialog.h"

#include "entry/last_score.h"
#include "entry/score_card.h"
#include "model/class_lists.h"
#include "session/open_contest.h"

namespace scorvane {

namespace {

constexpr NumericScoreField kCard = {"Questions", 1056, &ScoreRecord::questionsScore,
                                     "Error:  no member number available."};

bool enterQuestions(Dialog& dialog, const EntryChoice& choice) {
  if (!enterScore(dialog, kCard, choice)) return false;
  showLastContestant(dialog, *choice.contestant());
  showLastQuestions(dialog, currentContest(), *choice.contestant(), choice.classIndex());
  return true;
}

}  // namespace

GroupEntryDialog questionsDialog() {
  return GroupEntryDialog(
      {"questions", kCard.score, kCard.field, questionsClasses, enterQuestions});
}

}  // namespace scorvane
