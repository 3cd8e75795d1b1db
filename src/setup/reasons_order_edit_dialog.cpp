#include "setup/reasons_order_edit_dialog.h"

#include <algorithm>
#include <string>
#include <vector>

#include "setup/reasons_bands.h"
#include "setup/reasons_compaction.h"
#include "storage/contest_commands.h"
#include "text/format.h"
#include "text/number.h"

namespace {

std::string lineOf(const Contest& contest, ContestantNumber number) {
  return formatText("     %d - %s", number, contestantName(contest, number).c_str());
}

std::vector<std::string> groupLines(const Contest& contest) {
  std::vector<std::string> lines;
  const auto count = std::min(contest.settings.numReasonsGroups, kMostReasonsGroupsShown);
  for (std::int32_t g = 1; g <= count; ++g) lines.push_back(formatText("     %d", g));
  return lines;
}

std::vector<std::string> unassignedLines(const Contest& contest) {
  std::vector<std::string> lines;
  for (const auto& [number, name] : contest.contestantNames) {
    const ReasonsPlace* place = contest.reasonsPlace.find(number);
    const bool isAssigned = place != nullptr && place->isAssigned();
    if (!name.empty() && !isAssigned) lines.push_back(lineOf(contest, number));
  }
  return lines;
}

std::vector<std::string> orderLines(const Contest& contest, std::int32_t group) {
  std::vector<std::string> lines;
  const ReasonsOrder& order = contest.reasonsOrder;
  for (std::int32_t row = 0; order.cell(row, group) != kNobody; ++row) {
    lines.push_back(lineOf(contest, order.cell(row, group)));
  }
  return lines;
}

void putInto(Contest& contest, std::int32_t row, std::int32_t group, ContestantNumber number) {
  contest.reasonsOrder.setCell(row, group, number);
  contest.reasonsPlace[number] = {group, row};
}

// A contestant deleted and named anew can have kept a cell without the place that belongs to it;
// nobody speaks twice. Gives whether there was such a cell.
bool clearCellsOf(Contest& contest, ContestantNumber number) {
  std::vector<ReasonsOrder::Cells::Entry> cells(contest.reasonsOrder.cells().begin(),
                                                contest.reasonsOrder.cells().end());
  if (std::erase_if(cells, [number](const auto& c) { return c.second == number; }) == 0)
    return false;
  contest.reasonsOrder.setCells(std::move(cells));
  return true;
}

}  // namespace

void ReasonsOrderEditDialog::opened(Dialog& dialog) {
  Contest& contest = currentContest();
  compactReasonsOrder(contest);
  dialog.setLines(kGroups, groupLines(contest));
  dialog.setLines(kUnassigned, unassignedLines(contest));
}

void ReasonsOrderEditDialog::onEvent(Dialog& dialog, ControlId id, ControlEvent event) {
  if (event == ControlEvent::selectionChanged) {
    if (id == kGroups) showGroup(dialog);
    if (id == kUnassigned) assign(dialog);
  }
  if (event == ControlEvent::clicked) {
    if (id == kMoveUp) moveUp(dialog);
    if (id == kMoveDown) moveDown(dialog);
    if (id == kRemove) remove(dialog);
    if (id == kDone) finish(dialog);
  }
}

void ReasonsOrderEditDialog::closed(Dialog& dialog) {
  finish(dialog);
}

void ReasonsOrderEditDialog::showGroup(Dialog& dialog) {
  Contest& contest = currentContest();
  compactReasonsOrder(contest);
  const std::optional<int> group = dialog.selection(kGroups);
  if (group) dialog.setLines(kOrder, orderLines(contest, *group));
}

std::optional<ReasonsOrderEditDialog::Speaker> ReasonsOrderEditDialog::selectedSpeaker(
    Dialog& dialog) {
  const std::optional<int> group = dialog.selection(kGroups);
  const std::optional<int> row = dialog.selection(kOrder);
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
  putInto(contest, row, group, moved);
  putInto(contest, from, group, other);
  dialog.removeLine(kOrder, from);
  dialog.insertLine(kOrder, row, lineOf(contest, moved));
  dialog.select(kOrder, row);
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
  if (speaker->row + 1 == dialog.lineCount(kOrder)) {
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
  ReasonsPlace& place = contest.reasonsPlace[number];
  // Without a place the contestant is among the unassigned already, in spite of the cell.
  if (place.isAssigned()) dialog.addLine(kUnassigned, lineOf(contest, number));
  place = {};
  contest.reasonsOrder.setCell(speaker->row, speaker->group, kNobody);
  dialog.removeLine(kOrder, speaker->row);
  compactReasonsOrder(contest);
}

void ReasonsOrderEditDialog::assign(Dialog& dialog) {
  const std::optional<int> line = dialog.selection(kUnassigned);
  const std::optional<int> group = dialog.selection(kGroups);
  if (!line) return;
  if (!group) {
    dialog.show("A Reasons Group must be selected to move an unassigned contestant.", "Warning");
    dialog.select(kUnassigned, std::nullopt);
    return;
  }
  Contest& contest = currentContest();
  const int row = dialog.lineCount(kOrder);
  if (row >= contest.reasonsOrder.rowCount()) {
    dialog.show("That reasons group is full, select another group to add this contestant to.",
                "Warning");
    dialog.select(kUnassigned, std::nullopt);
    dialog.select(kGroups, std::nullopt);
    return;
  }
  const ContestantNumber number = leadingNumber(dialog.line(kUnassigned, *line));
  const bool stoodElsewhere = clearCellsOf(contest, number);
  putInto(contest, row, *group, number);
  compactReasonsOrder(contest);
  dialog.removeLine(kUnassigned, *line);
  if (stoodElsewhere) {
    dialog.setLines(kOrder, orderLines(contest, *group));
  } else {
    dialog.addLine(kOrder, lineOf(contest, number));
  }
}

void ReasonsOrderEditDialog::finish(Dialog& dialog) {
  compactReasonsOrder(currentContest());
  saveCurrent(dialog);
  dialog.end(kDone);
}
