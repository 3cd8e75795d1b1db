#include "entry/placings_dialog.h"

#include "entry/last_score.h"
#include "entry/typed_letter.h"
#include "model/class_lists.h"
#include "session/open_contest.h"

namespace scorvane {

namespace {

constexpr ControlId kLetterField = 1027;

bool enterLetter(Dialog& dialog, const EntryChoice& choice) {
  const std::string typed = dialog.text(kLetterField);
  if (const auto error = letterError(typed)) {
    dialog.show(*error, "Warning");
    dialog.setText(kLetterField, "");
    return false;
  }
  dialog.setText(kLetterField, "");
  if (!choice.contestant()) {
    dialog.show("Error:  no member number available.", "Warning");
    return false;
  }
  Contest& contest = currentContest();
  storeLetter(contest, *choice.contestant(), choice.classIndex(), typed);
  showLastPlacing(dialog, contest, *choice.contestant(), choice.classIndex());
  return true;
}

}  // namespace

GroupEntryDialog placingsDialog() {
  // Deliberate: this dialog has no cancel, unlike the other entry dialogs.
  return GroupEntryDialog({"placings", &ScoreRecord::placingScore, kLetterField, allClasses,
                           enterLetter, Escape::saves});
}

}  // namespace scorvane
