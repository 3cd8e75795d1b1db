// "Reasons Class to Score": the operator chooses the reasons class of a sheet.
#pragma once

#include <optional>

#include "model/contest.h"
#include "session/report_request.h"
#include "ui/dialog.h"

namespace scorvane {

class ReasonsClassDialog : public DialogBehaviour {
 public:
  /// Offers the reasons classes of `contest`, which must outlive the dialog.
  explicit ReasonsClassDialog(const Contest& contest) : contest_(contest) {}

  /// What was asked for with OK; nothing when the dialog was cancelled.
  [[nodiscard]] const std::optional<ReportRequest>& request() const { return request_; }

  void onOpen(Dialog& dialog) override;
  void onEvent(Dialog& dialog, ControlId id, ControlEvent event) override;
  void onClose(Dialog& dialog) override;

 private:
  void choose(Dialog& dialog);

  const Contest& contest_;
  std::optional<ReportRequest> request_;
};

}  // namespace scorvane
