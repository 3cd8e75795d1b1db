// The Import Roster dialog: pasting teams and names from a spreadsheet.
#pragma once

#include <string>
#include <vector>

#include "exchange/exchange_ids.h"
#include "exchange/roster_plan.h"
#include "ui/dialog.h"

namespace scorvane {

/// A field for cells, and a list that always tells what importing them would do. Import changes the
/// current contest, saves it and ends with kOkId; anything else ends with kCancelId.
class ImportRosterDialog : public DialogBehaviour {
 public:
  void onOpen(Dialog& dialog) override;
  void onEvent(Dialog& dialog, ControlId id, ControlEvent event) override;
  void onClose(Dialog& dialog) override;
  [[nodiscard]] bool usesUnicode() const override { return true; }

  [[nodiscard]] bool hasImported() const { return hasImported_; }

 private:
  void showPlan(Dialog& dialog);
  void showLines(Dialog& dialog, std::vector<std::string> lines);
  void openFile(Dialog& dialog);
  void importPlan(Dialog& dialog);

  RosterPlan plan_;
  std::vector<std::string> lines_;  ///< in the list
  bool hasImported_ = false;
};

}  // namespace scorvane
