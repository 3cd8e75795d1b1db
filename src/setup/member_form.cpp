#include "setup/member_form.h"

#include <cstddef>
#include <optional>
#include <string>

#include "model/numbering.h"
#include "model/roster.h"
#include "setup/setup_ids.h"
#include "text/number.h"
#include "ui/field_text.h"

namespace scorvane {

namespace {

// Odd but required, docs/required-behaviour.md: captions-with-a-full-stop
constexpr const char* kErrorWithStop = "Error.";

// Why the name or the group letter cannot be stored; nothing when both can.
std::optional<Message> refusalOf(const std::string& name, const std::string& group) {
  if (name.empty()) return Message{"You didn't enter a contestant name!", "Warning"};
  if (group.size() > 1) return Message{"Invalid, group must be a single letter!", "Error"};
  if (group.size() == 1 && (group[0] < 'A' || group[0] > 'Z')) {
    return Message{"Invalid group letter, must be between A and Z!", "Error"};
  }
  return std::nullopt;
}

ContestantNumber numberShown(const Dialog& dialog) {
  return leadingNumber(dialog.text(IDC_MEMBER_NUMBER));
}

void replaceMemberLine(Dialog& dialog, const Contest& contest, int slot, ContestantNumber number) {
  dialog.insertLine(IDC_MEMBER_LIST, slot, {memberLine(contest, number, slot), number});
  dialog.removeLine(IDC_MEMBER_LIST, slot + 1);
}

// Adds a member, or replaces the one in slot `updated`.
void storeMember(Dialog& dialog, Contest& contest, std::optional<int> updated) {
  const std::string name = fieldText(dialog, IDC_MEMBER_NAME);
  const std::string group = fieldText(dialog, IDC_MEMBER_GROUP);
  if (const auto refusal = refusalOf(name, group)) {
    dialog.ask(*refusal);
    return;
  }
  const int slot = updated.value_or(dialog.lineCount(IDC_MEMBER_LIST));
  if (slot >= static_cast<int>(teamSlots(contest.settings))) {
    dialog.show(
        "This team is full or you need to select a member position from the member list to "
        "update.",
        "Warning");
    resetMemberForm(dialog, contest);
    return;
  }
  const ContestantNumber number = numberShown(dialog);
  const auto letter = group.empty() ? std::nullopt : std::optional(group[0]);
  if (updated) {
    setContestant(contest, number, name, letter);
    replaceMemberLine(dialog, contest, slot, number);
  } else {
    addContestant(contest, number, name, letter);
    dialog.addLine(IDC_MEMBER_LIST, {memberLine(contest, number, slot), number});
  }
  resetMemberForm(dialog, contest);
}

void addMember(Dialog& dialog, Contest& contest) {
  if (dialog.selection(IDC_MEMBER_LIST)) {
    dialog.show("Once a member is selected you can only update it.", "Warning");
    dialog.focus(IDC_MEMBER_NAME);
    dialog.setDefaultButton(IDC_UPDATE_MEMBER);
    return;
  }
  storeMember(dialog, contest, std::nullopt);
}

void updateMember(Dialog& dialog, Contest& contest) {
  const auto selected = dialog.selection(IDC_MEMBER_LIST);
  if (!selected) {
    dialog.show("A member cannot be updated unless they are selected from the list box.",
                kErrorWithStop);
    return;
  }
  storeMember(dialog, contest, selected);
}

void deleteMember(Dialog& dialog, Contest& contest) {
  const auto selected = dialog.selection(IDC_MEMBER_LIST);
  if (!selected) {
    dialog.show("A member cannot be deleted unless they are selected from the list box.",
                kErrorWithStop);
    return;
  }
  const ContestantNumber number = numberShown(dialog);
  vacateNumber(contest, number);
  replaceMemberLine(dialog, contest, *selected, number);
  resetMemberForm(dialog, contest);
}

void selectMember(Dialog& dialog, const Contest& contest) {
  const auto number = dialog.selectedNumber(IDC_MEMBER_LIST);
  if (!number) return;
  dialog.setNumber(IDC_MEMBER_NUMBER, *number);
  dialog.setText(IDC_MEMBER_NAME, contestantName(contest, *number));
  dialog.setText(IDC_MEMBER_GROUP, std::string(1, groupOfNumber(contest.settings, *number)));
  if (!dialog.isMovingThroughLines()) {
    dialog.focus(IDC_MEMBER_NAME);
    dialog.selectText(IDC_MEMBER_NAME);
  }
  dialog.setDefaultButton(IDC_UPDATE_MEMBER);
}

}  // namespace

void showNextMember(Dialog& dialog, Contest& contest) {
  updateNextContestant(contest);
  dialog.select(IDC_MEMBER_LIST, std::nullopt);
  if (dialog.selection(IDC_TEAM_LIST)) {
    dialog.setText(IDC_MEMBER_NUMBER, "");
    dialog.setText(IDC_MEMBER_GROUP, "");
  } else {
    dialog.setNumber(IDC_MEMBER_NUMBER, contest.settings.nextContestantNum);
    dialog.setText(IDC_MEMBER_GROUP, std::string(1, contest.settings.nextGroupLetter));
  }
  dialog.setText(IDC_MEMBER_NAME, "");
  dialog.setDefaultButton(IDC_ADD_MEMBER);
}

void resetMemberForm(Dialog& dialog, Contest& contest) {
  showNextMember(dialog, contest);
  dialog.focus(IDC_MEMBER_NAME);
}

void showMembers(Dialog& dialog, const Contest& contest,
                 const std::vector<ContestantNumber>& members) {
  std::vector<ListLine> lines;
  lines.reserve(members.size());
  for (const ContestantNumber number : members) {
    const auto slot = static_cast<std::int32_t>(lines.size());
    lines.push_back({memberLine(contest, number, slot), number});
  }
  dialog.setLines(IDC_MEMBER_LIST, lines);
}

std::vector<ContestantNumber> membersShown(const Dialog& dialog) {
  std::vector<ContestantNumber> members;
  const int count = dialog.lineCount(IDC_MEMBER_LIST);
  members.reserve(static_cast<std::size_t>(count));
  for (int slot = 0; slot < count; ++slot) {
    members.push_back(std::get<ContestantNumber>(*dialog.lineKey(IDC_MEMBER_LIST, slot)));
  }
  return members;
}

void onMemberEvent(Dialog& dialog, Contest& contest, ControlId id, ControlEvent event) {
  if (id == IDC_MEMBER_LIST && event == ControlEvent::selectionChanged)
    selectMember(dialog, contest);
  if (event != ControlEvent::clicked) return;
  if (id == IDC_ADD_MEMBER) addMember(dialog, contest);
  if (id == IDC_UPDATE_MEMBER) updateMember(dialog, contest);
  if (id == IDC_DELETE_MEMBER) deleteMember(dialog, contest);
}

}  // namespace scorvane
