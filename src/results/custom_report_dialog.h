// The dialog that asks what a custom report is to cover.
#pragma once

#include "results/high_report.h"
#include "ui/dialog.h"

namespace scorvane {

/// Makes the high individual or high team report of the current contest over the classes chosen.
/// Choosing a category proposes its classes and its name as the title. Number and percentage start
/// as the contest has them and are not written back. Ends with 1 when the report was made, 2
/// otherwise. A contest without categories is given "none" on opening.
class CustomReportDialog : public DialogBehaviour {
 public:
  static constexpr int kResourceId = 140;
  static constexpr ControlId kTitle = 1045;
  static constexpr ControlId kCategory = 1075;
  static constexpr ControlId kNumber = 1037;
  static constexpr ControlId kPercent = 1041;
  static constexpr ControlId kTeam = 1057;
  static constexpr ControlId kOverall = 1038;
  static constexpr ControlId kPlacings = 1039;
  static constexpr ControlId kReasons = 1040;
  static constexpr ControlId kQuestions = 1042;
  static constexpr ControlId kClasses = 1036;

  void onOpen(Dialog& dialog) override;
  void onEvent(Dialog& dialog, ControlId id, ControlEvent event) override;
  void onClose(Dialog& dialog) override;
};

}  // namespace scorvane
