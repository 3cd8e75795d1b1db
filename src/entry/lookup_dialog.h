// Looking up and correcting any one contestant's scores in any one class.
#pragma once

#include "ui/dialog.h"

namespace scorvane {

inline constexpr int kLookupDialog = 137;

class LookupDialog : public DialogBehaviour {
 public:
  void onOpen(Dialog& dialog) override;
  void onEvent(Dialog& dialog, ControlId id, ControlEvent event) override;
  void onClose(Dialog& dialog) override;
};

}  // namespace scorvane
