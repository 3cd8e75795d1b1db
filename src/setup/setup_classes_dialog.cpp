#include "setup/setup_classes_dialog.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "model/class_lists.h"
#include "model/contest.h"
#include "session/contest_file.h"
#include "session/open_contest.h"
#include "setup/class_form.h"
#include "setup/setup_ids.h"
#include "text/format.h"
#include "text/report_marks.h"
#include "ui/field_text.h"

namespace scorvane {

namespace {

// The five lists that together are the table of classes, a line each for every class.
constexpr std::array kTable = {IDC_NAME_COLUMN, IDC_FLAGS_COLUMN, IDC_OFFICIAL_COLUMN,
                               IDC_CUTS_COLUMN, IDC_CATEGORY_COLUMN};

const char* flagsLine(bool reasons, bool questions) {
  if (reasons && questions) return "   R-Q";
  if (reasons) return "   R--";
  return questions ? "   --Q" : "   ---";
}

// A class (from 0) in the columns of the table; what the contest lacks of it reads as blank.
std::array<std::string, 5> tableLines(const Contest& contest, std::int32_t index) {
  const JudgingClasses& classes = contest.classes;
  const PlacingLetter official = classes.official(index);
  const auto order = orderOfLetter(official);
  const Cuts cuts = classes.cuts(index);
  return {classLine(classes, index),
          flagsLine(classes.hasReasons(index), classes.hasQuestions(index)),
          formatText("   %c (%d,%d,%d,%d)", official, order[0], order[1], order[2], order[3]),
          formatText("  (%d,%d,%d)", cuts.cut1, cuts.cut2, cuts.cut3),
          categoryName(contest, classes.category(index))};
}

void reloadTable(Dialog& dialog, const Contest& contest) {
  std::array<std::vector<std::string>, kTable.size()> columns;
  for (std::int32_t i = 0; i < contest.classes.count(); ++i) {
    const auto lines = tableLines(contest, i);
    for (std::size_t k = 0; k < lines.size(); ++k) columns[k].push_back(lines[k]);
  }
  for (std::size_t k = 0; k < kTable.size(); ++k) dialog.setLines(kTable[k], columns[k]);
}

void appendToTable(Dialog& dialog, const Contest& contest, std::int32_t index) {
  const auto lines = tableLines(contest, index);
  for (std::size_t k = 0; k < kTable.size(); ++k) dialog.addLine(kTable[k], {lines[k], index});
}

void selectInTable(Dialog& dialog, std::optional<int> line) {
  for (const ControlId list : kTable) dialog.select(list, line);
}

// The order of the four animals for the letter typed; an empty field leaves the old one.
void showOfficialOrder(Dialog& dialog) {
  const std::string official = dialog.text(IDC_OFFICIAL_LETTER);
  if (official.empty()) return;
  const auto order = orderOfLetter(official[0]);
  dialog.setText(IDC_OFFICIAL_ORDER,
                 formatText("( %d , %d , %d , %d )", order[0], order[1], order[2], order[3]));
}

void moveOn(Dialog& dialog, ControlId next) {
  dialog.focus(next);
  if (next != IDC_CLASS_CATEGORY) dialog.selectText(next);
}

void showCuts(Dialog& dialog, const Cuts& cuts) {
  showNumber(dialog, IDC_CUT1, cuts.cut1);
  showNumber(dialog, IDC_CUT2, cuts.cut2);
  showNumber(dialog, IDC_CUT3, cuts.cut3);
}

void clearAll(Dialog& dialog) {
  if (dialog.confirm("This will delete all classes!  Continue?")) {
    // Odd but required, docs/required-behaviour.md: clear-all-classes-keeps-scores
    currentContest().classes.clear();
    for (const ControlId list : kTable) dialog.clearLines(list);
    dialog.focus(IDC_CLASS_NAME);
  }
  dialog.setDefaultButton(IDC_ADD_CLASS);
}

void finishClasses(Dialog& dialog) {
  reportText() = kWelcomeText;
  recomputeAllPlacingScores(currentContest());
  saveCurrent(dialog);
  dialog.end(kOkId);
}

}  // namespace

void SetupClassesDialog::onOpen(Dialog& dialog) {
  Contest& contest = currentContest();
  if (contest.categories.empty()) contest.categories.emplace_back(kNoCategory);
  dialog.linkScrolling({kTable.begin(), kTable.end()});
  dialog.setLines(IDC_CLASS_CATEGORY, contest.categories);
  reloadTable(dialog, currentContest());
  resetForm(dialog);
}

void SetupClassesDialog::onEvent(Dialog& dialog, ControlId id, ControlEvent event) {
  if (event == ControlEvent::textChanged) onTextChanged(dialog, id);
  if (event == ControlEvent::clicked) onClicked(dialog, id);
  if (event != ControlEvent::selectionChanged) return;
  if (std::find(kTable.begin(), kTable.end(), id) == kTable.end()) return;
  if (const auto line = dialog.selection(id)) showClass(dialog, *line);
}

void SetupClassesDialog::onClose(Dialog& dialog) {
  finishClasses(dialog);
}

// A letter and three digits are typed without a Tab in between.
void SetupClassesDialog::onTextChanged(Dialog& dialog, ControlId id) const {
  if (id == IDC_OFFICIAL_LETTER) showOfficialOrder(dialog);
  if (filling_) return;
  if (id == IDC_OFFICIAL_LETTER) moveOn(dialog, IDC_CUT1);
  if (id == IDC_CUT1) moveOn(dialog, IDC_CUT2);
  if (id == IDC_CUT2) moveOn(dialog, IDC_CUT3);
  if (id == IDC_CUT3) moveOn(dialog, IDC_CLASS_CATEGORY);
}

void SetupClassesDialog::onClicked(Dialog& dialog, ControlId id) {
  if (id == IDC_ADD_CLASS) addClass(dialog);
  if (id == IDC_UPDATE_CLASS) updateClass(dialog);
  if (id == IDC_REMOVE_CLASS) removeSelected(dialog);
  if (id == IDC_NEW_CLASS) resetForm(dialog);
  if (id == IDC_CLEAR_ALL_CLASSES) clearAll(dialog);
  if (id == IDC_CLASSES_DONE) finishClasses(dialog);
}

// An empty form is the mode of adding.
void SetupClassesDialog::resetForm(Dialog& dialog) {
  filling_ = true;
  dialog.setText(IDC_CLASS_NAME, "");
  dialog.setChecked(IDC_CLASS_REASONS, false);
  dialog.setChecked(IDC_CLASS_QUESTIONS, false);
  dialog.setText(IDC_OFFICIAL_LETTER, "A");
  showCuts(dialog, {});
  filling_ = false;
  selectInTable(dialog, std::nullopt);
  dialog.select(IDC_CLASS_CATEGORY, 0);
  dialog.focus(IDC_CLASS_NAME);
  dialog.setDefaultButton(IDC_ADD_CLASS);
}

void SetupClassesDialog::showClass(Dialog& dialog, int line) {
  selectInTable(dialog, line);
  const JudgingClasses& classes = currentContest().classes;
  filling_ = true;
  dialog.setText(IDC_CLASS_NAME, classes.name(line));
  dialog.setChecked(IDC_CLASS_REASONS, classes.hasReasons(line));
  dialog.setChecked(IDC_CLASS_QUESTIONS, classes.hasQuestions(line));
  dialog.setText(IDC_OFFICIAL_LETTER, std::string(1, classes.official(line)));
  showCuts(dialog, classes.cuts(line));
  filling_ = false;
  const std::int32_t category = classes.category(line);
  const bool listed = category >= 0 && category < dialog.lineCount(IDC_CLASS_CATEGORY);
  dialog.select(IDC_CLASS_CATEGORY, listed ? std::optional<int>(category) : std::nullopt);
  dialog.setDefaultButton(IDC_UPDATE_CLASS);
}

void SetupClassesDialog::addClass(Dialog& dialog) {
  if (dialog.selection(IDC_NAME_COLUMN)) {
    dialog.show("Once a class is selected you can only update it.", "Warning");
    dialog.setDefaultButton(IDC_UPDATE_CLASS);
    return;
  }
  store(dialog, std::nullopt);
}

void SetupClassesDialog::updateClass(Dialog& dialog) {
  const auto selected = dialog.selection(IDC_NAME_COLUMN);
  if (!selected) {
    dialog.show("No class is selected, so an update is not possible.", "Warning");
    return;
  }
  store(dialog, selected);
}

void SetupClassesDialog::store(Dialog& dialog, std::optional<int> updated) {
  JudgingClasses& classes = currentContest().classes;
  if (const auto refusal = storeClass(classes, readClassForm(dialog), updated)) {
    // The table is not reloaded: what the undo took away shows only after the next change.
    dialog.show(*refusal, "Warning");
    return;
  }
  const std::int32_t last = classes.count() - 1;
  if (!updated && dialog.lineCount(IDC_NAME_COLUMN) == last) {
    appendToTable(dialog, currentContest(), last);
  } else {
    // Also for a new class after a refused update, which left a line without a class.
    reloadTable(dialog, currentContest());
  }
  resetForm(dialog);
}

void SetupClassesDialog::removeSelected(Dialog& dialog) {
  const auto selected = dialog.selection(IDC_NAME_COLUMN);
  if (hasScores(currentContest())) {
    dialog.show("You cannot delete a class once scores have been input.", "Error");
  } else if (!selected) {
    dialog.show("No items selected.", "Warning");
  } else {
    currentContest().classes.remove(*selected);
    reloadTable(dialog, currentContest());
  }
  resetForm(dialog);
}

}  // namespace scorvane
