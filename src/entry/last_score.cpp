#include "entry/last_score.h"

#include "text/format.h"

namespace scorvane {

namespace {

constexpr ControlId kScoreText = 1030;
constexpr ControlId kNumberText = 1031;
constexpr ControlId kInputText = 1032;
constexpr ControlId kOfficialText = 1033;
constexpr ControlId kCutsText = 1034;
constexpr ControlId kReasonsText = 1035;
constexpr ControlId kQuestionsText = 1036;

void showScoreOrDashes(Dialog& dialog, ControlId id, bool carried, std::int32_t score) {
  dialog.setText(id, carried ? formatText("%d", score) : "---");
}

}  // namespace

void showLastContestant(Dialog& dialog, ContestantNumber number) {
  dialog.setText(kNumberText, formatText("%d", number));
}

void showLastPlacing(Dialog& dialog, const Contest& contest, ContestantNumber number,
                     std::int32_t classIndex) {
  const ScoreRecord& record = scoreRecord(contest, number, classIndex);
  const Cuts cuts = contest.classes.cuts(classIndex);
  dialog.setText(kInputText, formatText("%c", record.letter));
  dialog.setText(kScoreText, formatText("%d", record.placingScore));
  showLastContestant(dialog, number);
  dialog.setText(kOfficialText, formatText("%c", contest.classes.official(classIndex)));
  dialog.setText(kCutsText, formatText("(%d,%d,%d)", cuts.cut1, cuts.cut2, cuts.cut3));
}

void showLastReasons(Dialog& dialog, const Contest& contest, ContestantNumber number,
                     std::int32_t classIndex) {
  showScoreOrDashes(dialog, kReasonsText, contest.classes.hasReasons(classIndex),
                    scoreRecord(contest, number, classIndex).reasonsScore);
}

void showLastQuestions(Dialog& dialog, const Contest& contest, ContestantNumber number,
                       std::int32_t classIndex) {
  showScoreOrDashes(dialog, kQuestionsText, contest.classes.hasQuestions(classIndex),
                    scoreRecord(contest, number, classIndex).questionsScore);
}

}  // namespace scorvane
