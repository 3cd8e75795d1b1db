#include "reasons/reasons_class_dialog.h"

#include <vector>

#include "model/class_lists.h"
#include "reasons/reasons_ids.h"

namespace scorvane {

void ReasonsClassDialog::onOpen(Dialog& dialog) {
  std::vector<ListLine> lines;
  for (const std::int32_t index : reasonsClasses(contest_.classes)) {
    lines.push_back({classLine(contest_.classes, index), index});
  }
  dialog.setLines(IDC_REASONS_CLASSES, lines);
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
  const auto chosen = dialog.selectedNumber(IDC_REASONS_CLASSES);
  if (!chosen) {
    dialog.show("You must select a reasons class before proceeding.", "Error");
    return;
  }
  request_.emplace().classIndex = chosen;
  dialog.end(kOkId);
}

}  // namespace scorvane
