#include "setup/edit_contestants_dialog.h"

#include <string>
#include <vector>

#include "model/contest.h"
#include "model/numbering.h"
#include "model/reasons_places.h"
#include "model/roster.h"
#include "session/contest_file.h"
#include "session/open_contest.h"
#include "setup/edit_contestants_controls.h"
#include "text/format.h"
#include "text/number.h"
#include "ui/field_text.h"

namespace scorvane {

using namespace edit_contestants;

namespace {

ListLine contestantLine(const Contest& contest, ContestantNumber number) {
  return {formatText("%d - %s - %c", number, contestantName(contest, number).c_str(),
                     groupOfContestant(contest, number)),
          number};
}

void emptyFields(Dialog& dialog) {
  dialog.setText(kNumber, "");
  dialog.setText(kContestantName, "");
  dialog.setText(kGroup, "");
}

void selectContestant(Dialog& dialog) {
  const auto number = dialog.selectedNumber(kList);
  if (!number) return;
  const Contest& contest = currentContest();
  dialog.setNumber(kNumber, *number);
  dialog.setText(kContestantName, contestantName(contest, *number));
  dialog.setText(kGroup, std::string(1, groupOfContestant(contest, *number)));
  dialog.focus(kContestantName);
}

void updateContestant(Dialog& dialog) {
  const auto selected = dialog.selection(kList);
  if (!selected) {
    dialog.show("No Contestant Selected to Update.", "Warning");
    return;
  }
  const std::string name = fieldText(dialog, kContestantName);
  if (name.empty()) {
    dialog.show("The name cannot be empty.", "Error");
    emptyFields(dialog);
    dialog.select(kList, std::nullopt);
    return;
  }
  const ContestantNumber number = leadingNumber(dialog.text(kNumber));
  currentContest().contestantNames[number] = name;
  dialog.removeLine(kList, *selected);
  dialog.addLine(kList, contestantLine(currentContest(), number));
  dialog.select(kList, std::nullopt);
  emptyFields(dialog);
}

void deleteContestant(Dialog& dialog) {
  const auto selected = dialog.selection(kList);
  if (!selected) {
    dialog.show("No Contestant Selected to Delete.", "Warning");
    return;
  }
  // The team keeps the number among its members, and the scores stay.
  Contest& contest = currentContest();
  const ContestantNumber number = leadingNumber(dialog.text(kNumber));
  leaveReasonsOrder(contest, number);
  contest.contestantNames.erase(number);
  contest.contestantGroup.erase(number);
  dialog.removeLine(kList, *selected);
  dialog.select(kList, std::nullopt);
  emptyFields(dialog);
}

void finish(Dialog& dialog) {
  saveCurrent(dialog);
  dialog.end(kOkId);
}

}  // namespace

void EditContestantsDialog::onOpen(Dialog& dialog) {
  const Contest& contest = currentContest();
  std::vector<ListLine> lines;
  for (const auto& [number, name] : contest.contestantNames) {
    if (!name.empty()) lines.push_back(contestantLine(contest, number));
  }
  dialog.setLines(kList, lines);
}

void EditContestantsDialog::onEvent(Dialog& dialog, ControlId id, ControlEvent event) {
  if (id == kList && event == ControlEvent::selectionChanged) selectContestant(dialog);
  if (event != ControlEvent::clicked) return;
  if (id == kUpdate) updateContestant(dialog);
  if (id == kDelete) deleteContestant(dialog);
  if (id == kDone) finish(dialog);
}

void EditContestantsDialog::onClose(Dialog& dialog) {
  finish(dialog);
}

}  // namespace scorvane
