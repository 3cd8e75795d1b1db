// The About box: which program this is, and which version.
#pragma once

#include "ui/dialog.h"

inline constexpr int kAboutDialog = 103;

class AboutDialog : public DialogBehaviour {
 public:
  void opened(Dialog& dialog) override;
  void onEvent(Dialog& dialog, ControlId id, ControlEvent event) override;
  void closed(Dialog& dialog) override;
};
