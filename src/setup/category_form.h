// The scoring categories within the Setup Contest dialog: an edit box, a list and three buttons.
#pragma once

#include "ui/dialog.h"

namespace scorvane {

/// Lists the current contest's categories, none selected, with an empty edit box.
void showCategories(Dialog& dialog);

/// Answers an event of the category controls; events of other controls are ignored.
void onCategoryEvent(Dialog& dialog, ControlId id, ControlEvent event);

}  // namespace scorvane
