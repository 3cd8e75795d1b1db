// The lists of classes and groups that entry dialogs offer.
#pragma once

#include <vector>

#include "entry/score_fields.h"
#include "ui/dialog.h"

namespace scorvane {

/// The classes that carry scores of a kind; a line's key is the class's index.
[[nodiscard]] std::vector<ListLine> linesOfClasses(const JudgingClasses& classes, EntryKind kind);

/// The groups that cards of a kind are typed by: for reasons the reasons groups (keys from 0), else
/// the rotation groups. Their key is the letter and not the position: beyond "Z" a sorted list need
/// not be in the order of the letters.
[[nodiscard]] std::vector<ListLine> linesOfGroups(const Contest& contest, EntryKind kind);

}  // namespace scorvane
