// What entering, editing and removing members and teams does to the contest.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "model/contest.h"

namespace scorvane {

/// A member's line: "101 - Ann Lee   A", and " (alternate)" in a slot (from 0) beyond the regular
/// members. Name and group as stored.
[[nodiscard]] std::string memberLine(const Contest& contest, ContestantNumber number,
                                     std::int32_t slot);

/// Gives a new contestant a blank record for every class.
void addBlankScores(Contest& contest, ContestantNumber number);

/// Takes out contestants whose team was never written: their names and group letters.
void discardContestants(Contest& contest, const std::vector<ContestantNumber>& numbers);

/// The teamSlots() members of a team whose first slots hold `named`. Each slot beyond them
/// takes the next number, which is entered without a name.
[[nodiscard]] std::vector<ContestantNumber> fillTeamSlots(
    Contest& contest, const std::vector<ContestantNumber>& named);

/// Stores a new team: its members are unassigned in the reasons order, which grows to a row for
/// every member slot.
void addTeam(Contest& contest, const std::string& name, Team team);

/// Stores an existing team's new values under its new name, which may be the old one. Another team
/// of the new name is replaced.
void replaceTeam(Contest& contest, const std::string& oldName, const std::string& newName,
                 Team team);

/// Removes a team and its members' names; when one of them was in the reasons order, the order is
/// compacted. Their group letters and scores stay. An unknown name is ignored.
void removeTeam(Contest& contest, const std::string& name);

}  // namespace scorvane
