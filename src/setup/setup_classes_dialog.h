// The Setup Classes dialog: the classes of the contest with their official placings and cuts.
#pragma once

#include <optional>

#include "ui/dialog.h"

namespace scorvane {

/// Changes the current contest's classes at once; there is no Cancel. Done and the close box
/// recompute all placing scores, save and end with kOkId.
class SetupClassesDialog : public DialogBehaviour {
 public:
  void onOpen(Dialog& dialog) override;
  void onEvent(Dialog& dialog, ControlId id, ControlEvent event) override;
  void onClose(Dialog& dialog) override;

 private:
  void onTextChanged(Dialog& dialog, ControlId id) const;
  void onClicked(Dialog& dialog, ControlId id);
  void resetForm(Dialog& dialog);
  void showClass(Dialog& dialog, int line);
  void addClass(Dialog& dialog);
  void updateClass(Dialog& dialog);
  void store(Dialog& dialog, std::optional<int> updated);
  void removeSelected(Dialog& dialog);

  /// The program itself is filling the form: the typing aids must not move the focus.
  bool filling_ = false;
};

}  // namespace scorvane
