// What a change of the contest's groups does to the contestants.
#pragma once

#include "model/contest.h"

/// Makes the group letters of numGroups groups and gives every contestant the letter that goes
/// with the number, over any other letter.
void regroupContestants(Contest& contest);

/// Makes the reasons order an empty one, a row for every member slot of the teams, and every
/// contestant unassigned.
void clearReasonsOrder(Contest& contest);
