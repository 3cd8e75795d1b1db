// The Publish Results dialog: how much of the results the page is to tell.
#pragma once

#include "exchange/publish_ids.h"
#include "ui/dialog.h"

namespace scorvane {

/// Publish asks for the file and ends the dialog once it is written. Ends with kOkId or kCancelId.
class PublishDialog : public DialogBehaviour {
 public:
  void onOpen(Dialog& dialog) override;
  void onEvent(Dialog& dialog, ControlId id, ControlEvent event) override;
  void onClose(Dialog& dialog) override;
};

}  // namespace scorvane
