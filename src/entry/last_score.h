// The "Last Score Entered" part of the entry dialogs.
#pragma once

#include "entry/score_fields.h"
#include "ui/dialog.h"

namespace scorvane {

/// Shows a contestant's number and stored score of one kind for a class: the letter with the
/// class's official letter and cuts, or a number, "---" when the class does not carry such a score.
void showLastScore(Dialog& dialog, const Contest& contest, ContestantNumber number,
                   std::int32_t classIndex, EntryKind kind);

}  // namespace scorvane
