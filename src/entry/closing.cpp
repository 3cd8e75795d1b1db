#include "entry/closing.h"

#include "entry/entry_ids.h"
#include "session/contest_file.h"

namespace scorvane {

void endOn(Dialog& dialog, ControlId id, ControlEvent event, Escape escape) {
  if (event != ControlEvent::clicked) return;
  if (id == kCancelId && escape == Escape::leavesFile) {
    dialog.end(kCancelId);
  } else if (id == IDC_ENTRY_DONE || id == kOkId || id == kCancelId) {
    saveAndEnd(dialog);
  }
}

void saveAndEnd(Dialog& dialog) {
  // Odd but required, docs/required-behaviour.md: untitled-scores-are-not-saved
  if (!currentFileName().empty()) saveCurrent(dialog);
  dialog.end(kOkId);
}

}  // namespace scorvane
