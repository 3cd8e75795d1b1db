#include "entry/questions_dialog.h"

#include "entry/entry_closing.h"
#include "entry/last_score.h"
#include "entry/score_card.h"
#include "model/class_lists.h"

namespace {

constexpr ScoreCard kCard = {"Questions", 1056, &ScoreRecord::questionsScore,
                             "Error:  no member number available."};

}  // namespace

QuestionsDialog::QuestionsDialog() : entry_({"questions", kCard.score, kCard.field}) {}

void QuestionsDialog::opened(Dialog& dialog) {
  entry_.open(dialog, questionsClasses(currentContest().classes));
}

void QuestionsDialog::onEvent(Dialog& dialog, ControlId id, ControlEvent event) {
  entry_.onEvent(dialog, id, event);
  if (id == kEntryScoreButton && event == ControlEvent::clicked) {
    score(dialog);
    dialog.focus(kCard.field);
  }
  endOn(dialog, id, event);
}

void QuestionsDialog::closed(Dialog& dialog) {
  saveAndEnd(dialog);
}

void QuestionsDialog::score(Dialog& dialog) {
  const EntryChoice& choice = entry_.choice();
  if (!choice.isMade(dialog, "group") || !enterScore(dialog, kCard, choice)) return;
  showLastContestant(dialog, *choice.contestant());
  showLastQuestions(dialog, currentContest(), *choice.contestant(), choice.classIndex());
  entry_.advance(dialog);
}
