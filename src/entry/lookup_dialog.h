// Looking up and correcting any one contestant's scores in any one class.
#pragma once

#include "ui/dialog.h"

inline constexpr int kLookupDialog = 137;

class LookupDialog : public DialogBehaviour {
 public:
  void opened(Dialog& dialog) override;
  void onEvent(Dialog& dialog, ControlId id, ControlEvent event) override;
  void closed(Dialog& dialog) override;
};
