// Typing in the questions scores of one group for one class.
#pragma once

#include "entry/group_entry.h"

inline constexpr int kQuestionsDialog = 149;

class QuestionsDialog : public DialogBehaviour {
 public:
  QuestionsDialog();
  void opened(Dialog& dialog) override;
  void onEvent(Dialog& dialog, ControlId id, ControlEvent event) override;
  void closed(Dialog& dialog) override;

 private:
  void score(Dialog& dialog);

  GroupEntry entry_;
};
