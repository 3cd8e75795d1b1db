// The scoring categories within the Setup Contest dialog: an edit box, a list and three buttons.
#pragma once

#include <string>
#include <vector>

#include "model/contest.h"
#include "ui/dialog.h"

namespace scorvane {

/// Lists the categories, none selected, with an empty edit box.
void showCategories(Dialog& dialog, const std::vector<std::string>& categories);

/// Handles an event of the category controls; events of other controls are ignored.
void onCategoryEvent(Dialog& dialog, Contest& contest, ControlId id, ControlEvent event);

}  // namespace scorvane
