// The Edit Contestants dialog: correcting a contestant's name, or deleting one, by number.
#pragma once

#include "ui/dialog.h"

/// Changes the current contest at once. Done and the close box save and end with kOkId; Escape
/// does not close the dialog.
class EditContestantsDialog : public DialogBehaviour {
 public:
  void opened(Dialog& dialog) override;
  void onEvent(Dialog& dialog, ControlId id, ControlEvent event) override;
  void closed(Dialog& dialog) override;
};
