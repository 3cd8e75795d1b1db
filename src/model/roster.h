// The roster: entering, editing and removing contestants and teams.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "model/contest.h"

namespace scorvane {

/// Stores a contestant's name and group letter, new or over the old ones. Without a letter it is
/// the one that goes with the number.
void setContestant(Contest& contest, ContestantNumber number, const std::string& name,
                   std::optional<char> group = std::nullopt);

/// Enters a new contestant: the same, and a blank record for every class.
void addContestant(Contest& contest, ContestantNumber number, const std::string& name,
                   std::optional<char> group = std::nullopt);

/// Takes the person out of a number, which stays with its team as a slot without a name. The
/// person leaves the reasons order; the scores stay with the slot.
///
/// Odd but required, docs/required-behaviour.md: emptied-slot-keeps-its-scores
void vacateNumber(Contest& contest, ContestantNumber number);

/// Removes a contestant from the contest and the reasons order. The team keeps the number among
/// its members, and the scores stay.
void removeContestant(Contest& contest, ContestantNumber number);

/// Removes contestants whose team was never written: their names and group letters.
void discardContestants(Contest& contest, const std::vector<ContestantNumber>& numbers);

/// A member's line: "101 - Ann Lee   A", and " (alternate)" in a slot (from 0) beyond the regular
/// members. Name and group as stored.
[[nodiscard]] std::string memberLine(const Contest& contest, ContestantNumber number,
                                     std::int32_t slot);

/// The teamSlots() members of a team whose first slots hold `named`. Each slot beyond them
/// takes the next number, which is entered without a name and with a blank record for every class.
[[nodiscard]] std::vector<ContestantNumber> fillTeamSlots(
    Contest& contest, const std::vector<ContestantNumber>& named);

/// Stores a new team: its members are unassigned in the reasons order, which grows to
/// reasonsRows().
void addTeam(Contest& contest, const std::string& name, Team team);

/// Stores an existing team's new values under its new name, which may be the old one. Another team
/// of the new name is replaced.
void replaceTeam(Contest& contest, const std::string& oldName, const std::string& newName,
                 Team team);

/// Removes a team and its members' names; when one of them was in the reasons order, the order is
/// compacted. Their group letters and scores stay. An unknown name is ignored.
void removeTeam(Contest& contest, const std::string& name);

/// Removes all teams and all contestants' names; the next number is the first again.
///
/// Odd but required, docs/required-behaviour.md: clear-all-teams-keeps-the-rest
void removeAllTeams(Contest& contest);

}  // namespace scorvane
