#include "exchange/publish_dialog.h"

#include "exchange/exports.h"
#include "session/recovery.h"

namespace scorvane {

namespace {

PageContent contentChosen(const Dialog& dialog) {
  if (dialog.isChecked(IDC_PUBLISH_CARDS)) return PageContent::cards;
  return dialog.isChecked(IDC_PUBLISH_TEAMS) ? PageContent::teams : PageContent::awards;
}

}  // namespace

void PublishDialog::onOpen(Dialog& dialog) {
  dialog.setChecked(IDC_PUBLISH_AWARDS, true);
  dialog.focus(IDC_PUBLISH_AWARDS);
}

void PublishDialog::onEvent(Dialog& dialog, ControlId id, ControlEvent event) {
  if (event != ControlEvent::clicked) return;
  if (id == kCancelId) dialog.end(kCancelId);
  if (id == kOkId && publishResults(dialog, sessionFiles(), contentChosen(dialog))) {
    dialog.end(kOkId);
  }
}

void PublishDialog::onClose(Dialog& dialog) {
  dialog.end(kCancelId);
}

}  // namespace scorvane
