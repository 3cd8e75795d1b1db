// The About box: which program this is, and which version.
#pragma once

#include "ui/dialog.h"

namespace scorvane {

inline constexpr int kAboutDialog = 103;

class AboutDialog : public DialogBehaviour {
 public:
  void onOpen(Dialog& dialog) override;
  void onEvent(Dialog& dialog, ControlId id, ControlEvent event) override;
  void onClose(Dialog& dialog) override;
};

}  // namespace scorvane
