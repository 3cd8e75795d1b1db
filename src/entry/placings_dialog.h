// Typing in the placing letters of one group for one class, card by card.
#pragma once

#include "entry/group_entry.h"

inline constexpr int kPlacingsDialog = 147;

class PlacingsDialog : public DialogBehaviour {
 public:
  PlacingsDialog();
  void opened(Dialog& dialog) override;
  void onEvent(Dialog& dialog, ControlId id, ControlEvent event) override;
  void closed(Dialog& dialog) override;

 private:
  void score(Dialog& dialog);

  GroupEntry entry_;
};
