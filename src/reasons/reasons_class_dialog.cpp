#include "reasons/reasons_class_dialog.h"

#include <cstddef>

#include "model/class_lists.h"

namespace scorvane {

void ReasonsClassDialog::onOpen(Dialog& dialog) {
  offered_ = reasonsClasses(contest_.classes);
  dialog.setLines(kClasses, classLines(contest_.classes, offered_));
}

void ReasonsClassDialog::onEvent(Dialog& dialog, ControlId id, ControlEvent event) {
  if (event != ControlEvent::clicked) return;
  if (id == kOkId) choose(dialog);
  if (id == kCancelId) dialog.end(kCancelId);
}

void ReasonsClassDialog::onClose(Dialog& dialog) {
  dialog.end(kCancelId);
}

void ReasonsClassDialog::choose(Dialog& dialog) {
  const std::optional<int> line = dialog.selection(kClasses);
  if (!line) {
    dialog.show("You must select a reasons class before proceeding.", "Error");
    return;
  }
  chosen_ = offered_[static_cast<std::size_t>(*line)];
  dialog.end(kOkId);
}

}  // namespace scorvane
