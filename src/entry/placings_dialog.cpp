#include "entry/placings_dialog.h"

#include "entry/entry_closing.h"
#include "entry/last_score.h"
#include "entry/typed_letter.h"
#include "model/class_lists.h"

namespace {

constexpr ControlId kLetterField = 1027;

}  // namespace

PlacingsDialog::PlacingsDialog() : entry_({"placings", &ScoreRecord::placingScore, kLetterField}) {}

void PlacingsDialog::opened(Dialog& dialog) {
  entry_.open(dialog, allClasses(currentContest().classes));
}

void PlacingsDialog::onEvent(Dialog& dialog, ControlId id, ControlEvent event) {
  entry_.onEvent(dialog, id, event);
  if (id == kEntryScoreButton && event == ControlEvent::clicked) {
    score(dialog);
    // The next card is typed at once, also after a press by mouse.
    dialog.focus(kLetterField);
  }
  // Deliberate: this dialog has no cancel, unlike the other entry dialogs.
  endOn(dialog, id, event, Escape::saves);
}

void PlacingsDialog::closed(Dialog& dialog) {
  saveAndEnd(dialog);
}

void PlacingsDialog::score(Dialog& dialog) {
  const EntryChoice& choice = entry_.choice();
  if (!choice.isMade(dialog, "group")) return;
  const std::string typed = dialog.text(kLetterField);
  if (const auto error = letterError(typed)) {
    dialog.show(*error, "Warning");
    dialog.setText(kLetterField, "");
    return;
  }
  if (!choice.contestant()) {
    dialog.setText(kLetterField, "");
    dialog.show("Error:  no member number available.", "Warning");
    return;
  }
  Contest& contest = currentContest();
  storeLetter(contest, *choice.contestant(), choice.classIndex(), typed);
  showLastPlacing(dialog, contest, *choice.contestant(), choice.classIndex());
  dialog.setText(kLetterField, "");
  entry_.advance(dialog);
}
