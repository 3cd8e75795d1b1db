// The dialog that asks what a custom report is to cover.
#pragma once

#include <optional>

#include "session/report_request.h"
#include "ui/dialog.h"

namespace scorvane {

/// Choosing a category proposes its classes and its name as the title. Number and percentage start
/// as the current contest has them and are not written back. A contest without categories is given
/// "none" on opening. Ends with 1 on OK, 2 otherwise.
class CustomReportDialog : public DialogBehaviour {
 public:
  /// What was asked for with OK; nothing when the dialog was cancelled.
  [[nodiscard]] const std::optional<ReportRequest>& request() const { return request_; }

  void onOpen(Dialog& dialog) override;
  void onEvent(Dialog& dialog, ControlId id, ControlEvent event) override;
  void onClose(Dialog& dialog) override;

 private:
  std::optional<ReportRequest> request_;
};

}  // namespace scorvane
