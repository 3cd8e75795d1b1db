// "Reasons Order Edit": the officials change by hand who speaks when in which reasons group.
#pragma once

#include <optional>

#include "model/contest.h"
#include "ui/dialog.h"

namespace scorvane {

/// Edits the reasons order of the current contest in place and saves the contest when it closes.
/// The order is compacted after every change, so line i of a group's list is always row i.
class ReasonsOrderEditDialog : public DialogBehaviour {
 public:
  void onOpen(Dialog& dialog) override;
  void onEvent(Dialog& dialog, ControlId id, ControlEvent event) override;
  void onClose(Dialog& dialog) override;

 private:
  /// The speaker selected: reasons group and row.
  struct Speaker {
    int group = 0;
    int row = 0;
  };

  static void showGroup(Dialog& dialog);
  static std::optional<Speaker> selectedSpeaker(Dialog& dialog);
  static void exchange(Dialog& dialog, Speaker speaker, int row);
  static void moveUp(Dialog& dialog);
  static void moveDown(Dialog& dialog);
  static void remove(Dialog& dialog);
  static void assign(Dialog& dialog);
  static void finish(Dialog& dialog);
};

}  // namespace scorvane
