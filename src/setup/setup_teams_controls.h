// Controls of the Setup Teams dialog.
#pragma once

#include "ui/dialog.h"

namespace scorvane {

namespace setup_teams {

inline constexpr int kDialog = 136;

inline constexpr ControlId kTeamName = 1017;
inline constexpr ControlId kCoach = 1018;
inline constexpr ControlId kNumber = 1054;
inline constexpr ControlId kContestantName = 1020;
inline constexpr ControlId kGroup = 1021;
inline constexpr ControlId kMemberList = 1060;
inline constexpr ControlId kTeamList = 1019;
inline constexpr ControlId kAddMember = 1058;
inline constexpr ControlId kUpdateMember = 1061;
inline constexpr ControlId kDeleteMember = 1062;
inline constexpr ControlId kNewTeam = 1008;
inline constexpr ControlId kAddTeam = 1059;
inline constexpr ControlId kUpdateTeam = 1009;
inline constexpr ControlId kRemoveTeam = 1005;
inline constexpr ControlId kClearAllTeams = 1023;
inline constexpr ControlId kDone = 1003;

}  // namespace setup_teams

}  // namespace scorvane
