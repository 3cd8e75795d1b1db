// The Setup Teams dialog: teams, coaches and members, and the numbers they get.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "model/contest.h"
#include "ui/dialog.h"

namespace scorvane {

/// Changes the current contest at once. Members are in it from Add Member on, but leave it again
/// when another team is shown or the dialog is closed before their team is written. Done and
/// the close box recompute all placing scores, save and end with kOkId.
class SetupTeamsDialog : public DialogBehaviour {
 public:
  void onOpen(Dialog& dialog) override;
  void onEvent(Dialog& dialog, ControlId id, ControlEvent event) override;
  void onClose(Dialog& dialog) override;

 private:
  void onClicked(Dialog& dialog, ControlId id);
  void startNewTeam(Dialog& dialog);
  void showTeam(Dialog& dialog);
  void addNewTeam(Dialog& dialog);
  void updateTeam(Dialog& dialog);
  void removeSelectedTeam(Dialog& dialog);
  void clearAllTeams(Dialog& dialog);
  void finish(Dialog& dialog) const;

  /// The members shown belong to a team that has been written.
  bool teamWritten_ = false;
};

}  // namespace scorvane
