// The dialog that asks which round is to be verified.
#pragma once

#include <optional>

#include "model/group_rotation.h"
#include "session/report_request.h"
#include "ui/dialog.h"

namespace scorvane {

/// Asks for a round of the current contest, or for a group and a class that identify it. Ends with
/// 1 on OK, 2 on Cancel, 0 from the close box.
class RoundVerificationDialog : public DialogBehaviour {
 public:
  RoundVerificationDialog();

  /// What was asked for with OK; nothing when the dialog was cancelled.
  [[nodiscard]] const std::optional<ReportRequest>& request() const { return request_; }

  void onOpen(Dialog& dialog) override;
  void onEvent(Dialog& dialog, ControlId id, ControlEvent event) override;
  void onClose(Dialog& dialog) override;

 private:
  void selectRoundOfGroupAndClass(Dialog& dialog) const;
  void choose(Dialog& dialog);

  Rotation rotation_;
  std::optional<ReportRequest> request_;
};

}  // namespace scorvane
