#include "setup/edit_contestants_dialog.h"

#include <string>
#include <vector>

#include "model/contest.h"
#include "model/numbering.h"
#include "model/roster.h"
#include "session/contest_file.h"
#include "session/open_contest.h"
#include "setup/setup_ids.h"
#include "text/format.h"
#include "text/number.h"
#include "ui/field_text.h"

namespace scorvane {

namespace {

ListLine contestantLine(const Contest& contest, ContestantNumber number) {
  return {formatText("%d - %s - %c", number, contestantName(contest, number).c_str(),
                     groupOfContestant(contest, number)),
          number};
}

void emptyFields(Dialog& dialog) {
  dialog.setText(IDC_EDITED_NUMBER, "");
  dialog.setText(IDC_EDITED_NAME, "");
  dialog.setText(IDC_EDITED_GROUP, "");
}

void selectContestant(Dialog& dialog) {
  const auto number = dialog.selectedNumber(IDC_EDITED_CONTESTANTS);
  if (!number) return;
  const Contest& contest = currentContest();
  dialog.setNumber(IDC_EDITED_NUMBER, *number);
  dialog.setText(IDC_EDITED_NAME, contestantName(contest, *number));
  dialog.setText(IDC_EDITED_GROUP, std::string(1, groupOfContestant(contest, *number)));
  dialog.focus(IDC_EDITED_NAME);
}

void updateContestant(Dialog& dialog) {
  const auto selected = dialog.selection(IDC_EDITED_CONTESTANTS);
  if (!selected) {
    dialog.show("No Contestant Selected to Update.", "Warning");
    return;
  }
  const std::string name = fieldText(dialog, IDC_EDITED_NAME);
  if (name.empty()) {
    dialog.show("The name cannot be empty.", "Error");
    emptyFields(dialog);
    dialog.select(IDC_EDITED_CONTESTANTS, std::nullopt);
    return;
  }
  const ContestantNumber number = leadingNumber(dialog.text(IDC_EDITED_NUMBER));
  currentContest().contestantNames[number] = name;
  dialog.removeLine(IDC_EDITED_CONTESTANTS, *selected);
  dialog.addLine(IDC_EDITED_CONTESTANTS, contestantLine(currentContest(), number));
  dialog.select(IDC_EDITED_CONTESTANTS, std::nullopt);
  emptyFields(dialog);
}

void deleteContestant(Dialog& dialog) {
  const auto selected = dialog.selection(IDC_EDITED_CONTESTANTS);
  if (!selected) {
    dialog.show("No Contestant Selected to Delete.", "Warning");
    return;
  }
  removeContestant(currentContest(), leadingNumber(dialog.text(IDC_EDITED_NUMBER)));
  dialog.removeLine(IDC_EDITED_CONTESTANTS, *selected);
  dialog.select(IDC_EDITED_CONTESTANTS, std::nullopt);
  emptyFields(dialog);
}

void finishContestants(Dialog& dialog) {
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
  dialog.setLines(IDC_EDITED_CONTESTANTS, lines);
}

void EditContestantsDialog::onEvent(Dialog& dialog, ControlId id, ControlEvent event) {
  if (id == IDC_EDITED_CONTESTANTS && event == ControlEvent::selectionChanged)
    selectContestant(dialog);
  if (event != ControlEvent::clicked) return;
  if (id == IDC_UPDATE_CONTESTANT) updateContestant(dialog);
  if (id == IDC_DELETE_CONTESTANT) deleteContestant(dialog);
  if (id == IDC_CONTESTANTS_DONE) finishContestants(dialog);
}

void EditContestantsDialog::onClose(Dialog& dialog) {
  finishContestants(dialog);
}

}  // namespace scorvane
