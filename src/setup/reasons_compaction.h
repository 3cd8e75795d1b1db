// Keeping the reasons order free of gaps.
#pragma once

#include "model/contest.h"

/// Moves every contestant of the reasons order up until no empty cell lies above: in each of the
/// numReasonsGroups groups the contestants stand in rows 0, 1, 2, ... in their old order, and
/// their places follow. A contestant in the table whose place is unassigned stays unassigned.
/// Linear in the contestants placed.
void compactReasonsOrder(Contest& contest);
