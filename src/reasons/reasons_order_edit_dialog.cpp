#include "reasons/reasons_order_edit_dialog.h"

#include <algorithm>
#include <string>
#include <vector>

#include "model/reasons_places.h"
#include "reasons/reasons_ids.h"
#include "session/contest_file.h"
#include "session/open_contest.h"
#include "text/format.h"

namespace scorvane {

namespace {

std::vector<std::string> groupLines(const Contest& contest) {
  std::vector<std::string> lines;
  const auto count = std::min(contest.settings.numReasonsGroups, kMostReasonsGroupsShown);
  for (std::int32_t g = 1; g <= count; ++g) lines.push_back(formatText("     %d", g));
  return lines;
}

ListLine lineOf(const Contest& contest, ContestantNumber number) {
  return {speakerLine(contest, number), number};
}

std::vector<ListLine> unassignedLines(const Contest& contest) {
  std::vector<ListLine> lines;
  for (const ContestantNumber number : unassignedSpeakers(contest)) {
    lines.push_back(lineOf(contest, number));
  }
  return lines;
}

std::vector<ListLine> orderLines(const Contest& contest, std::int32_t group) {
  std::vector<ListLine> lines;
  const ReasonsOrder& order = contest.reasonsOrder;
  for (std::int32_t row = 0; order.cell(row, group) != kNobody; ++row) {
    lines.push_back(lineOf(contest, order.cell(row, group)));
  }
  return lines;
}

bool isListed(const Dialog& dialog, ControlId list, ContestantNumber number) {
  for (int i = 0; i < dialog.lineCount(list); ++i) {
    if (dialog.lineKey(list, i) == LineKey{number}) return true;
  }
  return false;
}

}  // namespace

void ReasonsOrderEditDialog::onOpen(Dialog& dialog) {
  Contest& contest = currentContest();
  compactReasonsOrder(contest);
  dialog.setLines(IDC_REASONS_GROUPS, groupLines(contest));
  dialog.setLines(IDC_UNASSIGNED_SPEAKERS, unassignedLines(contest));
}

void ReasonsOrderEditDialog::onEvent(Dialog& dialog, ControlId id, ControlEvent event) {
  if (event == ControlEvent::selectionChanged) {
    if (id == IDC_REASONS_GROUPS) showGroup(dialog);
    if (id == IDC_UNASSIGNED_SPEAKERS) assign(dialog);
  }
  if (event == ControlEvent::clicked) {
    if (id == IDC_SPEAKER_UP) moveUp(dialog);
    if (id == IDC_SPEAKER_DOWN) moveDown(dialog);
    if (id == IDC_REMOVE_SPEAKER) remove(dialog);
    if (id == IDC_REASONS_ORDER_DONE) finish(dialog);
  }
}

void ReasonsOrderEditDialog::onClose(Dialog& dialog) {
  finish(dialog);
}

void ReasonsOrderEditDialog::showGroup(Dialog& dialog) {
  Contest& contest = currentContest();
  compactReasonsOrder(contest);
  const std::optional<int> group = dialog.selection(IDC_REASONS_GROUPS);
  if (group) dialog.setLines(IDC_SPEAKERS, orderLines(contest, *group));
}

std::optional<ReasonsOrderEditDialog::Speaker> ReasonsOrderEditDialog::selectedSpeaker(
    Dialog& dialog) {
  const std::optional<int> group = dialog.selection(IDC_REASONS_GROUPS);
  const std::optional<int> row = dialog.selection(IDC_SPEAKERS);
  if (group && row) return Speaker{*group, *row};
  dialog.show("A Reasons Group and Contestant must be selected.", "Warning");
  return std::nullopt;
}

// The moved contestant stays selected, so that the same button moves on.
void ReasonsOrderEditDialog::exchange(Dialog& dialog, Speaker speaker, int row) {
  Contest& contest = currentContest();
  const auto [group, from] = speaker;
  const ContestantNumber moved = contest.reasonsOrder.cell(from, group);
  const ContestantNumber other = contest.reasonsOrder.cell(row, group);
  setReasonsPlace(contest, moved, {group, row});
  setReasonsPlace(contest, other, {group, from});
  dialog.removeLine(IDC_SPEAKERS, from);
  dialog.insertLine(IDC_SPEAKERS, row, lineOf(contest, moved));
  dialog.select(IDC_SPEAKERS, row);
}

void ReasonsOrderEditDialog::moveUp(Dialog& dialog) {
  const std::optional<Speaker> speaker = selectedSpeaker(dialog);
  if (!speaker) return;
  if (speaker->row == 0) {
    dialog.show("The top Contestant cannot be moved up.", "Error");
    return;
  }
  exchange(dialog, *speaker, speaker->row - 1);
}

void ReasonsOrderEditDialog::moveDown(Dialog& dialog) {
  const std::optional<Speaker> speaker = selectedSpeaker(dialog);
  if (!speaker) return;
  if (speaker->row + 1 == dialog.lineCount(IDC_SPEAKERS)) {
    dialog.show("The bottom Contestant cannot be moved down.", "Error");
    return;
  }
  exchange(dialog, *speaker, speaker->row + 1);
}

void ReasonsOrderEditDialog::remove(Dialog& dialog) {
  const std::optional<Speaker> speaker = selectedSpeaker(dialog);
  if (!speaker) return;
  Contest& contest = currentContest();
  const ContestantNumber number = contest.reasonsOrder.cell(speaker->row, speaker->group);
  contest.reasonsOrder.setCell(speaker->row, speaker->group, kNobody);
  contest.reasonsPlace[number] = {};
  dialog.removeLine(IDC_SPEAKERS, speaker->row);
  // Who had kept a cell without the place that belongs to it is listed already.
  if (!isListed(dialog, IDC_UNASSIGNED_SPEAKERS, number)) {
    dialog.addLine(IDC_UNASSIGNED_SPEAKERS, lineOf(contest, number));
  }
  compactReasonsOrder(contest);
}

void ReasonsOrderEditDialog::assign(Dialog& dialog) {
  const std::optional<int> line = dialog.selection(IDC_UNASSIGNED_SPEAKERS);
  const std::optional<int> group = dialog.selection(IDC_REASONS_GROUPS);
  if (!line) return;
  if (!group) {
    dialog.show("A Reasons Group must be selected to move an unassigned contestant.", "Warning");
    dialog.select(IDC_UNASSIGNED_SPEAKERS, std::nullopt);
    return;
  }
  Contest& contest = currentContest();
  const int row = dialog.lineCount(IDC_SPEAKERS);
  if (row >= contest.reasonsOrder.rowCount()) {
    dialog.show("That reasons group is full, select another group to add this contestant to.",
                "Warning");
    dialog.select(IDC_UNASSIGNED_SPEAKERS, std::nullopt);
    dialog.select(IDC_REASONS_GROUPS, std::nullopt);
    return;
  }
  const ContestantNumber number = *dialog.selectedNumber(IDC_UNASSIGNED_SPEAKERS);
  // A contestant deleted and named anew can have kept a cell without the place that belongs to it;
  // nobody speaks twice.
  const bool hadCell = clearReasonsCells(contest, number);
  setReasonsPlace(contest, number, {*group, row});
  compactReasonsOrder(contest);
  dialog.removeLine(IDC_UNASSIGNED_SPEAKERS, *line);
  if (hadCell) {
    dialog.setLines(IDC_SPEAKERS, orderLines(contest, *group));
  } else {
    dialog.addLine(IDC_SPEAKERS, lineOf(contest, number));
  }
}

void ReasonsOrderEditDialog::finish(Dialog& dialog) {
  compactReasonsOrder(currentContest());
  saveCurrent(dialog);
  dialog.end(IDC_REASONS_ORDER_DONE);
}

}  // namespace scorvane
