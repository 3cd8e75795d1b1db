// The Earlier Saves dialog: what was kept of the open contest, and what can be done with it.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "exchange/exchange_ids.h"
#include "model/contest.h"
#include "session/earlier_saves.h"
#include "ui/dialog.h"

namespace scorvane {

/// An earlier save that the operator wants to see held against the present contest.
struct ComparedSave {
  Contest contest;
  std::string name;  ///< "the save of Jul 18, 2026  2:31 PM"
};

/// Lists the earlier saves of the open contest, or without a file what was left of contests that
/// had none. Go Back puts one of them into the open contest and saves it, after keeping what the
/// contest was. Ends with IDC_SHOW_DIFFERENCES, IDC_CHANGES_SINCE, IDC_GO_BACK, or kCancelId.
class EarlierSavesDialog : public DialogBehaviour {
 public:
  /// The saves are the newest first.
  explicit EarlierSavesDialog(std::vector<EarlierSave> saves);

  void onOpen(Dialog& dialog) override;
  void onEvent(Dialog& dialog, ControlId id, ControlEvent event) override;
  void onClose(Dialog& dialog) override;

  /// What Show Differences or Changes Since was pressed for.
  [[nodiscard]] const std::optional<ComparedSave>& compared() const { return compared_; }

 private:
  void onClicked(Dialog& dialog, ControlId id, const EarlierSave& save);
  void goBack(Dialog& dialog, const EarlierSave& save, Contest contest);

  std::vector<EarlierSave> saves_;
  std::optional<ComparedSave> compared_;
};

}  // namespace scorvane
