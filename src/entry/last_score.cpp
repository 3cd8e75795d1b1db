#include "entry/last_score.h"

#include <array>

#include "entry/entry_ids.h"
#include "model/team_index.h"
#include "text/format.h"

namespace scorvane {

namespace {

void showPlacing(Dialog& dialog, const ScoreRecord& record, PlacingLetter official,
                 const Cuts& cuts) {
  dialog.setText(IDC_LAST_LETTER, formatText("%c", record.letter));
  const std::array<std::int32_t, 4> order = orderOfLetter(record.letter);
  dialog.setText(IDC_LAST_ORDER,
                 isOrderLetter(record.letter)
                     ? formatText("%d-%d-%d-%d", order[0], order[1], order[2], order[3])
                     : "");
  dialog.setNumber(IDC_LAST_SCORE, record.placingScore);
  dialog.setText(IDC_LAST_OFFICIAL, formatText("%c", official));
  dialog.setText(IDC_LAST_CUTS, formatText("(%d,%d,%d)", cuts.cut1, cuts.cut2, cuts.cut3));
}

void showScoreOrDashes(Dialog& dialog, ControlId id, bool carried, std::int32_t score) {
  dialog.setText(id, carried ? std::to_string(score) : "---");
}

}  // namespace

void showPerson(Dialog& dialog, const Contest& contest, std::optional<ContestantNumber> number) {
  const bool isSomebody = number && contest.contestantNames.contains(*number);
  dialog.setText(IDC_ENTRY_NAME, isSomebody ? contestantName(contest, *number) : "");
  dialog.setText(IDC_ENTRY_TEAM, isSomebody ? teamOf(contest, *number) : "");
}

void showLastScore(Dialog& dialog, const Contest& contest, ContestantNumber number,
                   std::int32_t classIndex, EntryKind kind) {
  const JudgingClasses& classes = contest.classes;
  const ScoreRecord& record = scoreRecord(contest, number, classIndex);
  dialog.setNumber(IDC_LAST_CONTESTANT, number);
  switch (kind) {
    case EntryKind::placings:
      showPlacing(dialog, record, classes.official(classIndex), classes.cuts(classIndex));
      break;
    case EntryKind::reasons:
      showScoreOrDashes(dialog, IDC_LAST_REASONS, classes.hasReasons(classIndex),
                        record.reasonsScore);
      break;
    case EntryKind::questions:
      showScoreOrDashes(dialog, IDC_LAST_QUESTIONS, classes.hasQuestions(classIndex),
                        record.questionsScore);
      break;
  }
}

}  // namespace scorvane
