// The member's half of the Setup Teams dialog: number, name and group, the member list and its
// three buttons.
#pragma once

#include <vector>

#include "model/contest.h"
#include "ui/dialog.h"

namespace scorvane {

/// Prepares the member fields for the next new contestant (for none while a team is selected):
/// no member selected, the next number and group letter shown, Add Member the default button.
/// The focus stays.
void showNextMember(Dialog& dialog, Contest& contest);

/// The same, and the focus goes to the name.
void resetMemberForm(Dialog& dialog, Contest& contest);

/// Shows members, one line per slot, none selected.
void showMembers(Dialog& dialog, const Contest& contest,
                 const std::vector<ContestantNumber>& members);

/// The numbers of the members shown, by slot.
[[nodiscard]] std::vector<ContestantNumber> membersShown(const Dialog& dialog);

/// Handles an event of the member list and its buttons; events of other controls are ignored.
void onMemberEvent(Dialog& dialog, Contest& contest, ControlId id, ControlEvent event);

}  // namespace scorvane
