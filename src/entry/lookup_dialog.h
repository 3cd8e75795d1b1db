// Looking up and correcting any one contestant's scores in any one class.
#pragma once

#include "model/contest.h"
#include "ui/dialog.h"

namespace scorvane {

class LookupDialog : public DialogBehaviour {
 public:
  explicit LookupDialog(Contest& contest) : contest_(contest) {}
  void onOpen(Dialog& dialog) override;
  void onEvent(Dialog& dialog, ControlId id, ControlEvent event) override;
  void onClose(Dialog& dialog) override;

 private:
  void chooseClass(Dialog& dialog);
  void score(Dialog& dialog);
  void lookUp(Dialog& dialog);

  Contest& contest_;
};

}  // namespace scorvane
