// Changing who has which place in the reasons order: the table and the contestants' places
// together.
#pragma once

#include "model/contest.h"

namespace scorvane {

/// Moves every contestant of the reasons order up until no empty cell lies above: in each of the
/// numReasonsGroups groups the contestants stand in rows 0, 1, 2, ... in their old order, and
/// their places follow. A contestant in the table whose place is unassigned stays unassigned.
/// Linear in the contestants placed.
void compactReasonsOrder(Contest& contest);

/// Makes the reasons order an empty one, a row for every member slot of the teams, and every
/// contestant unassigned.
void clearReasonsOrder(Contest& contest);

/// Makes a contestant unassigned and closes the gap in the reasons order.
///
/// Deliberate: only a cell outside the first row and the first group is emptied; a contestant
/// there keeps the cell although unassigned.
void leaveReasonsOrder(Contest& contest, ContestantNumber number);

}  // namespace scorvane
