#include "app/about_dialog.h"

namespace scorvane {

namespace {

constexpr ControlId kVersionText = 1001;

}  // namespace

void AboutDialog::onOpen(Dialog& dialog) {
  dialog.setText(kVersionText, "Version " SCORVANE_VERSION);
}

void AboutDialog::onEvent(Dialog& dialog, ControlId id, ControlEvent event) {
  if (event != ControlEvent::clicked) return;
  if (id == kOkId || id == kCancelId) dialog.end(id);
}

void AboutDialog::onClose(Dialog& dialog) {
  dialog.end(kCancelId);
}

}  // namespace scorvane
