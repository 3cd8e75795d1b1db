// How the entry dialogs end.
#pragma once

#include "ui/dialog.h"

namespace scorvane {

/// What Escape does: in most entry dialogs it ends without saving.
enum class Escape { leavesFile, saves };

/// Ends the dialog when the event is its Done or OK, after saving, or its Cancel. The scores
/// stored so far stay in the contest in any case.
void endOn(Dialog& dialog, ControlId id, ControlEvent event, Escape escape = Escape::leavesFile);

/// Saves the contest if it has a file, and ends the dialog.
void saveAndEnd(Dialog& dialog);

}  // namespace scorvane
