// The Setup Contest dialog: the values of the whole contest and its scoring categories.
#pragma once

#include <string>
#include <vector>

#include "model/contest.h"
#include "ui/dialog.h"

namespace scorvane {

/// Changes the current contest as the operator goes and puts the old values back on Cancel. Ends
/// with kOkId after Done or the close box (the contest is saved then), kCancelId after Cancel.
class SetupContestDialog : public DialogBehaviour {
 public:
  void onOpen(Dialog& dialog) override;
  void onEvent(Dialog& dialog, ControlId id, ControlEvent event) override;
  void onClose(Dialog& dialog) override;

 private:
  void commit(Dialog& dialog) const;
  void cancel(Dialog& dialog) const;

  ContestSettings settingsAtOpening_;
  std::vector<std::string> categoriesAtOpening_;
};

}  // namespace scorvane
