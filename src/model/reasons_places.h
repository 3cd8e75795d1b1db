// Who has which place in the reasons order: changing the table and the contestants' places
// together.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "model/contest.h"

namespace scorvane {

/// Rows of the reasons order: one for every member slot of the teams.
[[nodiscard]] std::int64_t reasonsRows(const Contest& contest);

/// Makes the reasons order an empty one of `rows` rows, and every contestant unassigned.
void resetReasonsOrder(Contest& contest, std::int64_t rows);

/// Makes the table from the places. A place outside the table, or one that a later contestant holds
/// too, is given up, so that the person turns up among the unassigned.
void rebuildReasonsOrder(Contest& contest);

/// Puts a contestant into a cell of the table, which must exist; the place follows.
void setReasonsPlace(Contest& contest, ContestantNumber number, ReasonsPlace place);

/// Moves every contestant of the reasons order up until no empty cell lies above: in each of the
/// numReasonsGroups groups they then have rows 0, 1, 2, ... in their old order, and their places
/// follow. A contestant in the table whose place is unassigned stays unassigned. Linear in the
/// contestants placed.
void compactReasonsOrder(Contest& contest);

/// Makes a contestant unassigned and compacts the reasons order.
///
/// Odd but required, docs/required-behaviour.md: deleted-contestant-keeps-cell
void leaveReasonsOrder(Contest& contest, ContestantNumber number);

/// Empties every cell that holds the contestant, whatever the place says. Returns whether there was
/// one.
bool clearReasonsCells(Contest& contest, ContestantNumber number);

/// The speakers without a place: named contestants, in ascending order.
[[nodiscard]] std::vector<ContestantNumber> unassignedSpeakers(const Contest& contest);

/// A speaker as lists and reports show one: "     101 - Ann Lee".
[[nodiscard]] std::string speakerLine(const Contest& contest, ContestantNumber number);

}  // namespace scorvane
