#include "reasons/reasons_order_edit_dialog.h"

#include <algorithm>
#include <string>
#include <vector>

#include "model/reasons_places.h"
#include "reasons/reasons_bands.h"
#include "reasons/speakers.h"
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

void putInto(Contest& contest, std::int32_t row, std::int32_t group, ContestantNumber number) {
  contest.reasonsOrder.setCell(row, group, number);
  contest.reasonsPlace[number] = {group, row};
}

bool isListed(const Dialog& dialog, ControlId list, ContestantNumber number) {
  for (int i = 0; i < dialog.lineCount(list); ++i) {
    if (dialog.lineKey(list, i) == LineKey{number}) return true;
  }
  return false;
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

void ReasonsOrderEditDialog::onOpen(Dialog& dialog) {
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

void ReasonsOrderEditDialog::onClose(Dialog& dialog) {
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
  contest.reasonsOrder.setCell(speaker->row, speaker->group, kNobody);
  contest.reasonsPlace[number] = {};
  dialog.removeLine(kOrder, speaker->row);
  // Whoever kept a cell without the place that belongs to it can be listed already.
  if (!isListed(dialog, kUnassigned, number)) {
    dialog.addLine(kUnassigned, lineOf(contest, number));
  }
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
  const ContestantNumber number = *dialog.selectedNumber(kUnassigned);
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

}  // namespace scorvane
