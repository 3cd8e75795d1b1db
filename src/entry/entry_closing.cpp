#include "entry/entry_closing.h"

#include "session/contest_file.h"
#include "session/open_contest.h"

namespace scorvane {

namespace {

constexpr ControlId kDoneButton = 1003;

constexpr int kDone = 1;
constexpr int kCancelled = 2;

}  // namespace

void endOn(Dialog& dialog, ControlId id, ControlEvent event, Escape escape) {
  if (event != ControlEvent::clicked) return;
  if (id == kCancelId && escape == Escape::leavesFile) {
    dialog.end(kCancelled);
  } else if (id == kDoneButton || id == kOkId || id == kCancelId) {
    saveAndEnd(dialog);
  }
}

void saveAndEnd(Dialog& dialog) {
  if (!currentFileName().empty()) saveCurrent(dialog);
  dialog.end(kDone);
}

}  // namespace scorvane
