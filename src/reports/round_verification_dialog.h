// The dialog that asks which round is to be verified.
#pragma once

#include "model/group_rotation.h"
#include "ui/dialog.h"

namespace scorvane {

/// Asks for a round, or for a group and a class that identify it, and makes the Round Verification
/// Report of the current contest. Ends with 1 when the report was made, 2 on Cancel, 0 from the
/// close box.
class RoundVerificationDialog : public DialogBehaviour {
 public:
  static constexpr int kResourceId = 164;
  static constexpr ControlId kRounds = 1080;
  static constexpr ControlId kGroups = 1053;
  static constexpr ControlId kClasses = 1016;

  RoundVerificationDialog();

  void onOpen(Dialog& dialog) override;
  void onEvent(Dialog& dialog, ControlId id, ControlEvent event) override;
  void onClose(Dialog& dialog) override;

 private:
  void selectRoundOfGroupAndClass(Dialog& dialog) const;
  static void makeReport(Dialog& dialog);

  Rotation rotation_;
};

}  // namespace scorvane
