#include "setup/member_form.h"

#include <cstddef>
#include <optional>
#include <string>

#include "model/numbering.h"
#include "model/reasons_places.h"
#include "model/roster.h"
#include "session/open_contest.h"
#include "setup/setup_teams_controls.h"
#include "text/number.h"
#include "ui/field_text.h"

namespace scorvane {

using namespace setup_teams;

namespace {

// Deliberate: three refusals of this dialog are captioned with a full stop.
constexpr const char* kErrorWithStop = "Error.";

// False, after saying why, when the name or the group letter cannot be stored.
bool checkMember(Dialog& dialog, const std::string& name, const std::string& group) {
  if (name.empty()) {
    dialog.show("You didn't enter a contestant name!", "Warning");
    return false;
  }
  if (group.size() > 1) {
    dialog.show("Invalid, group must be a single letter!", "Error");
    return false;
  }
  if (group.size() == 1 && (group[0] < 'A' || group[0] > 'Z')) {
    dialog.show("Invalid group letter, must be between A and Z!", "Error");
    return false;
  }
  return true;
}

ContestantNumber numberShown(const Dialog& dialog) {
  return leadingNumber(dialog.text(kNumber));
}

void replaceMemberLine(Dialog& dialog, int slot, ContestantNumber number) {
  dialog.insertLine(kMemberList, slot, {memberLine(currentContest(), number, slot), number});
  dialog.removeLine(kMemberList, slot + 1);
}

// Adds a member, or replaces the one in slot `updated`.
void storeMember(Dialog& dialog, std::optional<int> updated) {
  Contest& contest = currentContest();
  const std::string name = fieldText(dialog, kContestantName);
  const std::string group = fieldText(dialog, kGroup);
  if (!checkMember(dialog, name, group)) return;
  const int slot = updated.value_or(dialog.lineCount(kMemberList));
  if (slot >= static_cast<int>(teamSlots(contest.settings))) {
    dialog.show(
        "This team is full or you need to select a member position from the member list to "
        "update.",
        "Warning");
    resetMemberForm(dialog);
    return;
  }
  const ContestantNumber number = numberShown(dialog);
  contest.contestantNames[number] = name;
  contest.contestantGroup[number] =
      group.empty() ? groupOfNumber(contest.settings, number) : group[0];
  if (updated) {
    replaceMemberLine(dialog, slot, number);
  } else {
    dialog.addLine(kMemberList, {memberLine(contest, number, slot), number});
    addBlankScores(contest, number);
  }
  resetMemberForm(dialog);
}

void addMember(Dialog& dialog) {
  if (dialog.selection(kMemberList)) {
    dialog.show("Once a member is selected you can only update it.", "Warning");
    dialog.focus(kContestantName);
    dialog.setDefaultButton(kUpdateMember);
    return;
  }
  storeMember(dialog, std::nullopt);
}

void updateMember(Dialog& dialog) {
  const auto selected = dialog.selection(kMemberList);
  if (!selected) {
    dialog.show("A member cannot be updated unless they are selected from the list box.",
                kErrorWithStop);
    return;
  }
  storeMember(dialog, selected);
}

void deleteMember(Dialog& dialog) {
  const auto selected = dialog.selection(kMemberList);
  if (!selected) {
    dialog.show("A member cannot be deleted unless they are selected from the list box.",
                kErrorWithStop);
    return;
  }
  // The number stays with the team, as a slot without a person.
  const ContestantNumber number = numberShown(dialog);
  currentContest().contestantNames[number] = "";
  leaveReasonsOrder(currentContest(), number);
  replaceMemberLine(dialog, *selected, number);
  resetMemberForm(dialog);
}

void selectMember(Dialog& dialog) {
  const auto number = dialog.selectedNumber(kMemberList);
  if (!number) return;
  const Contest& contest = currentContest();
  dialog.setNumber(kNumber, *number);
  dialog.setText(kContestantName, contestantName(contest, *number));
  dialog.setText(kGroup, std::string(1, groupOfNumber(contest.settings, *number)));
  dialog.focus(kContestantName);
  dialog.selectText(kContestantName);
  dialog.setDefaultButton(kUpdateMember);
}

}  // namespace

void showNextMember(Dialog& dialog) {
  updateNextContestant(currentContest());
  const ContestSettings& settings = currentContest().settings;
  dialog.select(kMemberList, std::nullopt);
  if (dialog.selection(kTeamList)) {
    dialog.setText(kNumber, "");
    dialog.setText(kGroup, "");
  } else {
    dialog.setNumber(kNumber, settings.nextContestantNum);
    dialog.setText(kGroup, std::string(1, settings.nextGroupLetter));
  }
  dialog.setText(kContestantName, "");
  dialog.setDefaultButton(kAddMember);
}

void resetMemberForm(Dialog& dialog) {
  showNextMember(dialog);
  dialog.focus(kContestantName);
}

void showMembers(Dialog& dialog, const std::vector<ContestantNumber>& members) {
  std::vector<ListLine> lines;
  lines.reserve(members.size());
  for (const ContestantNumber number : members) {
    const auto slot = static_cast<std::int32_t>(lines.size());
    lines.push_back({memberLine(currentContest(), number, slot), number});
  }
  dialog.setLines(kMemberList, lines);
}

std::vector<ContestantNumber> membersShown(const Dialog& dialog) {
  std::vector<ContestantNumber> members;
  const int count = dialog.lineCount(kMemberList);
  members.reserve(static_cast<std::size_t>(count));
  for (int slot = 0; slot < count; ++slot) {
    members.push_back(std::get<ContestantNumber>(*dialog.lineKey(kMemberList, slot)));
  }
  return members;
}

void onMemberEvent(Dialog& dialog, ControlId id, ControlEvent event) {
  if (id == kMemberList && event == ControlEvent::selectionChanged) selectMember(dialog);
  if (event != ControlEvent::clicked) return;
  if (id == kAddMember) addMember(dialog);
  if (id == kUpdateMember) updateMember(dialog);
  if (id == kDeleteMember) deleteMember(dialog);
}

}  // namespace scorvane
