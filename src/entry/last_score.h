// What the entry dialogs tell of cards: whose it is, and the "Last Score Entered".
#pragma once

#include <optional>

#include "entry/score_fields.h"
#include "ui/dialog.h"

namespace scorvane {

/// Shows a contestant's name and team beside the number, to be held against the card; nothing when
/// there is no such contestant.
void showPerson(Dialog& dialog, const Contest& contest, std::optional<ContestantNumber> number);

/// Shows a contestant's number and stored score of one kind for a class: the letter and its
/// order with the class's official letter and cuts, or a number, "---" when the class does not
/// carry such a score.
void showLastScore(Dialog& dialog, const Contest& contest, ContestantNumber number,
                   std::int32_t classIndex, EntryKind kind);

}  // namespace scorvane
