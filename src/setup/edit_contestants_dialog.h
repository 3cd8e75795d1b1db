// The Edit Contestants dialog: correcting a contestant's name, or deleting one, by number.
#pragma once

#include "ui/dialog.h"

namespace scorvane {

/// Changes the current contest at once. Done and the close box save and end with kOkId; Escape
/// does not close the dialog.
class EditContestantsDialog : public DialogBehaviour {
 public:
  void onOpen(Dialog& dialog) override;
  void onEvent(Dialog& dialog, ControlId id, ControlEvent event) override;
  void onClose(Dialog& dialog) override;
};

}  // namespace scorvane
